// Which plot types, and which of process and mixture, the factors of a study allow.

#include <ostream>

#include "sheets/contour_page_test.h"

namespace kvopt::test {
namespace {

struct PlotTypes {
    FactorNumbers factors;
    bool contour;
    bool contour4D;
    bool surface;
};

void PrintTo(const FactorNumbers& factors, std::ostream* out) {
    *out << factors.mixture << " mixture, " << factors.qualitative << " qualitative, "
         << factors.process << " process" << (factors.filler ? ", filler" : "");
}

void PrintTo(const PlotTypes& row, std::ostream* out) {
    PrintTo(row.factors, out);
}

class ContourPlotTypes : public ContourPageTest, public testing::WithParamInterface<PlotTypes> {};

TEST_P(ContourPlotTypes, FollowTheFactorsThatTheModelsUse) {
    AddFactors(GetParam().factors);
    AddResponses(1);
    MakeData();
    const ProbeContourPage& page = Show();
    EXPECT_EQ(page.Type(0).IsEnabled(), GetParam().contour);
    EXPECT_EQ(page.Type(1).IsEnabled(), GetParam().contour4D);
    EXPECT_EQ(page.Type(2).IsEnabled(), GetParam().surface);
    EXPECT_FALSE(page.Type(3).IsEnabled());
    for (const int type : {0, 1, 2}) {
        EXPECT_TRUE(page.Type(type).IsVisible()) << type;
    }
    EXPECT_FALSE(page.Type(3).IsVisible());
}

// The numbers are: mixture factors, qualitative ones, other process factors, filler.
INSTANTIATE_TEST_SUITE_P(WithoutFiller, ContourPlotTypes,
                         testing::Values(PlotTypes{{0, 0, 0, false}, false, false, false},
                                         PlotTypes{{0, 0, 1, false}, false, false, false},
                                         PlotTypes{{0, 3, 1, false}, false, false, false},
                                         PlotTypes{{0, 0, 2, false}, true, false, true},
                                         PlotTypes{{0, 1, 2, false}, true, true, true},
                                         PlotTypes{{0, 0, 3, false}, true, true, true},
                                         PlotTypes{{2, 0, 0, false}, false, false, false},
                                         PlotTypes{{2, 1, 1, false}, false, false, false},
                                         PlotTypes{{2, 0, 2, false}, true, false, true},
                                         PlotTypes{{3, 0, 0, false}, true, false, false},
                                         PlotTypes{{4, 0, 0, false}, true, false, false},
                                         PlotTypes{{3, 1, 0, false}, true, true, false},
                                         PlotTypes{{3, 0, 1, false}, true, true, false},
                                         PlotTypes{{3, 0, 2, false}, true, true, true},
                                         PlotTypes{{2, 0, 3, false}, true, true, true}));

INSTANTIATE_TEST_SUITE_P(WithFiller, ContourPlotTypes,
                         testing::Values(PlotTypes{{0, 0, 1, true}, false, false, false},
                                         PlotTypes{{1, 1, 0, true}, false, false, false},
                                         PlotTypes{{1, 0, 1, true}, true, false, true},
                                         PlotTypes{{2, 0, 0, true}, true, false, true},
                                         PlotTypes{{0, 0, 2, true}, true, false, true},
                                         PlotTypes{{1, 1, 1, true}, true, true, true},
                                         PlotTypes{{3, 0, 0, true}, true, true, true},
                                         PlotTypes{{1, 0, 2, true}, true, true, true}));

TEST_F(ContourPageTest, CountsTheFactorsThatTheModelsUseAlone) {
    AddFactors({0, 1, 3, false});
    MakeData();
    study.unavailable = {"P3"};
    EXPECT_TRUE(Show().Type(1).IsEnabled());
    study.inNoModel = {"Q1"};
    // The qualitative factor still counts among the process factors, as no model's.
    EXPECT_TRUE(Show().Type(1).IsEnabled());
    study.unavailable = {"P3", "Q1"};
    EXPECT_FALSE(Show().Type(1).IsEnabled());
    EXPECT_TRUE(Show().Type(0).IsEnabled());
}

TEST_F(ContourPageTest, HidesSurfacesWhereTheyAreOff) {
    AddFactors({0, 0, 3, false});
    MakeData(false, true);
    EXPECT_FALSE(Show().Type(2).IsVisible());
    EXPECT_FALSE(Page().Type(2).IsEnabled());
    MakeData();
    EXPECT_FALSE(Show(true).Type(2).IsVisible());
    EXPECT_FALSE(Page().Type(2).IsEnabled());
    MakeData(true);
    EXPECT_FALSE(Show().Type(2).IsVisible());
    EXPECT_FALSE(Page().Type(2).IsEnabled());
    EXPECT_TRUE(Page().Type(1).IsEnabled());
}

// Process and mixture.

struct AxisKinds {
    int type;
    FactorNumbers factors;
    bool process;
    bool mixture;
};

void PrintTo(const AxisKinds& row, std::ostream* out) {
    *out << "type " << row.type << " with ";
    PrintTo(row.factors, out);
}

class ContourAxisKinds : public ContourPageTest, public testing::WithParamInterface<AxisKinds> {};

TEST_P(ContourAxisKinds, FollowTheTypeOfThePlot) {
    const AxisKinds& row = GetParam();
    AddFactors(row.factors);
    AddResponses(1);
    MakeData();
    Show().Choose(row.type);
    EXPECT_EQ(Page().Process().IsEnabled(), row.process);
    EXPECT_EQ(Page().Mixture().IsEnabled(), row.mixture);
}

TEST_P(ContourAxisKinds, NeverAllowMixtureWhereItIsSwitchedOff) {
    const AxisKinds& row = GetParam();
    AddFactors(row.factors);
    AddResponses(1);
    MakeData();
    PageData().SetOverrideDisableMixture(true);
    Show().Choose(row.type);
    EXPECT_EQ(Page().Process().IsEnabled(), row.process);
    EXPECT_FALSE(Page().Mixture().IsEnabled());
}

TEST_P(ContourAxisKinds, MoveTheMarkToWhatIsAllowed) {
    const AxisKinds& row = GetParam();
    AddFactors(row.factors);
    AddResponses(1);
    MakeData();
    Show();
    // Neither allowed: the mark ends on process.
    const bool toMixture = !row.process && row.mixture;
    Page().Process().SetCheck(true);
    Page().Choose(row.type);
    EXPECT_EQ(Page().Mixture().GetCheck(), toMixture);
    EXPECT_EQ(Page().Process().GetCheck(), !toMixture);
    Page().Mixture().SetCheck(true);
    Page().Choose(row.type);
    EXPECT_EQ(Page().Mixture().GetCheck(), row.mixture);
    EXPECT_EQ(Page().Process().GetCheck(), !row.mixture);
}

TEST_P(ContourAxisKinds, LeaveTheMarkOnProcessWhereMixtureIsSwitchedOff) {
    const AxisKinds& row = GetParam();
    AddFactors(row.factors);
    AddResponses(1);
    MakeData();
    PageData().SetOverrideDisableMixture(true);
    Show();
    Page().Process().SetCheck(true);
    Page().Choose(row.type);
    EXPECT_TRUE(Page().Process().GetCheck());
    // What the factors allow decides here, and not the switch.
    Page().Mixture().SetCheck(true);
    Page().Choose(row.type);
    EXPECT_EQ(Page().Mixture().GetCheck(), row.mixture);
}

INSTANTIATE_TEST_SUITE_P(Contour, ContourAxisKinds,
                         testing::Values(AxisKinds{0, {0, 0, 1, false}, false, false},
                                         AxisKinds{0, {0, 0, 2, false}, true, false},
                                         AxisKinds{0, {0, 2, 1, false}, false, false},
                                         AxisKinds{0, {2, 0, 2, false}, true, false},
                                         AxisKinds{0, {3, 0, 2, false}, true, true},
                                         AxisKinds{0, {3, 0, 1, false}, false, true},
                                         AxisKinds{0, {2, 0, 1, false}, false, false},
                                         AxisKinds{0, {0, 0, 1, true}, false, false},
                                         AxisKinds{0, {1, 0, 1, true}, true, false},
                                         AxisKinds{0, {4, 0, 0, true}, true, false}));

INSTANTIATE_TEST_SUITE_P(
    Contour4D, ContourAxisKinds,
    testing::Values(
        AxisKinds{1, {0, 0, 1, false}, false, false}, AxisKinds{1, {0, 1, 1, false}, false, false},
        AxisKinds{1, {0, 0, 2, false}, false, false}, AxisKinds{1, {0, 1, 2, false}, true, false},
        AxisKinds{1, {0, 0, 3, false}, true, false}, AxisKinds{1, {3, 0, 0, false}, false, false},
        AxisKinds{1, {3, 1, 0, false}, false, true}, AxisKinds{1, {3, 0, 1, false}, false, true},
        AxisKinds{1, {2, 1, 1, false}, false, false}, AxisKinds{1, {3, 0, 3, false}, true, true},
        AxisKinds{1, {1, 0, 0, true}, false, false}, AxisKinds{1, {1, 0, 1, true}, false, false},
        AxisKinds{1, {1, 1, 1, true}, true, false}, AxisKinds{1, {2, 0, 1, true}, true, false},
        AxisKinds{1, {3, 1, 1, true}, true, false}));

INSTANTIATE_TEST_SUITE_P(Surfaces, ContourAxisKinds,
                         testing::Values(AxisKinds{2, {0, 0, 0, false}, true, false},
                                         AxisKinds{2, {4, 1, 3, false}, true, false},
                                         AxisKinds{2, {4, 1, 3, true}, true, false},
                                         AxisKinds{3, {0, 0, 0, false}, true, false},
                                         AxisKinds{3, {4, 1, 3, false}, true, false},
                                         AxisKinds{3, {4, 1, 3, true}, true, false}));

TEST_F(ContourPageTest, AllowsNeitherWithTwoMixtureFactorsAndOneOther) {
    AddFactors({2, 0, 1, false});
    AddResponses(1);
    MakeData();
    PageData().SetAxisType(ContourPageData::mixture);
    Show();
    EXPECT_TRUE(Page().Process().GetCheck());
    EXPECT_FALSE(Page().Process().IsEnabled());
    EXPECT_FALSE(Page().Mixture().IsEnabled());
}

}  // namespace
}  // namespace kvopt::test
