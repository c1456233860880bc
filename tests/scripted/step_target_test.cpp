#include "kvopt/scripted/step_target.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "kvopt/scripted/scripted_desktop.h"
#include "tests/scripted/sample_pages.h"

namespace kvopt {
namespace {

using testing::HasSubstr;
using namespace test;

/// Asks while the sample page is in front of a running sheet.
class StepTargetTest : public testing::Test {
protected:
    StepTargetTest() { Desktop::Install(&desktop_); }

    FoundTarget Find(const std::string& line) {
        const UserScript script = UserScript::FromText(line);
        const UserStep& step = script.Steps().front();
        FoundTarget found;
        InFrontOf([&](const StepScope& scope) { found = FindTarget(scope, step); });
        return found;
    }

    /// The number of the control that a step is aimed at; 0 with its problem kept.
    int NumberOf(const std::string& line) {
        int number = 0;
        const UserScript script = UserScript::FromText(line);
        const UserStep& step = script.Steps().front();
        InFrontOf([&](const StepScope& scope) {
            const FoundTarget found = FindTarget(scope, step);
            problem_ = found.problem;
            number = found.control != nullptr ? found.control->Number() : 0;
        });
        return number;
    }

    CPoint CellOf(const std::string& line) { return Find(line).cell; }

    template <class Ask>
    void InFrontOf(Ask ask) {
        SamplePage page;
        CPropertySheet sheet(L"Sheet", nullptr);
        sheet.AddPage(&page);
        page.onOptions = [&] {
            ask({&sheet, nullptr});
            sheet.EndDialog(kResultOk);
        };
        desktop_.Player().Add(UserScript::FromText("click 108"));
        sheet.DoModal();
        ASSERT_THAT(desktop_.Verify(), testing::IsEmpty());
    }

    ScriptedDesktop desktop_;
    std::string problem_;
};

TEST_F(StepTargetTest, FindsAControlByNumberNameAndLabel) {
    EXPECT_EQ(NumberOf("type 103 x"), kHigh);
    EXPECT_EQ(NumberOf("type \"High\" x"), kHigh);
    EXPECT_EQ(NumberOf("click \"Plot options...\""), kOptions);
    EXPECT_EQ(NumberOf("click \"Plot &options...\""), kOptions);
    EXPECT_EQ(NumberOf("click \"Contour\""), kContour);
}

TEST_F(StepTargetTest, ALabelLeadsToItsControlWithOrWithoutItsColon) {
    EXPECT_EQ(NumberOf("type \"Low:\" x"), kLow);
    EXPECT_EQ(NumberOf("type \"Low\" x"), kLow);
    EXPECT_EQ(NumberOf("expect text \"Low:\" x"), kLow);
    EXPECT_EQ(NumberOf("expect text 101 x"), kLowLabel);
}

TEST_F(StepTargetTest, ComparesNamesCaseAndAll) {
    EXPECT_EQ(NumberOf("type \"high\" x"), 0);
    EXPECT_THAT(problem_, HasSubstr("no control of page 39001 \"First page\" is named \"high\""));
    EXPECT_THAT(problem_, HasSubstr("\"Low:\", \"High\", \"Factor\""));
}

TEST_F(StepTargetTest, TellsAnUnknownNumber) {
    EXPECT_EQ(NumberOf("click 999"), 0);
    EXPECT_EQ(problem_, "page 39001 \"First page\" has no control 999");
}

TEST_F(StepTargetTest, TellsAHiddenControlFromADisabledOne) {
    EXPECT_EQ(NumberOf("click \"Unseen\""), 0);
    EXPECT_EQ(problem_, "control 115 \"Unseen\" is hidden");
    EXPECT_EQ(NumberOf("click \"Off\""), 0);
    EXPECT_EQ(problem_, "control 116 \"Off\" is disabled");
}

TEST_F(StepTargetTest, FindsHiddenAndDisabledControlsWhenItOnlyLooks) {
    EXPECT_EQ(NumberOf("expect hidden \"Unseen\""), kHidden);
    EXPECT_EQ(NumberOf("expect disabled \"Off\""), kOff);
}

TEST_F(StepTargetTest, PrefersTheVisibleOneOfTwoInOnePlace) {
    EXPECT_EQ(NumberOf("click \"Same\""), kSameShown);
}

TEST_F(StepTargetTest, RefusesANameThatSeveralControlsBear) {
    EXPECT_EQ(NumberOf("click \"Twin\""), 0);
    EXPECT_EQ(problem_, "\"Twin\" names several controls: 119, 120");
}

struct Misfit {
    const char* line;
    const char* problem;
};

class StepTargetMisfit : public StepTargetTest, public testing::WithParamInterface<Misfit> {};

TEST_P(StepTargetMisfit, SaysWhatTheVerbNeeds) {
    EXPECT_EQ(NumberOf(GetParam().line), 0);
    EXPECT_EQ(problem_, GetParam().problem);
}

INSTANTIATE_TEST_SUITE_P(
    EveryVerb, StepTargetMisfit,
    testing::Values(
        Misfit{"click 102",
               "control 102 \"Low:\" is not a push button, a check box or a radio "
               "button"},
        Misfit{"focus 101", "control 101 \"Low:\" is not a control that takes the focus"},
        Misfit{"type 104 x",
               "control 104 \"Factor\" is not an edit or a drop-down list with free text"},
        Misfit{"paste 105 x", "control 105 \"Resolution\" is not an edit"},
        Misfit{"pick 106 x", "control 106 \"Available\" is not a drop-down list"},
        Misfit{"mark 104 x", "control 104 \"Factor\" is not a list"},
        Misfit{"double-click 104 x", "control 104 \"Factor\" is not a list"},
        Misfit{"spin 104 up", "control 104 \"Factor\" is not arrows, or the edit beside them"},
        Misfit{"hover cell 1 2 in 104", "control 104 \"Factor\" is not a worksheet"},
        Misfit{"expect checked 108",
               "control 108 \"Plot options...\" is not a check box or a radio button"},
        Misfit{
            "expect entries 102 x",
            "control 102 \"Low:\" is not a list, a drop-down list, a worksheet or a property grid"},
        Misfit{"expect marked 104 x", "control 104 \"Factor\" is not a list"}));

TEST_F(StepTargetTest, FindsACellByTextsAndByPositions) {
    EXPECT_EQ(CellOf("hover cell \"Grade\" \"Setting\""), (CPoint{3, 2}));
    EXPECT_EQ(CellOf("hover cell 2 3"), (CPoint{3, 2}));
    EXPECT_EQ(CellOf("hover cell Grade 3 in Constants"), (CPoint{3, 2}));
    EXPECT_EQ(CellOf("hover cell 3 1 in 114"), (CPoint{1, 3}));
}

TEST_F(StepTargetTest, TellsWhichRowsAndColumnsThereAre) {
    EXPECT_EQ(Find("hover cell Height Value").problem,
              "no row is named \"Height\"; there are \"Width\", \"Grade\", \"Fixed\"");
    EXPECT_EQ(Find("hover cell Width Height").problem,
              "no column is named \"Height\"; there are \"Factor\", \"Value\", \"Setting\"");
    EXPECT_EQ(Find("hover cell 4 1").problem, "there is no row 4, only 3");
    EXPECT_EQ(Find("hover cell 1 4").problem, "there is no column 4, only 3");
}

TEST_F(StepTargetTest, KnowsTheFramesButtonsOfASheetAWizardAndADialog) {
    SamplePage page;
    CPropertySheet sheet(L"Sheet", nullptr);
    const StepScope onSheet{&sheet, nullptr};
    EXPECT_TRUE(HasFrameButton(onSheet, FrameButton::Ok));
    EXPECT_FALSE(HasFrameButton(onSheet, FrameButton::Apply));
    sheet.SetHasApply(true);
    EXPECT_TRUE(HasFrameButton(onSheet, FrameButton::Apply));
    EXPECT_FALSE(IsFrameButtonEnabled(onSheet, FrameButton::Apply));
    EXPECT_FALSE(HasFrameButton(onSheet, FrameButton::Next));

    CPropertySheet wizard(L"Wizard", nullptr);
    wizard.SetWizardMode();
    const StepScope inWizard{&wizard, nullptr};
    EXPECT_FALSE(HasFrameButton(inWizard, FrameButton::Ok));
    EXPECT_TRUE(HasFrameButton(inWizard, FrameButton::Next));
    EXPECT_TRUE(HasFrameButton(inWizard, FrameButton::Close));

    AskDialog dialog(nullptr);
    const StepScope onDialog{nullptr, &dialog};
    EXPECT_TRUE(IsFrameButtonEnabled(onDialog, FrameButton::Ok));
    EXPECT_TRUE(IsFrameButtonEnabled(onDialog, FrameButton::Cancel));
    EXPECT_FALSE(HasFrameButton(onDialog, FrameButton::Apply));
    EXPECT_FALSE(IsFrameButtonEnabled(onDialog, FrameButton::Finish));
}

}  // namespace
}  // namespace kvopt
