#include "kvopt/designspace/design_space_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "designspace/opening_order.h"
#include "designspace/risk_settings.h"
#include "support/fake_study.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Names = std::vector<std::string>;

constexpr int kRanges = 6237;
constexpr int kProfiles = 6238;
constexpr int kModelError = 6239;
constexpr int kLimit = 6241;
constexpr int kAutomatic = 6252;
constexpr int kTotal = 6259;
constexpr int k95 = 6260;
constexpr int k99 = 6261;
constexpr int kReset = 6270;
constexpr int kMinMax = 6277;

class DesignSpacePageTest : public testing::Test {
protected:
    /// The page with a window.
    void Show(BasePropertyPageHelper* helper = nullptr) {
        page = std::make_unique<DesignSpacePage>(&study, options, helper);
        page->Create();
        page->OnSetActive();
    }
    CButton& Button(int number) { return *page->Item<CButton>(number); }
    CEdit& Field(int number) { return *page->Item<CEdit>(number); }
    std::string Text(int number) {
        return KvStdString::ToUtf8(page->GetDlgItem(number)->GetText());
    }
    /// What the study remembers; the defaults for nothing.
    DesignSpaceOptions Remembered() const { return DesignSpaceOptions(&study); }

    /// Applies in a sheet in front of which another page stands; gives what was seen meanwhile.
    Names OrderOfRefusal(int number, const wchar_t* text, bool comesUp) {
        page = std::make_unique<DesignSpacePage>(&study, options, nullptr);
        KvPropertyPage other(6157, 0, nullptr, kNoHelp);
        KvPropertySheet sheet(L"The sheet", nullptr, 0);
        sheet.AddPage(page.get());
        sheet.AddPage(&other);
        desktop.user = [&](CPropertySheet& running) {
            Field(number).UserPaste(text);
            running.UserSelectPage(1);
            desktop.log.Clear();
            running.UserOk();
            EXPECT_FALSE(running.HasEnded());
            EXPECT_EQ(running.GetActivePage() == page.get(), comesUp);
            EXPECT_TRUE(page->IsChanged());
        };
        sheet.DoModal();
        Names order;
        for (const std::string& line : desktop.log.Lines()) {
            if (line.starts_with("page") || line.starts_with("focus") || line.starts_with("box")) {
                order.push_back(line);
            }
        }
        return order;
    }

    SheetDesktop desktop;
    FakeStudy study;
    RiskSettings risk;
    DesignSpaceOptions options;
    std::unique_ptr<DesignSpacePage> page;
};

TEST_F(DesignSpacePageTest, StandsOnItsTemplateWithItsHelp) {
    Show();
    EXPECT_EQ(page->TemplateNumber(), 6209);
    EXPECT_EQ(page->HelpTopicID(), 440U);
    EXPECT_EQ(page->CaptionNumber(), 0U);
    EXPECT_EQ(page->Caption(), L"Setpoint properties");
}

TEST_F(DesignSpacePageTest, SaysWhatItsFieldsAreFor) {
    Show();
    Names labels;
    for (const auto& control : page->Controls()) {
        if (control->Kind() != ControlKind::Edit) {
            labels.push_back(KvStdString::ToUtf8(control->GetText()));
        }
    }
    EXPECT_THAT(
        labels,
        ElementsAre("Acceptable range simulations:", "Response profile simulations:",
                    "Acceptance level (%):", "Use total probability of failure",
                    "Include model error", "Automatic update", "Limits at", "95%", "99%",
                    "confidence for normal distribution.", "Possible Min/Max lines",
                    "Columns: right-click on column headers to show and hide columns.", "Reset"));
}

TEST_F(DesignSpacePageTest, ShowsCountsAndSwitches) {
    for (const bool on : {true, false}) {
        options.acceptableRangeSimulations = 123;
        options.responseProfileSimulations = 456;
        options.includeModelError = on;
        options.automaticUpdate = !on;
        options.useTotalProbability = on;
        options.showMinMaxLines = !on;
        Show();
        EXPECT_EQ(Text(kRanges), "123");
        EXPECT_EQ(Text(kProfiles), "456");
        EXPECT_EQ(Button(kModelError).GetCheck(), on);
        EXPECT_EQ(Button(kAutomatic).GetCheck(), !on);
        EXPECT_EQ(Button(kTotal).GetCheck(), on);
        EXPECT_EQ(Button(kMinMax).GetCheck(), !on);
    }
}

TEST_F(DesignSpacePageTest, ShowsAnyConfidenceBut95As99) {
    for (const int confidence : {95, 99, 90, 0}) {
        options.limitConfidence = confidence;
        Show();
        EXPECT_EQ(Button(k95).GetCheck(), confidence == 95) << confidence;
        EXPECT_EQ(Button(k99).GetCheck(), confidence != 95) << confidence;
    }
}

TEST_F(DesignSpacePageTest, WritesItsControlsInOneOrder) {
    for (const int presentation : {0, 1}) {
        risk.Show(presentation);
        OpeningOrder<DesignSpacePage> opened(&study, options, nullptr);
        opened.Create();
        EXPECT_TRUE(opened.answer);
        EXPECT_THAT(opened.written, ElementsAre(6245, kProfiles, kRanges, kModelError, kLimit,
                                                kAutomatic, kTotal, kMinMax, k95));
    }
}

TEST_F(DesignSpacePageTest, ShowsTheLimitInPercent) {
    options.dpmoLimit = 12345;
    Show();
    EXPECT_EQ(Text(6245), "Acceptance level (%):");
    EXPECT_EQ(Text(kLimit), "1.2345");
    EXPECT_FALSE(Field(kLimit).IsDigitsOnly());
}

TEST_F(DesignSpacePageTest, ShowsTheLimitAsDpmoAndTakesDigitsAlone) {
    risk.ShowDpmo();
    options.dpmoLimit = 12345;
    Show();
    EXPECT_EQ(Text(6245), "Acceptance level (DPMO):");
    EXPECT_EQ(Text(kLimit), "12345");
    EXPECT_TRUE(Field(kLimit).IsDigitsOnly());
    Field(kLimit).UserEdit(L"12345.");
    EXPECT_EQ(Text(kLimit), "12345");
    EXPECT_FALSE(Field(kRanges).IsDigitsOnly());
    EXPECT_FALSE(Field(kProfiles).IsDigitsOnly());
}

TEST_F(DesignSpacePageTest, ShowsTheLimitAsDpmoForAnyOtherNumberButTakesAnyText) {
    risk.Show(2);
    options.dpmoLimit = 12345;
    Show();
    EXPECT_EQ(Text(6245), ":");
    EXPECT_EQ(Text(kLimit), "12345");
    EXPECT_FALSE(Field(kLimit).IsDigitsOnly());
    Field(kLimit).UserEdit(L"9");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.back().text, "The DPMO limit should range from 10 to 500 000.");
}

TEST_F(DesignSpacePageTest, MultipliesTheLimitAsFloat) {
    options.dpmoLimit = 1000005;  // 100.001 when multiplied as double and then narrowed
    Show();
    EXPECT_EQ(Text(kLimit), "100");
}

// Clean and dirty.

TEST_F(DesignSpacePageTest, IsChangedAsSoonAsItIsShown) {
    ConnectedHelper helper;
    Show(&helper);
    EXPECT_TRUE(page->IsChanged());
    EXPECT_EQ(helper.UpdateCount(), 1);
}

TEST_F(DesignSpacePageTest, IsMarkedByEachControlButTheResetButton) {
    Show();
    for (const int number : {kModelError, kAutomatic, kTotal, kMinMax, k95, k99}) {
        page->Unchanged();
        EXPECT_TRUE(Button(number).UserClick());
        EXPECT_TRUE(page->IsChanged()) << number;
    }
    for (const int number : {kRanges, kProfiles, kLimit}) {
        page->Unchanged();
        EXPECT_TRUE(Field(number).UserEdit(L"20"));
        EXPECT_TRUE(page->IsChanged()) << number;
    }
}

TEST_F(DesignSpacePageTest, WritesTheDefaultsToTheControlsAloneOnReset) {
    options.acceptableRangeSimulations = 123;
    options.responseProfileSimulations = 456;
    options.includeModelError = false;
    options.dpmoLimit = 777;
    options.automaticUpdate = false;
    options.useTotalProbability = false;
    options.showMinMaxLines = false;
    options.limitConfidence = 99;
    const DesignSpaceOptions before = options;
    const DesignSpaceOptions defaults;
    // What the study remembers is no default.
    before.SaveAsGlobalSettings(&study);
    Show();
    page->Unchanged();
    EXPECT_TRUE(Button(kReset).UserClick());
    EXPECT_EQ(Text(kRanges), std::to_string(defaults.acceptableRangeSimulations));
    EXPECT_EQ(Text(kProfiles), std::to_string(defaults.responseProfileSimulations));
    EXPECT_EQ(Text(kLimit), "1");
    for (const int number : {kModelError, kAutomatic, kTotal, kMinMax, k95}) {
        EXPECT_TRUE(Button(number).GetCheck()) << number;
    }
    EXPECT_FALSE(Button(k99).GetCheck());
    EXPECT_TRUE(page->IsChanged()) << "writing its edits has marked the page";
    EXPECT_EQ(options, before);
    page->OnCancel();
    EXPECT_EQ(options, before);
    EXPECT_TRUE(page->OnApply());
    DesignSpaceOptions applied = defaults;
    applied.whatToUpdate = DesignSpaceOptions::UpdateAll;
    EXPECT_EQ(options, applied);
}

// Applying.

TEST_F(DesignSpacePageTest, StoresWhatItShowsAndRemembersIt) {
    Show();
    Field(kRanges).UserEdit(L"200");
    Field(kProfiles).UserEdit(L"300");
    Field(kLimit).UserEdit(L"2.5");
    for (const int number : {kModelError, kAutomatic, kTotal, kMinMax, k99}) {
        EXPECT_TRUE(Button(number).UserClick());
    }
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(desktop.boxes, IsEmpty());
    DesignSpaceOptions expected;
    expected.acceptableRangeSimulations = 200;
    expected.responseProfileSimulations = 300;
    expected.dpmoLimit = 25000;
    expected.includeModelError = false;
    expected.automaticUpdate = false;
    expected.useTotalProbability = false;
    expected.showMinMaxLines = false;
    expected.limitConfidence = 99;
    EXPECT_EQ(Remembered(), expected);
    expected.whatToUpdate = DesignSpaceOptions::UpdateAll;
    EXPECT_EQ(options, expected);
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(DesignSpacePageTest, Stores99WhereNeitherConfidenceIsMarked) {
    Show();
    Button(k95).SetCheck(false);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(options.limitConfidence, 99);
}

TEST_F(DesignSpacePageTest, TellsOfEachDifferenceWhatIsToBeUpdated) {
    struct Row {
        int number;
        int mask;
    };
    for (const Row& row : {Row{kMinMax, DesignSpaceOptions::UpdateTable},
                           {kAutomatic, DesignSpaceOptions::UpdateTable},
                           {k99, DesignSpaceOptions::UpdateRanges},
                           {kTotal, 7},
                           {kModelError, 7}}) {
        options = DesignSpaceOptions();
        options.whatToUpdate = 15;
        Show();
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(options.whatToUpdate, 0) << "nothing differs";
        Button(row.number).UserClick();
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(options.whatToUpdate, row.mask) << row.number;
    }
}

TEST_F(DesignSpacePageTest, AppliesAlsoWhenItIsUnchanged) {
    Show();
    Field(kProfiles).UserEdit(L"300");
    page->Unchanged();
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(options.responseProfileSimulations, 300);
    Field(kProfiles).UserEdit(L"99");
    page->Unchanged();
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.size(), 1U);
}

TEST_F(DesignSpacePageTest, LeavesTheOptionsAloneOnARefusalButForTheMask) {
    options.whatToUpdate = 15;
    DesignSpaceOptions cleared = options;
    cleared.whatToUpdate = 0;
    Show();
    Field(kProfiles).UserEdit(L"300");
    Field(kRanges).UserEdit(L"400");
    Button(kModelError).UserClick();
    Field(kLimit).UserEdit(L"51");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(options, cleared);
    EXPECT_EQ(Remembered(), DesignSpaceOptions());
    options.whatToUpdate = 15;
    Field(kProfiles).UserEdit(L"99");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(options, cleared);
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(DesignSpacePageTest, EndsInTheUpdateOfItsHelper) {
    ConnectedHelper helper;
    Show(&helper);
    Field(kProfiles).UserEdit(L"99");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(helper.updates, 0);
    Field(kProfiles).UserEdit(L"300");
    helper.answer = false;
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(helper.updates, 1);
    EXPECT_EQ(options.responseProfileSimulations, 300);
    EXPECT_EQ(Remembered().responseProfileSimulations, 300);
    helper.answer = true;
    EXPECT_TRUE(page->OnApply());
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(DesignSpacePageTest, AppliesWithoutAStudy) {
    page = std::make_unique<DesignSpacePage>(nullptr, options, nullptr);
    page->Create();
    Field(kRanges).UserEdit(L"200");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(options.acceptableRangeSimulations, 200);
}

TEST_F(DesignSpacePageTest, LosesADpmoThatFloatCannotHoldOnAnUntouchedApply) {
    options.dpmoLimit = 14;
    Show();
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(options.dpmoLimit, 13);
}

/// A text pasted into one of the fields and what becomes of it.
struct FieldRow {
    int presentation;
    int field;
    const wchar_t* text;
    int stored;           ///< 0 when refused
    const char* message;  ///< empty when accepted
};

void PrintTo(const FieldRow& row, std::ostream* out) {
    *out << row.field << " '" << KvStdString::ToUtf8(row.text) << "' in " << row.presentation;
}

class SetpointFields : public DesignSpacePageTest, public testing::WithParamInterface<FieldRow> {
protected:
    int Stored(int field) const {
        switch (field) {
            case kProfiles:
                return options.responseProfileSimulations;
            case kRanges:
                return options.acceptableRangeSimulations;
            default:
                return options.dpmoLimit;
        }
    }
};

TEST_P(SetpointFields, AreTakenWithinTheirBoundsAndRefusedOutside) {
    const FieldRow& row = GetParam();
    risk.Show(row.presentation);
    options.dpmoLimit = 3333;
    const int before = Stored(row.field);
    Show();
    Field(row.field).UserPaste(row.text);
    EXPECT_EQ(page->OnApply(), row.stored != 0);
    if (row.stored != 0) {
        EXPECT_THAT(desktop.boxes, IsEmpty());
        EXPECT_EQ(Stored(row.field), row.stored);
        EXPECT_FALSE(page->IsChanged());
    } else {
        EXPECT_THAT(desktop.boxes, ElementsAre(SheetDesktop::Box{row.message, "", 16}));
        EXPECT_EQ(Stored(row.field), before);
        EXPECT_EQ(page->GetFocusControl(), page->GetDlgItem(row.field));
        EXPECT_TRUE(page->IsChanged());
    }
}

constexpr const char* kProfileCount =
    "The number of samples for predicted response profiles should range from 100 to 1 000 000.";
constexpr const char* kRangeCount =
    "The number of samples for acceptable factor ranges should range from 100 to 100 000.";
constexpr const char* kPercent = "The probability limit should range from 0.001 % to 50 %.";
constexpr const char* kDpmo = "The DPMO limit should range from 10 to 500 000.";

INSTANTIATE_TEST_SUITE_P(Profiles, SetpointFields,
                         testing::Values(FieldRow{0, kProfiles, L"100", 100, ""},
                                         FieldRow{0, kProfiles, L"99", 0, kProfileCount},
                                         FieldRow{1, kProfiles, L"1000000", 1000000, ""},
                                         FieldRow{1, kProfiles, L"1000001", 0, kProfileCount},
                                         FieldRow{0, kProfiles, L"1 000", 0, kProfileCount},
                                         FieldRow{0, kProfiles, L"200.5", 0, kProfileCount},
                                         FieldRow{0, kProfiles, L"", 0, kProfileCount}));

INSTANTIATE_TEST_SUITE_P(Ranges, SetpointFields,
                         testing::Values(FieldRow{0, kRanges, L"100", 100, ""},
                                         FieldRow{0, kRanges, L"99", 0, kRangeCount},
                                         FieldRow{1, kRanges, L"100000", 100000, ""},
                                         FieldRow{1, kRanges, L"100001", 0, kRangeCount},
                                         FieldRow{0, kRanges, L"-200", 0, kRangeCount},
                                         FieldRow{0, kRanges, L"many", 0, kRangeCount},
                                         FieldRow{0, kRanges, L"", 0, kRangeCount}));

INSTANTIATE_TEST_SUITE_P(Percent, SetpointFields,
                         testing::Values(FieldRow{0, kLimit, L"0.001", 10, ""},
                                         FieldRow{0, kLimit, L"0.00099", 0, kPercent},
                                         FieldRow{0, kLimit, L"50", 500000, ""},
                                         FieldRow{0, kLimit, L"50.0001", 0, kPercent},
                                         // Nearer to the bounds than a float can tell.
                                         FieldRow{0, kLimit, L"0.00099999999", 10, ""},
                                         FieldRow{0, kLimit, L"50.000001", 500000, ""},
                                         FieldRow{0, kLimit, L"", 0, kPercent},
                                         FieldRow{0, kLimit, L"1,5", 0, kPercent},
                                         FieldRow{0, kLimit, L"1.23456", 12345, ""},
                                         // 10 when the product is a double, 14 when all of it is.
                                         FieldRow{0, kLimit, L"0.0011", 11, ""},
                                         FieldRow{0, kLimit, L"0.0014", 13, ""}));

INSTANTIATE_TEST_SUITE_P(Dpmo, SetpointFields,
                         testing::Values(FieldRow{1, kLimit, L"10", 10, ""},
                                         FieldRow{1, kLimit, L"9", 0, kDpmo},
                                         FieldRow{1, kLimit, L"10.5", 0, kDpmo},
                                         FieldRow{1, kLimit, L"500000", 500000, ""},
                                         FieldRow{1, kLimit, L"500001", 0, kDpmo},
                                         FieldRow{1, kLimit, L"500 000", 0, kDpmo},
                                         FieldRow{1, kLimit, L"", 0, kDpmo}));

// The order of a refusal.

std::string BoxLine(const char* text) {
    return std::string("box 16 \"The sheet\" \"") + text + "\" -> ok";
}

TEST_F(DesignSpacePageTest, MovesTheFocusThenTellsOfCountsAndStaysBehind) {
    for (const int presentation : {0, 1}) {
        risk.Show(presentation);
        for (const wchar_t* text : {L"99", L"1000001", L"abc"}) {
            EXPECT_THAT(OrderOfRefusal(kProfiles, text, false),
                        ElementsAre("focus 6209:6238", BoxLine(kProfileCount)));
        }
        for (const wchar_t* text : {L"99", L"100001", L"abc"}) {
            EXPECT_THAT(OrderOfRefusal(kRanges, text, false),
                        ElementsAre("focus 6209:6237", BoxLine(kRangeCount)));
        }
    }
}

TEST_F(DesignSpacePageTest, MovesTheFocusThenTellsOfADpmoLimitAndStaysBehind) {
    risk.ShowDpmo();
    for (const wchar_t* text : {L"9", L"500001", L""}) {
        EXPECT_THAT(OrderOfRefusal(kLimit, text, false),
                    ElementsAre("focus 6209:6241", BoxLine(kDpmo)));
    }
}

TEST_F(DesignSpacePageTest, ComesUpThenMovesTheFocusThenTellsOfALimitInPercent) {
    for (const wchar_t* text : {L"0.0009", L"50.1", L""}) {
        EXPECT_THAT(
            OrderOfRefusal(kLimit, text, true),
            ElementsAre("page 6209 \"Setpoint properties\"", "focus 6209:6241", BoxLine(kPercent)));
    }
}

TEST_F(DesignSpacePageTest, JudgesProfilesThenRangesThenTheLimit) {
    Show();
    Field(kProfiles).UserEdit(L"99");
    Field(kRanges).UserEdit(L"99");
    Field(kLimit).UserEdit(L"51");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.back().text, kProfileCount);
    Field(kProfiles).UserEdit(L"100");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.back().text, kRangeCount);
    Field(kRanges).UserEdit(L"100");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.back().text, kPercent);
    EXPECT_EQ(desktop.boxes.size(), 3U);
}

}  // namespace
}  // namespace kvopt::test
