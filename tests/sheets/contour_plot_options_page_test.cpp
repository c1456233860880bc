#include "kvopt/sheets/contour_plot_options_page.h"

#include <ostream>

#include "axes/page_probe.h"
#include "sheets/contour_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ContourPlotOptionsPageTest : public ContourTest {
protected:
    ContourPlotOptionsPageTest() {
        AddFactors({0, 0, 2, false});
        MakeData();
    }

    /// The page with a window: that of a contour, or of a surface.
    void Show(bool surface = false, BasePropertyPageHelper* helper = nullptr) {
        page = std::make_unique<ContourPlotOptionsPage>(&study, PageData(), helper,
                                                        surface ? 6213U : 6159U, 64U);
        page->Create();
        page->OnSetActive();
    }
    CComboBox& Resolution() { return *page->Item<CComboBox>(6046); }
    CButton& Check(int number) { return *page->Item<CButton>(number); }
    Names Entries() {
        Names entries;
        for (int i = 0; i < Resolution().GetCount(); ++i) {
            entries.push_back(KvStdString::ToUtf8(Resolution().GetItemText(i)));
        }
        return entries;
    }
    void Type(const wchar_t* text) { Resolution().UserEdit(text); }

    std::unique_ptr<ContourPlotOptionsPage> page;
};

TEST_F(ContourPlotOptionsPageTest, StandsOnTheTemplateItIsGiven) {
    Show();
    EXPECT_EQ(page->TemplateNumber(), 6159);
    EXPECT_EQ(page->HelpTopicID(), 64U);
    EXPECT_EQ(page->CaptionNumber(), 0U);
    Show(true);
    EXPECT_EQ(page->TemplateNumber(), 6213);
}

TEST_F(ContourPlotOptionsPageTest, BearsItsLabelsWithTheirMnemonics) {
    Show();
    EXPECT_STREQ(Check(6022).Template().label, "Use &color");
    EXPECT_STREQ(Check(6027).Template().label, "Show contour &level labels");
    EXPECT_STREQ(Check(6223).Template().label, "Lock contour levels");
}

TEST_F(ContourPlotOptionsPageTest, OffersDoublesFromSixteenForAProcess) {
    Show();
    EXPECT_THAT(Entries(), ElementsAre("16", "32", "64", "128", "256"));
    EXPECT_TRUE(Resolution().IsEditable());
}

TEST_F(ContourPlotOptionsPageTest, OffersDoublesFromSixtyFourForAMixture) {
    Options().mixtureMode = true;
    Show();
    EXPECT_THAT(Entries(), ElementsAre("64", "128", "256"));
}

TEST_F(ContourPlotOptionsPageTest, ShowsTheResolutionOfItsMode) {
    Options().resolution = 48;
    Options().mixtureResolution = 96;
    Show();
    EXPECT_EQ(Resolution().GetText(), L"48");
    Options().mixtureMode = true;
    Show();
    EXPECT_EQ(Resolution().GetText(), L"96");
}

TEST_F(ContourPlotOptionsPageTest, ShowsNoResolutionForMinusOne) {
    Options().resolution = -1;
    Show();
    EXPECT_EQ(Resolution().GetText(), L"");
    Options().resolution = -2;
    Show();
    EXPECT_EQ(Resolution().GetText(), L"-2");
}

TEST_F(ContourPlotOptionsPageTest, ShowsTheSwitches) {
    for (const bool on : {true, false}) {
        Options().useColor = on;
        Options().useContourLabels = !on;
        Options().scaleEqual = on;
        Options().lockContourLevels = on;
        Show();
        EXPECT_EQ(Check(6022).GetCheck(), on);
        EXPECT_EQ(Check(6027).GetCheck(), !on);
        EXPECT_EQ(Check(6029).GetCheck(), on);
        EXPECT_EQ(Check(6223).GetCheck(), on);
        EXPECT_FALSE(page->IsChanged());
    }
}

TEST_F(ContourPlotOptionsPageTest, HasFewerSwitchesForASurface) {
    Options().scaleEqual = true;
    Show(true);
    EXPECT_EQ(page->GetDlgItem(6022), nullptr);
    EXPECT_EQ(page->GetDlgItem(6027), nullptr);
    EXPECT_EQ(page->GetDlgItem(6223), nullptr);
    EXPECT_TRUE(Check(6029).GetCheck());
    EXPECT_TRUE(Check(6029).UserClick());
    EXPECT_TRUE(page->IsChanged());
}

// The lock.

TEST_F(ContourPlotOptionsPageTest, LetsLevelsBeLockedWithAnEqualScaleAlone) {
    Options().scaleEqual = true;
    Options().lockContourLevels = true;
    Show();
    EXPECT_TRUE(Check(6223).IsEnabled());
    EXPECT_TRUE(Check(6223).GetCheck());
    Check(6029).UserClick();
    EXPECT_FALSE(Check(6223).IsEnabled());
    EXPECT_FALSE(Check(6223).GetCheck());
    Check(6029).UserClick();
    EXPECT_TRUE(Check(6223).IsEnabled());
    EXPECT_FALSE(Check(6223).GetCheck());
}

TEST_F(ContourPlotOptionsPageTest, TakesTheLockOffEachTimeItIsBroughtUp) {
    Options().scaleEqual = false;
    Options().lockContourLevels = true;
    Show();
    EXPECT_FALSE(Check(6223).IsEnabled());
    EXPECT_FALSE(Check(6223).GetCheck());
    EXPECT_FALSE(page->IsChanged());
    Check(6223).EnableWindow(true);
    Check(6223).SetCheck(true);
    page->OnSetActive();
    EXPECT_FALSE(Check(6223).GetCheck());
    EXPECT_FALSE(Check(6223).IsEnabled());
    // An untouched page stores nothing.
    EXPECT_TRUE(page->OnApply());
    EXPECT_TRUE(Options().lockContourLevels);
}

TEST_F(ContourPlotOptionsPageTest, IsMarkedByEachControl) {
    Options().scaleEqual = true;
    for (const int number : {6022, 6027, 6029, 6223}) {
        Show();
        EXPECT_TRUE(Check(number).UserClick());
        EXPECT_TRUE(page->IsChanged()) << number;
    }
    Show();
    EXPECT_TRUE(Resolution().UserPick(0));
    EXPECT_TRUE(page->IsChanged());
    Show();
    Type(L"20");
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(ContourPlotOptionsPageTest, ChecksTheLockAlsoWhenItIsClickedItself) {
    Options().scaleEqual = true;
    Show();
    Check(6029).SetCheck(false);
    EXPECT_TRUE(Check(6223).UserClick());
    EXPECT_FALSE(Check(6223).GetCheck());
    EXPECT_FALSE(Check(6223).IsEnabled());
}

// Applying.

struct ResolutionRow {
    const wchar_t* text;
    int stored;           ///< 0 when refused
    const char* message;  ///< empty when accepted
};

void PrintTo(const ResolutionRow& row, std::ostream* out) {
    *out << '\'' << KvStdString::ToUtf8(row.text) << '\'';
}

class Resolutions : public ContourPlotOptionsPageTest,
                    public testing::WithParamInterface<ResolutionRow> {};

TEST_P(Resolutions, AreNumbersFromSixteenTo1024) {
    Options().resolution = 33;
    Options().mixtureResolution = 77;
    const ContourPageData::Arguments before = Options();
    Show();
    Check(6022).UserClick();
    Type(GetParam().text);
    const bool accepted = GetParam().stored != 0;
    EXPECT_EQ(page->OnApply(), accepted);
    if (accepted) {
        EXPECT_THAT(desktop.boxes, IsEmpty());
        EXPECT_EQ(Options().resolution, GetParam().stored);
        EXPECT_EQ(Options().mixtureResolution, 77);
        EXPECT_FALSE(Options().useColor);
        EXPECT_FALSE(page->IsChanged());
    } else {
        EXPECT_THAT(desktop.boxes, ElementsAre(SheetDesktop::Box{GetParam().message, "", 16}));
        EXPECT_EQ(Options(), before);
        EXPECT_EQ(Profile("ContourResolution"), 0);
        EXPECT_EQ(page->GetFocusControl(), &Resolution());
        EXPECT_TRUE(page->IsChanged());
    }
}

constexpr const char* kNoNumber = "Not a number in resolution field.";
constexpr const char* kTooLow = "Too low resolution. Use at least 16.";
constexpr const char* kTooHigh = "Too high resolution. Use 1024 or less.";

INSTANTIATE_TEST_SUITE_P(
    Texts, Resolutions,
    testing::Values(ResolutionRow{L"16", 16, ""}, ResolutionRow{L"15", 0, kTooLow},
                    ResolutionRow{L"0", 0, kTooLow}, ResolutionRow{L"-64", 0, kTooLow},
                    ResolutionRow{L"1024", 1024, ""}, ResolutionRow{L"1025", 0, kTooHigh},
                    ResolutionRow{L"100000", 0, kTooHigh}, ResolutionRow{L" 48 ", 48, ""},
                    ResolutionRow{L"abc", 0, kNoNumber}, ResolutionRow{L"", 0, kNoNumber},
                    ResolutionRow{L"32.5", 0, kNoNumber}, ResolutionRow{L"32 dots", 0, kNoNumber},
                    ResolutionRow{L"99999999999", 0, kNoNumber}));

TEST_F(ContourPlotOptionsPageTest, StoresTheResolutionOfAMixture) {
    Options().mixtureMode = true;
    Options().resolution = 33;
    Show();
    Type(L"100");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Options().mixtureResolution, 100);
    EXPECT_EQ(Options().resolution, 33);
    EXPECT_EQ(Profile("MixtureContourResolution"), 100);
    EXPECT_EQ(Profile("ContourResolution"), 33);
}

TEST_F(ContourPlotOptionsPageTest, StoresTheSwitches) {
    Options().scaleEqual = false;
    Options().useColor = false;
    Options().useContourLabels = false;
    Show();
    for (const int number : {6022, 6027, 6029, 6223}) {
        EXPECT_TRUE(Check(number).UserClick());
    }
    EXPECT_TRUE(page->OnApply());
    EXPECT_TRUE(Options().useColor);
    EXPECT_TRUE(Options().useContourLabels);
    EXPECT_TRUE(Options().scaleEqual);
    EXPECT_TRUE(Options().lockContourLevels);
    EXPECT_EQ(Profile("ContourResolution"), Options().resolution);
}

TEST_F(ContourPlotOptionsPageTest, KeepsForASurfaceWhatItDoesNotShow) {
    Options().useColor = true;
    Options().useContourLabels = true;
    Options().lockContourLevels = true;
    Options().scaleEqual = true;
    Show(true);
    Check(6029).UserClick();
    EXPECT_TRUE(page->OnApply());
    EXPECT_FALSE(Options().scaleEqual);
    EXPECT_TRUE(Options().useColor);
    EXPECT_TRUE(Options().useContourLabels);
    EXPECT_TRUE(Options().lockContourLevels);
}

TEST_F(ContourPlotOptionsPageTest, NeitherChecksNorStoresWhenItIsUnchanged) {
    Options().resolution = 8;
    Show();
    Resolution().SetText(L"abc");
    Check(6022).SetCheck(false);
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(desktop.boxes, IsEmpty());
    EXPECT_EQ(Options().resolution, 8);
    EXPECT_TRUE(Options().useColor);
    EXPECT_EQ(Profile("ContourResolution"), 0);
}

TEST_F(ContourPlotOptionsPageTest, TellsItsHelperWhatItStored) {
    ConnectedHelper helper;
    Show(false, &helper);
    Type(L"15");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(helper.updates, 0);
    Type(L"20");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(helper.updates, 1);
}

TEST_F(ContourPlotOptionsPageTest, ComesUpThenMovesTheFocusThenTells) {
    page = std::make_unique<ContourPlotOptionsPage>(&study, PageData(), nullptr, 6159U, 64U);
    KvPropertyPage other(6157, 0, nullptr, kNoHelp);
    KvPropertySheet sheet(L"The sheet", nullptr, 0);
    sheet.AddPage(page.get());
    sheet.AddPage(&other);
    desktop.user = [&](CPropertySheet& running) {
        Type(L"abc");
        running.UserSelectPage(1);
        desktop.log.Clear();
        running.UserOk();
        EXPECT_FALSE(running.HasEnded());
        EXPECT_EQ(running.GetActivePage(), page.get());
    };
    sheet.DoModal();
    Names order;
    for (const std::string& line : desktop.log.Lines()) {
        if (line.starts_with("page") || line.starts_with("focus") || line.starts_with("box")) {
            order.push_back(line);
        }
    }
    EXPECT_THAT(order,
                ElementsAre("page 6159 \"Contour options\"", "focus 6159:6046",
                            "box 16 \"The sheet\" \"Not a number in resolution field.\" -> ok"));
}

}  // namespace
}  // namespace kvopt::test
