#include "kvopt/plotargs/wizard_plot_data.h"

#include <gmock/gmock.h>

#include <limits>

#include "plotargs/plot_study.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WizardPlotDataTest : public testing::Test {
protected:
    /// Three quantitative factors: A 0..10, B -1..1, C 100..200.
    void AddThreeFactors() {
        study.Number("A", 0, 10);
        study.Number("B", -1, 1);
        study.Number("C", 100, 200);
    }
    static const FactorConstants::Constant* Find(const WizardPlotData& plot,
                                                 const std::string& name) {
        const int index = FactorConstants::Lookup(plot.GetPlotConstants(), name);
        return index < 0 ? nullptr : &plot.GetPlotConstants()[index];
    }
    static double Value(const WizardPlotData& plot, const std::string& name) {
        const FactorConstants::Constant* constant = Find(plot, name);
        return constant ? constant->FloatValue() : kNotSet;
    }
    static std::string Setting(const WizardPlotData& plot, const std::string& name) {
        const FactorConstants::Constant* constant = Find(plot, name);
        return constant ? constant->QualValue() : "none";
    }

    MemoryIniFiles files;
    PlotStudy study;
};

TEST_F(WizardPlotDataTest, HoldsOneBasedSetsOfFreshAxes) {
    AnyPlotData plot(study, 2, 4);
    EXPECT_THAT(plot.GetAxisInfo(0), IsEmpty());
    for (int set = 1; set <= 2; ++set) {
        const auto& axes = plot.GetAxisInfo(set);
        ASSERT_EQ(axes.size(), 5U);
        EXPECT_EQ(axes[0], nullptr);
        for (std::size_t i = 1; i < axes.size(); ++i) {
            ASSERT_NE(axes[i], nullptr);
            EXPECT_EQ(Describe(*axes[i]), "'' [] -99..-99 {} quantitative");
        }
    }
    EXPECT_NE(plot.GetAxisInfo(1)[1], plot.GetAxisInfo(2)[1]);
    EXPECT_EQ(plot.GetMaxNumAxis(), 4);
    EXPECT_EQ(plot.GetIniFile(), "study.ini");
    EXPECT_EQ(plot.GetInvestigation(), &study);
    EXPECT_EQ(plot.ExtraHeaderInformation(), L"");
}

TEST_F(WizardPlotDataTest, TakesANegativeSetAsTheUsedOneAndRefusesOnePastTheLast) {
    AnyPlotData plot(study, 2, 4);
    plot.used = 2;
    EXPECT_EQ(&plot.GetAxisInfo(-1), &plot.GetAxisInfo(2));
    EXPECT_EQ(&std::as_const(plot).GetAxisInfo(-7), &plot.GetAxisInfo(2));
    EXPECT_THROW(plot.GetAxisInfo(3), InvalidArgument);
    EXPECT_THROW(std::as_const(plot).GetAxisInfo(3), InvalidArgument);
    EXPECT_THROW(plot.RemoveIllegalAxes("Y", 3, 2), InvalidArgument);
}

TEST_F(WizardPlotDataTest, RefusesANullStudyAndNumbersBelowZero) {
    EXPECT_THROW(AnyPlotData(nullptr, 1, 1, 1, ""), InvalidArgument);
    EXPECT_THROW(AnyPlotData(study, -1), InvalidArgument);
    EXPECT_THROW(AnyPlotData(study, 1, -1), InvalidArgument);
    EXPECT_THROW(AnyPlotData(study, 1, 1, -1), InvalidArgument);
    EXPECT_NO_THROW(AnyPlotData(study, 0, 0, 0));
}

TEST_F(WizardPlotDataTest, NamesTheSectionOfEachAxisType) {
    using Plot = WizardPlotData;
    AnyPlotData plot(study);
    const auto name = [&](int type) {
        return plot.GetAxisTypeString(static_cast<Plot::PlotAxisType>(type));
    };
    EXPECT_EQ(name(0), "ContourAxis");
    EXPECT_EQ(name(1), "ContourAxis2D");
    EXPECT_EQ(name(2), "ContourAxisMixture");
    EXPECT_EQ(name(3), "ContourAxis4D");
    EXPECT_EQ(name(4), "YPredictedAxis");
    EXPECT_EQ(name(5), "");
    EXPECT_EQ(name(-1), "");
}

TEST_F(WizardPlotDataTest, NamesTheKeyOfEachPosition) {
    AnyPlotData plot(study, 1, 5);
    EXPECT_EQ(plot.GetDefaultAxisName(0), "");
    EXPECT_EQ(plot.GetDefaultAxisName(-1), "");
    EXPECT_EQ(plot.GetDefaultAxisName(1), "1stAxis");
    EXPECT_EQ(plot.GetDefaultAxisName(2), "2ndAxis");
    EXPECT_EQ(plot.GetDefaultAxisName(3), "3rdAxis");
    EXPECT_EQ(plot.GetDefaultAxisName(4), "4thAxis");
    EXPECT_EQ(plot.GetDefaultAxisName(5), "5thAxis");
    EXPECT_EQ(plot.GetDefaultAxisName(6), "");
}

TEST_F(WizardPlotDataTest, NamesThreePositionsEvenForFewerAxes) {
    AnyPlotData plot(study, 1, 1);
    EXPECT_EQ(plot.GetDefaultAxisName(3), "3rdAxis");
    EXPECT_EQ(plot.GetDefaultAxisName(4), "");
}

/// Builds its vectors a second time when the test says so.
class RebuiltPlotData : public AnyPlotData {
public:
    using AnyPlotData::AnyPlotData;
    using AnyPlotData::Init;
};

TEST_F(WizardPlotDataTest, StartsAfreshWhenItIsBuiltAgainButKeepsTheNamesOfPositions) {
    AddThreeFactors();
    RebuiltPlotData plot(study, 2, 5);
    plot.GetAxisInfo(1)[1]->SetName("A");
    plot.GetAxisDefaults()[1]->SetName("changed");
    plot.GetPlotConstants()[0].FloatValue(7);
    plot.Init(2, 5, 4);
    EXPECT_EQ(Describe(*plot.GetAxisInfo(1)[1]), "'' [] -99..-99 {} quantitative");
    EXPECT_THAT(NamesOf(plot.GetAxisDefaults()), ElementsAre("-", "A", "B", "C"));
    EXPECT_EQ(Value(plot, "A"), 5.0);
    EXPECT_EQ(plot.GetDefaultAxisName(5), "5thAxis");
    EXPECT_EQ(plot.GetDefaultAxisName(6), "1stAxis") << "appended to and not cleared";
    EXPECT_EQ(plot.GetDefaultAxisName(10), "5thAxis");
}

TEST_F(WizardPlotDataTest, MakesADefaultAxisForEachFactor) {
    study.Number("A", 0.1, 10).units = "bar";
    FactorClass& catalyst = study.Names("Cat", {"Pd", "Pt", "Ni"});
    catalyst.factorValue.included = {1, 3};
    catalyst.units = "type";
    const AnyPlotData plot(study);
    EXPECT_EQ(plot.GetNumDefaults(), 2);
    ASSERT_EQ(plot.GetAxisDefaults().size(), 3U);
    EXPECT_EQ(plot.GetAxisDefaults()[0], nullptr);
    EXPECT_EQ(
        Describe(*plot.GetAxisDefaults()[1]),
        "'A' [bar] " + KvString::FromDouble(static_cast<double>(0.1F)) + "..10 {} quantitative");
    EXPECT_EQ(Describe(*plot.GetAxisDefaults()[2]), "'Cat' [type] -99..-99 {Pd;Ni} qualitative");
}

TEST_F(WizardPlotDataTest, CountsAnUnavailableFactorAmongTheDefaultsButDoesNotHoldIt) {
    AddThreeFactors();
    study.unavailable = {"B"};
    const AnyPlotData plot(study);
    EXPECT_EQ(plot.GetNumDefaults(), 3);
    EXPECT_THAT(NamesOf(plot.GetAxisDefaults()), ElementsAre("-", "A", "C"));
}

TEST_F(WizardPlotDataTest, KeepsUnavailableFactorsInTheRepeatableOrder) {
    const FixedOrder fixed;
    AddThreeFactors();
    study.unavailable = {"B"};
    const AnyPlotData plot(study);
    EXPECT_EQ(plot.GetNumDefaults(), 3);
    EXPECT_THAT(NamesOf(plot.GetAxisDefaults()), ElementsAre("-", "A", "B", "C"));
}

TEST_F(WizardPlotDataTest, KeepsTheStudysOrderWithoutAStart) {
    AddThreeFactors();
    study.contributions = {1, 2, 3};
    EXPECT_THAT(NamesOf(AnyPlotData(study).GetAxisDefaults()), ElementsAre("-", "A", "B", "C"));
}

TEST_F(WizardPlotDataTest, KeepsTheStudysOrderWithoutContributions) {
    AddThreeFactors();
    study.optimum = {1, 1, 1};
    EXPECT_THAT(NamesOf(AnyPlotData(study).GetAxisDefaults()), ElementsAre("-", "A", "B", "C"));
}

struct OrderCase {
    const char* label;
    std::vector<float> contributions;
    std::vector<int> kinds;
    Names expected;

    friend std::ostream& operator<<(std::ostream& out, const OrderCase& value) {
        return out << value.label;
    }
};

class WizardPlotDataOrder : public WizardPlotDataTest,
                            public testing::WithParamInterface<OrderCase> {};

TEST_P(WizardPlotDataOrder, FollowsKindAndContribution) {
    const Names names = {"A", "B", "C", "D"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        study.Add(std::make_unique<PlotStudy::KindFactor>(
            names[i], GetParam().kinds.empty() ? 1 : GetParam().kinds[i]));
    }
    study.optimum = {1, 0, 1, 0.5F};
    study.contributions = GetParam().contributions;
    const AnyPlotData plot(study);
    EXPECT_EQ(NamesOf(plot.GetAxisDefaults()), GetParam().expected);
    EXPECT_EQ(plot.GetNumDefaults(), 4);
}

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

INSTANTIATE_TEST_SUITE_P(
    Cases, WizardPlotDataOrder,
    testing::Values(
        OrderCase{"GreaterFirst", {1, 4, 2, 3}, {}, {"-", "B", "D", "C", "A"}},
        OrderCase{"NegativeOnesToo", {-1, -4, -2, 0}, {}, {"-", "D", "A", "C", "B"}},
        OrderCase{"NotSetLast", {-99, 4, -200, 3}, {}, {"-", "B", "D", "C", "A"}},
        OrderCase{"NotSetBehindWhatIsLess", {-200, -99, 4, 3}, {}, {"-", "C", "D", "A", "B"}},
        OrderCase{"NotANumberLast", {kNan, 4, -200, 3}, {}, {"-", "B", "D", "C", "A"}},
        OrderCase{"KindTwoFirst", {1, 4, 2, 3}, {2, 1, 2, 1}, {"-", "C", "A", "B", "D"}},
        OrderCase{"OtherKindsAreAlike", {1, 4, 2, 3}, {3, 0, 1, -1}, {"-", "B", "D", "C", "A"}},
        OrderCase{
            "KindTwoNotSetStaysLast", {-99, 4, 2, 3}, {2, 1, 1, 1}, {"-", "B", "D", "C", "A"}},
        OrderCase{"TooFewCutTheRestOff", {1, 4}, {}, {"-", "B", "A"}},
        OrderCase{"TooManyArePassedOver", {1, 4, 2, 3, 9}, {}, {"-", "B", "D", "C", "A"}}),
    [](const auto& testCase) { return testCase.param.label; });

TEST_F(WizardPlotDataTest, LosesNoneOfManyFactorsThatContributeAlike) {
    Names names;
    for (int i = 0; i < 200; ++i) {
        names.push_back("F" + std::to_string(i));
        study.Number(names.back(), 0, 1);
    }
    study.optimum.assign(names.size(), 0.5F);
    study.contributions.assign(names.size(), 1.0F);
    Names ordered = NamesOf(AnyPlotData(study).GetAxisDefaults());
    EXPECT_EQ(ordered.front(), "-");
    ordered.erase(ordered.begin());
    EXPECT_THAT(ordered, testing::UnorderedElementsAreArray(names));
}

TEST_F(WizardPlotDataTest, PrefersTheFavouriteToTheOptimumAsStart) {
    AddThreeFactors();
    study.favouriteSetpoint.SetStart({7, 0.25F, 160});
    study.optimum = {1, 1, 101};
    const AnyPlotData plot(study);
    EXPECT_EQ(Value(plot, "A"), 7.0);
    EXPECT_EQ(Value(plot, "B"), 0.25);
}

TEST_F(WizardPlotDataTest, OrdersByAvailabilityAloneInTheRepeatableOrder) {
    const FixedOrder fixed;
    AddThreeFactors();
    study.Number("D", 0, 1);
    study.optimum = {1, 0, 150, 0.5F};
    study.contributions = {1, 4, 2, 3};
    study.unavailable = {"A", "C"};
    const AnyPlotData plot(study);
    EXPECT_THAT(NamesOf(plot.GetAxisDefaults()), ElementsAre("-", "B", "D", "A", "C"));
}

TEST_F(WizardPlotDataTest, DropsUnavailableFactorsAfterOrdering) {
    AddThreeFactors();
    study.optimum = {1, 0, 150};
    study.contributions = {1, 3, 2};
    study.unavailable = {"B"};
    const AnyPlotData plot(study);
    EXPECT_THAT(NamesOf(plot.GetAxisDefaults()), ElementsAre("-", "C", "A"));
}

TEST_F(WizardPlotDataTest, AsksWhichFactorsAreConstrainedWithoutLettingThatCount) {
    AddThreeFactors();
    study.optimum = {1, 0, 150};
    study.contributions = {1, 3, 2};
    study.constraints = std::make_unique<PlotStudy::Constraints>();
    const AnyPlotData plot(study);
    EXPECT_THAT(study.constraints->asked, ElementsAre("A", "B", "C"));
    EXPECT_THAT(NamesOf(plot.GetAxisDefaults()), ElementsAre("-", "B", "C", "A"));
}

TEST_F(WizardPlotDataTest, MakesEmptyDefaultsForADerivedObject) {
    AddThreeFactors();
    AnyPlotData plot(study);
    plot.CreateAxisDefaults(2);
    EXPECT_EQ(plot.GetNumDefaults(), 2);
    EXPECT_THAT(NamesOf(plot.GetAxisDefaults()), ElementsAre("-", "-", "-"));
}

TEST_F(WizardPlotDataTest, TakesConstantsFromTheStart) {
    AddThreeFactors();
    study.Names("Cat", {"Pd", "Pt"});
    study.optimum = {0, -99, 150, 1.6F};
    const AnyPlotData plot(study);
    EXPECT_EQ(DescribeConstants(plot.GetPlotConstants()),
              "  A = 0 (LOW)\n"
              "  B = 0 (REF)\n"
              "  C = 150 (REF)\n"
              "  Cat = Pt (CUSTOM)\n");
}

TEST_F(WizardPlotDataTest, TakesConstantsFromTheIniFileWhereTheStartHasNone) {
    AddThreeFactors();
    study.Names("Cat", {"Pd", "Pt"});
    IniFactorConstant remembered(files.File("study.ini"));
    remembered.SetConstant("A", 2.5);
    remembered.SetConstant("B", 0.5);
    remembered.SetConstant("C", -99);
    remembered.SetStrConstant("Cat", "Pd");
    study.optimum = {4, -99};  // shorter than the factors are many
    const AnyPlotData plot(study);
    EXPECT_EQ(Value(plot, "A"), 4.0);
    EXPECT_EQ(Value(plot, "B"), 0.5);
    EXPECT_EQ(Value(plot, "C"), 150.0) << "-99 is nothing remembered";
    EXPECT_EQ(Setting(plot, "Cat"), "Pd");
}

TEST_F(WizardPlotDataTest, TakesTheRememberedSettingWhereTheStartNamesNone) {
    study.Names("Cat", {"Pd", "Pt"});
    IniFactorConstant(files.File("study.ini")).SetStrConstant("Cat", "Pt");
    for (const float start : {-99.0F, 0.4F, 2.5F, kNan, 1e30F, -1e30F}) {
        study.optimum = {start};
        EXPECT_EQ(Setting(AnyPlotData(study), "Cat"), "Pt") << start;
    }
    study.optimum = {0.5F};
    EXPECT_EQ(Setting(AnyPlotData(study), "Cat"), "Pd");
}

TEST_F(WizardPlotDataTest, MakesNoConstantOfASettingThatIsNoLongerIncluded) {
    study.Names("Cat", {"Pd", "Pt", "Ni"}).factorValue.included = {1, 3};
    IniFactorConstant remembered(files.File("study.ini"));
    remembered.SetStrConstant("Cat", "Pt");
    EXPECT_EQ(Find(AnyPlotData(study), "Cat"), nullptr);
    remembered.SetStrConstant("Cat", "Cu");
    EXPECT_EQ(Find(AnyPlotData(study), "Cat"), nullptr);
    study.optimum = {2};
    EXPECT_EQ(Find(AnyPlotData(study), "Cat"), nullptr) << "a start does not help";
    study.optimum.clear();
    remembered.SetStrConstant("Cat", "Ni");
    EXPECT_EQ(Setting(AnyPlotData(study), "Cat"), "Ni");
}

TEST_F(WizardPlotDataTest, MakesNoConstantOfAQualitativeFactorWithNothingRemembered) {
    study.Names("Cat", {"Pd", "Pt"});
    EXPECT_EQ(Find(AnyPlotData(study), "Cat"), nullptr);
}

TEST_F(WizardPlotDataTest, FallsBackOnReferenceMixtureAndCenterpoint) {
    study.Part("M1", 0.2, 0.6);
    study.Part("M2", 0.1, 0.5);
    study.Number("P", 10, 30);
    const AnyPlotData plot(study);
    const Variables& variables = *study.GetVariables();
    EXPECT_EQ(Value(plot, "M1"), FactorConstants::GetQuantitativeFloatValue(
                                     variables, variables.GetFactor("M1"), FactorConstants::REF));
    EXPECT_NE(Value(plot, "M1"), kNotSet);
    EXPECT_EQ(Value(plot, "P"), 20.0);
}

TEST_F(WizardPlotDataTest, MakesNoConstantOfAFactorWithoutARange) {
    study.Number("Open", kNotSet, kNotSet);
    EXPECT_EQ(Find(AnyPlotData(study), "Open"), nullptr);
}

TEST_F(WizardPlotDataTest, MakesNoConstantOfAnUnavailableFactor) {
    AddThreeFactors();
    study.optimum = {1, 1, 101};
    study.unavailable = {"B"};
    const AnyPlotData plot(study);
    EXPECT_EQ(Find(plot, "B"), nullptr);
    EXPECT_EQ(Value(plot, "C"), 101.0) << "the start is counted over all factors";
}

TEST_F(WizardPlotDataTest, ClassifiesAConstantAgainstItsFactor) {
    study.Number("A", 0, 10);
    study.optimum = {10};
    EXPECT_EQ(Find(AnyPlotData(study), "A")->SettingPos(), FactorConstants::HIGH);
    study.optimum = {3};
    EXPECT_EQ(Find(AnyPlotData(study), "A")->SettingPos(), FactorConstants::CUSTOM);
}

TEST_F(WizardPlotDataTest, KeepsThePositionOfAConstantThatIsThereAlready) {
    study.Number("A", 0, 10);
    study.Number("A", 0, 10);  // the same name twice: the second meets the first's entry
    study.optimum = {0, 7};
    const AnyPlotData plot(study);
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 1);
    EXPECT_EQ(Value(plot, "A"), 7.0);
    EXPECT_EQ(Find(plot, "A")->SettingPos(), FactorConstants::LOW);
}

TEST_F(WizardPlotDataTest, ReplacesTheSettingOfAConstantThatIsThereAlready) {
    study.Names("Cat", {"Pd", "Pt"});
    study.Names("Cat", {"Pd", "Pt"});
    study.optimum = {1, 2};
    const AnyPlotData plot(study);
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 1);
    EXPECT_EQ(Setting(plot, "Cat"), "Pt");
}

TEST_F(WizardPlotDataTest, HasRoomForEveryFactorWhateverCapacityWasDeclared) {
    AddThreeFactors();
    const AnyPlotData plot(study, 1, 1, 0);
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 3);
    const AnyPlotData copy(plot);
    EXPECT_EQ(DescribeConstants(copy.GetPlotConstants()),
              DescribeConstants(plot.GetPlotConstants()));
}

TEST_F(WizardPlotDataTest, SharesItsConstants) {
    AddThreeFactors();
    AnyPlotData plot(study);
    EXPECT_EQ(plot.GetConstants().get(), plot.GetPlotConstants());
}

TEST_F(WizardPlotDataTest, CountsTheFactorsThatLieOnNoAxis) {
    AddThreeFactors();
    study.Number("Held", 0, 1).factorValue.use = CEUse::Constant;
    study.Number("Gone", 0, 1);
    study.unavailable = {"Gone"};
    AnyPlotData plot(study, 1, 2);
    auto& axes = plot.GetAxisInfo(1);
    EXPECT_EQ(plot.AvailableConstants(axes, 2), 3);
    axes[1]->SetName("A");
    axes[2]->SetName("B");
    EXPECT_EQ(plot.AvailableConstants(axes, 2), 1);
    EXPECT_EQ(plot.AvailableConstants(axes, 1), 2) << "the second axis is past the count";
    EXPECT_EQ(plot.AvailableConstants(axes, 9), 1) << "positions that do not exist";
    axes[2]->SetName("b");
    EXPECT_EQ(plot.AvailableConstants(axes, 2), 2) << "names are exact";
    EXPECT_EQ(plot.AvailableConstants({}, 2), 3);
}

TEST_F(WizardPlotDataTest, CountsAndRemovesAxesByTheModelOfAResponse) {
    AddThreeFactors();
    study.Response("Y");
    study.fits["Y"].factors = {"A", "C"};
    AnyPlotData plot(study, 2, 4);
    auto& axes = plot.GetAxisInfo(2);
    axes[1]->SetName("A");
    axes[2]->SetName("B");
    axes[3]->SetName(AxisInfo::GetNotUsedName());
    axes[4]->SetName("C");
    EXPECT_EQ(plot.NumAxesLegal("Y", 2, 4), 2);
    EXPECT_EQ(plot.NumAxesLegal("Y", 2, 3), 1);
    EXPECT_EQ(plot.NumAxesLegal("Y", 2, 40), 2);
    EXPECT_EQ(plot.NumAxesLegal("Y", 1, 4), 0);
    plot.used = 2;
    EXPECT_EQ(plot.RemoveIllegalAxes("Y", -1, 4), 1);
    EXPECT_THAT(NamesOf(axes),
                ElementsAre("-", "A", AxisInfo::GetNotUsedName(), AxisInfo::GetNotUsedName(), "C"));
    EXPECT_EQ(plot.RemoveIllegalAxes("Y", 2, 4), 0);
}

TEST_F(WizardPlotDataTest, TakesAResponseWithoutAModelAsUsingNoFactor) {
    AddThreeFactors();
    study.Response("Y");
    AnyPlotData plot(study, 1, 2);
    plot.GetAxisInfo(1)[1]->SetName("A");
    EXPECT_EQ(plot.NumAxesLegal("Y", 1, 2), 0);
    EXPECT_EQ(plot.NumAxesLegal("unknown", 1, 2), 0);
    EXPECT_EQ(plot.NumAxesLegal(nullptr, 1, 2), 0);
    EXPECT_EQ(plot.RemoveIllegalAxes("Y", 1, 0), 0);
    EXPECT_EQ(plot.RemoveIllegalAxes("Y", 1, 1), 1) << "the last of the count as well";
}

TEST_F(WizardPlotDataTest, RemovesAnAxisWhoseFactorIsUnknown) {
    study.Response("Y");
    study.fits["Y"].factors = {"Gone"};
    AnyPlotData plot(study, 1, 2);
    plot.GetAxisInfo(1)[1]->SetName("Gone");
    EXPECT_EQ(plot.RemoveIllegalAxes("Y", 1, 2), 1);
    EXPECT_THAT(NamesOf(plot.GetAxisInfo(1)), ElementsAre("-", AxisInfo::GetNotUsedName(), ""));
}

TEST_F(WizardPlotDataTest, CopiesDeeplyAndWithoutIniSectionOrHeader) {
    AddThreeFactors();
    AnyPlotData plot(study, 2, 3);
    plot.SetExtraHeaderInformation(L"Header");
    SetAxis(*plot.GetAxisInfo(1)[1], "A", 1, 2);
    const AnyPlotData copy(plot);
    EXPECT_EQ(copy.ExtraHeaderInformation(), L"");
    EXPECT_FALSE(copy.HasIniSection());
    EXPECT_TRUE(plot.HasIniSection());
    EXPECT_EQ(copy.GetIniFile(), "study.ini");
    EXPECT_EQ(copy.GetInvestigation(), &study);
    EXPECT_EQ(copy.GetNumDefaults(), 3);
    EXPECT_EQ(copy.GetMaxNumAxis(), 3);
    EXPECT_EQ(copy.GetDefaultAxisName(3), "3rdAxis");
    EXPECT_EQ(Describe(copy.GetAxisInfo(1)), Describe(plot.GetAxisInfo(1)));
    EXPECT_EQ(Describe(copy.GetAxisDefaults()), Describe(plot.GetAxisDefaults()));
    EXPECT_EQ(DescribeConstants(copy.GetPlotConstants()),
              DescribeConstants(plot.GetPlotConstants()));

    plot.GetAxisInfo(1)[1]->SetName("B");
    plot.GetAxisDefaults()[1]->SetName("X");
    plot.GetPlotConstants()[0].FloatValue(-5);
    EXPECT_EQ(copy.GetAxisInfo(1)[1]->GetName(), "A");
    EXPECT_EQ(copy.GetAxisInfo(1)[0], nullptr);
    EXPECT_EQ(copy.GetAxisDefaults()[1]->GetName(), "A");
    EXPECT_NE(copy.GetPlotConstants()[0].FloatValue(), -5);
}

TEST_F(WizardPlotDataTest, AssignsBySharing) {
    AddThreeFactors();
    AnyPlotData plot(study, 2, 3);
    plot.SetExtraHeaderInformation(L"Header");
    AnyPlotData other(study, 1, 1, 1, "other.ini");
    other = plot;
    EXPECT_EQ(other.ExtraHeaderInformation(), L"Header");
    EXPECT_TRUE(other.HasIniSection());
    EXPECT_EQ(other.GetIniFile(), "study.ini");
    EXPECT_EQ(other.GetAxisInfo(1)[1], plot.GetAxisInfo(1)[1]);
    EXPECT_EQ(other.GetAxisDefaults()[1], plot.GetAxisDefaults()[1]);
    EXPECT_EQ(other.GetPlotConstants(), plot.GetPlotConstants());
    EXPECT_EQ(other.GetMaxNumAxis(), 3);

    files.File("other.ini");
    other.WriteSettings(WizardPlotData::ContourAxis2D, 1, 1);
    IniFileSection& ini = files.File("study.ini");
    ini.SetSection("ContourAxis2D");
    std::string name = "absent";
    EXPECT_TRUE(ini.ReadKey("1stAxis", name)) << "the ini section is the source's";
}

TEST_F(WizardPlotDataTest, ReadsAnIniFileThatCannotBeHadAsAnEmptyOneAndWritesNothingToIt) {
    AddThreeFactors();
    IniFactorConstant(files.File("study.ini")).SetConstant("A", 2.5);
    files.refuses = true;
    const AnyPlotData plot(study);
    EXPECT_EQ(Value(plot, "A"), 5.0);
    EXPECT_FALSE(plot.HasIniSection());
    EXPECT_THROW(plot.WriteSettings(WizardPlotData::ContourAxis2D, 1, 2), InvalidArgument);
}

}  // namespace
}  // namespace kvopt::test
