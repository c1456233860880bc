#include "kvopt/plotargs/sweet_spot_data.h"

#include <gmock/gmock.h>

#include "plotargs/plot_study.h"
#include "support/memory_profile.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"

namespace kvopt::test {
namespace {

using FactorConstants::Constant;
using testing::ElementsAre;
using testing::IsEmpty;

/// A study that notes which factors were looked up by name.
class LookedUpStudy : public PlotStudy {
public:
    LookedUpStudy() : variables_(*this) {}
    Variables* GetVariables() const override { return &variables_; }
    mutable std::vector<std::string> lookedUp;

private:
    class NotingVariables : public Variables {
    public:
        explicit NotingVariables(const LookedUpStudy& study) : study_(study) {}
        std::vector<FactorClass*> GetAllFactors() const override {
            return study_.PlotStudy::GetVariables()->GetAllFactors();
        }
        std::vector<ResponseClass*> GetAllResponses() const override {
            return study_.PlotStudy::GetVariables()->GetAllResponses();
        }
        FactorClass* GetFactor(const std::string& name) const override {
            study_.lookedUp.push_back(name);
            return Variables::GetFactor(name);
        }

    private:
        const LookedUpStudy& study_;
    };

    mutable NotingVariables variables_;
};

class SweetSpotDataTest : public testing::Test {
protected:
    SweetSpotDataTest() { study.iniFileName = "study.ini"; }
    ~SweetSpotDataTest() override { GeneralSettings::Install(nullptr); }

    void AddFactors() {
        study.Number("A", 0, 10);
        study.Number("B", 20, 30);
        study.Names("Cat", {"Pd", "Pt"});
        study.Part("M1", 0, 0.5);
        study.Part("M2", 0, 0.6);
        study.Part("M3", 0, 0.7);
    }
    SweetSpotData Plot(bool mixture = false) { return {&study, mixture, "study.ini"}; }
    static void ForgetConstants(WizardPlotData& plot) { plot.GetPlotConstants()[0] = Constant(); }

    MemoryIniFiles files;
    LookedUpStudy study;

private:
    MemoryProfile profile_;
};

// A new plot.

TEST_F(SweetSpotDataTest, BeginsWithItsDefaults) {
    AddFactors();
    const SweetSpotData plot = Plot();
    EXPECT_EQ(plot.GetPlotType(), SweetSpotData::SweetSpot);
    EXPECT_EQ(plot.GetPlotType(), 1);
    EXPECT_EQ(plot.GetUsedAxisIx(), 1);
    EXPECT_EQ(plot.ExtraHeaderInformation(), L"");
    EXPECT_EQ(plot.GetResolution(), 128);
    EXPECT_TRUE(plot.UseConstraints());
    EXPECT_FALSE(plot.IsMixture());
    EXPECT_TRUE(Plot(true).IsMixture());
    EXPECT_FALSE(plot.IsCreatedFromOptimizer());
    EXPECT_FALSE(plot.GetOverrideDisableMixture());
    EXPECT_FALSE(plot.IsSurface());
    EXPECT_FALSE(plot.GetBackTransformedFactors());
    EXPECT_TRUE(plot.IsShowLabels());
}

TEST_F(SweetSpotDataTest, HasThreeSetsOfFiveAxesThatHoldNothing) {
    AddFactors();
    for (const bool mixture : {false, true}) {
        SweetSpotData plot = Plot(mixture);
        EXPECT_EQ(plot.GetMaxNumAxis(), 5);
        EXPECT_THAT(plot.GetAxisInfo(0), IsEmpty());
        for (int set = 1; set <= 3; ++set) {
            EXPECT_THAT(NamesOf(plot.GetAxisInfo(set)), ElementsAre("-", "", "", "", "", ""));
        }
        EXPECT_THROW(plot.GetAxisInfo(4), InvalidArgument);
    }
}

TEST_F(SweetSpotDataTest, HasRoomForAConstantOfEachFactor) {
    AddFactors();
    SweetSpotData plot = Plot();
    ReportOverRideOptions& report = *ReportOverRideOptions::Instance();
    for (int i = 0; i < 9; ++i) {
        report.GetConstants()["U" + std::to_string(i)] =
            Constant("ignored", 1.0, FactorConstants::LOW);
    }
    ForgetConstants(plot);
    plot.OverRideOptions(&report);
    report.Clear();
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 6);
    const std::string before = DescribeConstants(plot.GetPlotConstants());
    plot.SetMixture(true);
    EXPECT_EQ(DescribeConstants(plot.GetPlotConstants()), before) << "no room for more";
}

TEST_F(SweetSpotDataTest, NeedsAStudy) {
    EXPECT_THROW(SweetSpotData(nullptr, false, "study.ini"), InvalidArgument);
}

TEST_F(SweetSpotDataTest, ShowsFactorsAsTheGeneralSettingsSay) {
    GeneralSettings::Settings settings;
    GeneralSettings::Install(&settings);
    for (const int value : {0, 1, -1}) {
        settings.backTransformedFactors = value;
        EXPECT_EQ(Plot().GetBackTransformedFactors(), value != 0) << value;
    }
}

TEST_F(SweetSpotDataTest, TakesAReportsAxesAndConstantsAsEveryPlotDoes) {
    AddFactors();
    SweetSpotData plot = Plot();
    ReportOverRideOptions& report = *ReportOverRideOptions::Instance();
    SetAxis(report.GetAxes()[5], "B", 1, 2);
    report.GetConstants()["A"] = Constant("ignored", 3.0, FactorConstants::CUSTOM);
    plot.OverRideOptions(&report);
    report.Clear();
    for (int set = 1; set <= 3; ++set) {
        EXPECT_EQ(Describe(*plot.GetAxisInfo(set)[5]), "'B' [] 1..2 {} quantitative");
    }
    const int index = FactorConstants::Lookup(plot.GetPlotConstants(), "A");
    EXPECT_EQ(plot.GetPlotConstants()[index].FloatValue(), 3.0);
}

// Its fields.

TEST_F(SweetSpotDataTest, KeepsEveryFieldThatIsSet) {
    SweetSpotData plot = Plot();
    for (const bool on : {false, true}) {
        plot.SetUseConstraints(on);
        EXPECT_EQ(plot.UseConstraints(), on);
        plot.SetIsSurface(!on);
        EXPECT_EQ(plot.IsSurface(), !on);
        plot.ShowLabels(on);
        EXPECT_EQ(plot.IsShowLabels(), on);
        plot.SetCreatedFromOptimizer(!on);
        EXPECT_EQ(plot.IsCreatedFromOptimizer(), !on);
        plot.SetOverrideDisableMixture(on);
        EXPECT_EQ(plot.GetOverrideDisableMixture(), on);
        plot.SetMixture(!on);
        EXPECT_EQ(plot.IsMixture(), !on);
    }
    plot.SetExtraHeaderInformation(L"header");
    const WizardPlotData& base = plot;
    EXPECT_EQ(base.ExtraHeaderInformation(), L"header");
}

TEST_F(SweetSpotDataTest, HasAHeaderApartFromTheOneOfItsBase) {
    SweetSpotData plot = Plot();
    plot.WizardPlotData::SetExtraHeaderInformation(L"base");
    EXPECT_EQ(plot.ExtraHeaderInformation(), L"");
    plot.SetExtraHeaderInformation(L"own");
    EXPECT_EQ(plot.WizardPlotData::ExtraHeaderInformation(), L"base");
}

TEST_F(SweetSpotDataTest, NumbersTheAxisSetByThePlotType) {
    SweetSpotData plot = Plot();
    for (const auto type :
         {SweetSpotData::SweetSpot4D, SweetSpotData::NoPlot, SweetSpotData::SweetSpot}) {
        plot.SetPlotType(type);
        EXPECT_EQ(plot.GetPlotType(), type);
        EXPECT_EQ(plot.GetUsedAxisIx(), type);
        EXPECT_EQ(&plot.GetAxisInfo(-1), &plot.GetAxisInfo(type));
    }
    EXPECT_EQ(SweetSpotData::SweetSpot4D, 2);
}

TEST_F(SweetSpotDataTest, HasOneResolutionForEachPlotType) {
    SweetSpotData plot = Plot();
    plot.SetPlotType(SweetSpotData::SweetSpot4D);
    EXPECT_EQ(plot.GetResolution(), 64);
    plot.SetResolution(32);
    EXPECT_EQ(plot.GetResolution(), 32);
    plot.SetPlotType(SweetSpotData::SweetSpot);
    EXPECT_EQ(plot.GetResolution(), 128);
    plot.SetResolution(256);
    plot.SetPlotType(SweetSpotData::NoPlot);
    EXPECT_EQ(plot.GetResolution(), 256);
    plot.SetPlotType(SweetSpotData::SweetSpot4D);
    EXPECT_EQ(plot.GetResolution(), 32);
}

TEST_F(SweetSpotDataTest, KeepsBothResolutionsInTheProfile) {
    UserProfile& profile = *UserProfile::Instance();
    profile.WriteProfileInteger("Plot", "SweetSpotResolution", 200);
    SweetSpotData plot = Plot();
    EXPECT_EQ(plot.GetResolution(), 200);
    plot.SetPlotType(SweetSpotData::SweetSpot4D);
    EXPECT_EQ(plot.GetResolution(), 64);
    plot.SetResolution(48);
    plot.SaveRegistrySettings();
    EXPECT_EQ(profile.GetProfileInteger("Plot", "SweetSpotResolution", 0), 200);
    EXPECT_EQ(profile.GetProfileInteger("Plot", "SweetSpot4DResolution", 0), 48);
    profile.WriteProfileInteger("Plot", "SweetSpot4DResolution", 24);
    plot.ReadRegistrySettings();
    EXPECT_EQ(plot.GetResolution(), 24);
}

TEST_F(SweetSpotDataTest, KeepsTheResolutionsThatTheProfileLacks) {
    SweetSpotData plot = Plot();
    for (const auto type : {SweetSpotData::SweetSpot, SweetSpotData::SweetSpot4D}) {
        plot.SetPlotType(type);
        plot.SetResolution(7);
        plot.ReadRegistrySettings();
        EXPECT_EQ(plot.GetResolution(), 7);
    }
}

// Copies.

TEST_F(SweetSpotDataTest, IsCopiedWithAllItsMembers) {
    AddFactors();
    GeneralSettings::Settings settings;
    settings.backTransformedFactors = 1;
    GeneralSettings::Install(&settings);
    SweetSpotData plot = Plot(true);
    plot.SetExtraHeaderInformation(L"header");
    plot.SetResolution(1);
    plot.SetPlotType(SweetSpotData::SweetSpot4D);
    plot.SetResolution(2);
    plot.SetUseConstraints(false);
    plot.SetCreatedFromOptimizer(true);
    plot.SetOverrideDisableMixture(true);
    plot.SetIsSurface(true);
    plot.ShowLabels(false);
    settings.backTransformedFactors = 0;
    SweetSpotData assigned = Plot();
    assigned = plot;
    for (SweetSpotData copy : {SweetSpotData(plot), assigned}) {
        EXPECT_EQ(copy.ExtraHeaderInformation(), L"header");
        EXPECT_EQ(copy.GetPlotType(), SweetSpotData::SweetSpot4D);
        EXPECT_EQ(copy.GetResolution(), 2);
        copy.SetPlotType(SweetSpotData::SweetSpot);
        EXPECT_EQ(copy.GetResolution(), 1);
        EXPECT_TRUE(copy.IsMixture());
        EXPECT_FALSE(copy.UseConstraints());
        EXPECT_TRUE(copy.IsCreatedFromOptimizer());
        EXPECT_TRUE(copy.GetOverrideDisableMixture());
        EXPECT_TRUE(copy.IsSurface());
        EXPECT_FALSE(copy.IsShowLabels());
        EXPECT_TRUE(copy.GetBackTransformedFactors());
        EXPECT_FALSE(copy.HasIniSection());
    }
    EXPECT_TRUE(assigned.HasIniSection()) << "shared, as the base does";
    EXPECT_EQ(assigned.GetAxisInfo(1)[1], plot.GetAxisInfo(1)[1]);
    EXPECT_NE(SweetSpotData(plot).GetAxisInfo(1)[1], plot.GetAxisInfo(1)[1]);
}

// The walk over the default axes.

TEST_F(SweetSpotDataTest, LooksAtTheDefaultAxesUntilEnoughFit) {
    AddFactors();
    const FixedOrder order;
    SweetSpotData plot = Plot();
    study.lookedUp.clear();
    plot.InitAxisInfo();
    EXPECT_THAT(study.lookedUp, ElementsAre("A", "B"));
    plot = Plot(true);
    study.lookedUp.clear();
    plot.InitAxisInfo();
    EXPECT_THAT(study.lookedUp, ElementsAre("A", "B", "Cat", "M1", "M2", "M3"));
}

TEST_F(SweetSpotDataTest, PassesOverTheDefaultAxesThatDoNotFit) {
    AddFactors();
    study.Number("C", 0, 1);
    study.unavailable = {"B", "M1", "M2", "M3"};
    const FixedOrder order;
    SweetSpotData plot = Plot();
    study.lookedUp.clear();
    plot.InitAxisInfo();
    EXPECT_THAT(study.lookedUp, ElementsAre("A", "B", "Cat", "M1", "M2", "M3", "C"));
}

TEST_F(SweetSpotDataTest, LooksNoFurtherThanThereAreFactors) {
    AddFactors();
    SweetSpotData plot = Plot(true);
    study.unavailable = {"M1", "M2", "M3"};
    for (const char* name : {"M1", "M2", "A"}) {
        auto axis = std::make_shared<AxisInfoImpl>();
        axis->SetName(name);
        plot.GetAxisDefaults().push_back(axis);
    }
    ASSERT_EQ(plot.GetAxisDefaults().size(), 10U);
    study.lookedUp.clear();
    plot.InitAxisInfo();
    EXPECT_EQ(study.lookedUp.size(), 6U);
    // Less defaults than factors, and one that is empty.
    plot.GetAxisDefaults().resize(4);
    plot.GetAxisDefaults()[2] = nullptr;
    study.lookedUp.clear();
    plot.InitAxisInfo();
    EXPECT_EQ(study.lookedUp.size(), 2U);
}

TEST_F(SweetSpotDataTest, WalksAgainWhenTheFormChangesAndNamesNoAxis) {
    AddFactors();
    const FixedOrder order;
    SweetSpotData plot = Plot();
    SetAxis(*plot.GetAxisInfo(1)[2], "kept", 1, 2);
    study.lookedUp.clear();
    plot.SetMixture(false);
    EXPECT_THAT(study.lookedUp, IsEmpty());
    plot.SetMixture(true);
    EXPECT_THAT(study.lookedUp, ElementsAre("A", "B", "Cat", "M1", "M2", "M3"));
    EXPECT_THAT(NamesOf(plot.GetAxisInfo(1)), ElementsAre("-", "", "kept", "", "", ""));
    EXPECT_THAT(NamesOf(plot.GetAxisInfo(2)), ElementsAre("-", "", "", "", "", ""));
}

// Constants.

TEST_F(SweetSpotDataTest, FillsOnlyWhatItsBaseLeftOut) {
    AddFactors();
    const SweetSpotData plot = Plot();
    AnyPlotData plain(study);
    ASSERT_FALSE(FactorConstants::IsMember(plain.GetPlotConstants(), "Cat"));
    FactorConstants::Add(plain.GetPlotConstants(), Constant("Cat", "Pd", FactorConstants::LOW));
    EXPECT_EQ(DescribeConstants(plot.GetPlotConstants()),
              DescribeConstants(plain.GetPlotConstants()));
}

TEST_F(SweetSpotDataTest, AddsTheConstantsThatAreMissing) {
    AddFactors();
    SweetSpotData plot = Plot();
    ForgetConstants(plot);
    FactorConstants::Add(plot.GetPlotConstants(), Constant("B", 21.5, FactorConstants::CUSTOM));
    FactorConstants::Add(plot.GetPlotConstants(), Constant("Cat", "Pt", FactorConstants::HIGH));
    plot.InitConstInfo();
    const int a = FactorConstants::Lookup(plot.GetPlotConstants(), "A");
    EXPECT_EQ(Describe(plot.GetPlotConstants()[a]), "A = 5 (REF)");
    EXPECT_EQ(Describe(plot.GetPlotConstants()[0]), "B = 21.5 (CUSTOM)");
    EXPECT_EQ(Describe(plot.GetPlotConstants()[1]), "Cat = Pt (HIGH)");
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 6);
    ForgetConstants(plot);
    plot.InitConstInfo();
    EXPECT_EQ(Describe(plot.GetPlotConstants()[2]), "Cat = Pd (LOW)");
}

TEST_F(SweetSpotDataTest, AddsNoConstantOfAFactorThatMayNotBePlotted) {
    AddFactors();
    SweetSpotData plot = Plot();
    ForgetConstants(plot);
    study.unavailable = {"A", "M1"};
    plot.InitConstInfo();
    for (const char* name : {"A", "M1"}) {
        EXPECT_FALSE(FactorConstants::IsMember(plot.GetPlotConstants(), name)) << name;
    }
    EXPECT_TRUE(FactorConstants::IsMember(plot.GetPlotConstants(), "Cat"));
}

TEST_F(SweetSpotDataTest, AddsConstantsWhenTheFormChanges) {
    AddFactors();
    SweetSpotData plot = Plot();
    ForgetConstants(plot);
    plot.SetMixture(false);
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 0);
    plot.SetMixture(true);
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 6);
}

TEST_F(SweetSpotDataTest, AsksADerivedClassForConstantsWhenTheFormChanges) {
    class Derived : public SweetSpotData {
    public:
        using SweetSpotData::SweetSpotData;
        void InitConstInfo() override { ++asked; }
        int asked = 0;
    };
    Derived plot(&study, false, "study.ini");
    plot.SetMixture(true);
    EXPECT_EQ(plot.asked, 1);
}

TEST_F(SweetSpotDataTest, TakesTheFormThenWalksThenAsksForConstants) {
    AddFactors();
    class Derived : public SweetSpotData {
    public:
        explicit Derived(LookedUpStudy* study)
            : SweetSpotData(study, false, "study.ini"), study_(*study) {}
        void InitConstInfo() override { seen = study_.lookedUp; }
        std::vector<std::string> seen;

    private:
        const LookedUpStudy& study_;
    };
    const FixedOrder order;
    Derived plot(&study);
    study.lookedUp.clear();
    plot.SetMixture(true);
    EXPECT_THAT(plot.seen, ElementsAre("A", "B", "Cat", "M1", "M2", "M3"));
}

TEST_F(SweetSpotDataTest, HoldsARandomBlockEffectAtRandom) {
    study.Block(3);
    for (const bool fixed : {true, false}) {
        study.GetInvestigationSettings("Blocking", false)->WriteKey("FixedEffect", fixed);
        SweetSpotData plot = Plot();
        EXPECT_EQ(DescribeConstants(plot.GetPlotConstants()),
                  fixed ? "  $BlockV = 1 (LOW)\n" : "  $BlockV = Random (LOW)\n");
    }
}

TEST_F(SweetSpotDataTest, HoldsTheFirstBlockWithoutTheSetting) {
    study.Block(3);
    EXPECT_EQ(DescribeConstants(Plot().GetPlotConstants()), "  $BlockV = 1 (LOW)\n");
    // Another qualitative factor has nothing to do with blocks.
    study.Names("Cat", {"Pd", "Pt"});
    study.GetInvestigationSettings("Blocking", false)->WriteKey("FixedEffect", false);
    EXPECT_EQ(DescribeConstants(Plot().GetPlotConstants()),
              "  $BlockV = Random (LOW)\n  Cat = Pd (LOW)\n");
}

}  // namespace
}  // namespace kvopt::test
