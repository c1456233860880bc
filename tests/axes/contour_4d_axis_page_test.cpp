// What the page of process factors alone does; the rest stands in the tests of both pages.

#include "kvopt/axes/contour_4d_axis_page.h"

#include <gmock/gmock.h>

#include "axes/axes_4d_fixture.h"

namespace kvopt::test {
namespace {

using testing::Contains;
using testing::Not;

class Contour4DAxisPageTest : public Axes4DTest {
protected:
    AxisPage& Show() { return Axes4DTest::Show(Plot::Process); }
};

struct OfferRow {
    bool trueFiller;
    Texts inner;
    Texts outer;
};

void PrintTo(const OfferRow& row, std::ostream* out) {
    *out << (row.trueFiller ? "with" : "without") << " true filler";
}

class Contour4DOffers : public Contour4DAxisPageTest,
                        public testing::WithParamInterface<OfferRow> {};

TEST_P(Contour4DOffers, FollowTheFiller) {
    study.Add("Rest", CEType::Filler);
    study.Add("Held", CEType::Quantitative, CEUse::Constant);
    study.Add("Level", CEType::Multilevel);
    study.trueFiller = GetParam().trueFiller;
    study.unavailable = {"Mass"};
    Show();
    for (const int axis : {1, 2}) {
        EXPECT_EQ(Row(axis).Entries(), GetParam().inner) << axis;
    }
    Texts outer = GetParam().outer;
    outer.push_back(kNone);
    for (const int axis : {3, 4}) {
        EXPECT_EQ(Row(axis).Entries(), outer) << axis;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Fillers, Contour4DOffers,
    testing::Values(OfferRow{false,
                             {"Temp", "Time", "Speed", "Level"},
                             {"Temp", "Time", "Speed", "Colour", "Tint", "Level"}},
                    OfferRow{
                        true,
                        {"A", "B", "C", "D", "Temp", "Time", "Speed", "Level"},
                        {"A", "B", "C", "D", "Temp", "Time", "Speed", "Colour", "Tint", "Level"}}));

TEST_F(Contour4DAxisPageTest, OffersTheBlockEntryOnTheOuterAxesAlone) {
    study.Block(2);
    Show();
    for (const int axis : {1, 2}) {
        EXPECT_THAT(Row(axis).Entries(), Not(Contains(kBlockFactorName)));
    }
    for (const int axis : {3, 4}) {
        EXPECT_THAT(Row(axis).Entries(), Contains(kBlockFactorName));
    }
    EXPECT_TRUE(Row(3).Pick(kBlockFactorName));
    EXPECT_EQ(SettingsText(0), "1;2");
}

TEST_F(Contour4DAxisPageTest, DropsTheBlockEntryFromAnInnerAxisThatItsKindWouldLetThrough) {
    // The filters pass no qualitative factor on an inner axis; a block entry of another kind shows
    // that it is dropped for its name.
    study.Number(kBlockFactorName, 1, 2);
    Show();
    EXPECT_THAT(Row(1).Entries(), Not(Contains(kBlockFactorName)));
    EXPECT_THAT(Row(2).Entries(), Not(Contains(kBlockFactorName)));
    EXPECT_THAT(Row(3).Entries(), Contains(kBlockFactorName));
}

TEST_F(Contour4DAxisPageTest, OffersFactorsWithoutAskingTheModelsWithAResponseFromOutside) {
    study.unavailable = {"Mass", "Tint"};
    study.ExtraResponse("Outside", ResponseEx::External);
    Show();
    EXPECT_THAT(Row(1).Entries(), Contains("Mass"));
    EXPECT_THAT(Row(3).Entries(), Contains("Tint"));
}

TEST_F(Contour4DAxisPageTest, CountsAllFactorsForTheConstantsWithAResponseFromOutside) {
    study.usedFactors = 0;
    Show().OnSetActive();
    EXPECT_EQ(Hint(), "There are no unused factors that can be held constant.");
    study.ExtraResponse("Outside", ResponseEx::External);
    study.usedQuestions.clear();
    Show().OnSetActive();
    EXPECT_EQ(Hint().substr(0, 21), "Click the Next-button");
    EXPECT_TRUE(study.usedQuestions.empty());
}

TEST_F(Contour4DAxisPageTest, CountsEveryKindOfFactorForTheConstantsWithAResponseFromOutside) {
    study.ExtraResponse("Outside", ResponseEx::External);
    for (const char* name : {"B", "C", "D", "Speed", "Mass", "Colour", "Tint"}) {
        study.RemoveFactor(name);
    }
    Show().OnSetActive();
    EXPECT_EQ(Hint().substr(0, 21), "Click the Next-button");
    study.RemoveFactor("A");
    Show().OnSetActive();
    EXPECT_EQ(Hint(), "There are no unused factors that can be held constant.");
}

TEST_F(Contour4DAxisPageTest, ShowsTheSwitchesThatItsTemplateShows) {
    const CDialog& dialog = Make(Plot::Process);
    for (const ControlTemplate& control : dialog.Template().Controls()) {
        if (control.number == 6279 || control.number == 6306) {
            EXPECT_TRUE(control.visible) << control.number;
        }
    }
}

TEST_F(Contour4DAxisPageTest, NeedsNoFactorOnAnInnerAxisBeyondWhatTheRowsSay) {
    study.unavailable = {"Temp", "Time", "Speed", "Mass"};
    Show();
    EXPECT_EQ(Row(2).Name(), kNone);
    EXPECT_TRUE(page->CheckLegalAxes());
}

TEST_F(Contour4DAxisPageTest, LetsAnyNumberOfProcessFactorsOnTheFourthAxis) {
    study.unavailable = {"Speed", "Mass", "Colour", "Tint"};
    Show();
    EXPECT_TRUE(Row(4).list.IsEnabled());
}

}  // namespace
}  // namespace kvopt::test
