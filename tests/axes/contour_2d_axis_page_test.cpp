#include "kvopt/axes/contour_2d_axis_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "axes/axes_study.h"
#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/constants/vws_constant_interface.h"

namespace kvopt::test {
namespace {

using Texts = std::vector<std::string>;

const std::string kNone = AxisInfo::GetNotUsedName();

/// Temp and Time lie on the axes, Speed and Mass in the grid with 5 and 50 of 0 to 10 and 100.
class Contour2DAxisPageTest : public testing::Test {
protected:
    Contour2DAxisPageTest() {
        study.Number("Temp", 0, 100);
        study.Number("Time", 0, 60);
        study.Number("Speed", 0, 10);
        study.Number("Mass", 0, 100);
        study.usedFactors = 4;
    }

    Contour2DAxisPage::Arguments Arguments() {
        Contour2DAxisPage::Arguments arguments;
        arguments.axes = &axes;
        arguments.numAxes = 2;
        arguments.backPage = 6158;
        arguments.defaults = &defaults;
        arguments.numDefaults = 4;
        arguments.constants = constants.data();
        return arguments;
    }

    class Page : public Contour2DAxisPage {
    public:
        explicit Page(Contour2DAxisPageTest& test, BasePropertyPageHelper* helper = nullptr)
            : Contour2DAxisPage(&test.study, test.Arguments(), 6160, helper, 1) {}

        VirtualWorksheet& Sheet6139() const { return *Item<VirtualWorksheet>(6139); }
        /// "name=value" of each row of the grid.
        Texts GridRows() const {
            Texts rows;
            for (int row = 1; row <= Grid().RowCount(); ++row) {
                rows.push_back(Grid().GetCellText(1, row) + "=" + Grid().GetCellText(2, row));
            }
            return rows;
        }
        void Type(int row, const char* text) const { Grid().UserChangedData(2, row, text); }
        RowProbe Row(int axis) const { return {*this, axis}; }
    };

    std::unique_ptr<Page> Shown(BasePropertyPageHelper* helper = nullptr) {
        auto page = std::make_unique<Page>(*this, helper);
        page->Create();
        page->OnSetActive();
        return page;
    }

    double Stored(const std::string& name) {
        const int index = FactorConstants::Lookup(constants.data(), name);
        return index < 0 ? kNotSet : constants[static_cast<std::size_t>(index)].FloatValue();
    }

    AxesStudy study;
    AxisVector axes = MakeAxes({{"Temp", 1, 2}, {"Time", 3, 4}});
    AxisVector defaults =
        MakeAxes({{"Temp", 10, 90}, {"Time", 10, 50}, {"Speed", 1, 9}, {"Mass", 10, 90}});
    std::array<FactorConstants::Constant, 9> constants;
    SheetDesktop desktop;
};

// Construction.

TEST_F(Contour2DAxisPageTest, MakesTheGridForTheFactorsThatTheModelsUse) {
    study.usedFactors = 7;
    const Page page(*this);
    EXPECT_EQ(page.Grid().RowCount(), 7);
    EXPECT_EQ(
        study.usedQuestions,
        (std::vector<std::pair<CEVar, int>>{{CEVar::AllFactors, std::numeric_limits<int>::max()}}));
}

TEST_F(Contour2DAxisPageTest, MakesTheGridForAllFactorsWithAResponseFromOutside) {
    study.usedFactors = 7;
    study.ExtraResponse("Outside", ResponseEx::External);
    const Page page(*this);
    EXPECT_EQ(page.Grid().RowCount(), 4);
    EXPECT_TRUE(study.usedQuestions.empty());
}

TEST_F(Contour2DAxisPageTest, OwnsAnEditableGridThatMarksIt) {
    const auto page = Shown();
    EXPECT_EQ(page->Grid().GetParent(), page.get());
    EXPECT_EQ(page->Grid().GetInvestigation(), &study);
    EXPECT_FALSE(page->Grid().IsReadOnly());
    EXPECT_FALSE(page->IsChanged());
    page->Type(1, "7");
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(Contour2DAxisPageTest, AsksTheModelsWhichFactorsTheGridShows) {
    study.unavailable = {"Speed"};
    EXPECT_EQ(Shown()->GridRows(), (Texts{"Mass=50", "=", "=", "="}));
}

TEST_F(Contour2DAxisPageTest, ShowsAllFactorsInTheGridWithAResponseFromOutside) {
    study.unavailable = {"Speed"};
    study.ExtraResponse("Outside", ResponseEx::External);
    EXPECT_EQ(Shown()->GridRows(), (Texts{"Speed=5", "Mass=50", "=", "="}));
}

TEST_F(Contour2DAxisPageTest, ShowsTheFactorsThatLieOnNoAxis) {
    constants[0] = {"Mass", 12.5, FactorConstants::CUSTOM};
    const auto page = Shown();
    EXPECT_EQ(page->GridRows(), (Texts{"Speed=5", "Mass=12.5", "=", "="}));
    EXPECT_EQ(page->Sheet6139().Content(), &page->Grid());
    EXPECT_FALSE(page->IsChanged());
}

// The lists.

struct OfferRow {
    bool trueFiller;
    Texts offered;
};

void PrintTo(const OfferRow& row, std::ostream* out) {
    *out << (row.trueFiller ? "with" : "without") << " true filler";
}

class Contour2DOffers : public Contour2DAxisPageTest,
                        public testing::WithParamInterface<OfferRow> {};

TEST_P(Contour2DOffers, FollowTheFiller) {
    study.Names("Colour");
    study.Part("Oil");
    study.Add("Rest", CEType::Filler);
    study.Add("Held", CEType::Quantitative, CEUse::Constant);
    study.Add("Measured", CEType::Covariate);
    study.Add("$BlockV", CEType::Multilevel);
    study.trueFiller = GetParam().trueFiller;
    for (int axis = 1; axis <= 2; ++axis) {
        EXPECT_EQ(Shown()->Row(axis).Entries(), GetParam().offered);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Fillers, Contour2DOffers,
    testing::Values(OfferRow{false, {"Temp", "Time", "Speed", "Mass", "$BlockV"}},
                    OfferRow{true,
                             {"Temp", "Time", "Speed", "Mass", "Oil", "Measured", "$BlockV"}}));

TEST_F(Contour2DAxisPageTest, OffersUnavailableFactorsWithAResponseFromOutside) {
    study.unavailable = {"Speed"};
    EXPECT_EQ(Shown()->Row(1).Entries(), (Texts{"Temp", "Time", "Mass"}));
    study.ExtraResponse("Outside", ResponseEx::External);
    EXPECT_EQ(Shown()->Row(1).Entries(), (Texts{"Temp", "Time", "Speed", "Mass"}));
}

// Another factor on an axis.

TEST_F(Contour2DAxisPageTest, MakesTheGridUpAnewForAnotherFactor) {
    const auto page = Shown();
    page->Row(2).Pick("Speed");
    EXPECT_EQ(page->GridRows(), (Texts{"Time=30", "Mass=50", "=", "="}));
}

TEST_F(Contour2DAxisPageTest, KeepsWhatWasTypedWhenAFactorLeavesAndReturns) {
    const auto page = Shown();
    page->Type(1, "7");
    page->Type(2, "70");
    page->Row(2).Pick("Speed");
    EXPECT_EQ(Stored("Speed"), 7.0);
    EXPECT_EQ(page->GridRows(), (Texts{"Time=30", "Mass=70", "=", "="}));
    page->Type(1, "33");
    page->Row(2).Pick("Time");
    EXPECT_EQ(Stored("Time"), 33.0);
    EXPECT_EQ(page->GridRows(), (Texts{"Speed=7", "Mass=70", "=", "="}));
}

TEST_F(Contour2DAxisPageTest, LeavesTheGridAloneWhileTheFactorIsTheSame) {
    const auto page = Shown();
    page->Type(1, "7");
    page->Unchanged();
    page->OnChangeAxis(2);
    EXPECT_EQ(Stored("Speed"), 5.0);
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(Contour2DAxisPageTest, KnowsNoNamesBeforeItIsBroughtUp) {
    Page page(*this);
    page.Create();
    page.Type(1, "7");
    page.OnChangeAxis(2);
    EXPECT_EQ(Stored("Speed"), 7.0);
}

TEST_F(Contour2DAxisPageTest, GrowsItsNamesByTheAxisThatChanged) {
    Page page(*this);
    page.Create();
    page.OnChangeAxis(2);
    page.Type(1, "7");
    page.OnChangeAxis(2);
    EXPECT_EQ(Stored("Speed"), 5.0) << "axis 2 is known now";
    page.OnChangeAxis(1);
    EXPECT_EQ(Stored("Speed"), 7.0) << "axis 1 is not";
}

TEST_F(Contour2DAxisPageTest, ReadsTheNamesAfreshEachTimeItIsBroughtUp) {
    const auto page = Shown();
    page->SelectString(2, "Speed");
    EXPECT_TRUE(page->OnSetActive());
    page->Type(2, "70");
    page->OnChangeAxis(2);
    EXPECT_EQ(Stored("Mass"), 50.0);
}

// Keys.

TEST_F(Contour2DAxisPageTest, GivesTheGridItsKeys) {
    const auto page = Shown();
    const KeyStroke selectAll{.key = 'A', .control = true};
    EXPECT_FALSE(page->PreTranslateMessage(selectAll));
    EXPECT_TRUE(page->Sheet6139().UserFocus());
    EXPECT_TRUE(page->PreTranslateMessage(selectAll));
    EXPECT_EQ(page->Sheet6139().Selection().lastRow, 4);
    EXPECT_FALSE(page->PreTranslateMessage({.key = 'Q', .control = true}));
}

TEST_F(Contour2DAxisPageTest, UsesUpNoKeysWithoutAWindow) {
    Page page(*this);
    EXPECT_FALSE(page.PreTranslateMessage({.key = 'A', .control = true}));
}

// Apply and OK.

TEST_F(Contour2DAxisPageTest, SavesTheGridOnApplyAndKeepsItsParent) {
    const auto page = Shown();
    page->Type(1, "7");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Stored("Speed"), 7.0);
    EXPECT_EQ(page->Grid().GetParent(), page.get());
    EXPECT_FALSE(page->IsChanged());
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Contour2DAxisPageTest, KeepsTheGridsParentWhateverItIs) {
    const auto page = Shown();
    page->Grid().SetParent(nullptr);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(page->Grid().GetParent(), nullptr);
}

TEST_F(Contour2DAxisPageTest, LetsTheGridGoOnOk) {
    const auto page = Shown();
    page->OnOK();
    EXPECT_EQ(page->Grid().GetParent(), nullptr);
}

TEST_F(Contour2DAxisPageTest, NeitherChecksNorSavesACleanGrid) {
    const auto page = Shown();
    page->Type(1, "70");
    page->Unchanged();
    EXPECT_TRUE(page->OnApply());
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_EQ(Stored("Speed"), 5.0);
}

TEST_F(Contour2DAxisPageTest, RefusesWhatTheUserDoesNotKeepInTheGrid) {
    const auto page = Shown();
    page->Type(1, "70");
    page->Row(1).low.UserEdit(L"x");
    EXPECT_FALSE(page->OnApply());
    ASSERT_EQ(desktop.boxes.size(), 1U) << "the axes are not judged after a refusal of the grid";
    EXPECT_EQ(desktop.boxes[0].text,
              "The following constant settings are missing or outside the recommended range:\n\n"
              "Speed = 70\n\nDo you still want to use these settings?");
    EXPECT_EQ(Stored("Speed"), 5.0);
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(Contour2DAxisPageTest, SavesTheGridEvenWhenTheAxesThenRefuse) {
    const auto page = Shown();
    page->Type(1, "7");
    page->Row(1).low.UserEdit(L"x");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(Stored("Speed"), 7.0);
    EXPECT_EQ(axes[1]->GetMin(), 1.0F);
    EXPECT_EQ(page->Grid().GetParent(), page.get());
}

TEST_F(Contour2DAxisPageTest, TakesOverAnOpenCellOnApply) {
    const auto page = Shown();
    ASSERT_TRUE(page->Sheet6139().UserBeginEdit({2, 1}));
    ASSERT_TRUE(page->Sheet6139().UserEdit("8"));
    EXPECT_FALSE(page->IsChanged());
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Stored("Speed"), 8.0);
    EXPECT_FALSE(page->Sheet6139().EditedCell().has_value());
}

TEST_F(Contour2DAxisPageTest, DoesNotReachOkThroughAConnectedHelper) {
    ConnectedHelper helper;
    const auto page = Shown(&helper);
    page->Type(1, "7");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(helper.updates, 1);
    helper.answer = false;
    page->Type(1, "8");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(page->Grid().GetParent(), page.get());
}

// The wizard.

TEST_F(Contour2DAxisPageTest, FinishesWithTheGridCheckedAndSavedBeforeTheAxes) {
    const auto page = Shown();
    page->Type(1, "7");
    page->Row(1).low.UserEdit(L"x");
    EXPECT_FALSE(page->OnWizardFinish());
    EXPECT_EQ(Stored("Speed"), 7.0);
    page->Row(1).low.UserEdit(L"1.5");
    EXPECT_TRUE(page->OnWizardFinish());
    EXPECT_EQ(axes[1]->GetMin(), 1.5F);
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(Contour2DAxisPageTest, DoesNotFinishWithAGridThatTheUserDoesNotKeep) {
    const auto page = Shown();
    page->Type(1, "70");
    page->Row(1).low.UserEdit(L"1.5");
    EXPECT_FALSE(page->OnWizardFinish());
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(Stored("Speed"), 5.0);
    EXPECT_EQ(axes[1]->GetMin(), 1.0F);
}

TEST_F(Contour2DAxisPageTest, ChecksACleanGridOnFinishToo) {
    constants[0] = {"Speed", 70.0, FactorConstants::CUSTOM};
    const auto page = Shown();
    EXPECT_FALSE(page->IsChanged());
    EXPECT_FALSE(page->OnWizardFinish());
    EXPECT_EQ(desktop.boxes.size(), 1U);
}

TEST_F(Contour2DAxisPageTest, LeavesWithoutAskingTheGrid) {
    const auto page = Shown();
    page->Type(1, "70");
    EXPECT_TRUE(page->OnKillActive());
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Contour2DAxisPageTest, AsksAboutGridThenAxesOnOkOfASheet) {
    study.unusualSettings = {"Temp=1.5"};
    Page page(*this);
    KvPropertySheet sheet(L"Properties", nullptr, 0);
    sheet.AddPage(&page);
    desktop.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    desktop.user = [&](CPropertySheet&) {
        page.Type(1, "70");
        page.Row(1).low.UserEdit(L"1.5");
        sheet.UserOk();
    };
    EXPECT_EQ(sheet.DoModal(), kResultOk);
    ASSERT_EQ(desktop.boxes.size(), 2U);
    EXPECT_EQ(desktop.boxes[0].style, 68U);
    EXPECT_EQ(desktop.boxes[1].style, 52U);
    EXPECT_EQ(desktop.boxes[1].caption, "Properties");
    EXPECT_EQ(Stored("Speed"), 70.0);
    EXPECT_EQ(axes[1]->GetMin(), 1.5F);
}

TEST_F(Contour2DAxisPageTest, StaysWholeWhenItsWindowGoes) {
    const auto page = Shown();
    page->DestroyWindow();
    EXPECT_EQ(page->Grid().Worksheet(), nullptr);
    EXPECT_EQ(page->NameAxis(1), "Temp");
    page->Create();
    EXPECT_EQ(page->GridRows(), (Texts{"Speed=5", "Mass=50", "=", "="}));
}

}  // namespace
}  // namespace kvopt::test
