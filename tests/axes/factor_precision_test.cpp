// The switches for factor precision on the pages with outer axes.

#include "axes/axes_4d_fixture.h"

namespace kvopt::test {
namespace {

const char* const kOnAxes = "Include factor precision on axis factors";
const char* const kOnConstants = "Include factor precision on constant factors";

class FactorPrecision : public BothAxes4D {
protected:
    FactorPrecision() {
        options.isProbabilityPlot = true;
        options.errorOnAxisFactors = false;
        options.errorOnConstantFactors = false;
    }
    void GivePrecision() { study.GetVariables()->GetFactor("Mass")->precision = 0.5; }

    /// The numbers of the switches and of the list with its label that are seen.
    std::vector<int> Seen() const {
        std::vector<int> seen;
        for (const int number : {6279, 6280, 6305, 6306}) {
            if (Control(number).IsVisible()) {
                seen.push_back(number);
            }
        }
        return seen;
    }
    std::vector<int> Enabled() const {
        std::vector<int> enabled;
        for (const int number : {6279, 6280, 6305, 6306}) {
            if (Control(number).IsEnabled()) {
                enabled.push_back(number);
            }
        }
        return enabled;
    }
    Texts Distributions() const {
        Texts texts;
        for (int i = 0; i < Distribution().GetCount(); ++i) {
            texts.push_back(KvStdString::ToUtf8(Distribution().GetItemText(i)) + "=" +
                            std::to_string(Distribution().GetItemData(i)));
        }
        return texts;
    }
};

using Numbers = std::vector<int>;

TEST_P(FactorPrecision, IsNotShownWithoutOptions) {
    givenOptions = nullptr;
    GivePrecision();
    Show(GetParam());
    EXPECT_EQ(Seen(), Numbers{});
}

TEST_P(FactorPrecision, IsNotShownInAnotherPlot) {
    options.isProbabilityPlot = false;
    GivePrecision();
    Show(GetParam());
    EXPECT_EQ(Seen(), Numbers{});
}

TEST_P(FactorPrecision, IsShownInAProbabilityPlot) {
    GivePrecision();
    Show(GetParam());
    EXPECT_EQ(Seen(), (Numbers{6279, 6280, 6305, 6306}));
    EXPECT_EQ(Enabled(), (Numbers{6279, 6280, 6305, 6306}));
    EXPECT_EQ(Utf8(Control(6279)), kOnAxes);
    EXPECT_EQ(Utf8(Control(6280)), kOnConstants);
    EXPECT_EQ(Utf8(Control(6306)), "Distribution:");
}

TEST_P(FactorPrecision, IsThatOfSetpointExplorationUnderItsKey) {
    options.fromDesignSpaceKey = true;
    GivePrecision();
    Show(GetParam());
    EXPECT_EQ(Seen(), (Numbers{6279, 6280})) << "the distribution is chosen elsewhere";
    EXPECT_EQ(Utf8(Control(6279)),
              "Include distribution from setpoint exploration on axis factors");
    EXPECT_EQ(Utf8(Control(6280)),
              "Include distribution from setpoint exploration on constant factors");
}

TEST_P(FactorPrecision, IsOffWhereNoFactorHasOne) {
    options.errorOnAxisFactors = true;
    options.errorOnConstantFactors = true;
    Show(GetParam());
    EXPECT_EQ(Seen(), (Numbers{6279, 6280, 6305, 6306}));
    EXPECT_EQ(Enabled(), Numbers{});
    EXPECT_FALSE(Button(6279).GetCheck());
    EXPECT_FALSE(Button(6280).GetCheck());
}

TEST_P(FactorPrecision, ShowsItsSwitches) {
    GivePrecision();
    for (const bool onAxes : {false, true}) {
        for (const bool onConstants : {false, true}) {
            options.errorOnAxisFactors = onAxes;
            options.errorOnConstantFactors = onConstants;
            Show(GetParam());
            EXPECT_EQ(Button(6279).GetCheck(), onAxes);
            EXPECT_EQ(Button(6280).GetCheck(), onConstants);
        }
    }
}

TEST_P(FactorPrecision, ShowsItsDistributionAndAnotherNormalOneAsNormal) {
    GivePrecision();
    for (const auto& [stored, shown] :
         {std::pair(0, L"Uniform"), {1, L"Normal"}, {2, L"Triangular"}, {3, L"Normal"}}) {
        options.distribution = stored;
        Show(GetParam());
        EXPECT_EQ(Distribution().GetText(), shown) << stored;
    }
}

TEST_P(FactorPrecision, OffersThreeDistributions) {
    const Texts all{"Uniform=0", "Normal=1", "Triangular=2"};
    Show(GetParam());
    EXPECT_EQ(Distributions(), all);
    page->OnInitDialog();
    EXPECT_EQ(Distributions(), all) << "and empties the list first";
    givenOptions = nullptr;
    Show(GetParam());
    EXPECT_EQ(Distributions(), all) << "whether they are seen or not";
}

TEST_P(FactorPrecision, ShowsADistributionWhereNoFactorHasAPrecisionToo) {
    options.distribution = 0;
    Show(GetParam());
    EXPECT_EQ(Distribution().GetText(), L"Uniform");
}

// What is written.

TEST_P(FactorPrecision, WritesWhatIsChosen) {
    GivePrecision();
    Show(GetParam());
    Button(6279).UserClick();
    Distribution().UserPick(2);
    page->TransferFromPage();
    EXPECT_TRUE(options.errorOnAxisFactors);
    EXPECT_FALSE(options.errorOnConstantFactors);
    EXPECT_EQ(options.distribution, 2);
    Button(6279).UserClick();
    Button(6280).UserClick();
    Distribution().UserPick(0);
    page->TransferFromPage();
    EXPECT_FALSE(options.errorOnAxisFactors);
    EXPECT_TRUE(options.errorOnConstantFactors);
    EXPECT_EQ(options.distribution, 0);
}

TEST_P(FactorPrecision, WritesTheNormalDistributionWhenNoneIsSelected) {
    GivePrecision();
    options.distribution = 2;
    Show(GetParam());
    Distribution().SetCurSel(-1);
    page->TransferFromPage();
    EXPECT_EQ(options.distribution, 1);
}

TEST_P(FactorPrecision, LeavesTheDistributionOfSetpointExploration) {
    GivePrecision();
    options.fromDesignSpaceKey = true;
    options.distribution = 3;
    Show(GetParam());
    Button(6279).UserClick();
    page->TransferFromPage();
    EXPECT_TRUE(options.errorOnAxisFactors);
    EXPECT_EQ(options.distribution, 3);
}

TEST_P(FactorPrecision, LeavesTheOptionsWhereNoFactorHasOne) {
    options.errorOnAxisFactors = true;
    options.distribution = 3;
    const ContourPageData::Arguments before = options;
    Show(GetParam());
    page->TransferFromPage();
    EXPECT_EQ(options, before);
}

TEST_P(FactorPrecision, LeavesTheOptionsOfAnotherPlot) {
    GivePrecision();
    options.isProbabilityPlot = false;
    options.distribution = 3;
    const ContourPageData::Arguments before = options;
    Show(GetParam());
    Button(6279).SetCheck(true);
    page->TransferFromPage();
    EXPECT_EQ(options, before);
}

TEST_P(FactorPrecision, TouchesNoOptionsWhereThereAreNone) {
    GivePrecision();
    givenOptions = nullptr;
    const ContourPageData::Arguments before = options;
    Show(GetParam());
    page->TransferFromPage();
    EXPECT_EQ(options, before);
}

// The reminder.

const char* const kCheckPrecisions = "Make sure you have specified correct factor precisions.";
const char* const kCheckDistributions =
    "Make sure you have specified correct distributions on all factors in setpoint exploration.";

class PrecisionReminder : public FactorPrecision {
protected:
    PrecisionReminder() { GivePrecision(); }
};

TEST_P(PrecisionReminder, ComesWithEachClickThatLeavesASwitchOn) {
    Show(GetParam());
    Button(6279).UserClick();
    EXPECT_EQ(desktop.boxes, (std::vector<SheetDesktop::Box>{{kCheckPrecisions, "", 64}}));
    Button(6280).UserClick();
    EXPECT_EQ(desktop.boxes.size(), 2U);
    Button(6279).UserClick();
    EXPECT_EQ(desktop.boxes.size(), 3U) << "the other one is still on";
    Button(6280).UserClick();
    EXPECT_EQ(desktop.boxes.size(), 3U) << "both are off";
}

TEST_P(PrecisionReminder, SpeaksOfSetpointExplorationUnderItsKey) {
    options.fromDesignSpaceKey = true;
    Show(GetParam());
    Button(6280).UserClick();
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].text, kCheckDistributions);
}

TEST_P(PrecisionReminder, StaysAwayOnceTheUserSaidSo) {
    Show(GetParam());
    desktop.answers = {BoxAnswer::Silence};
    Button(6279).UserClick();
    Button(6280).UserClick();
    EXPECT_EQ(desktop.boxes.size(), 1U);
    Show(GetParam() == Plot::Process ? Plot::Mixture : Plot::Process);
    Button(6279).UserClick();
    EXPECT_EQ(desktop.boxes.size(), 1U) << "both pages ask under one key";
    EXPECT_TRUE(Registry::Instance()
                    ->GetKey("Software\\kvopt\\DontShowAgain")
                    ->ReadKeyOr("ChangedDistribution", false));
}

TEST_P(PrecisionReminder, MarksThePageAfterTheBoxAndWithoutOneToo) {
    Show(GetParam());
    bool changedDuringBox = true;
    desktop.onBox = [&] { changedDuringBox = page->IsChanged(); };
    Button(6279).UserClick();
    EXPECT_FALSE(changedDuringBox);
    EXPECT_TRUE(page->IsChanged());
    page->Unchanged();
    Button(6279).UserClick();
    EXPECT_TRUE(page->IsChanged());
}

TEST_P(PrecisionReminder, DoesNotComeWithAnotherDistributionWhichMarksThePage) {
    options.errorOnAxisFactors = true;
    Show(GetParam());
    Distribution().UserPick(0);
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_TRUE(page->IsChanged());
}

TEST_P(PrecisionReminder, ComesWithoutOptionsAsForAnyPlot) {
    givenOptions = nullptr;
    Show(GetParam());
    Control(6279).ShowWindow(true);
    Button(6279).UserClick();
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].text, kCheckPrecisions);
}

INSTANTIATE_TEST_SUITE_P(Pages, FactorPrecision, testing::Values(Plot::Process, Plot::Mixture));
INSTANTIATE_TEST_SUITE_P(Pages, PrecisionReminder, testing::Values(Plot::Process, Plot::Mixture));

}  // namespace
}  // namespace kvopt::test
