// How the pages with outer axes judge the settings of qualitative factors.

#include <algorithm>
#include <tuple>

#include "axes/axes_4d_fixture.h"

namespace kvopt::test {
namespace {

const std::string kNoSettings = "No settings selected for qualitative axis";
const std::string kMany =
    "More than 3 settings are selected. Only the three first will be displayed";
const std::string kPink = "pink is not a legal setting for factor Colour ";
const std::string kMauve = "mauve is not a legal setting for factor Tint ";

constexpr unsigned kNoBox = 0;
constexpr unsigned kError = 16;
constexpr unsigned kQuestion = 52;

/// What the settings of Colour and Tint on the two outer axes lead to.
struct SettingsRow {
    const char* what;
    const wchar_t* colour;
    const wchar_t* tint;
    unsigned style;
    std::string text;
};

void PrintTo(const SettingsRow& row, std::ostream* out) {
    *out << row.what;
}

class OuterAxisSettings : public Axes4DTest,
                          public testing::WithParamInterface<std::tuple<Plot, SettingsRow>> {};

TEST_P(OuterAxisSettings, AreJudged) {
    const auto& [plot, row] = GetParam();
    Show(plot, "Colour", "Tint");
    Settings(0).UserEdit(row.colour);
    Settings(1).UserEdit(row.tint);
    EXPECT_EQ(page->CheckLegalAxes(), row.style == kNoBox);
    if (row.style == kNoBox) {
        EXPECT_TRUE(desktop.boxes.empty());
        return;
    }
    EXPECT_EQ(desktop.boxes, (std::vector<SheetDesktop::Box>{{row.text, "", row.style}}));
}

INSTANTIATE_TEST_SUITE_P(
    Pages, OuterAxisSettings,
    testing::Combine(
        testing::Values(Plot::Process, Plot::Mixture),
        testing::Values(
            SettingsRow{"legal ones", L"red", L"grey;blue;green", kNoBox, ""},
            SettingsRow{"none on the first", L"", L"red", kError, kNoSettings},
            SettingsRow{"none on the second", L"red", L"", kError, kNoSettings},
            SettingsRow{"none on both", L"", L"", kError, kNoSettings + kNoSettings},
            SettingsRow{"an unknown one", L"red;pink;green", L"red", kError, kPink},
            SettingsRow{"the first unknown one", L"red;pink;rose", L"red", kError, kPink},
            SettingsRow{"unknown ones on both", L"pink", L"mauve", kError, kPink + kMauve},
            SettingsRow{"an unknown fifth", L"red;green;blue;grey;pink", L"red", kError, kPink},
            SettingsRow{"another case", L"red", L"Red", kError,
                        "Red is not a legal setting for factor Tint "},
            SettingsRow{"a blank", L"red", L"red; blue", kError,
                        " blue is not a legal setting for factor Tint "},
            SettingsRow{"four on the first", L"red;green;blue;grey", L"red", kQuestion, kMany},
            SettingsRow{"four on the second", L"red", L"red;green;blue;grey", kQuestion, kMany},
            SettingsRow{"four on both", L"red;green;blue;grey", L"red;green;blue;grey", kQuestion,
                        kMany + kMany},
            SettingsRow{"one setting four times", L"red;red;red;red", L"red", kQuestion, kMany},
            SettingsRow{"three and empty parts", L";red;;green;blue;", L"red;;blue", kNoBox, ""},
            SettingsRow{"empty parts alone", L";;", L"red", kNoBox, ""},
            SettingsRow{"a warning, then an error", L"red;green;blue;grey", L"", kError,
                        kMany + kNoSettings},
            SettingsRow{"an error, then a warning", L"pink", L"red;green;blue;grey", kError,
                        kPink + kMany})));

class OuterAxesCheck : public BothAxes4D {
protected:
    /// Makes the first axis doubtful and gives what is asked about it.
    std::string Doubt() {
        const bool isMixture = GetParam() == Plot::Mixture;
        study.unusualSettings = {isMixture ? "A=0" : "Temp=1"};
        return std::string("The low setting (") + (isMixture ? "0" : "1") + ") on the 1st axis (" +
               (isMixture ? "A" : "Temp") +
               ") is outside the recommended range for the factor.\n\nDo you still want to use the "
               "specified setting?";
    }
    void ExpectBox(unsigned style, const std::string& text) {
        EXPECT_EQ(desktop.boxes, (std::vector<SheetDesktop::Box>{{text, "", style}}));
    }
};

TEST_P(OuterAxesCheck, AddTheirWarningBehindTheQuestionAboutTheRanges) {
    Show(GetParam(), "Colour", kNone);
    const std::string question = Doubt();
    Settings(0).UserEdit(L"red;green;blue;grey");
    EXPECT_FALSE(page->CheckLegalAxes());
    ExpectBox(kQuestion, question + kMany);
}

TEST_P(OuterAxesCheck, TurnTheQuestionIntoARefusalWithAnEmptyBox) {
    for (const int which : {0, 1}) {
        desktop.boxes.clear();
        Store("Colour", "Tint", "red", "red");
        Show(GetParam());
        const std::string question = Doubt();
        Settings(which).UserEdit(L"");
        EXPECT_FALSE(page->CheckLegalAxes());
        ExpectBox(kError, question + kNoSettings);
    }
}

TEST_P(OuterAxesCheck, KeepTheQuestionAboutTheRangesWhenTheSettingsAreLegal) {
    Store("Colour", "Tint", "red", "red");
    Show(GetParam());
    const std::string question = Doubt();
    EXPECT_FALSE(page->CheckLegalAxes());
    ExpectBox(kQuestion, question);
}

TEST_P(OuterAxesCheck, AreNotMadeWhenTheRowsAreWrong) {
    Show(GetParam(), "Colour", "Tint");
    Row(1).low.UserEdit(L"x");
    Settings(0).UserEdit(L"");
    Settings(1).UserEdit(L"pink");
    EXPECT_FALSE(page->CheckLegalAxes());
    ExpectBox(kError, std::string("The low setting on the 1st axis (") +
                          (GetParam() == Plot::Mixture ? "A" : "Temp") + ") is not a number.");
}

TEST_P(OuterAxesCheck, LookAtNoSettingsOfNumbersAndEmptyAxes) {
    Show(GetParam(), "Speed", kNone);
    Settings(0).SetText(L"pink");
    Settings(1).SetText(L"");
    EXPECT_TRUE(page->CheckLegalAxes());
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_P(OuterAxesCheck, JudgeTheRangesOfNumbers) {
    Show(GetParam(), "Speed", kNone);
    Outer(0).high.UserEdit(L"5");
    EXPECT_FALSE(page->CheckLegalAxes());
    ExpectBox(kError, std::string("The low setting (5) on the ") +
                          (GetParam() == Plot::Mixture ? "4th" : "3rd") +
                          " axis (Speed) must be lower than the high setting (5).");
}

TEST_P(OuterAxesCheck, RefuseOneFactorOnBoth) {
    Show(GetParam(), "Colour", kNone);
    Outer(1).Pick("Colour");
    EXPECT_FALSE(page->CheckLegalAxes());
    ExpectBox(kError, "The factor 'Colour' is selected more than once.");
}

TEST_P(OuterAxesCheck, LetFourSettingsThroughOnYesAloneAndStoreThemAll) {
    Show(GetParam(), "Colour", kNone);
    Settings(0).UserEdit(L"red;green;blue;grey");
    desktop.answers = {BoxAnswer::No, BoxAnswer::Yes};
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(Stored(0).GetSettings(), "");
    EXPECT_TRUE(page->IsChanged());
    EXPECT_EQ(SettingsText(0), "red;green;blue;grey");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Stored(0).GetSettings(), "red;green;blue;grey");
    EXPECT_EQ(desktop.boxes.size(), 2U);
}

TEST_P(OuterAxesCheck, RefuseToGoOnAndToFinish) {
    Show(GetParam(), "Colour", kNone);
    Settings(0).UserEdit(L"");
    EXPECT_EQ(page->OnWizardNext(), -1);
    EXPECT_FALSE(page->OnWizardFinish());
    EXPECT_EQ(Stored(0).GetSettings(), "");
    EXPECT_EQ(desktop.boxes.size(), 2U);
}

TEST_P(OuterAxesCheck, TellInTheSheetsNameAndBringThePageUpAfterTheBox) {
    Store("Colour", kNone);
    Make(GetParam());
    Run(false, [&](KvPropertySheet& sheet) {
        Settings(0).UserEdit(L"");
        EXPECT_TRUE(sheet.UserSelectPage(0));
        desktop.log.Clear();
        EXPECT_FALSE(page->CheckLegalAxes());
        EXPECT_EQ(desktop.boxes,
                  (std::vector<SheetDesktop::Box>{{kNoSettings, "Contour Plot", kError}}));
        Texts order;
        for (const std::string& line : desktop.log.Lines()) {
            order.push_back(line.substr(0, line.find(' ')));
        }
        const auto box = std::find(order.begin(), order.end(), "box");
        EXPECT_NE(std::find(box, order.end(), "page"), order.end());
        EXPECT_EQ(std::find(order.begin(), box, "page"), box);
        EXPECT_EQ(sheet.GetActivePage(), page.get());
    });
}

INSTANTIATE_TEST_SUITE_P(Pages, OuterAxesCheck, testing::Values(Plot::Process, Plot::Mixture));

}  // namespace
}  // namespace kvopt::test
