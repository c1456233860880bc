// How the two pages with outer axes open and stand in a sheet, where they do alike and where not.

#include <algorithm>
#include <tuple>

#include "axes/axes_4d_fixture.h"

namespace kvopt::test {
namespace {

class Axes4DPages : public BothAxes4D {};

const int kTemplates[] = {6161, 6169};
const int kConstantsPages[] = {6157, 6170};

const std::string kNoConstants = "There are no unused factors that can be held constant.";
const std::string kConstants[] = {
    "Click the Next-button to specify the settings for the factors to be held constant in the plot "
    "or click Finish to create the plot now.",
    "Click the 'Next' button to specify the settings for the factors to be held constant in the "
    "plot or click 'Finish' to create the plot now."};

int Index(Plot plot) {
    return static_cast<int>(plot);
}

// Writing an edit notifies its page, by program too.
TEST_F(
    Axes4DTest,
    ProcessPageOpensDirtyWithAStoredQualitativeOuterAxisAndMixturePageDoesNotAsItSaysUnchangedLast) {
    Store("Colour", kNone, "red");
    for (const Plot plot : {Plot::Process, Plot::Mixture}) {
        ConnectedHelper helper;
        Make(plot, &helper).Create();
        EXPECT_EQ(page->IsChanged(), plot == Plot::Process);
        EXPECT_GT(changes, 0) << "the settings were written in both";
        page.reset();
        changes = 0;
    }
}

TEST_F(Axes4DTest, ProcessPageIsDirtyBecauseOfTheSecondOuterAxisToo) {
    Store(kNone, "Tint", "", "");
    Make(Plot::Process).Create();
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(Axes4DTest, ProcessPageOpensCleanWithoutAStoredQualitativeOuterAxis) {
    Store("Speed", kNone, "red", "red");
    Make(Plot::Process).Create();
    EXPECT_FALSE(page->IsChanged());
    // A qualitative factor that the page proposes itself is written before the base ends.
    auto colour = std::make_shared<AxisInfoImpl>();
    colour->SetName("Colour");
    defaults.insert(defaults.begin() + 1, colour);
    Store("", kNone);
    Make(Plot::Process).Create();
    EXPECT_EQ(Outer(0).Name(), "Colour");
    EXPECT_EQ(SettingsText(0), "red;green;blue");
    EXPECT_FALSE(page->IsChanged());
}

TEST_P(Axes4DPages, HaveTheirTemplateAndAsManyRowsAsAxes) {
    Make(GetParam());
    EXPECT_EQ(page->TemplateNumber(), kTemplates[Index(GetParam())]);
    EXPECT_EQ(page->NAxis(), GetParam() == Plot::Process ? 4 : 5);
    EXPECT_EQ(page->HelpTopicID(), 1U);
    EXPECT_EQ(page->OnWizardBack(), 6158);
    EXPECT_EQ(page->Caption(), L"4D axes");
}

// The hint.

TEST_P(Axes4DPages, ShowTheHintInAWizard) {
    Show(GetParam());
    EXPECT_TRUE(Control(6139).IsVisible());
    EXPECT_TRUE(Control(6140).IsVisible());
    givenOptions = nullptr;
    Show(GetParam());
    EXPECT_TRUE(Control(6139).IsVisible()) << "without options";
}

TEST_P(Axes4DPages, HideTheHintInASheetAndInAProbabilityPlot) {
    inWizard = false;
    Show(GetParam());
    EXPECT_FALSE(Control(6139).IsVisible());
    EXPECT_FALSE(Control(6140).IsVisible());
    inWizard = true;
    options.isProbabilityPlot = true;
    Show(GetParam());
    EXPECT_FALSE(Control(6139).IsVisible());
    EXPECT_FALSE(Control(6140).IsVisible());
}

struct HintRow {
    const char* first;
    const char* second;
    int outerAxes;
};

class Axes4DHint : public Axes4DTest,
                   public testing::WithParamInterface<std::tuple<Plot, HintRow>> {};

void PrintTo(const HintRow& row, std::ostream* out) {
    *out << row.first << " and " << row.second;
}

TEST_P(Axes4DHint, SaysWhetherAFactorIsLeftForTheConstants) {
    const Plot plot = std::get<Plot>(GetParam());
    const HintRow& row = std::get<HintRow>(GetParam());
    const int axesInUse = (plot == Plot::Process ? 2 : 3) + row.outerAxes;
    for (const int used : {axesInUse - 1, axesInUse, axesInUse + 1}) {
        study.usedFactors = used;
        Store(row.first, row.second);
        Make(plot);
        const bool left = used > axesInUse;
        Run(true, [&](KvPropertySheet& sheet) {
            EXPECT_EQ(Hint(), left ? kConstants[Index(plot)] : kNoConstants) << used;
            EXPECT_EQ(sheet.WizardButtons(), left ? 7U : 5U) << used;
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, Axes4DHint,
                         testing::Combine(testing::Values(Plot::Process, Plot::Mixture),
                                          testing::Values(HintRow{"<not used>", "<not used>", 0},
                                                          HintRow{"Speed", "<not used>", 1},
                                                          HintRow{"<not used>", "Tint", 1},
                                                          HintRow{"Speed", "Tint", 2})));

TEST_P(Axes4DPages, TakeNextAwayWithTheLastFactorAndBringItBackWithAnEmptyAxis) {
    study.usedFactors = GetParam() == Plot::Process ? 4 : 5;
    Store("Speed", kNone);
    Make(GetParam());
    Run(true, [&](KvPropertySheet& sheet) {
        EXPECT_EQ(sheet.WizardButtons(), 7U);
        EXPECT_EQ(Hint(), kConstants[Index(GetParam())]);
        Outer(1).Pick("Mass");
        EXPECT_EQ(sheet.WizardButtons(), 5U);
        EXPECT_EQ(Hint(), kNoConstants);
        Outer(0).Pick(kNone);
        EXPECT_EQ(sheet.WizardButtons(), 7U);
        EXPECT_EQ(Hint(), kConstants[Index(GetParam())]);
        EXPECT_TRUE(page->IsChanged());
    });
}

TEST_P(Axes4DPages, SetTheirButtonsAfterThoseOfTheBase) {
    Make(GetParam());
    Run(true, [&](KvPropertySheet&) {
        const Texts& lines = desktop.log.Lines();
        const auto base = std::find(lines.begin(), lines.end(), "buttons back finish");
        ASSERT_NE(base, lines.end());
        ASSERT_NE(base + 1, lines.end());
        EXPECT_EQ(*(base + 1), "buttons back next finish");
    });
}

TEST_P(Axes4DPages, WriteTheHintButSetNoButtonsInASheet) {
    Make(GetParam());
    Run(false, [&](KvPropertySheet& sheet) {
        EXPECT_EQ(sheet.WizardButtons(), 0U);
        EXPECT_EQ(Hint(), kConstants[Index(GetParam())]);
    });
}

TEST_P(Axes4DPages, WriteTheHintWithoutASheet) {
    Show(GetParam());
    EXPECT_TRUE(page->OnSetActive());
    EXPECT_EQ(Hint(), kConstants[Index(GetParam())]);
    study.usedFactors = 1;
    page->OnChangeAxis(1);
    EXPECT_EQ(Hint(), kNoConstants);
}

TEST_P(Axes4DPages, MarkThemselvesWhenAnyAxisGetsAnotherFactor) {
    Show(GetParam());
    Row(1).Pick(GetParam() == Plot::Process ? "Speed" : "D");
    EXPECT_TRUE(page->IsChanged());
}

// The steps.

TEST_P(Axes4DPages, GoOnToTheirConstantsWhateverPageComesNext) {
    Store("Colour", kNone, "grey;red");
    Show(GetParam());
    Row(1).low.UserEdit(L"0.5");
    EXPECT_EQ(page->OnWizardNext(), kConstantsPages[Index(GetParam())]);
    EXPECT_EQ(axes[1]->GetMin(), 0.5F);
    EXPECT_EQ(Stored(0).GetSettings(), "grey;red");
}

TEST_P(Axes4DPages, StayOnAWrongAxis) {
    Show(GetParam());
    Row(1).low.UserEdit(L"x");
    EXPECT_EQ(page->OnWizardNext(), -1);
    EXPECT_NE(axes[1]->GetMin(), kNotSetF);
}

TEST_P(Axes4DPages, StoreWhatFinishLeaves) {
    options.isProbabilityPlot = true;
    options.errorOnAxisFactors = false;
    study.GetVariables()->GetFactor("Mass")->precision = 0.5;
    Show(GetParam());
    Outer(0).Pick("Tint");
    Button(6279).UserClick();
    EXPECT_TRUE(page->OnWizardFinish());
    EXPECT_EQ(Stored(0).GetName(), "Tint");
    EXPECT_EQ(Stored(0).GetSettings(), "red;green;blue");
    EXPECT_TRUE(options.errorOnAxisFactors);
}

TEST_P(Axes4DPages, WriteNothingWhenACleanOneIsApplied) {
    Show(GetParam(), "Colour", kNone);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Stored(0).GetSettings(), "");
}

INSTANTIATE_TEST_SUITE_P(Pages, Axes4DPages, testing::Values(Plot::Process, Plot::Mixture));

}  // namespace
}  // namespace kvopt::test
