#include "kvopt/designspace/ds_contour_plot_options_page.h"

#include <ostream>
#include <utility>

#include "axes/page_probe.h"
#include "designspace/opening_order.h"
#include "designspace/risk_settings.h"
#include "sheets/contour_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kColor = 6022;
constexpr int kLabels = 6027;
constexpr int kResolution = 6046;
constexpr int kSimulations = 6272;
constexpr int kModelError = 6284;
constexpr int kAnalytical = 6296;
constexpr int kLimit = 6327;

/// The page's template with another layout, while this lives.
class OtherLayout {
public:
    explicit OtherLayout(LayoutItem layout)
        : dialog_(const_cast<DialogTemplate&>(*TemplateCatalog::Instance().Find(6221))),
          former_(dialog_.layout) {
        dialog_.layout = std::move(layout);
    }
    ~OtherLayout() { dialog_.layout = former_; }
    OtherLayout(const OtherLayout&) = delete;
    OtherLayout& operator=(const OtherLayout&) = delete;

private:
    DialogTemplate& dialog_;
    LayoutItem former_;
};

class DSContourPlotOptionsPageTest : public ContourTest {
protected:
    DSContourPlotOptionsPageTest() {
        AddFactors({0, 0, 2, false});
        MakeData(true);
    }

    /// The page with a window.
    void Show(BasePropertyPageHelper* helper = nullptr) {
        page = std::make_unique<DSContourPlotOptionsPage>(&study, PageData(), helper);
        page->Create();
        page->OnSetActive();
    }
    CComboBox& Resolution() { return *page->Item<CComboBox>(kResolution); }
    CButton& Check(int number) { return *page->Item<CButton>(number); }
    CEdit& Field(int number) { return *page->Item<CEdit>(number); }
    KvRangeEdit& Limit() { return *page->Item<KvRangeEdit>(kLimit); }
    std::string Text(int number) {
        return KvStdString::ToUtf8(page->GetDlgItem(number)->GetText());
    }
    void Type(int number, const wchar_t* text) {
        if (number == kResolution) {
            Resolution().UserEdit(text);
        } else {
            Field(number).UserEdit(text);
        }
    }

    /// Applies in a sheet in front of which another page stands; gives what was seen meanwhile.
    Names OrderOfRefusal(int number, const wchar_t* text) {
        page = std::make_unique<DSContourPlotOptionsPage>(&study, PageData(), nullptr);
        KvPropertyPage other(6157, 0, nullptr, kNoHelp);
        KvPropertySheet sheet(L"The sheet", nullptr, 0);
        sheet.AddPage(page.get());
        sheet.AddPage(&other);
        desktop.user = [&](CPropertySheet& running) {
            Type(number, text);
            running.UserSelectPage(1);
            desktop.log.Clear();
            running.UserOk();
            EXPECT_FALSE(running.HasEnded());
            EXPECT_EQ(running.GetActivePage(), page.get());
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

    RiskSettings risk;
    std::unique_ptr<DSContourPlotOptionsPage> page;
};

TEST_F(DSContourPlotOptionsPageTest, StandsOnItsTemplateWithItsHelp) {
    Show();
    EXPECT_EQ(page->TemplateNumber(), 6221);
    EXPECT_EQ(page->HelpTopicID(), 101U);
    EXPECT_EQ(page->CaptionNumber(), 0U);
    EXPECT_EQ(page->Caption(), L"Design space options");
    EXPECT_EQ(page->GetDlgItem(6223), nullptr);
}

TEST_F(DSContourPlotOptionsPageTest, OffersTheResolutionsOfItsMode) {
    const auto entries = [this] {
        Show();
        Names texts;
        for (int i = 0; i < Resolution().GetCount(); ++i) {
            texts.push_back(KvStdString::ToUtf8(Resolution().GetItemText(i)));
        }
        return texts;
    };
    Options().resolution = 48;
    Options().mixtureResolution = 96;
    EXPECT_THAT(entries(), ElementsAre("16", "32", "64", "128", "256"));
    EXPECT_EQ(Resolution().GetText(), L"48");
    Options().mixtureMode = true;
    EXPECT_THAT(entries(), ElementsAre("64", "128", "256"));
    EXPECT_EQ(Resolution().GetText(), L"96");
    Options().mixtureResolution = -1;
    Show();
    EXPECT_EQ(Resolution().GetText(), L"");
    EXPECT_TRUE(Resolution().IsEditable());
}

TEST_F(DSContourPlotOptionsPageTest, ShowsColorsAndLabels) {
    for (const bool on : {true, false}) {
        Options().useColor = on;
        Options().useContourLabels = !on;
        Show();
        EXPECT_EQ(Check(kColor).GetCheck(), on);
        EXPECT_TRUE(Check(kLabels).IsEnabled());
        EXPECT_EQ(Check(kLabels).GetCheck(), !on);
    }
}

TEST_F(DSContourPlotOptionsPageTest, LeavesTheLabelsAloneWhereThePlotHasNone) {
    Options().hasContourLabels = false;
    Options().useContourLabels = true;
    Show();
    EXPECT_FALSE(Check(kLabels).IsEnabled());
    EXPECT_FALSE(Check(kLabels).GetCheck());
    // What is stored is what the box shows.
    EXPECT_TRUE(page->OnApply());
    EXPECT_FALSE(Options().useContourLabels);
}

TEST_F(DSContourPlotOptionsPageTest, ShowsTheSimulationOfAProbabilityPlot) {
    for (const bool on : {true, false}) {
        Options().includeModelError = on;
        Options().numSimulations = 2500;
        Show();
        EXPECT_EQ(Text(kSimulations), "2500");
        EXPECT_EQ(Check(kModelError).GetCheck(), on);
    }
    Options().isProbabilityPlot = false;
    Options().includeModelError = true;
    Show();
    EXPECT_EQ(Text(kSimulations), "");
    EXPECT_FALSE(Check(kModelError).GetCheck());
}

TEST_F(DSContourPlotOptionsPageTest, WritesItsControlsInOneOrder) {
    Options().useColor = true;
    Options().useContourLabels = true;
    Options().includeModelError = true;
    for (const int presentation : {0, 1}) {
        risk.Show(presentation);
        OpeningOrder<DSContourPlotOptionsPage> opened(&study, PageData(), nullptr);
        opened.Create();
        EXPECT_TRUE(opened.answer);
        EXPECT_THAT(opened.written, ElementsAre(kResolution, kColor, kLabels, kSimulations,
                                                kModelError, 6343, kLimit));
    }
}

TEST_F(DSContourPlotOptionsPageTest, ShowsTheLimitInPercent) {
    Options().dpmoTarget = 12345;
    Show();
    EXPECT_EQ(Text(6343), "Acceptance level (%):");
    EXPECT_EQ(Text(kLimit), "1.2345");
    EXPECT_EQ(Limit().Low(), 0.0);
    EXPECT_EQ(Limit().High(), 50.0);
}

TEST_F(DSContourPlotOptionsPageTest, ShowsTheLimitAsDpmo) {
    risk.ShowDpmo();
    Options().dpmoTarget = 12345;
    Show();
    EXPECT_EQ(Text(6343), "Acceptance level (DPMO):");
    EXPECT_EQ(Text(kLimit), "12345");
    EXPECT_EQ(Limit().Low(), 0.0);
    EXPECT_EQ(Limit().High(), 500000.0);
}

TEST_F(DSContourPlotOptionsPageTest, ShowsTheLimitAsDpmoForAnyOtherNumber) {
    risk.Show(2);
    Options().dpmoTarget = 12345;
    Show();
    EXPECT_EQ(Text(6343), ":");
    EXPECT_EQ(Text(kLimit), "12345");
    EXPECT_EQ(Limit().High(), 500000.0);
    Type(kLimit, L"9");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.back().text, "The DPMO limit should range from 10 to 500 000.");
}

TEST_F(DSContourPlotOptionsPageTest, NarrowsTheProductOfDoublesToFloat) {
    Options().dpmoTarget = 1000005;  // 100 when multiplied as float
    Show();
    EXPECT_EQ(Text(kLimit), "100.001");
    Options().dpmoTarget = 1000025;  // 100.002 when kept as double
    Show();
    EXPECT_EQ(Text(kLimit), "100.003");
}

TEST_F(DSContourPlotOptionsPageTest, ChecksTheAnalyticalBoxEachTimeItIsBroughtUp) {
    Options().analyticalProbability = true;
    page = std::make_unique<DSContourPlotOptionsPage>(&study, PageData(), nullptr);
    page->Create();
    EXPECT_FALSE(Check(kAnalytical).GetCheck());
    EXPECT_TRUE(page->OnSetActive());
    EXPECT_TRUE(Check(kAnalytical).GetCheck());
    Check(kAnalytical).SetCheck(false);
    page->OnSetActive();
    EXPECT_TRUE(Check(kAnalytical).GetCheck());
    Options().analyticalProbability = false;
    page->OnSetActive();
    EXPECT_FALSE(Check(kAnalytical).GetCheck());
    EXPECT_FALSE(Check(kAnalytical).IsVisible());
    EXPECT_TRUE(Check(kAnalytical).IsEnabled());
}

// Clean and dirty.

TEST_F(DSContourPlotOptionsPageTest, IsChangedAsSoonAsItIsShown) {
    ConnectedHelper helper;
    Show(&helper);
    EXPECT_TRUE(page->IsChanged());
    EXPECT_EQ(helper.UpdateCount(), 1);
    Options().isProbabilityPlot = false;
    Show();
    EXPECT_TRUE(page->IsChanged()) << "the limit is written in any case";
}

TEST_F(DSContourPlotOptionsPageTest, IsMarkedByEachControl) {
    Show();
    Check(kAnalytical).ShowWindow(true);
    for (const int number : {kColor, kLabels, kModelError, kAnalytical}) {
        page->Unchanged();
        EXPECT_TRUE(Check(number).UserClick());
        EXPECT_TRUE(page->IsChanged()) << number;
    }
    page->Unchanged();
    EXPECT_TRUE(Resolution().UserPick(4));
    EXPECT_TRUE(page->IsChanged());
    for (const int number : {kResolution, kSimulations, kLimit}) {
        page->Unchanged();
        Type(number, L"20");
        EXPECT_TRUE(page->IsChanged()) << number;
    }
}

TEST_F(DSContourPlotOptionsPageTest, NeitherChecksNorStoresWhenItIsUnchanged) {
    Show();
    const ContourPageData::Arguments before = Options();
    Type(kResolution, L"abc");
    Check(kColor).UserClick();
    page->Unchanged();
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(desktop.boxes, IsEmpty());
    EXPECT_EQ(Options(), before);
    EXPECT_EQ(Profile("ProbabilityResolution"), 0);
}

TEST_F(DSContourPlotOptionsPageTest, TellsItsHelperWhatItStored) {
    ConnectedHelper helper;
    Show(&helper);
    Type(kResolution, L"15");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(helper.updates, 0);
    Type(kResolution, L"20");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(helper.updates, 1);
    EXPECT_FALSE(page->IsChanged());
}

// Applying.

TEST_F(DSContourPlotOptionsPageTest, StoresWhatItShows) {
    Options().useColor = true;
    Options().useContourLabels = true;
    Options().includeModelError = true;
    Options().resolution = 33;
    Options().mixtureResolution = 77;
    Options().lockContourLevels = true;
    Options().scaleEqual = true;
    Show();
    for (const int number : {kColor, kLabels, kModelError}) {
        Check(number).UserClick();
    }
    Type(kResolution, L"40");
    Type(kSimulations, L"5000");
    Type(kLimit, L"2.5");
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(desktop.boxes, IsEmpty());
    EXPECT_FALSE(Options().useColor);
    EXPECT_FALSE(Options().useContourLabels);
    EXPECT_FALSE(Options().includeModelError);
    EXPECT_EQ(Options().resolution, 40);
    EXPECT_EQ(Options().mixtureResolution, 77);
    EXPECT_EQ(Options().numSimulations, 5000);
    EXPECT_EQ(Options().dpmoTarget, 25000);
    EXPECT_TRUE(Options().lockContourLevels);
    EXPECT_TRUE(Options().scaleEqual);
    EXPECT_EQ(Profile("ProbabilityResolution"), 40);
    EXPECT_EQ(Profile("ProbabilityMixtureResolution"), 77);
}

TEST_F(DSContourPlotOptionsPageTest, StoresTheResolutionOfAMixture) {
    Options().mixtureMode = true;
    Options().resolution = 33;
    Show();
    Type(kResolution, L"100");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Options().mixtureResolution, 100);
    EXPECT_EQ(Options().resolution, 33);
}

TEST_F(DSContourPlotOptionsPageTest, StoresTheAnalyticalBoxOnlyWhereItCanBeReached) {
    struct Row {
        bool visible;
        bool enabled;
        bool stored;
    };
    for (const Row& row : {Row{true, true, true},
                           {false, true, false},
                           {true, false, false},
                           {false, false, false}}) {
        Options().analyticalProbability = false;
        Show();
        Check(kAnalytical).ShowWindow(row.visible);
        Check(kAnalytical).EnableWindow(row.enabled);
        Check(kAnalytical).SetCheck(true);
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(Options().analyticalProbability, row.stored) << row.visible << row.enabled;
    }
}

TEST_F(DSContourPlotOptionsPageTest, KeepsTheSimulationOfAPlotWithoutProbabilities) {
    Options().isProbabilityPlot = false;
    Options().numSimulations = 77;
    Options().includeModelError = true;
    Options().analyticalProbability = true;
    Show();
    Check(kAnalytical).ShowWindow(true);
    Check(kAnalytical).SetCheck(false);
    Type(kSimulations, L"99");
    Type(kLimit, L"51");
    EXPECT_FALSE(page->OnApply()) << "the limit is judged all the same";
    Type(kLimit, L"3");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Options().numSimulations, 77);
    EXPECT_TRUE(Options().includeModelError);
    EXPECT_TRUE(Options().analyticalProbability);
    EXPECT_EQ(Options().dpmoTarget, 30000);
}

TEST_F(DSContourPlotOptionsPageTest, StoresTheLockOnlyWhereItsTemplateHasTheBox) {
    const OtherLayout lock(layout::Column(
        {TemplateCatalog::Instance().Find(6221)->layout, layout::Check(6223, "Lock")}));
    Options().lockContourLevels = true;
    Show();
    EXPECT_FALSE(Check(6223).GetCheck()) << "it is stored but not shown";
    EXPECT_TRUE(page->OnApply());
    EXPECT_FALSE(Options().lockContourLevels);
    EXPECT_TRUE(Check(6223).UserClick());
    EXPECT_TRUE(page->IsChanged());
    EXPECT_TRUE(page->OnApply());
    EXPECT_TRUE(Options().lockContourLevels);
}

TEST_F(DSContourPlotOptionsPageTest, KeepsColorsAndLabelsWhereItsTemplateLacksTheBoxes) {
    const OtherLayout bare(layout::Column(
        {layout::ComboEdit(kResolution), layout::Edit(kSimulations), layout::Label(6343, ""),
         layout::RangeEdit(kLimit), layout::Check(kModelError, "Error"),
         layout::Check(kAnalytical, "Analytical").Hidden()}));
    for (const bool on : {true, false}) {
        Options().useColor = on;
        Options().useContourLabels = !on;
        Show();
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(Options().useColor, on);
        EXPECT_EQ(Options().useContourLabels, !on);
    }
}

TEST_F(DSContourPlotOptionsPageTest, LosesADpmoThatFloatCannotHoldOnAnUntouchedApply) {
    Options().dpmoTarget = 14;
    Show();
    EXPECT_EQ(Text(kLimit), "0.0014");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Options().dpmoTarget, 13);
}

TEST_F(DSContourPlotOptionsPageTest, KeepsWhatWasStoredBeforeARefusal) {
    Options().resolution = 33;
    Options().numSimulations = 2000;
    Options().dpmoTarget = 777;
    Options().includeModelError = true;
    Options().useColor = true;
    Show();
    Type(kResolution, L"40");
    Check(kModelError).UserClick();
    Check(kColor).UserClick();
    Type(kSimulations, L"99");
    Type(kLimit, L"51");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(Options().resolution, 40);
    EXPECT_EQ(Options().numSimulations, 2000);
    EXPECT_TRUE(Options().includeModelError);

    Type(kSimulations, L"100");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(Options().numSimulations, 100);
    EXPECT_FALSE(Options().includeModelError);
    EXPECT_EQ(Options().dpmoTarget, 777);
    EXPECT_TRUE(Options().useColor);
    EXPECT_EQ(Profile("ProbabilityResolution"), 0);
    EXPECT_TRUE(page->IsChanged());
    EXPECT_EQ(desktop.boxes.size(), 2U);
}

/// A text in one of the fields and what becomes of it.
struct FieldRow {
    int presentation;
    int field;
    const wchar_t* text;
    int stored;           ///< 0 when refused
    const char* message;  ///< empty when accepted
    unsigned style = 16;
};

void PrintTo(const FieldRow& row, std::ostream* out) {
    *out << row.field << " '" << KvStdString::ToUtf8(row.text) << "' in " << row.presentation;
}

class Fields : public DSContourPlotOptionsPageTest, public testing::WithParamInterface<FieldRow> {
protected:
    int Stored(int field) {
        switch (field) {
            case kResolution:
                return Options().resolution;
            case kSimulations:
                return Options().numSimulations;
            default:
                return Options().dpmoTarget;
        }
    }
};

TEST_P(Fields, AreTakenWithinTheirBoundsAndRefusedOutside) {
    const FieldRow& row = GetParam();
    risk.Show(row.presentation);
    Options().resolution = 33;
    Options().numSimulations = 333;
    Options().dpmoTarget = 3333;
    const int before = Stored(row.field);
    Show();
    Type(row.field, row.text);
    EXPECT_EQ(page->OnApply(), row.stored != 0);
    if (row.stored != 0) {
        EXPECT_THAT(desktop.boxes, IsEmpty());
        EXPECT_EQ(Stored(row.field), row.stored);
        EXPECT_FALSE(page->IsChanged());
    } else {
        EXPECT_THAT(desktop.boxes, ElementsAre(SheetDesktop::Box{row.message, "", row.style}));
        EXPECT_EQ(Stored(row.field), before);
        EXPECT_EQ(page->GetFocusControl(), page->GetDlgItem(row.field));
        EXPECT_TRUE(page->IsChanged());
    }
}

constexpr const char* kNoNumber = "Not a number in resolution field.";
constexpr const char* kTooLow = "Too low resolution. Use at least 16.";
constexpr const char* kTooHigh = "Too high resolution. Use below 1024.";
constexpr const char* kCount = "The number of simulations should be in the range 100 to 1 000 000.";
constexpr const char* kPercent = "The probability limit should range from 0.001 % to 50 %.";
constexpr const char* kDpmo = "The DPMO limit should range from 10 to 500 000.";

INSTANTIATE_TEST_SUITE_P(Resolution, Fields,
                         testing::Values(FieldRow{0, kResolution, L"16", 16, ""},
                                         FieldRow{0, kResolution, L"15", 0, kTooLow},
                                         FieldRow{0, kResolution, L"-64", 0, kTooLow},
                                         FieldRow{0, kResolution, L"1024", 1024, ""},
                                         FieldRow{0, kResolution, L"1025", 0, kTooHigh},
                                         FieldRow{1, kResolution, L" 48 ", 48, ""},
                                         FieldRow{1, kResolution, L"", 0, kNoNumber},
                                         FieldRow{1, kResolution, L"abc", 0, kNoNumber},
                                         FieldRow{0, kResolution, L"32.5", 0, kNoNumber}));

INSTANTIATE_TEST_SUITE_P(Simulations, Fields,
                         testing::Values(FieldRow{0, kSimulations, L"100", 100, ""},
                                         FieldRow{0, kSimulations, L"99", 0, kCount},
                                         FieldRow{1, kSimulations, L"1000000", 1000000, ""},
                                         FieldRow{1, kSimulations, L"1000001", 0, kCount},
                                         FieldRow{0, kSimulations, L"1 000", 0, kCount},
                                         FieldRow{0, kSimulations, L"500.5", 0, kCount},
                                         FieldRow{0, kSimulations, L"many", 0, kCount},
                                         FieldRow{0, kSimulations, L"", 0, kCount}));

INSTANTIATE_TEST_SUITE_P(
    Percent, Fields,
    testing::Values(
        FieldRow{0, kLimit, L"0.001", 10, ""}, FieldRow{0, kLimit, L"0.00099", 0, kPercent, 0},
        // Nearer to the bound than a float can tell.
        FieldRow{0, kLimit, L"0.00099999999", 10, ""}, FieldRow{0, kLimit, L"50", 500000, ""},
        FieldRow{0, kLimit, L"50.000001", 500000, ""},
        FieldRow{0, kLimit, L"50.0001", 0, kPercent, 0}, FieldRow{0, kLimit, L"0", 0, kPercent, 0},
        FieldRow{0, kLimit, L"-1", 0, kPercent, 0}, FieldRow{0, kLimit, L"", 0, kPercent, 0},
        FieldRow{0, kLimit, L"1,5", 0, kPercent, 0}, FieldRow{0, kLimit, L"1 %", 0, kPercent, 0},
        FieldRow{0, kLimit, L"1.23456", 12345, ""},
        // 10 when the product is a double, 14 when all of it is.
        FieldRow{0, kLimit, L"0.0011", 11, ""}, FieldRow{0, kLimit, L"0.0014", 13, ""}));

INSTANTIATE_TEST_SUITE_P(Dpmo, Fields,
                         testing::Values(FieldRow{1, kLimit, L"10", 10, ""},
                                         FieldRow{1, kLimit, L"10.5", 10, ""},
                                         FieldRow{1, kLimit, L"9.99", 0, kDpmo, 0},
                                         FieldRow{1, kLimit, L"9", 0, kDpmo, 0},
                                         FieldRow{1, kLimit, L"500000", 500000, ""},
                                         FieldRow{1, kLimit, L"500000.01", 500000, ""},
                                         FieldRow{1, kLimit, L"500001", 0, kDpmo, 0},
                                         FieldRow{1, kLimit, L"500 000", 0, kDpmo, 0},
                                         FieldRow{1, kLimit, L"", 0, kDpmo, 0},
                                         FieldRow{1, kLimit, L"1e3", 1000, ""}));

// The order of a refusal.

TEST_F(DSContourPlotOptionsPageTest, ComesUpThenMovesTheFocusThenTellsOfResolutionAndCount) {
    const std::string pageLine = "page 6221 \"Design space options\"";
    const auto box = [](const char* text) {
        return std::string("box 16 \"The sheet\" \"") + text + "\" -> ok";
    };
    for (const int presentation : {0, 1}) {
        risk.Show(presentation);
        EXPECT_THAT(OrderOfRefusal(kResolution, L""),
                    ElementsAre(pageLine, "focus 6221:6046", box(kNoNumber)));
        EXPECT_THAT(OrderOfRefusal(kResolution, L"15"),
                    ElementsAre(pageLine, "focus 6221:6046", box(kTooLow)));
        EXPECT_THAT(OrderOfRefusal(kResolution, L"1025"),
                    ElementsAre(pageLine, "focus 6221:6046", box(kTooHigh)));
        for (const wchar_t* text : {L"abc", L"99", L"1000001"}) {
            EXPECT_THAT(OrderOfRefusal(kSimulations, text),
                        ElementsAre(pageLine, "focus 6221:6272", box(kCount)));
        }
    }
}

TEST_F(DSContourPlotOptionsPageTest, TellsOfTheLimitPlainlyThenComesUpThenMovesTheFocus) {
    EXPECT_THAT(OrderOfRefusal(kLimit, L"50.1"),
                ElementsAre(std::string("box 0 \"The sheet\" \"") + kPercent + "\" -> ok",
                            "page 6221 \"Design space options\"", "focus 6221:6327"));
    risk.ShowDpmo();
    EXPECT_THAT(OrderOfRefusal(kLimit, L"9"),
                ElementsAre(std::string("box 0 \"The sheet\" \"") + kDpmo + "\" -> ok",
                            "page 6221 \"Design space options\"", "focus 6221:6327"));
}

TEST_F(DSContourPlotOptionsPageTest, JudgesResolutionThenCountThenLimit) {
    Show();
    Type(kResolution, L"15");
    Type(kSimulations, L"99");
    Type(kLimit, L"51");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.back().text, kTooLow);
    Type(kResolution, L"16");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.back().text, kCount);
    Type(kSimulations, L"100");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.back().text, kPercent);
    EXPECT_EQ(desktop.boxes.size(), 3U);
}

}  // namespace
}  // namespace kvopt::test
