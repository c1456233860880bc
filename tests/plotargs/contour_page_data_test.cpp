#include "kvopt/plotargs/contour_page_data.h"

#include <gmock/gmock.h>

#include "plotargs/plot_study.h"
#include "support/memory_profile.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;

class ContourPageDataTest : public testing::Test {
protected:
    ContourPageDataTest() {
        study.Number("A", 0, 10);
        study.Number("B", 0, 10);
        study.Response("Y1");
        study.Response("Y2");
        GeneralSettings::Install(&settings);
    }
    ~ContourPageDataTest() override { GeneralSettings::Install(nullptr); }

    ContourPageData Contour() { return {&study, false, false, false, false}; }
    ContourPageData DesignSpace() { return {&study, true, false, false, false}; }
    static ContourPageData::Type Type(int number) {
        return static_cast<ContourPageData::Type>(number);
    }

    MemoryIniFiles files;
    PlotStudy study;
    GeneralSettings::Settings settings;

private:
    MemoryProfile profile_;
};

TEST_F(ContourPageDataTest, StartsFromItsDefaults) {
    const ContourPageData data = Contour();
    const ContourPageData::Arguments& options = data.GetOptions();
    EXPECT_EQ(data.GetPlotType(), ContourPageData::contour_2D);
    EXPECT_EQ(data.GetAxisType(), ContourPageData::process);
    EXPECT_FALSE(data.UseConstraints());
    EXPECT_FALSE(data.HaveConstraints());
    EXPECT_FALSE(data.ISDSProbability());
    EXPECT_FALSE(data.FromDesignSpace());
    EXPECT_FALSE(data.IsHideSurface());
    EXPECT_FALSE(data.IsDesirability());
    EXPECT_FALSE(data.GetOverrideDisableMixture());
    EXPECT_FALSE(data.UseDummyData());
    EXPECT_FALSE(options.mixtureMode);
    EXPECT_TRUE(options.useColor);
    EXPECT_FALSE(options.scaleEqual);
    EXPECT_TRUE(options.useContourLabels);
    EXPECT_TRUE(options.hasContourLabels);
    EXPECT_FALSE(options.lockContourLevels);
    EXPECT_FALSE(options.isProbabilityPlot);
    EXPECT_FALSE(options.fromDesignSpaceKey);
    EXPECT_EQ(options.distribution, 1);
    EXPECT_EQ(options.numSimulations, 10000);
    EXPECT_TRUE(options.analyticalProbability);
    EXPECT_TRUE(options.errorOnAxisFactors);
    EXPECT_TRUE(options.errorOnConstantFactors);
    EXPECT_TRUE(options.includeModelError);
    EXPECT_FALSE(options.surfaceHidden);
    EXPECT_THAT(data.GetUnselectedResponses(), testing::IsSupersetOf({"Y1", "Y2"}));
    EXPECT_EQ(data.GetType(), "responses");
}

TEST_F(ContourPageDataTest, StartsADesignSpacePlotFromItsFlags) {
    const ContourPageData data(&study, true, true, true, true);
    EXPECT_EQ(data.GetPlotType(), ContourPageData::ds_probability);
    EXPECT_TRUE(data.ISDSProbability());
    EXPECT_TRUE(data.FromDesignSpace());
    EXPECT_TRUE(data.IsHideSurface());
    EXPECT_TRUE(data.IsDesirability());
    EXPECT_TRUE(data.GetOptions().scaleEqual);
    EXPECT_TRUE(data.GetOptions().isProbabilityPlot);
    EXPECT_TRUE(data.GetOptions().surfaceHidden);
    EXPECT_FALSE(data.GetOptions().fromDesignSpaceKey) << "only settings and saved plots set it";
}

TEST_F(ContourPageDataTest, TakesDefaultsFromGeneralSettingsAndTheDesignSpace) {
    settings.dsOutput = 3;
    settings.backTransformedFactors = -2;
    DesignSpaceOptions& options = study.GetDesignSpacePredictor()->GetOptions();
    options.dpmoLimit = 123;
    options.confidenceLevel = CConfLev::Level99;
    options.toleranceProportion = CConfLev::Level90;
    options.intervalType = CIntervalType::Tolerance;
    const ContourPageData data = Contour();
    EXPECT_EQ(data.GetOptions().dsOutput, 3);
    EXPECT_TRUE(data.GetOptions().backTransformedFactors);
    EXPECT_EQ(data.GetOptions().dpmoTarget, 123);
    EXPECT_EQ(data.GetOptions().confLev, CConfLev::Level99);
    EXPECT_EQ(data.GetOptions().tolProp, CConfLev::Level90);
    EXPECT_EQ(data.GetOptions().intervalType, CIntervalType::Tolerance);
}

TEST_F(ContourPageDataTest, StartsInMixtureModeWithOneProcessFactorOrNone) {
    study.RemoveFactor("B");
    const ContourPageData one = Contour();
    EXPECT_EQ(one.GetAxisType(), ContourPageData::mixture);
    EXPECT_TRUE(one.GetOptions().mixtureMode);
    study.RemoveFactor("A");
    EXPECT_EQ(Contour().GetAxisType(), ContourPageData::mixture);
}

TEST_F(ContourPageDataTest, HasConstraintsWithAConstraintMatrix) {
    study.constraintMatrix = std::make_unique<FMatrix>();
    EXPECT_TRUE(Contour().HaveConstraints());
}

TEST_F(ContourPageDataTest, RefusesANullStudy) {
    EXPECT_THROW(ContourPageData(nullptr, false, false, false, false), InvalidArgument);
}

TEST_F(ContourPageDataTest, SaysHowManyResponsesEachTypeMayHave) {
    EXPECT_THAT(ContourPageData::miMaxResponses, ElementsAre(-1, 1, -1, 1, -1));
}

TEST_F(ContourPageDataTest, GivesTypesWithContoursLabels) {
    ContourPageData data = Contour();
    const bool expected[] = {true, true, false, false, true, false};
    for (int type = 0; type < 6; ++type) {
        data.SetPlotType(Type(type));
        EXPECT_EQ(data.GetPlotType(), type);
        EXPECT_EQ(data.GetOptions().hasContourLabels, expected[type]) << type;
    }
}

TEST_F(ContourPageDataTest, KeepsADesignSpacePlotOneButLetsLabelsFollowTheArgument) {
    ContourPageData data = DesignSpace();
    data.SetPlotType(ContourPageData::surface_3D);
    EXPECT_EQ(data.GetPlotType(), ContourPageData::ds_probability);
    EXPECT_FALSE(data.GetOptions().hasContourLabels);
    data.SetPlotType(ContourPageData::contour_4D);
    EXPECT_EQ(data.GetPlotType(), ContourPageData::ds_probability);
    EXPECT_TRUE(data.GetOptions().hasContourLabels);
}

TEST_F(ContourPageDataTest, NamesThePlot) {
    ContourPageData data = Contour();
    const wchar_t* const names[] = {L"Response Contour Plot", L"Response Contour Plot",
                                    L"Response Surface Plot", L"Response Surface Plot",
                                    L"Design Space Plot",     L""};
    for (int type = 0; type < 6; ++type) {
        data.SetPlotType(Type(type));
        EXPECT_STREQ(data.GetTypeName(), names[type]) << type;
    }
    data.SetUseDummyData(true);
    EXPECT_STREQ(data.GetTypeName(), L"Design Region Plot");
    EXPECT_STREQ(ContourPageData(&study, true, false, false, true).GetTypeName(),
                 L"Desirability Plot");
    EXPECT_STREQ(ContourPageData(&study, false, false, false, true).GetTypeName(),
                 L"Response Contour Plot");
}

TEST_F(ContourPageDataTest, SetsWhatItGives) {
    ContourPageData data = Contour();
    data.SetAxisType(ContourPageData::mixture);
    data.UseConstraints(true);
    data.SetHaveConstraints(true);
    data.SetUseColor(false);
    data.SetResolution(48);
    data.SetMixtureResolution(96);
    data.SetOverrideDisableMixture(true);
    EXPECT_EQ(data.GetAxisType(), ContourPageData::mixture);
    EXPECT_TRUE(data.UseConstraints());
    EXPECT_TRUE(data.HaveConstraints());
    EXPECT_FALSE(data.UseColor());
    EXPECT_FALSE(data.GetOptions().useColor);
    EXPECT_EQ(data.Resolution(), 48);
    EXPECT_EQ(data.GetOptions().resolution, 48);
    EXPECT_EQ(data.MixtureResolution(), 96);
    EXPECT_EQ(data.GetOptions().mixtureResolution, 96);
    EXPECT_TRUE(data.GetOverrideDisableMixture());
    EXPECT_FALSE(data.GetOptions().mixtureMode) << "the axis type leaves the mode alone";
}

TEST_F(ContourPageDataTest, TakesResolutionsFromTheProfile) {
    EXPECT_EQ(Contour().Resolution(), 32);
    EXPECT_EQ(Contour().MixtureResolution(), 64);
    EXPECT_EQ(DesignSpace().Resolution(), 16);
    EXPECT_EQ(DesignSpace().MixtureResolution(), 64);
    UserProfile& profile = *UserProfile::Instance();
    profile.WriteProfileInteger("Plot", "ContourResolution", 1);
    profile.WriteProfileInteger("Plot", "MixtureContourResolution", 2);
    profile.WriteProfileInteger("Plot", "ProbabilityResolution", 3);
    profile.WriteProfileInteger("Plot", "ProbabilityMixtureResolution", 4);
    EXPECT_EQ(Contour().Resolution(), 1);
    EXPECT_EQ(Contour().MixtureResolution(), 2);
    EXPECT_EQ(DesignSpace().Resolution(), 3);
    EXPECT_EQ(DesignSpace().MixtureResolution(), 4);
}

TEST_F(ContourPageDataTest, SavesResolutionsUnderTheKeysOfItsKind) {
    ContourPageData contour = Contour();
    contour.SetResolution(11);
    contour.SetMixtureResolution(12);
    contour.SaveRegistrySettings();
    ContourPageData designSpace = DesignSpace();
    EXPECT_EQ(designSpace.Resolution(), 16);
    designSpace.SetResolution(13);
    designSpace.SetMixtureResolution(14);
    designSpace.SaveRegistrySettings();
    const UserProfile& profile = *UserProfile::Instance();
    EXPECT_EQ(profile.GetProfileInteger("Plot", "ContourResolution", 0), 11);
    EXPECT_EQ(profile.GetProfileInteger("Plot", "MixtureContourResolution", 0), 12);
    EXPECT_EQ(profile.GetProfileInteger("Plot", "ProbabilityResolution", 0), 13);
    EXPECT_EQ(profile.GetProfileInteger("Plot", "ProbabilityMixtureResolution", 0), 14);
    contour.SetResolution(0);
    contour.ReadRegistrySettings();
    EXPECT_EQ(contour.Resolution(), 11);
}

TEST_F(ContourPageDataTest, WritesTheIniFileInOrderWithTwoKeysBesideTheViews) {
    ContourPageData data(&study, false, true, false, false);
    data.SetPlotType(ContourPageData::surface_3D);
    data.GetOptions().includeModelError = false;
    files.Log().clear();
    data.SaveSettings("study.ini");
    const SectionLog written = files.Log();
    EXPECT_THAT(written, ElementsAre("[ContourPlot] text PlotType = surface_3D",
                                     "[ContourPlot] text AxisType = process",
                                     "[ContourPlot] bool UseColor = true",
                                     "[ContourPlot] bool UseConstraints = false",
                                     "[ContourPlot] int NumSimulations = 10000",
                                     "[ContourPlot] bool ErrorOnAxisFactors = true",
                                     "[ContourPlot] bool ErrorOnConstantFactors = true",
                                     "[ContourPlot] int DistributionOnFactors = 1",
                                     "[ContourPlot] bool AnalyticalProbability = true",
                                     "[ContourPlot] bool IncludeModelError = false",
                                     "[ContourPlot] bool ContourLabels = true"));
}

TEST_F(ContourPageDataTest, KeepsDesignSpaceSettingsApartAndErrorSwitchesByOrigin) {
    const ContourPageData data = DesignSpace();
    files.Log().clear();
    data.SaveSettings("study.ini");
    EXPECT_THAT(files.Log(), testing::Contains("[DesignSpacePlot] text PlotType = ds_probability"));
    EXPECT_THAT(files.Log(),
                testing::Contains("[DesignSpacePlot] bool RErrorOnAxisFactors = true"));
    EXPECT_THAT(files.Log(), testing::Each(testing::StartsWith("[DesignSpacePlot] ")));
}

TEST_F(ContourPageDataTest, ReadsBackWhatTheIniFileRemembers) {
    ContourPageData data = Contour();
    data.SetPlotType(ContourPageData::surface_4D);
    data.SetAxisType(ContourPageData::mixture);
    data.UseConstraints(true);
    ContourPageData::Arguments& options = data.GetOptions();
    options.useColor = false;
    options.numSimulations = 77;
    options.errorOnAxisFactors = false;
    options.errorOnConstantFactors = false;
    options.distribution = 2;
    options.analyticalProbability = false;
    options.includeModelError = false;
    options.useContourLabels = false;
    options.mixtureMode = true;
    options.scaleEqual = true;
    data.SetResponses({"Y2"});
    data.SaveSettings("study.ini");

    ContourPageData other = Contour();
    const std::vector<std::string> selected = other.GetSelectedResponses();
    other.LoadSettings("study.ini");
    EXPECT_EQ(other.GetSelectedResponses(), selected) << "responses are not remembered here";
    EXPECT_FALSE(other.GetOptions().mixtureMode);
    EXPECT_FALSE(other.GetOptions().scaleEqual);
    data.SetResponses(selected);
    options.mixtureMode = false;
    options.scaleEqual = false;
    EXPECT_EQ(Describe(other), Describe(data));
}

TEST_F(ContourPageDataTest, ReadsHardDefaultsFromAnIniFileWithoutKeys) {
    ContourPageData data(&study, false, true, false, false);
    data.SetPlotType(ContourPageData::surface_3D);
    data.SetAxisType(ContourPageData::mixture);
    data.UseConstraints(true);
    ContourPageData::Arguments& options = data.GetOptions();
    options.useColor = false;
    options.numSimulations = 77;
    options.errorOnAxisFactors = false;
    options.errorOnConstantFactors = false;
    options.distribution = 2;
    options.analyticalProbability = false;
    options.includeModelError = false;
    options.useContourLabels = false;
    options.surfaceHidden = true;
    options.isProbabilityPlot = true;
    options.dsOutput = 5;
    settings.dsOutput = 6;
    settings.backTransformedFactors = 1;
    data.LoadSettings("empty.ini");
    EXPECT_EQ(data.GetPlotType(), ContourPageData::surface_3D);
    EXPECT_FALSE(options.hasContourLabels);
    EXPECT_EQ(data.GetAxisType(), ContourPageData::mixture);
    EXPECT_FALSE(data.UseConstraints());
    EXPECT_TRUE(options.useColor);
    EXPECT_EQ(options.numSimulations, 10000);
    EXPECT_TRUE(options.errorOnAxisFactors);
    EXPECT_TRUE(options.errorOnConstantFactors);
    EXPECT_EQ(options.distribution, 1);
    EXPECT_TRUE(options.analyticalProbability);
    EXPECT_FALSE(options.includeModelError) << "a missing key leaves the field";
    EXPECT_FALSE(options.useContourLabels) << "a missing key leaves the field";
    EXPECT_FALSE(options.surfaceHidden);
    EXPECT_FALSE(options.isProbabilityPlot);
    EXPECT_TRUE(options.fromDesignSpaceKey);
    EXPECT_EQ(options.dsOutput, 6);
    EXPECT_TRUE(options.backTransformedFactors);
}

TEST_F(ContourPageDataTest, WritesAnEmptyTextForTypesThatItDoesNotKnow) {
    ContourPageData data = Contour();
    data.SetPlotType(static_cast<ContourPageData::Type>(5));
    data.SetAxisType(static_cast<ContourPageData::AxisType>(2));
    IniFileSection& ini = files.File("study.ini");
    data.SaveSettings(&ini);
    const ContourPlotIniSection view(ini, false);
    EXPECT_EQ(view.GetPlotType(), "");
    EXPECT_EQ(view.GetAxisType(), "");
}

TEST_F(ContourPageDataTest, KeepsTypesThatTheIniFileSpellsOtherwise) {
    IniFileSection& ini = files.File("study.ini");
    ContourPlotIniSection view(ini, false);
    view.SetPlotType("Surface_3D");
    view.SetAxisType("Mixture");
    ContourPageData data = Contour();
    data.GetOptions().hasContourLabels = false;
    data.LoadSettings("study.ini");
    EXPECT_EQ(data.GetPlotType(), ContourPageData::contour_2D);
    EXPECT_FALSE(data.GetOptions().hasContourLabels);
    EXPECT_EQ(data.GetAxisType(), ContourPageData::process);
}

TEST_F(ContourPageDataTest, TakesLabelsWithTheTypeOfTheIniFile) {
    const std::pair<const char*, bool> cases[] = {{"contour_2D", true},
                                                  {"contour_4D", true},
                                                  {"surface_3D", false},
                                                  {"surface_4D", false},
                                                  {"ds_probability", true}};
    for (int type = 0; type < 5; ++type) {
        ContourPlotIniSection(files.File("study.ini"), false).SetPlotType(cases[type].first);
        ContourPageData data = Contour();
        data.GetOptions().hasContourLabels = !cases[type].second;
        data.LoadSettings("study.ini");
        EXPECT_EQ(data.GetPlotType(), type);
        EXPECT_EQ(data.GetOptions().hasContourLabels, cases[type].second);
    }
}

TEST_F(ContourPageDataTest, KeepsADesignSpacePlotWhateverTheIniFileSays) {
    ContourPlotIniSection(files.File("study.ini"), true).SetPlotType("surface_3D");
    ContourPageData data = DesignSpace();
    data.GetOptions().hasContourLabels = false;
    data.LoadSettings("study.ini");
    EXPECT_EQ(data.GetPlotType(), ContourPageData::ds_probability);
    EXPECT_TRUE(data.GetOptions().hasContourLabels);
}

TEST_F(ContourPageDataTest, ReadsAnIniFileThatCannotBeHadAsAnEmptyOneAndRefusesToWriteIt) {
    ContourPageData data = Contour();
    data.SetUseColor(false);
    files.refuses = true;
    EXPECT_THROW(data.SaveSettings("study.ini"), InvalidArgument);
    data.LoadSettings("study.ini");
    EXPECT_TRUE(data.UseColor());
    EXPECT_THROW(data.SaveSettings(static_cast<IniFileSection*>(nullptr)), InvalidArgument);
}

TEST_F(ContourPageDataTest, IsAValue) {
    ContourPageData data = Contour();
    data.SetResolution(99);
    data.SetResponses({"Y2"});
    ContourPageData copy(data);
    EXPECT_EQ(Describe(copy), Describe(data));
    copy.SetResolution(5);
    copy.SetResponses({"Y1"});
    EXPECT_EQ(data.Resolution(), 99);
    EXPECT_THAT(data.GetSelectedResponses(), ElementsAre("Y2"));
}

}  // namespace
}  // namespace kvopt::test
