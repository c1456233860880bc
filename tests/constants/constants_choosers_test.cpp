// Which factors the constants grid leaves out: contour and prediction plots, each with the axes of
// a finished set and with those of a page.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "axes/axes_study.h"
#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/axes.h"
#include "kvopt/constants.h"
#include "support/fake_study.h"

namespace kvopt::test {
namespace {

static_assert(std::is_copy_constructible_v<ConstantsChooser>);
static_assert(std::is_copy_assignable_v<ConstantsChooser>);
static_assert(std::has_virtual_destructor_v<ConstantsChooser>);

TEST(ConstantsChooser, LeavesNothingOut) {
    const ConstantsChooser chooser;
    EXPECT_FALSE(chooser.SkipFactor("A"));
    EXPECT_FALSE(chooser.SkipFactor(""));
}

/// A study with axes of which the first so many are looked at.
class ChooserWorld {
public:
    ChooserWorld() {
        study.Number("A");
        study.Number("B");
        study.Part("P");
        study.Part("Q");
        study.Filler("Rest");
    }

    AxisPage& Page() {
        if (!page_) {
            AxisPage::Arguments arguments;
            arguments.axes = &axes;
            arguments.numAxes = count;
            arguments.defaults = &defaults_;
            page_ = std::make_unique<AxisPage>(&study, arguments, 6152, nullptr, kNoHelp);
        }
        return *page_;
    }

    SheetDesktop desktop;
    FakeStudy study;
    AxisVector axes;
    int count = 2;

private:
    AxisVector defaults_{nullptr};
    std::unique_ptr<AxisPage> page_;
};

struct OfVector {
    static std::unique_ptr<ConstantsChooser> Contour(ChooserWorld& world,
                                                     const Investigation* models) {
        return std::make_unique<ContourConstantsChooser>(world.study.GetVariables(), world.axes,
                                                         world.count, models);
    }
    static std::unique_ptr<ConstantsChooser> Predicted(ChooserWorld& world, bool filter) {
        return std::make_unique<PredictedConstantsChooser>(&world.study, world.axes, world.count,
                                                           filter);
    }
};

struct OfPage {
    static std::unique_ptr<ConstantsChooser> Contour(ChooserWorld& world,
                                                     const Investigation* models) {
        return std::make_unique<ContourConstantsChooser2>(world.study.GetVariables(), &world.Page(),
                                                          models);
    }
    static std::unique_ptr<ConstantsChooser> Predicted(ChooserWorld& world, bool filter) {
        return std::make_unique<PredictedConstantsChooser2>(&world.study, &world.Page(), filter);
    }
};

template <class Form>
class Choosers : public testing::Test {
protected:
    void Axes(const std::vector<std::string>& names) {
        std::vector<AxisValue> values;
        for (const std::string& name : names) {
            values.push_back({name, 0, 1});
        }
        world.axes = MakeAxes(values);
        world.count = static_cast<int>(names.size());
    }
    /// Those of the study's factors that are left out, joined by blanks.
    std::string Skipped(const ConstantsChooser& chooser) {
        std::string names;
        for (const FactorClass* factor : world.study.GetVariables()->GetAllFactors()) {
            if (chooser.SkipFactor(factor->GetName())) {
                names += (names.empty() ? "" : " ") + factor->GetName();
            }
        }
        return names;
    }
    std::string ContourSkips(bool askModels = false) {
        return Skipped(*Form::Contour(world, askModels ? &world.study : nullptr));
    }
    std::string PredictedSkips(bool filter = false) {
        return Skipped(*Form::Predicted(world, filter));
    }
    FactorClass& Factor(const std::string& name) {
        return *world.study.GetVariables()->GetFactor(name);
    }

    const std::string none = AxisInfo::GetNotUsedName();
    ChooserWorld world;
};

using Forms = testing::Types<OfVector, OfPage>;
TYPED_TEST_SUITE(Choosers, Forms);

// Contour plots.

TYPED_TEST(Choosers, OfContoursLeaveOutTheFactorsOnAxes) {
    this->Axes({"B", "P"});
    EXPECT_EQ(this->ContourSkips(), "B P");
}

TYPED_TEST(Choosers, OfContoursLeaveNothingOutWithoutAxes) {
    this->Axes({});
    EXPECT_EQ(this->ContourSkips(), "");
    EXPECT_EQ(this->ContourSkips(true), "Rest");  // which is never available
}

TYPED_TEST(Choosers, OfContoursPassOverAxesThatAreNotUsed) {
    this->Axes({this->none, "A"});
    EXPECT_EQ(this->ContourSkips(), "A");
}

TYPED_TEST(Choosers, OfContoursLookAtTheFirstAxesAlone) {
    this->Axes({"A", "B", "P"});
    this->world.count = 2;
    EXPECT_EQ(this->ContourSkips(), "A B");
}

TYPED_TEST(Choosers, OfContoursCompareExactly) {
    this->Axes({"a", "B "});
    EXPECT_EQ(this->ContourSkips(), "");
}

TYPED_TEST(Choosers, OfContoursAskTheModelsOnlyWithAnInvestigation) {
    this->Axes({"A"});
    this->world.study.unavailable = {"B"};
    EXPECT_EQ(this->ContourSkips(false), "A");
    EXPECT_EQ(this->ContourSkips(true), "A B Rest");
}

TYPED_TEST(Choosers, OfContoursKeepAFactorOfConstantUseWhereverItIs) {
    this->Axes({"A", "B"});
    this->Factor("A").factorValue.use = CEUse::Constant;
    this->Factor("P").factorValue.use = CEUse::Constant;
    this->world.study.unavailable = {"P"};
    EXPECT_EQ(this->ContourSkips(true), "B Rest");
}

TYPED_TEST(Choosers, OfContoursDoNotKeepFactorsOfOtherUses) {
    this->Axes({"A", "B"});
    this->Factor("A").factorValue.use = CEUse::Uncontrolled;
    EXPECT_EQ(this->ContourSkips(), "A B");
}

// Prediction plots.

TYPED_TEST(Choosers, OfPredictionsLeaveTheFillerOut) {
    this->Axes({});
    EXPECT_EQ(this->PredictedSkips(), "Rest");
}

TYPED_TEST(Choosers, OfPredictionsLeaveOutTheOneFactorThatIsUsed) {
    this->Axes({"A"});
    EXPECT_EQ(this->PredictedSkips(), "A Rest");
}

TYPED_TEST(Choosers, OfPredictionsFindTheOneUsedAxisWhereverItIs) {
    this->Axes({this->none, "B", this->none});
    EXPECT_EQ(this->PredictedSkips(), "B Rest");
}

TYPED_TEST(Choosers, OfPredictionsKeepTheAxisFactorsWithTwoOrMoreUsedAxes) {
    this->Axes({"A", "B"});
    EXPECT_EQ(this->PredictedSkips(), "Rest");
}

TYPED_TEST(Choosers, OfPredictionsLeaveNothingElseOutWithoutAUsedAxis) {
    this->Axes({this->none, this->none});
    EXPECT_EQ(this->PredictedSkips(), "Rest");
}

TYPED_TEST(Choosers, OfPredictionsLeaveOutAllFormulationFactorsForOneOnTheAxis) {
    this->Axes({"P"});
    EXPECT_EQ(this->PredictedSkips(), "P Q Rest");
}

TYPED_TEST(Choosers, OfPredictionsLookAtTheFirstUsedAxisForFormulationFactors) {
    this->Axes({this->none, "P", "A"});
    EXPECT_EQ(this->PredictedSkips(), "P Q Rest");
}

TYPED_TEST(Choosers, OfPredictionsDoNotLookAtLaterAxesForFormulationFactors) {
    this->Axes({"A", "P"});
    EXPECT_EQ(this->PredictedSkips(), "Rest");
}

TYPED_TEST(Choosers, OfPredictionsKeepTheOtherFactorsBesideAFormulationFactor) {
    this->Axes({"Q", "A"});
    EXPECT_EQ(this->PredictedSkips(), "P Q Rest");
}

TYPED_TEST(Choosers, OfPredictionsAskTheModelsOnlyWithTheFilter) {
    this->Axes({"A", "B"});
    this->world.study.unavailable = {"B", "P"};
    EXPECT_EQ(this->PredictedSkips(false), "Rest");
    EXPECT_EQ(this->PredictedSkips(true), "B P Rest");
}

TYPED_TEST(Choosers, OfPredictionsDoNotSpareAFactorOfConstantUse) {
    this->Axes({"A"});
    this->Factor("A").factorValue.use = CEUse::Constant;
    EXPECT_EQ(this->PredictedSkips(), "A Rest");
}

TYPED_TEST(Choosers, OfPredictionsLookAtTheFirstAxesAlone) {
    this->Axes({this->none, "A"});
    this->world.count = 1;
    EXPECT_EQ(this->PredictedSkips(), "Rest");
}

TYPED_TEST(Choosers, OfPredictionsLeaveAnUnknownNameAlone) {
    this->Axes({"A"});
    EXPECT_FALSE(TypeParam::Predicted(this->world, true)->SkipFactor("Unknown"));
}

// The vectors alone.

TEST(VectorChoosers, LookAtNoMoreAxesThanThereAre) {
    ChooserWorld world;
    world.axes = MakeAxes({{"A", 0, 1}});
    world.count = 5;
    EXPECT_TRUE(OfVector::Contour(world, nullptr)->SkipFactor("A"));
    EXPECT_TRUE(OfVector::Predicted(world, false)->SkipFactor("A"));
    world.axes.clear();
    EXPECT_FALSE(OfVector::Contour(world, nullptr)->SkipFactor("A"));
    EXPECT_FALSE(OfVector::Predicted(world, false)->SkipFactor("A"));
}

TEST(VectorChoosers, NeverLookAtElementZeroOrAtEmptyPointers) {
    ChooserWorld world;
    world.axes = MakeAxes({{"B", 0, 1}, {"P", 0, 1}});
    world.axes[0] = std::make_shared<AxisInfoImpl>();
    world.axes[0]->SetName("A");
    world.axes[2] = nullptr;
    for (const auto& chooser :
         {OfVector::Contour(world, nullptr), OfVector::Predicted(world, false)}) {
        EXPECT_FALSE(chooser->SkipFactor("A"));
        EXPECT_TRUE(chooser->SkipFactor("B"));
        EXPECT_FALSE(chooser->SkipFactor("P"));
    }
}

// The page as it stands.

TEST(PageChoosers, ReadWhatThePageShowsAtTheMoment) {
    ChooserWorld world;
    world.axes = MakeAxes({{"A", 0, 1}});
    world.count = 1;
    AxisPage& page = world.Page();
    const auto contour = OfPage::Contour(world, nullptr);
    const auto predicted = OfPage::Predicted(world, false);
    page.Create();
    EXPECT_TRUE(contour->SkipFactor("A"));
    EXPECT_TRUE(RowProbe(page, 1).Pick("B"));
    for (const ConstantsChooser* chooser : {contour.get(), predicted.get()}) {
        EXPECT_FALSE(chooser->SkipFactor("A"));
        EXPECT_TRUE(chooser->SkipFactor("B"));
    }
    page.DestroyWindow();
    EXPECT_TRUE(predicted->SkipFactor("A"));
    EXPECT_FALSE(predicted->SkipFactor("B"));
}

// In a grid.

TEST(ChoosersInAGrid, LetAFactorOfConstantUseStandLockedBesideTheAxes) {
    ChooserWorld world;
    world.axes = MakeAxes({{"A", 0, 1}, {"B", 0, 1}});
    world.study.GetVariables()->GetFactor("A")->factorValue.use = CEUse::Constant;
    std::vector<FactorConstants::Constant> constants(8);
    VWSConstantInterface grid(nullptr, &world.study, 1, OfVector::Contour(world, nullptr).release(),
                              constants.data(), world.axes, false);
    grid.UpdateInterface();
    EXPECT_EQ(grid.GetCellText(1, 1), "A");
    EXPECT_EQ(grid.GetFieldType(2, 1), FieldDef::Locked);
    EXPECT_EQ(grid.GetCellText(1, 2), "P");
}

TEST(ChoosersInAGrid, TakeEveryFormulationFactorOffForOneOnAPredictionAxis) {
    ChooserWorld world;
    world.axes = MakeAxes({{"P", 0, 1}});
    world.count = 1;
    std::vector<FactorConstants::Constant> constants(8);
    VWSConstantInterface grid(nullptr, &world.study, 1, OfVector::Predicted(world, false).release(),
                              constants.data(), world.axes, false);
    grid.UpdateInterface();
    EXPECT_EQ(grid.RowCount(), 2);
    EXPECT_EQ(grid.GetCellText(1, 1), "A");
    EXPECT_EQ(grid.GetCellText(1, 2), "B");
}

}  // namespace
}  // namespace kvopt::test
