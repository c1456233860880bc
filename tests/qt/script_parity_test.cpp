#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "kvopt/text.h"
#include "tests/qt/every_kind_page.h"
#include "tests/qt/grid_page.h"
#include "tests/qt/parity.h"
#include "tests/support/qt_application.h"

namespace kvopt::test {

namespace {

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

/// A sheet, or a wizard, of two pages; what the first one heard is noted at the end.
std::vector<std::string> PlayPages(const std::string& script, bool asWizard = false) {
    return PlayInBoth(script, [asWizard] {
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
        const int result = sheet.DoModal();
        for (const std::string& line : first.heard) {
            Desktop::Instance().Note("heard " + line);
        }
        Desktop::Instance().Note("result " + std::to_string(result));
    });
}

std::ptrdiff_t Heard(const std::vector<std::string>& lines) {
    return std::count_if(lines.begin(), lines.end(),
                         [](const std::string& line) { return line.rfind("heard ", 0) == 0; });
}

TEST(ScriptParity, OfEveryStepOnControls) {
    const auto lines = PlayPages(R"(
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
    EXPECT_EQ(lines.back(), "result 2");
    EXPECT_GT(Heard(lines), 30);
}

TEST(ScriptParity, OfEveryStepInAWorksheet) {
    const auto lines = PlayPages(R"(
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
    EXPECT_EQ(lines.back(), "result 1");
    EXPECT_GT(Heard(lines), 5);
}

TEST(ScriptParity, OfBoxesDialogsAndTheButtonsOfASheet) {
    const auto lines = PlayPages(R"(
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
    EXPECT_EQ(lines.back(), "result 2");
    EXPECT_THAT(lines, testing::Contains("answered"));
    EXPECT_THAT(lines, testing::Contains("left"));
}

TEST(ScriptParity, OfAWizard) {
    const auto lines = PlayPages(R"(
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
    EXPECT_EQ(lines.back(), "result 12325");
    EXPECT_EQ(PlayPages("next\nkey Escape", true).back(), "result 2");
}

TEST(ScriptParity, OfEveryStepInAPropertyGrid) {
    const auto lines = PlayInBoth(R"(
expect entries "Options" Colours Red Blue Fixed Numbers Count Weight Name
expect description ""
focus item "Red"
expect focus item "Red"
expect description "Is it <b>red</b>?"
click item "Red"
expect text item "Red" "Yes"
pick item "Red" "No"
pick item "Red" "No"
pick item "Blue" "None"
expect text item "Blue" "None"
expect entries item "Blue" None Some Much
expand item "Blue"
expect visible item "Shade" in "Blue" in "Colours"
type item "Shade" 9
collapse item "Blue"
expect hidden item "Shade"
expect hidden item "Secret"
expect disabled item "Fixed"
expect enabled item "Count"
type item "Count" in 302 12
expect text item "Count" 12
type item "Count" twelve
expect text item "Count" 12
edit item "Weight" 2.5
focus "Beside"
expect text item "Weight" 2.5
edit item "Name" Ann
key Escape
expect text item "Name" ""
edit item "Name" Kim
key Return
expect text item "Name" "Kim"
collapse item "Numbers"
expect entries "Options" Colours Red Blue Fixed Numbers
expand item "Numbers"
focus item "Colours"
expect description "What it is painted with."
type item "Name" ""
ok
)",
                                  [] {
                                      GridPage page;
                                      CPropertySheet sheet(L"Options", nullptr);
                                      sheet.AddPage(&page);
                                      const int result = sheet.DoModal();
                                      Desktop::Instance().Note(std::to_string(result) + " with " +
                                                               std::to_string(page.count));
                                  });
    EXPECT_EQ(lines.back(), "1 with 12");
    EXPECT_THAT(lines,
                testing::IsSupersetOf({"changed Red=Yes", "changed Red=No", "changed Blue=None",
                                       "changed Shade=9", "changed Count=12", "changed Weight=2.5",
                                       "changed Name=Kim", "changed Name="}));
}

}  // namespace

}  // namespace kvopt::test
