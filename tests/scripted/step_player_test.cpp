#include "kvopt/scripted/step_player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kvopt/scripted/scripted_desktop.h"
#include "kvopt/text/exceptions.h"
#include "tests/scripted/sample_pages.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using namespace test;

/// A sheet whose button "Plot options..." raises the boxes that a test lists.
class StepPlayerTest : public testing::Test {
protected:
    struct Box {
        BoxStyle style;
        std::wstring text;
    };

    StepPlayerTest() { Desktop::Install(&desktop_); }

    /// Plays "click 108", which raises the boxes, then `script`. Gives the answers.
    std::vector<BoxAnswer> Answers(const std::vector<Box>& boxes, const std::string& script) {
        SamplePage page;
        CPropertySheet sheet(L"Sheet", nullptr);
        sheet.AddPage(&page);
        std::vector<BoxAnswer> answers;
        page.onOptions = [&] {
            for (const Box& box : boxes) {
                answers.push_back(ShowMessage(&page, box.text, box.style));
            }
        };
        desktop_.Player().Add(UserScript::FromText("click 108\n" + script));
        sheet.DoModal();
        return answers;
    }

    ScriptedDesktop desktop_;
};

TEST_F(StepPlayerTest, AnswersAnExpectedBoxAsTheScriptSays) {
    EXPECT_THAT(Answers({{BoxStyle::YesNoWarning, L"Sure?"},
                         {BoxStyle::YesNoInformation, L"Keep?"},
                         {BoxStyle::Error, L"No."}},
                        "expect box warning-question \"Sure?\" answer yes\n"
                        "expect box question \"Keep?\" answer no\nexpect box error \"No.\"\nok"),
                ElementsAre(BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Ok));
    EXPECT_THAT(desktop_.Verify(), IsEmpty());
}

TEST_F(StepPlayerTest, ComparesTheWholeTextUnlessAskedForAPart) {
    Answers({{BoxStyle::Error, L"Low\nis too low."}, {BoxStyle::Error, L"Low\nis too low."}},
            "expect box error \"Low\\nis too low.\"\nexpect box error containing \"too low\"\nok");
    EXPECT_THAT(desktop_.Verify(), IsEmpty());
}

TEST_F(StepPlayerTest, AnUnexpectedBoxIsAFaultAndAnsweredNoOrOk) {
    EXPECT_THAT(Answers({{BoxStyle::YesNoWarning, L"Sure?"}, {BoxStyle::Plain, L"So."}}, "ok"),
                ElementsAre(BoxAnswer::No, BoxAnswer::Ok));
    EXPECT_THAT(desktop_.Verify(),
                ElementsAre("script:1: click 108: an unexpected box came: warning-question "
                            "\"Sure?\"",
                            "script:1: click 108: an unexpected box came: plain \"So.\""));
}

TEST_F(StepPlayerTest, AnotherBoxThanTheExpectedOneIsAFaultAndUsesTheExpectationUp) {
    EXPECT_THAT(Answers({{BoxStyle::YesNoWarning, L"Sure?"}, {BoxStyle::Error, L"No."}},
                        "expect box warning-question containing \"sure\" answer yes\n"
                        "expect box error \"No.\"\nok"),
                ElementsAre(BoxAnswer::Yes, BoxAnswer::Ok));
    EXPECT_THAT(desktop_.Verify(),
                ElementsAre("script:2: expect box warning-question containing \"sure\" answer yes: "
                            "another box came: warning-question \"Sure?\""));
}

TEST_F(StepPlayerTest, AnotherStyleIsAnotherBox) {
    EXPECT_THAT(Answers({{BoxStyle::YesNoWarning, L"Sure?"}}, "expect box error \"Sure?\"\nok"),
                ElementsAre(BoxAnswer::No));
    EXPECT_THAT(desktop_.Verify(), ElementsAre(HasSubstr("another box came")));
}

TEST_F(StepPlayerTest, ABoxThatNeverCameIsAFaultWhenTheNextStepIsDue) {
    Answers({}, "expect box error \"No.\"\ntype 103 5\nok");
    EXPECT_THAT(desktop_.Player().Faults(),
                ElementsAre("script:2: expect box error \"No.\": the box never came"));
    EXPECT_THAT(desktop_.Verify(), testing::SizeIs(1));
}

TEST_F(StepPlayerTest, ABoxThatNeverCameIsAFaultAtTheEnd) {
    Answers({}, "ok\nexpect box error \"No.\"\noptional box error \"Nor this.\"");
    EXPECT_THAT(desktop_.Player().Faults(), IsEmpty());
    EXPECT_THAT(desktop_.Verify(),
                ElementsAre("script:3: expect box error \"No.\": the box never came"));
    EXPECT_THAT(desktop_.Verify(), testing::SizeIs(1)) << "asked again it adds nothing";
}

TEST_F(StepPlayerTest, AnOptionalBoxMayComeOrNot) {
    const std::string script =
        "optional box warning-question \"Sure?\" answer yes\noptional box error \"No.\"\nok";
    EXPECT_THAT(Answers({}, script), IsEmpty());
    EXPECT_THAT(Answers({{BoxStyle::YesNoWarning, L"Sure?"}}, script), ElementsAre(BoxAnswer::Yes));
    EXPECT_THAT(Answers({{BoxStyle::Error, L"No."}}, script), ElementsAre(BoxAnswer::Ok));
    EXPECT_THAT(desktop_.Verify(), IsEmpty());
}

TEST_F(StepPlayerTest, AnOptionalBoxIsPassedOverForTheOneBehindIt) {
    EXPECT_THAT(Answers({{BoxStyle::YesNoInformation, L"Keep?"}},
                        "optional box error \"No.\"\nexpect box question \"Keep?\" answer yes\nok"),
                ElementsAre(BoxAnswer::Yes));
    EXPECT_THAT(desktop_.Verify(), IsEmpty());
}

TEST_F(StepPlayerTest, ABoxWithoutAStepUnderWayIsAnsweredToo) {
    desktop_.Player().Add(UserScript::FromText("expect box information \"Done\"", "after.script"));
    EXPECT_EQ(ShowMessage(nullptr, L"Done", BoxStyle::Information), BoxAnswer::Ok);
    EXPECT_EQ(ShowMessage(nullptr, L"Done", BoxStyle::Information), BoxAnswer::Ok);
    EXPECT_THAT(desktop_.Verify(),
                ElementsAre("after.script: an unexpected box came: information \"Done\""));
}

TEST_F(StepPlayerTest, MarksTheCheckThatKeepsABoxFromComingAgainWhenToldTo) {
    const MessageBoxRequest offering{L"Mind it", {}, BoxStyle::Information, nullptr, L"&Never"};
    desktop_.Player().Add(
        UserScript::FromText("expect box information \"Mind it\"\n"
                             "expect box information \"Mind it\" answer silence"));
    EXPECT_EQ(desktop_.ShowBox(offering), BoxAnswer::Ok) << "left alone";
    EXPECT_EQ(desktop_.ShowBox(offering), BoxAnswer::Silence);
    EXPECT_THAT(desktop_.Verify(), IsEmpty());
}

TEST_F(StepPlayerTest, SilenceForABoxThatDoesNotOfferItIsAFault) {
    EXPECT_THAT(Answers({{BoxStyle::Information, L"Done"}, {BoxStyle::Information, L"Other"}},
                        "expect box information \"Done\" answer silence\n"
                        "expect box information \"Done\" answer silence\nok"),
                ElementsAre(BoxAnswer::Ok, BoxAnswer::Ok));
    EXPECT_THAT(desktop_.Verify(),
                ElementsAre("script:2: expect box information \"Done\" answer silence: "
                            "the box does not offer this answer",
                            "script:3: expect box information \"Done\" answer silence: "
                            "another box came: information \"Other\""));
}

TEST_F(StepPlayerTest, StepsThatWereNeverReachedAreFaults) {
    desktop_.Player().Add(UserScript::FromText("next\n\nfinish", "a.script"));
    EXPECT_THAT(desktop_.Verify(), ElementsAre("a.script:1: next: the step was never reached",
                                               "a.script:3: finish: the step was never reached"));
}

TEST_F(StepPlayerTest, AStepMadeByCodeHasNoLine) {
    UserScript script;
    UserStep step;
    step.verb = StepVerb::Next;
    script.Add(step);
    desktop_.Player().Add(script);
    EXPECT_THAT(desktop_.Verify(), ElementsAre("script: next: the step was never reached"));
}

TEST_F(StepPlayerTest, RefusesToPlayWithoutAModalRun) {
    desktop_.Player().Add(UserScript::FromText("ok"));
    EXPECT_THROW(desktop_.Player().PlayNext(), InvalidArgument);
    EXPECT_FALSE(desktop_.Player().IsAtEnd());
}

TEST_F(StepPlayerTest, StepsMayBeAddedWhileOneIsUnderWay) {
    SamplePage page;
    CPropertySheet sheet(L"Sheet", nullptr);
    sheet.AddPage(&page);
    page.onOptions = [&] {
        for (int i = 0; i < 100; ++i) {
            desktop_.Player().Add(UserScript::FromText("type 103 5"));
        }
        desktop_.Player().Add(UserScript::FromText("ok"));
    };
    desktop_.Player().Add(UserScript::FromText("click 108\nexpect text 103 \"\""));
    EXPECT_EQ(sheet.DoModal(), kResultOk);
    EXPECT_THAT(desktop_.Verify(), IsEmpty());
}

struct WrongState {
    const char* line;
    const char* reason;
};

class StepPlayerCheck : public StepPlayerTest, public testing::WithParamInterface<WrongState> {};

TEST_P(StepPlayerCheck, SaysWhatIsSoInstead) {
    const std::string line = GetParam().line;
    Answers({}, line + "\ncancel");
    EXPECT_THAT(desktop_.Verify(), ElementsAre(testing::AllOf(
                                       testing::StartsWith("script:2: expect"),
                                       testing::EndsWith(std::string(": ") + GetParam().reason))));
}

INSTANTIATE_TEST_SUITE_P(
    EveryExpectation, StepPlayerCheck,
    testing::Values(
        WrongState{"expect page 39002", "it is page 39001 \"First page\""},
        WrongState{"expect page \"Second page\"", "it is page 39001 \"First page\""},
        WrongState{"expect text 114 x", "it is \"\""},
        WrongState{"expect text \"Count\" 3", "it is \"2\""},
        WrongState{"expect text cell Width Value 3", "it is \"2.5\""},
        WrongState{"expect entries \"Factor\" Temp", "there are \"Temp\", \"Temp2\", \"Time\""},
        WrongState{"expect entries \"Constants\" Width Fixed Grade",
                   "there are \"Width\", \"Grade\", \"Fixed\""},
        WrongState{"expect entries cell Grade Value B A", "there are \"A\", \"B\""},
        WrongState{"expect entries cell Width Value x", "there are none"},
        WrongState{"expect marked \"Available\" Temp", "there are none"},
        WrongState{"expect checked \"Surface\"", "it is unchecked"},
        WrongState{"expect unchecked \"Contour\"", "it is checked"},
        WrongState{"expect enabled \"Off\"", "it is disabled"},
        WrongState{"expect disabled \"High\"", "it is enabled"},
        WrongState{"expect visible \"Unseen\"", "it is hidden"},
        WrongState{"expect hidden \"High\"", "it is visible"},
        WrongState{"expect focus \"High\"", "control 108 \"Plot options...\" has the focus"},
        WrongState{"expect tip cell 2 1 x", "it is \"Tip 2\""},
        WrongState{"expect cursor wait", "it is arrow"},
        WrongState{"expect clipboard x", "it is \"\""},
        WrongState{"expect visible next", "it is not there"},
        WrongState{"expect hidden ok", "it is there"},
        WrongState{"expect enabled finish", "it is not there"},
        WrongState{"expect disabled ok", "it is on"},
        WrongState{"expect disabled back", "it is not there"},
        WrongState{"expect enabled 999", "page 39001 \"First page\" has no control 999"}));

}  // namespace
}  // namespace kvopt
