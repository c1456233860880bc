#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

#include "kvopt/scripted.h"
#include "kvopt/text.h"
#include "tests/qt/every_kind_page.h"
#include "tests/qt/qt_fixture.h"

namespace kvopt::test {

namespace {

/// What a script left in one desktop.
struct Trace {
    std::vector<std::string> transcript;
    std::vector<std::string> faults;
    std::vector<std::string> heard;  ///< by the first page
    int result = 0;
};

/// Asks with boxes and a dialog when its button is pressed, and wants the wizard finished on its
/// second page.
class AskingPage : public EveryKindPage {
public:
    explicit AskingPage(int number = kEveryKind) : EveryKindPage(number, 77) {
        onPush = [this] { Ask(); };
    }

    bool OnSetActive() override {
        if (Sheet() != nullptr) {
            Sheet()->SetWizardButtons(TemplateNumber() == kEveryKind ? kWizardNext
                                                                     : kWizardBack | kWizardFinish);
        }
        return EveryKindPage::OnSetActive();
    }

    bool OnApply() override {
        if (The<CEdit>(kName).GetText() == L"bad") {
            ShowMessage(this, L"No such name: bad.", BoxStyle::Error);
            GotoDlgCtrl(GetDlgItem(kName));
            return false;
        }
        return EveryKindPage::OnApply();
    }

    bool PreTranslateMessage(const KeyStroke& key) override {
        if (key == KeyStroke{'K', true}) {
            Desktop::Instance().Note("the page takes Ctrl+K");
            return true;
        }
        return EveryKindPage::PreTranslateMessage(key);
    }

private:
    void Ask() {
        ShowMessage(this, L"50 % done.", BoxStyle::Information);
        const MessageBoxRequest question{L"Go on?", L"", BoxStyle::YesNoWarning, this};
        if (Desktop::Instance().ShowBox(question) == BoxAnswer::Yes) {
            CDialog dialog(kQuestion, this);
            Desktop::Instance().Note(dialog.DoModal() == kResultOk ? "answered" : "left");
        }
    }
};

Trace PlayIn(Desktop& desktop, bool asWizard,
             const std::function<std::vector<std::string>()>& end) {
    Transcript transcript;
    desktop.SetTranscript(&transcript);
    Desktop* before = Desktop::Install(&desktop);
    Trace trace;
    {
        AskingPage first;
        AskingPage second(kPlainPage);
        CPropertySheet sheet(L"Parity", nullptr);
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        if (asWizard) {
            sheet.SetWizardMode();
        } else {
            sheet.SetHasApply(true);
        }
        trace.result = sheet.DoModal();
        trace.heard = first.heard;
    }
    Desktop::Install(before);
    trace.faults = end();
    trace.transcript = transcript.Lines();
    return trace;
}

/// Plays a script in both desktops and expects the same of both, without a fault.
Trace PlayInBoth(const std::string& script, bool asWizard = false) {
    ScriptedDesktop scripted(UserScript::FromText(script));
    const Trace one = PlayIn(scripted, asWizard, [&] { return scripted.Verify(); });
    QtDesktop desktop;
    QtPlayer player(desktop, UserScript::FromText(script));
    const Trace other = PlayIn(desktop, asWizard, [&] { return player.Verify(); });
    EXPECT_THAT(one.faults, testing::IsEmpty()) << "without windows";
    EXPECT_THAT(other.faults, testing::IsEmpty()) << "in windows";
    EXPECT_THAT(other.transcript, testing::ElementsAreArray(one.transcript));
    EXPECT_THAT(other.heard, testing::ElementsAreArray(one.heard));
    EXPECT_EQ(other.result, one.result);
    return one;
}

TEST(ScriptParity, OfEveryStepOnControls) {
    const Trace trace = PlayInBoth(R"(
expect page 39501
expect page "Every kind"
type "Name" "größe 1"
expect text "Name" "größe 1"
expect focus "Name"
paste 202 "a\tb"
expect clipboard "a\tb"
type 202 ""
type "Digits" 3x4
expect text "Digits" 34
paste "Digits" 3x4
expect text "Digits" 3x4
type "Digits" 2
spin "Digits" up
spin 213 down 2
expect text "Digits" 1
pick "Axis" Temp2
pick "Axis" Temp2
expect text "Axis" Temp2
expect entries "Axis" Time Temp Temp2
type "Scale" Te
expect text "Scale" Te
pick "Scale" Temp
mark "Many" Temp2 Time
expect marked "Many" Time Temp2
mark "Many" none
expect marked "Many" none
mark "One" Time
mark "One" Temp
expect marked "One" Temp
double-click "Many" Temp
click "Check me"
expect checked "Check me"
click "Check me"
expect unchecked 208
click "Second"
click "Third"
click "Third"
expect checked "Third"
expect unchecked "Second"
focus "Axis"
expect focus 203
expect visible "Alike"
expect hidden 215
expect enabled "Push me"
key Ctrl+K
key F1
wait 100
picture anything
cancel
)");
    EXPECT_EQ(trace.result, kResultCancel);
    EXPECT_GT(trace.heard.size(), 30U);
}

TEST(ScriptParity, OfEveryStepInAWorksheet) {
    const Trace trace = PlayInBoth(R"(
expect entries "Cells" Width Grade Fixed Depth
expect entries cell "Grade" "Value" A B
type cell "Width" "Value" 3.5
expect text cell 1 2 3.5
edit cell "Depth" "Value" 6
focus "Name"
expect text cell "Depth" "Value" 6 
type cell "Depth" "Value" in "Cells" 5
type cell 4 2 in 214 ""
expect text cell 4 2 ""
paste cell "Depth" "Value" 8
expect text cell "Depth" "Value" 8
pick cell "Grade" "Value" B
expect text cell "Grade" "Value" B
select cell 1 1
select cell 1 1 to 4 2
drag cell "Width" "Setting" to 5
drag cell "Width" "Setting" to 20%
drag cell "Width" "Setting" to cell "Depth" "Setting"
drag cell "Width" "Setting" to cell "Depth" "Setting" 30%
hover cell "Width" "Setting"
expect cursor size-horizontal
hover cell "Width" "Setting" 20%
expect tip cell "Width" "Value" "Tip of row 1"
menu cell "Depth" "Value" "Copy"
expect clipboard 8
edit cell "Width" "Value" 9
key Escape
expect text cell "Width" "Value" 3.5
edit cell "Width" "Value" 9
key Return
expect text cell "Width" "Value" 9
ok
)");
    EXPECT_EQ(trace.result, kResultOk);
    EXPECT_GT(trace.heard.size(), 5U);
}

TEST(ScriptParity, OfBoxesDialogsAndTheButtonsOfASheet) {
    const Trace trace = PlayInBoth(R"(
expect disabled apply
click "Push me"
expect box information "50 % done."
expect box warning-question "Go on?" answer no
click "Push me"
optional box error "It never comes."
expect box information containing "50 %"
expect box warning-question "Go on?" answer yes
expect page "A question"
type "Answer" 42
ok
click "Push me"
expect box information "50 % done."
expect box warning-question "Go on?" answer yes
cancel
tab "Plain page"
expect page "Plain page"
type "Word" x
tab "Every kind"
type "Name" good
expect enabled apply
apply
expect disabled apply
type "Name" bad
ok
expect box error "No such name: bad."
expect focus "Name"
expect page "Every kind"
apply
expect box error "No such name: bad."
close
)");
    EXPECT_EQ(trace.result, kResultCancel);
    EXPECT_THAT(trace.transcript, testing::Contains("answered"));
    EXPECT_THAT(trace.transcript, testing::Contains("left"));
}

TEST(ScriptParity, OfAWizard) {
    const Trace trace = PlayInBoth(R"(
expect enabled next
expect disabled finish
expect disabled back
next
expect page 39502
expect enabled finish
expect enabled back
expect disabled next
back
expect page 39501
key Return
expect page 39502
finish
)",
                                   true);
    EXPECT_EQ(trace.result, kResultFinish);
    EXPECT_EQ(PlayInBoth("next\nkey Escape", true).result, kResultCancel);
}

}  // namespace

}  // namespace kvopt::test
