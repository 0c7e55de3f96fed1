#include <gmock/gmock.h>

#include "forms/Layout.h"
#include "forms/SampleForm.h"

namespace kestrune::forms {
namespace {

// Letters of 5 by 10 points.
struct FakeMeasures : Measures {
    [[nodiscard]] Size text(std::string_view text, double width) const override {
        const double whole = 5.0 * static_cast<double>(text.size());
        if (width <= 0 || whole <= width) return {whole, 10};
        return {width, 10 * std::ceil(whole / width)};
    }
};

struct LayoutTest : testing::Test {
    [[nodiscard]] Box at(const Layout& layout, std::string_view name) const {
        for (std::size_t i = 0; i < form.controls().size(); ++i)
            if (form.controls()[i].Name() == name) return layout.boxes[i];
        ADD_FAILURE() << name;
        return {};
    }
    // Whatever the size: everything inside what holds it, nothing over anything else that is seen with it.
    void expect_in_order(const Layout& layout) const {
        const auto& controls = form.controls();
        constexpr double close = 1e-6;
        for (std::size_t i = 0; i < controls.size(); ++i) {
            const Box& box = layout.boxes[i];
            const Box home = controls[i].container() ? at(layout, controls[i].container()->Name())
                                                     : Box{0, 0, layout.inside.width, layout.inside.height};
            EXPECT_GE(box.left, home.left + 4) << controls[i].Name();
            EXPECT_GE(box.top, home.top + 4) << controls[i].Name();
            EXPECT_LE(box.right(), home.right() - 4) << controls[i].Name();
            EXPECT_LE(box.bottom(), home.bottom() - 4) << controls[i].Name();
            for (std::size_t j = 0; j < i; ++j) {
                const Box& other = layout.boxes[j];
                if (controls[i].container() != controls[j].container() ||
                    controls[i].design().page != controls[j].design().page) {
                    continue;
                }
                const bool apart = box.left >= other.right() - close || other.left >= box.right() - close ||
                                   box.top >= other.bottom() - close || other.top >= box.bottom() - close;
                EXPECT_TRUE(apart) << controls[i].Name() << " lies over " << controls[j].Name();
            }
        }
    }

    SampleForm form;
    FakeMeasures measures;
};

TEST_F(LayoutTest, PutsControlsInLinesAndColumns) {
    const Layout layout = lay_out(form, measures);
    expect_in_order(layout);
    // Boxes of one container begin in one column, each in the middle of its line.
    EXPECT_DOUBLE_EQ(at(layout, "txtName").left, at(layout, "lstColors").left);
    EXPECT_NEAR(at(layout, "lblName").top + at(layout, "lblName").height / 2,
                at(layout, "txtName").top + at(layout, "txtName").height / 2, 0.01);
    EXPECT_NEAR(at(layout, "lblLook").top - at(layout, "lstColors").top, 4, 1.5) << "at the first line of the list";
    EXPECT_DOUBLE_EQ(at(layout, "spnRows").left, at(layout, "txtRows").right());
    EXPECT_DOUBLE_EQ(at(layout, "spnRows").height, at(layout, "txtRows").height);
    EXPECT_DOUBLE_EQ(at(layout, "lblRows").left, at(layout, "optAll").left + 12);
    // What stretches ends where the push buttons end, which are of one size.
    for (const char* name : {"txtName", "fraScope", "lstColors", "mpaMore", "btnCancel"}) {
        EXPECT_DOUBLE_EQ(at(layout, name).right(), layout.inside.width - 8.25) << name;
    }
    EXPECT_DOUBLE_EQ(at(layout, "btnOK").width, at(layout, "btnCancel").width);
    // Captions are never cut off.
    EXPECT_GE(at(layout, "optSome").width, 13.5 + 5 * 9);
    form["btnOK"].Caption("A button with a long caption");
    EXPECT_GE(at(lay_out(form, measures), "btnCancel").width, 5 * 28);
}

TEST_F(LayoutTest, GivesWhatIsLeftToWhatStretches) {
    const Layout least = lay_out(form, measures);
    const Layout small = lay_out(form, measures, {10, 10});
    EXPECT_DOUBLE_EQ(small.inside.width, least.inside.width) << "it never gets too small";
    const Layout large = lay_out(form, measures, {least.inside.width + 100, least.inside.height + 60});
    expect_in_order(large);
    EXPECT_DOUBLE_EQ(at(large, "lstColors").width, at(least, "lstColors").width + 100);
    EXPECT_DOUBLE_EQ(at(large, "lstColors").height, at(least, "lstColors").height + 60);
    EXPECT_DOUBLE_EQ(at(large, "btnOK").top, at(least, "btnOK").top + 60);
    EXPECT_DOUBLE_EQ(at(large, "ckbBold").width, at(least, "ckbBold").width);
}

}  // namespace
}  // namespace kestrune::forms
