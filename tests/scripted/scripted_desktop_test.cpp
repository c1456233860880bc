#include "kvopt/scripted/scripted_desktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "kvopt/text/exceptions.h"
#include "tests/scripted/sample_pages.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using namespace test;

/// A sheet or a wizard of both sample pages, run by a script.
class ScriptedDesktopTest : public testing::Test {
protected:
    ScriptedDesktopTest() {
        Desktop::Install(&desktop_);
        sheet_.AddPage(&first_);
        sheet_.AddPage(&second_);
    }

    int Play(const std::string& script) {
        desktop_.Player().Add(UserScript::FromText(script));
        const int result = sheet_.DoModal();
        faults_ = desktop_.Verify();
        return result;
    }

    /// Plays on the first page, then leaves the sheet.
    void PlayOnPage(const std::string& script) { Play(script + "\ncancel"); }

    int PlayWizard(const std::string& script) {
        sheet_.SetWizardMode();
        return Play(script);
    }

    /// What the page's handlers and the mouse noted: the transcript without frame, boxes and steps.
    std::vector<std::string> Heard() {
        std::vector<std::string> heard;
        for (const std::string& line : desktop_.Log().Lines()) {
            for (const char* word : {"changed ", "selection ", "clicked ", "double click ", "move ",
                                     "press ", "release ", "the page ", "cursor "}) {
                if (line.rfind(word, 0) == 0) {
                    heard.push_back(line);
                }
            }
        }
        return heard;
    }

    ScriptedDesktop desktop_;
    SamplePage first_;
    SamplePage second_{kSecondPage};
    CPropertySheet sheet_{L"Sheet", nullptr};
    std::vector<std::string> faults_;
};

TEST_F(ScriptedDesktopTest, TypesOneKeystrokeAfterTheOther) {
    PlayOnPage("type \"High\" 85\nexpect text \"High\" 85\nexpect focus \"High\"");
    EXPECT_THAT(Heard(), ElementsAre("changed 103 8", "changed 103 85"));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, TypingClearsWhatWasThereByOneKeystroke) {
    PlayOnPage("type \"High\" 85\ntype \"High\" 9\ntype \"High\" \"\"\ntype \"High\" \"\"");
    EXPECT_THAT(Heard(), ElementsAre("changed 103 8", "changed 103 85", "changed 103 ",
                                     "changed 103 9", "changed 103 "));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, TypingIntoDigitsOnlyDropsTheRestAndPastingDoesNot) {
    PlayOnPage(
        "type \"Count\" 3x4\nexpect text \"Count\" 34\n"
        "paste \"Count\" \"3x4\"\nexpect text \"Count\" \"3x4\"\nexpect clipboard \"3x4\"");
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, TypesIntoAnEditableDropDownList) {
    PlayOnPage(
        "type \"Resolution\" 64\nexpect text \"Resolution\" 64\n"
        "pick \"Resolution\" Time\nexpect text \"Resolution\" Time");
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, PicksAnEntryByItsWholeText) {
    PlayOnPage("pick \"Factor\" Temp2\nexpect text \"Factor\" Temp2\npick \"Factor\" Temp2");
    EXPECT_THAT(Heard(), ElementsAre("selection 104 Temp2"));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, PicksAnEntryWithoutText) {
    first_.onOptions = [&] { first_.Item<CComboBox>(kFactor)->AddString(L""); };
    PlayOnPage(
        "click 108\npick \"Factor\" Time\npick \"Factor\" \"\"\nexpect text \"Factor\" \"\"");
    EXPECT_THAT(Heard(), ElementsAre("selection 104 Time", "selection 104 "));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, AnEntryThatIsNotThereIsAFaultThatNamesThoseThatAre) {
    PlayOnPage("pick \"Factor\" Tem\nmark \"Available\" Temp Tim\ndouble-click \"Kind\" x");
    EXPECT_THAT(
        faults_,
        ElementsAre("script:1: pick \"Factor\" \"Tem\": there is no entry \"Tem\"; there "
                    "are \"Temp\", \"Temp2\", \"Time\"",
                    HasSubstr("there is no entry \"Tim\""), HasSubstr("there is no entry \"x\"")));
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(ScriptedDesktopTest, MarksEntriesByOneClickEach) {
    PlayOnPage(
        "mark \"Available\" Time Temp\nexpect marked \"Available\" Temp Time\n"
        "mark \"Available\" Temp2\nexpect marked \"Available\" Temp2\n"
        "mark \"Available\" none\nexpect marked \"Available\" none");
    EXPECT_THAT(faults_, IsEmpty());
    EXPECT_EQ(Heard().size(), 4U);
}

TEST_F(ScriptedDesktopTest, ASingleListTakesJustOneMark) {
    PlayOnPage(
        "mark \"Kind\" Temp\nexpect marked \"Kind\" Temp\nmark \"Kind\" Temp Time\n"
        "mark \"Kind\" none");
    EXPECT_THAT(faults_, ElementsAre(HasSubstr("script:3: mark \"Kind\" \"Temp\" \"Time\": the "
                                               "list takes just one mark"),
                                     HasSubstr("script:4")));
}

TEST_F(ScriptedDesktopTest, DoubleClicksAnEntry) {
    PlayOnPage("double-click \"Available\" Time\nexpect marked \"Available\" Time");
    EXPECT_THAT(Heard(), testing::Contains(testing::StartsWith("double click 106")));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, ClicksButtonsChecksAndRadios) {
    bool clicked = false;
    first_.onOptions = [&] { clicked = true; };
    PlayOnPage(
        "click \"Plot options...\"\nclick \"Use color\"\nexpect checked \"Use color\"\n"
        "click \"Use color\"\nexpect unchecked \"Use color\"\n"
        "click \"Surface\"\nexpect checked \"Surface\"\nexpect unchecked \"Contour\"");
    EXPECT_TRUE(clicked);
    EXPECT_THAT(Heard(), ElementsAre("clicked 109 Use &color", "clicked 109 Use &color",
                                     "clicked 111 &Surface"));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, SpinsByTheArrowsOrByTheEditBesideThem) {
    PlayOnPage(
        "spin 113 up\nexpect text \"Count\" 3\nspin \"Count\" up 5\nexpect text \"Count\" 5\n"
        "spin \"Count\" down 2\nexpect text \"Count\" 3\nspin \"High\" up");
    EXPECT_THAT(faults_, ElementsAre(HasSubstr("script:7: spin \"High\" up: there are no arrows "
                                               "that can be clicked beside control 103")));
}

TEST_F(ScriptedDesktopTest, AStepOnAHiddenOrDisabledControlFailsAndDoesNothing) {
    PlayOnPage("click \"Unseen\"\nclick \"Off\"\nclick 999");
    EXPECT_THAT(faults_,
                ElementsAre("script:1: click \"Unseen\": control 115 \"Unseen\" is hidden",
                            "script:2: click \"Off\": control 116 \"Off\" is disabled",
                            "script:3: click 999: page 39001 \"First page\" has no control 999"));
}

TEST_F(ScriptedDesktopTest, TypesIntoACellAndCommitsIt) {
    PlayOnPage(
        "type cell Width Value 4.5\nexpect text cell Width Value 4.5\n"
        "type cell Grade Value 1\ntype cell Fixed Value 1");
    EXPECT_THAT(Heard(), ElementsAre("changed 2,1 4.5"));
    EXPECT_THAT(faults_, ElementsAre(HasSubstr("script:3: type cell \"Grade\" \"Value\" 1: the "
                                               "cell takes no typing"),
                                     HasSubstr("script:4")));
}

TEST_F(ScriptedDesktopTest, AnOpenCellEditorCommitsWhenTheFocusLeavesTheGrid) {
    PlayOnPage(
        "edit cell Width Value 4.5\nexpect text cell Width Value 4.5\n"
        "expect text \"Low\" \"\"\nfocus \"High\"");
    EXPECT_THAT(Heard(), ElementsAre("changed 2,1 4.5"));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, ReturnCommitsACellEditorAndEscapeLeavesIt) {
    PlayOnPage(
        "edit cell Width Value 4.5\nkey Escape\nexpect text cell Width Value 2.5\n"
        "edit cell Width Value 6\nkey Return\nexpect text cell Width Value 6");
    EXPECT_THAT(Heard(), ElementsAre("changed 2,1 6"));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, PicksInACellsList) {
    PlayOnPage(
        "expect entries cell Grade Value A B\npick cell Grade Value B\n"
        "expect text cell Grade Value B\npick cell Grade Value C\n"
        "pick cell Width Value C");
    EXPECT_THAT(Heard(), ElementsAre("changed 2,2 B"));
    EXPECT_THAT(faults_, ElementsAre(HasSubstr("there is no entry \"C\"; there are \"A\", \"B\""),
                                     HasSubstr("script:5: pick cell \"Width\" \"Value\" \"C\": the "
                                               "cell offers no list")));
}

TEST_F(ScriptedDesktopTest, PastesCopiesAndSelectsCells) {
    PlayOnPage(
        "paste cell Width Value \"5\\nB\\n8\"\nexpect text cell Width Value 5\n"
        "expect text cell Grade Value B\nexpect text cell Fixed Value 7\n"
        "select cell Width Factor to Grade Value\nkey Ctrl+C\n"
        "expect clipboard \"Width\\t5\\nGrade\\tB\"");
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, DragsASliderFromItsThumb) {
    PlayOnPage("drag cell Width Setting to 5\ndrag cell Width Setting to 100%");
    EXPECT_THAT(Heard(),
                ElementsAre("move 3,1 at 31,11", "cursor size-horizontal", "press 3,1 at 31,11",
                            "move 3,1 at 51,11", "release 3,1 at 51,11", "move 3,1 at 31,11",
                            "press 3,1 at 31,11", "move 3,1 at 101,11", "release 3,1 at 101,11"));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, DragsASliderToAnotherCell) {
    PlayOnPage("drag cell Width Setting to cell Grade Value 25%");
    EXPECT_THAT(Heard(),
                ElementsAre("move 3,1 at 31,11", "cursor size-horizontal", "press 3,1 at 31,11",
                            "move 2,2 at 26,11", "cursor arrow", "release 2,2 at 26,11"));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, ASliderThatDoesNotOfferItselfCannotBeDragged) {
    first_.grid.isClosed = true;
    PlayOnPage(
        "drag cell Width Setting to 5\ndrag cell Grade Setting to 5\n"
        "type cell Width Value 11\ndrag cell Width Setting to 5");
    EXPECT_THAT(faults_, ElementsAre(HasSubstr("the slider cannot be dragged"),
                                     HasSubstr("the cell shows no slider"),
                                     HasSubstr("the slider shows no thumb, its value lies outside "
                                               "0 to 10")));
    EXPECT_THAT(Heard(), testing::Not(testing::Contains(HasSubstr("press"))));
}

TEST_F(ScriptedDesktopTest, HoversAndShowsTipAndCursor) {
    PlayOnPage(
        "expect cursor arrow\nhover cell Width Setting 50%\nexpect cursor size-horizontal\n"
        "hover cell Width Value\nexpect cursor arrow\nexpect tip cell Grade Factor \"Tip 2\"\n"
        "expect tip cell Grade Value \"\"");
    EXPECT_THAT(Heard(), testing::Contains("move 3,1 at 51,11"));
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, ChoosesFromACellsMenu) {
    PlayOnPage("menu cell Grade Value Copy\nexpect clipboard A");
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, AMenuEntryThatCannotBeChosenIsAFault) {
    PlayOnPage("menu cell Grade Value Paste\nmenu cell Grade Value Cut");
    EXPECT_THAT(faults_, ElementsAre(HasSubstr("the menu entry \"Paste\" is disabled"),
                                     HasSubstr("the menu has no entry \"Cut\"; there are \"Copy\", "
                                               "\"Paste\"")));
}

TEST_F(ScriptedDesktopTest, AMenuThatNobodyAskedForIsAFault) {
    first_.onOptions = [&] { desktop_.ShowPopupMenu(first_, {}, first_.grid.menu); };
    PlayOnPage("click 108");
    EXPECT_THAT(faults_, ElementsAre(HasSubstr("a menu came that no step asks for")));
}

TEST_F(ScriptedDesktopTest, KeysGoToThePageThenToTheFocusThenToTheFrame) {
    PlayOnPage(
        "key Ctrl+K\nfocus \"Constants\"\nkey Ctrl+A\nkey Ctrl+C\n"
        "expect clipboard \"Width\\t2.5\\t\\nGrade\\tA\\t\\nFixed\\t7\\t\"\nkey Return\n"
        "focus \"High\"\nkey Ctrl+C\nkey Escape");
    EXPECT_THAT(Heard(), ElementsAre("the page takes Ctrl+K"));
    EXPECT_THAT(faults_, ElementsAre(HasSubstr("script:6: key Return: the key does nothing here"),
                                     HasSubstr("script:8: key Ctrl+C: the key does nothing here"),
                                     HasSubstr("script:10: cancel: the step was never reached")));
    EXPECT_EQ(sheet_.Result(), kResultCancel);
}

TEST_F(ScriptedDesktopTest, ReturnPressesTheDefaultButton) {
    EXPECT_EQ(Play("focus \"High\"\nkey Return"), kResultOk);
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, ReturnInAWizardGoesOnAndThenFinishes) {
    EXPECT_EQ(PlayWizard("focus \"High\"\nkey Return\nexpect page 39002\nkey Return"),
              kResultFinish);
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, SelectsTabsAndPressesTheSheetsButtons) {
    sheet_.SetHasApply(true);
    EXPECT_EQ(Play("expect page \"First page\"\nexpect disabled apply\ntab \"Second page\"\n"
                   "expect page 39002\nexpect page \"Second page\"\ntab \"Third page\"\nnext\n"
                   "apply\nok"),
              kResultOk);
    EXPECT_THAT(faults_,
                ElementsAre(HasSubstr("script:6: tab \"Third page\": there is no tab \"Third "
                                      "page\"; there are \"First page\", \"Second page\""),
                            "script:7: next: there is no button next here",
                            "script:8: apply: the button apply is off"));
}

TEST_F(ScriptedDesktopTest, RunsAWizardToItsFinishCode) {
    EXPECT_EQ(PlayWizard("expect disabled back\nexpect enabled next\nexpect disabled finish\n"
                         "expect hidden ok\nfinish\nnext\nback\nnext\nexpect enabled finish\n"
                         "tab \"First page\"\nfinish"),
              kResultFinish);
    EXPECT_THAT(faults_, ElementsAre("script:5: finish: the button finish is off",
                                     HasSubstr("there are no tabs here")));
}

TEST_F(ScriptedDesktopTest, ClosesByTheWindowsButtonAsByCancel) {
    EXPECT_EQ(Play("close"), kResultCancel);
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, NotesEachStepBeforeItActsInOneSpelling) {
    PlayOnPage("type   \"High\" \"8\" # a comment\nexpect text 103 8\npicture page\nwait 5");
    const std::vector<std::string>& lines = desktop_.Log().Lines();
    const auto typed = std::find(lines.begin(), lines.end(), "> type \"High\" 8");
    ASSERT_NE(typed, lines.end());
    EXPECT_EQ(*(typed + 1), "changed 103 8");
    EXPECT_EQ(*(typed + 2), "> wait 5");
    EXPECT_EQ(*(typed + 3), "> cancel");
}

TEST_F(ScriptedDesktopTest, ADialogWithinASheetTakesTheStepsThatFollow) {
    AskDialog* asked = nullptr;
    first_.onOptions = [&] {
        AskDialog dialog(&first_);
        asked = &dialog;
        EXPECT_EQ(dialog.DoModal(), kResultOk);
    };
    EXPECT_EQ(Play("click 108\nexpect page 39003\nexpect page \"Ask\"\nclick \"Again\"\nok\n"
                   "expect page 39001\ntype \"High\" 1\nok"),
              kResultOk);
    EXPECT_NE(asked, nullptr);
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, DialogsNestAsDeepAsThePagesWant) {
    int depth = 0;
    std::function<void()> open = [&] {
        AskDialog dialog(nullptr);
        ++depth;
        dialog.onAgain = open;
        dialog.DoModal();
    };
    first_.onOptions = open;
    Play("click 108\nclick 108\nclick 108\nok\nok\ncancel\ncancel");
    EXPECT_EQ(depth, 3);
    EXPECT_THAT(faults_, IsEmpty());
    EXPECT_TRUE(desktop_.Player().IsAtEnd());
}

TEST_F(ScriptedDesktopTest, StepsThatEndWhileAWindowIsOpenAreAFaultAndCancelIt) {
    first_.onOptions = [&] {
        AskDialog dialog(&first_);
        EXPECT_EQ(dialog.DoModal(), kResultCancel);
    };
    EXPECT_EQ(Play("click 108"), kResultCancel);
    EXPECT_THAT(faults_,
                ElementsAre("script: the steps end while dialog 39003 \"Ask\" is open",
                            "script: the steps end while page 39001 \"First page\" is open"));
}

TEST_F(ScriptedDesktopTest, AWindowThatRefusesToBeCancelledIsEndedAllTheSame) {
    class Stubborn : public AskDialog {
    public:
        using AskDialog::AskDialog;
        void OnCancel() override {}
    };
    Stubborn dialog(nullptr);
    EXPECT_EQ(dialog.DoModal(), kResultCancel);
    EXPECT_THAT(desktop_.Verify(), ElementsAre(HasSubstr("the steps end while dialog")));
}

TEST_F(ScriptedDesktopTest, WhatAHandlerThrowsPassesThroughAllRuns) {
    first_.onOptions = [&] {
        AskDialog dialog(&first_);
        dialog.onAgain = [] { throw CancelException(); };
        dialog.DoModal();
    };
    desktop_.Player().Add(UserScript::FromText("click 108\nclick 108\nok"));
    EXPECT_THROW(sheet_.DoModal(), CancelException);
    EXPECT_THAT(desktop_.Verify(), ElementsAre("script:3: ok: the step was never reached"));
    // The player has forgotten the runs that the exception ended.
    EXPECT_THROW(desktop_.Player().PlayNext(), InvalidArgument);
}

TEST_F(ScriptedDesktopTest, TimePassesOnlyByWaiting) {
    int ran = 0;
    first_.onOptions = [&] { desktop_.StartTimer(&ran, 100, [&] { ++ran; }); };
    Play("click 108\nwait 99\nclick \"Use color\"\nwait 1\nwait 100\ncancel");
    EXPECT_EQ(ran, 2);
    EXPECT_EQ(desktop_.Clock().Now(), 200U);
    desktop_.StopTimer(&ran);
    EXPECT_FALSE(desktop_.Clock().IsRunning(&ran));
}

TEST_F(ScriptedDesktopTest, ABoxThatATimerRaisesBelongsToTheWait) {
    first_.onOptions = [&] {
        desktop_.StartTimer(&first_, 10, [&] {
            desktop_.StopTimer(&first_);
            ShowMessage(&first_, L"Late", BoxStyle::Information);
        });
    };
    Play("click 108\nwait 10\nexpect box information \"Late\"\ncancel");
    EXPECT_THAT(faults_, IsEmpty());
}

TEST_F(ScriptedDesktopTest, ItsLogIsTheTranscriptAndItLeavesWhenItDies) {
    {
        ScriptedDesktop other;
        Desktop::Install(&other);
        EXPECT_EQ(other.GetTranscript(), &other.Log());
    }
    EXPECT_NE(&Desktop::Instance(), &desktop_);
}

}  // namespace
}  // namespace kvopt
