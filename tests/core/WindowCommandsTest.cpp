#include "core/AddInTest.h"

namespace kestrune::core {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct WindowCommandsTest : AddInTest {
    WindowCommandsTest() {
        start();
        application->screen_updating = false;
    }
    // What a request wrote to Excel's windows.
    fake::Log written_by(const char* request) {
        log.clear();
        EXPECT_TRUE(run(request));
        std::erase_if(log, [](const std::string& line) { return line.starts_with("ScreenUpdating"); });
        return log;
    }
};

TEST_F(WindowCommandsTest, ZoomStaysInsideItsLimits) {
    const struct {
        std::int32_t before;
        const char* request;
        std::int32_t after;
    } cases[] = {
        {100, "87", 105}, {100, "88", 95}, {395, "87", 400}, {396, "87", 396}, {400, "87", 400},
        {15, "88", 10},   {14, "88", 14},  {10, "88", 10},   {400, "88", 395}, {10, "87", 15},
    };
    for (const auto& zoom : cases) {
        application->window->zoom = zoom.before;
        run(zoom.request);
        EXPECT_EQ(application->window->zoom, zoom.after) << zoom.request << " at " << zoom.before;
    }
    application->window = nullptr;
    EXPECT_THAT(written_by("87"), IsEmpty()) << "no window is active";
}

TEST_F(WindowCommandsTest, WindowTogglesBetweenMaximisedAndSmall) {
    EXPECT_THAT(written_by("89"), ElementsAre("WindowState=-4137"));
    const auto small = ElementsAre("WindowState=-4143", "ActiveWindow.WindowState=-4137", "Width=368", "Height=381",
                                   "Left=385", "Top=176");
    EXPECT_THAT(written_by("89"), small);
    application->state = -4140;
    EXPECT_THAT(written_by("89"), small) << "from minimised";
    EXPECT_THAT(written_by("90"), ElementsAre("WindowState=-4137"));
    EXPECT_THAT(written_by("90"), ElementsAre("WindowState=-4137"));
}

TEST_F(WindowCommandsTest, GridlinesFlip) {
    run("98");
    EXPECT_FALSE(application->window->gridlines);
    run("98");
    EXPECT_TRUE(application->window->gridlines);
}

TEST_F(WindowCommandsTest, WindowIsPlacedOnTheScreen) {
    const std::string maximised = "WindowState=-4137";
    const std::string normal = "WindowState=-4143";
    // The maximised frame hangs 6 points over each edge of a screen of 1440 by 860 points.
    EXPECT_THAT(written_by("99.1"), ElementsAre(maximised));
    EXPECT_THAT(written_by("99.2"), ElementsAre(maximised, normal, "Left=0", "Top=0", "Width=1440", "Height=430"));
    EXPECT_THAT(written_by("99.3"), ElementsAre(maximised, normal, "Left=0", "Top=430", "Width=1440", "Height=430"));
    EXPECT_THAT(written_by("99.4"), ElementsAre(maximised, normal, "Left=0", "Top=0", "Width=720", "Height=860"));
    EXPECT_THAT(written_by("99.5"), ElementsAre(maximised, normal, "Left=720", "Top=0", "Width=720", "Height=860"));
    EXPECT_THAT(written_by("99.6"),
                ElementsAre(maximised, normal, "Left=180", "Top=107.5", "Width=1080", "Height=645"));
    for (const char* nowhere : {"99", "99.0", "99.7", "99.-1", "99.x"}) EXPECT_THAT(written_by(nowhere), IsEmpty());
}

TEST_F(WindowCommandsTest, SecondScreenKeepsItsPlace) {
    const double left_of_the_first[] = {-1440, 0, 1440, 860};
    std::ranges::copy(left_of_the_first, application->maximised);
    EXPECT_THAT(written_by("99.5"),
                ElementsAre("WindowState=-4137", "WindowState=-4143", "Left=-720", "Top=0", "Width=720", "Height=860"));
}

}  // namespace
}  // namespace kestrune::core
