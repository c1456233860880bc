// What the mixture page alone does; the rest stands in the tests of both pages.

#include "kvopt/axes/mixture_4d_axis_page.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>

#include "axes/axes_4d_fixture.h"

namespace kvopt::test {
namespace {

using testing::Contains;

const std::string kThirdMissing = "\nThere is nothing selected on the third axis.";

class Mixture4DAxisPageTest : public Axes4DTest {
protected:
    AxisPage& Show() { return Axes4DTest::Show(Plot::Mixture); }
    void EmptyAxis(int axis) {
        page->AddUnusedOption(axis);
        ASSERT_TRUE(Row(axis).Pick(kNone));
    }
    /// Takes the process factors out of the study but for some.
    void LeaveProcessFactors(const Texts& left) {
        for (const char* name : {"Temp", "Time", "Speed", "Mass", "Colour", "Tint"}) {
            if (std::find(left.begin(), left.end(), name) == left.end()) {
                study.RemoveFactor(name);
            }
        }
    }
};

// The lists.

TEST_F(Mixture4DAxisPageTest, OffersFormulationFactorsInsideAndOthersOutside) {
    study.Add("Rest", CEType::Filler);
    study.Add("Held", CEType::Formulation, CEUse::Constant);
    study.unavailable = {"D", "Mass"};
    Show();
    for (const int axis : {1, 2, 3}) {
        EXPECT_EQ(Row(axis).Entries(), (Texts{"A", "B", "C"})) << axis;
    }
    for (const int axis : {4, 5}) {
        EXPECT_EQ(Row(axis).Entries(), (Texts{"Temp", "Time", "Speed", "Colour", "Tint", kNone}))
            << axis;
    }
}

TEST_F(Mixture4DAxisPageTest, OffersFormulationFactorsOutsideTooWithATrueFiller) {
    study.trueFiller = true;
    Show();
    EXPECT_THAT(Row(4).Entries(), Contains("D"));
    EXPECT_THAT(Row(5).Entries(), Contains("A"));
}

TEST_F(Mixture4DAxisPageTest, KeepsTheBlockEntryInItsLists) {
    study.Block(2);
    Show();
    EXPECT_THAT(Row(4).Entries(), Contains(kBlockFactorName));
    EXPECT_THAT(Row(5).Entries(), Contains(kBlockFactorName));
}

TEST_F(Mixture4DAxisPageTest, KeepsTheBlockEntryOnAnInnerAxisThatItsKindFits) {
    study.Part(kBlockFactorName);
    Show();
    EXPECT_THAT(Row(1).Entries(), Contains(kBlockFactorName));
}

// The third axis.

TEST_F(Mixture4DAxisPageTest, RefusesAnEmptyThirdAxis) {
    Show();
    EmptyAxis(3);
    EXPECT_FALSE(page->CheckLegalAxes());
    EXPECT_EQ(desktop.boxes, (std::vector<SheetDesktop::Box>{{kThirdMissing, "", 16}}));
}

TEST_F(Mixture4DAxisPageTest, LeavesTheFirstTwoAxesToTheRows) {
    Show();
    EmptyAxis(1);
    EmptyAxis(2);
    EXPECT_TRUE(page->CheckLegalAxes());
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Mixture4DAxisPageTest, AddsTheEmptyThirdAxisToWhatTheRowsSay) {
    Show();
    EmptyAxis(3);
    Row(1).low.UserEdit(L"x");
    EXPECT_FALSE(page->CheckLegalAxes());
    EXPECT_EQ(
        desktop.boxes,
        (std::vector<SheetDesktop::Box>{
            {"The low setting on the 1st axis (A) is not a number." + kThirdMissing, "", 16}}));
}

TEST_F(Mixture4DAxisPageTest, RefusesAnEmptyThirdAxisBehindAQuestion) {
    study.unusualSettings = {"A=0"};
    Show();
    EmptyAxis(3);
    EXPECT_FALSE(page->CheckLegalAxes());
    EXPECT_EQ(desktop.boxes,
              (std::vector<SheetDesktop::Box>{
                  {"The low setting (0) on the 1st axis (A) is outside the recommended range for "
                   "the factor.\n\nDo you still want to use the specified setting?" +
                       kThirdMissing,
                   "", 16}}));
}

TEST_F(Mixture4DAxisPageTest, JudgesNoSettingsWithAnEmptyThirdAxis) {
    Axes4DTest::Show(Plot::Mixture, "Colour", "Tint");
    EmptyAxis(3);
    Settings(0).UserEdit(L"");
    EXPECT_FALSE(page->CheckLegalAxes());
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].text, kThirdMissing);
}

TEST_F(Mixture4DAxisPageTest, TestsNoSumsOfTheMixture) {
    Show();
    for (const int axis : {1, 2, 3}) {
        Row(axis).low.UserEdit(L"0.8");
        Row(axis).high.UserEdit(L"0.9");
    }
    EXPECT_TRUE(page->CheckLegalAxes());
    EXPECT_TRUE(page->OnKillActive());
    EXPECT_TRUE(desktop.boxes.empty());
}

// The fifth axis.

TEST_F(Mixture4DAxisPageTest, KeepsTheFifthAxisEmptyWithASingleProcessFactor) {
    LeaveProcessFactors({"Speed"});
    Axes4DTest::Show(Plot::Mixture, "Speed", "Speed");
    EXPECT_EQ(Row(4).Text(), "Speed|5|6");
    EXPECT_TRUE(Row(4).list.IsEnabled());
    EXPECT_EQ(Row(5).Text(), kNone + "|| (off)");
    EXPECT_FALSE(Row(5).list.IsEnabled());
}

TEST_F(Mixture4DAxisPageTest, HidesTheSettingsOfAFifthAxisThatIsKeptEmpty) {
    LeaveProcessFactors({"Colour"});
    Store("Colour", "Colour", "red", "green");
    Make(Plot::Mixture).Create();
    EXPECT_EQ(Shown(0), "settings");
    EXPECT_EQ(Shown(1), "range");
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(Mixture4DAxisPageTest, KeepsBothOuterAxesEmptyWithoutAProcessFactor) {
    LeaveProcessFactors({});
    Show();
    EXPECT_EQ(Row(4).Text(), kNone + "|| (off)");
    EXPECT_TRUE(Row(4).list.IsEnabled());
    EXPECT_FALSE(Row(5).list.IsEnabled());
}

TEST_F(Mixture4DAxisPageTest, OffersTheFifthAxisFromTwoProcessFactorsOn) {
    LeaveProcessFactors({"Speed", "Colour"});
    Axes4DTest::Show(Plot::Mixture, "Speed", "Colour");
    EXPECT_EQ(Row(5).Name(), "Colour");
    EXPECT_TRUE(Row(5).list.IsEnabled());
}

// The distributions.

class Mixture4DDistributions : public Mixture4DAxisPageTest {
protected:
    Mixture4DDistributions() { options.isProbabilityPlot = true; }
    std::vector<std::intptr_t> Data() const {
        std::vector<std::intptr_t> data;
        for (int i = 0; i < Distribution().GetCount(); ++i) {
            data.push_back(Distribution().GetItemData(i));
        }
        return data;
    }
};

TEST_F(Mixture4DDistributions, HaveTheNormalOneFromAProcessFactorOn) {
    LeaveProcessFactors({"Speed"});
    Show();
    EXPECT_EQ(Data(), (std::vector<std::intptr_t>{0, 1, 2}));
    LeaveProcessFactors({});
    Show();
    EXPECT_EQ(Data(), (std::vector<std::intptr_t>{0, 2}));
}

TEST_F(Mixture4DDistributions, ShowTheTriangularOneForWhatTheListLacks) {
    LeaveProcessFactors({});
    for (const int stored : {1, 3}) {
        options.distribution = stored;
        Show();
        EXPECT_EQ(Distribution().GetSelectedItem(), 2) << stored;
    }
    options.distribution = 0;
    Show();
    EXPECT_EQ(Distribution().GetSelectedItem(), 0);
}

TEST_F(Mixture4DDistributions, AreShownByThePageWhereTheTemplateHidesThem) {
    Show();
    for (const ControlTemplate& control : page->Template().Controls()) {
        for (const int number : {6279, 6280, 6305, 6306}) {
            if (control.number == number) {
                EXPECT_FALSE(control.visible) << number;
                EXPECT_TRUE(Control(number).IsVisible()) << number;
            }
        }
    }
}

TEST_F(Axes4DTest, ProcessPageSelectsNothingForADistributionThatTheListLacks) {
    options.isProbabilityPlot = true;
    options.distribution = 7;
    Show(Plot::Process);
    EXPECT_EQ(Distribution().GetSelectedItem(), std::nullopt);
    Show(Plot::Mixture);
    EXPECT_EQ(Distribution().GetSelectedItem(), 2);
}

// The constants.

TEST_F(Mixture4DAxisPageTest, AsksTheModelsForTheConstantsInEveryStudy) {
    study.ExtraResponse("Outside", ResponseEx::External);
    study.usedFactors = 0;
    Show();
    study.usedQuestions.clear();
    page->OnSetActive();
    EXPECT_EQ(Hint(), "There are no unused factors that can be held constant.");
    EXPECT_EQ(
        study.usedQuestions,
        (std::vector<std::pair<CEVar, int>>{{CEVar::AllFactors, std::numeric_limits<int>::max()}}));
}

}  // namespace
}  // namespace kvopt::test
