#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "forms/ConsolePresenter.h"
#include "forms/MsgBox.h"
#include "forms/ScriptedPresenter.h"

namespace kestrune::forms {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(ScriptedPresenter, AnswersByPolicyWithAButtonThatIsThere) {
    const struct {
        const char* policy;
        std::int32_t buttons;
        MsgBoxResult answer;
    } cases[] = {
        {"ok", vbOKCancel | vbInformation, vbOK},
        {"ok", vbYesNo, vbYes},
        {"ok", vbAbortRetryIgnore, vbIgnore},
        {"ok", vbRetryCancel, vbCancel},  // a retry would ask for ever
        {"cancel", vbOKCancel | vbCritical, vbCancel},
        {"cancel", vbYesNo, vbNo},
        {"cancel", vbAbortRetryIgnore, vbAbort},
        {"cancel", vbOKOnly, vbOK},
        {"yes", vbYesNoCancel | vbDefaultButton3, vbYes},
        {"yes", vbOKCancel, vbOK},
        {"no", vbYesNoCancel, vbNo},
        {"NO", vbOKCancel, vbCancel},
    };
    for (const auto& box : cases) {
        ScriptedPresenter presenter(answer_policy(box.policy).value());
        EXPECT_EQ(MsgBox(presenter, "?", box.buttons), box.answer) << box.policy << " to buttons " << box.buttons;
    }
    EXPECT_EQ(answer_policy("maybe"), std::nullopt);
    EXPECT_EQ(answer_policy("ask"), std::nullopt);
}

TEST(ScriptedPresenter, AnswersFromItsQueueFirstAndKeepsWhatItShowed) {
    ScriptedPresenter presenter;
    std::vector<MsgBoxResult> heard;
    presenter.listen([&](const Message&, MsgBoxResult answer) { heard.push_back(answer); });
    presenter.answer_next(vbCancel);
    presenter.answer_next(vbNo);
    MsgBox(presenter, "one", vbOKCancel, "Caption");
    MsgBox(presenter, "two", vbOKCancel);
    MsgBox(presenter, "three", vbYesNo);
    EXPECT_THAT(heard, ElementsAre(vbCancel, vbOK, vbYes)) << "No is no answer to OK and Cancel";
    ASSERT_EQ(presenter.messages().size(), 3U);
    EXPECT_EQ(presenter.messages()[0].caption, "Caption");
    EXPECT_EQ(presenter.messages()[2].text, "three");
}

TEST(ConsolePresenter, ReadsAnAnswer) {
    const struct {
        const char* typed;
        std::int32_t buttons;
        MsgBoxResult answer;
    } cases[] = {
        {"OK\n", vbOKCancel, vbOK},
        {"  c \n", vbOKCancel, vbCancel},
        {"ca\r\n", vbOKCancel, vbCancel},
        {"\n", vbOKCancel, vbOK},
        {"\n", vbYesNo | vbDefaultButton2, vbNo},
        {"\n", vbYesNo | vbDefaultButton3, vbYes},  // there is no third button
        {"perhaps\nokay\nn\ny\n", vbYesNoCancel, vbNo},
        {"", vbOKCancel, vbCancel},
        {"what\n", vbYesNo, vbNo},
        {"", vbAbortRetryIgnore, vbAbort},
        {"r", vbRetryCancel, vbRetry},
        {"", vbOKOnly, vbOK},
    };
    for (const auto& box : cases) {
        std::istringstream input(box.typed);
        std::ostringstream output;
        ConsolePresenter presenter(input, output);
        EXPECT_EQ(MsgBox(presenter, "Proceed?", box.buttons, "Kestrune"), box.answer)
            << '\'' << box.typed << "' to buttons " << box.buttons;
        EXPECT_THAT(output.str(), HasSubstr("Kestrune: Proceed?\n"));
    }
}

TEST(ConsolePresenter, ShowsTheChoicesAndLeavesOtherLinesAlone) {
    std::istringstream input("hm\nyes\nnext");
    std::ostringstream output;
    ConsolePresenter presenter(input, output);
    MsgBox(presenter, "Proceed?", vbYesNo | vbDefaultButton2);
    MsgBox(presenter, "Done.");
    EXPECT_EQ(output.str(),
              "Proceed?\n  Yes / No (Enter)?   'hm' is none of the choices.\n  Yes / No (Enter)? Done.\n");
    std::string rest;
    std::getline(input, rest);
    EXPECT_EQ(rest, "next") << "a box with nothing to choose reads nothing";
}

TEST(ConsolePresenter, AsksForFiles) {
    const std::filesystem::path folder = testing::TempDir() + "kestrune-files";
    std::filesystem::create_directories(folder / "below");
    std::ofstream(folder / "here.xml") << "x";
    std::filesystem::remove(folder / "new.xml");
    const std::string in = folder.string() + "/";
    const auto open = FileDialog::Purpose::Open;
    const auto save = FileDialog::Purpose::Save;
    const struct {
        FileDialog::Purpose purpose;
        const char* proposed;
        std::string typed;
        std::optional<std::string> path;
    } cases[] = {
        {open, "", "here.xml\n", in + "here.xml"},   {open, "", "nowhere.xml\n" + in + "here.xml\r\n", in + "here.xml"},
        {open, "", "below\nhere\n\n", {}},  // a folder, and a name without its ending
        {open, "here.xml", "\n", in + "here.xml"},   {open, "", "", {}},
        {save, "new.xml", "\n", in + "new.xml"},     {save, "", "new\n", in + "new.xml"},
        {save, "", "new.txt\n", in + "new.txt"},     {save, "", "here.xml\nyes\n", in + "here.xml"},
        {save, "", "here\n\nnew\n", in + "new.xml"},  // a plain Enter writes over nothing
    };
    for (const auto& c : cases) {
        std::istringstream input(c.typed);
        std::ostringstream output;
        ConsolePresenter presenter(input, output);
        EXPECT_EQ(presenter.choose_file({c.purpose, "Import", "XML Files (*.xml)", "*.xml", c.proposed, in}), c.path)
            << c.typed << output.str();
    }
}

TEST(ScriptedPresenter, ChoosesFilesFromAQueue) {
    ScriptedPresenter presenter;
    presenter.choose_next("a.xml");
    presenter.choose_next(std::nullopt);
    EXPECT_EQ(presenter.choose_file({}), "a.xml");
    EXPECT_EQ(presenter.choose_file({}), std::nullopt);
    EXPECT_EQ(presenter.choose_file({}), std::nullopt) << "with no answer left";
    EXPECT_EQ(presenter.file_dialogs().size(), 3U);
}

}  // namespace
}  // namespace kestrune::forms
