#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "kvopt/text.h"
#include "stores/store_test_support.h"

namespace kvopt {
namespace {

TEST(PlotWizardIniSection, AnswersEmptyTextsAndNoResponsesBeforeAnythingIsStored) {
    IniFileSection section;
    const PlotWizardIniSection view(section);
    EXPECT_EQ(view.GetPlotType(), "");
    EXPECT_EQ(view.GetAxisType(), "");
    EXPECT_EQ(view.GetNumSelectedResponses(), 0);
    EXPECT_EQ(view.GetSelectedResponse(1), "");
    EXPECT_TRUE(section.KeyNames().empty());
    section.SetSection("");
    EXPECT_TRUE(section.SectionNames().empty()) << "asking creates nothing";
}

TEST(PlotWizardIniSection, KeepsPlotAndAxisType) {
    IniFileSection section;
    PlotWizardIniSection view(section);
    view.SetPlotType("overlay");
    view.SetAxisType("mixture");
    EXPECT_EQ(view.GetPlotType(), "overlay");
    EXPECT_EQ(view.GetAxisType(), "mixture");
}

TEST(PlotWizardIniSection, KeepsResponsesInOrderWithOneBasedNumbers) {
    IniFileSection section;
    PlotWizardIniSection view(section);
    view.SetPlotType("overlay");
    view.AddSelectedResponse("Yield; %");
    view.AddSelectedResponse("Öl [g]");
    view.AddSelectedResponse("Yield; %");
    EXPECT_EQ(view.GetNumSelectedResponses(), 3);
    EXPECT_EQ(view.GetSelectedResponse(0), "");
    EXPECT_EQ(view.GetSelectedResponse(1), "Yield; %");
    EXPECT_EQ(view.GetSelectedResponse(2), "Öl [g]");
    EXPECT_EQ(view.GetSelectedResponse(3), "Yield; %");
    EXPECT_EQ(view.GetSelectedResponse(4), "");
    view.ClearSelectedResponses();
    EXPECT_EQ(view.GetNumSelectedResponses(), 0);
    EXPECT_EQ(view.GetSelectedResponse(1), "");
    EXPECT_EQ(view.GetPlotType(), "overlay") << "only the responses go";
    view.AddSelectedResponse("Taste");
    EXPECT_EQ(view.GetNumSelectedResponses(), 1);
    EXPECT_EQ(view.GetSelectedResponse(1), "Taste");
}

TEST(ContourPlotIniSection, AnswersItsDefaultsWithoutKeys) {
    IniFileSection section;
    for (const bool isDesignSpace : {false, true}) {
        const ContourPlotIniSection view(section, isDesignSpace);
        EXPECT_TRUE(view.UseColor());
        EXPECT_FALSE(view.UseConstraints());
        EXPECT_EQ(view.NumSimulations(), 10000);
        EXPECT_TRUE(view.ErrorOnAxisFactors(false));
        EXPECT_TRUE(view.ErrorOnAxisFactors(true));
        EXPECT_TRUE(view.ErrorOnConstantFactors(false));
        EXPECT_TRUE(view.ErrorOnConstantFactors(true));
        EXPECT_EQ(view.DistributionOnFactors(), 1);
        EXPECT_TRUE(view.AnalyticalProbability());
    }
    section.SetSection("");
    EXPECT_TRUE(section.SectionNames().empty());
}

TEST(ContourPlotIniSection, KeepsEachValueApart) {
    IniFileSection section;
    ContourPlotIniSection view(section, false);
    view.SetUseColor(false);
    EXPECT_FALSE(view.UseColor());
    view.SetUseConstraints(true);
    EXPECT_TRUE(view.UseConstraints());
    view.NumSimulations(77);
    EXPECT_EQ(view.NumSimulations(), 77);
    view.ErrorOnAxisFactors(true, false);
    EXPECT_FALSE(view.ErrorOnAxisFactors(true));
    EXPECT_TRUE(view.ErrorOnAxisFactors(false));
    EXPECT_TRUE(view.ErrorOnConstantFactors(true));
    view.ErrorOnConstantFactors(false, false);
    EXPECT_TRUE(view.ErrorOnConstantFactors(true));
    EXPECT_FALSE(view.ErrorOnConstantFactors(false));
    EXPECT_TRUE(view.ErrorOnAxisFactors(false));
    view.DistributionOnFactors(3);
    EXPECT_EQ(view.DistributionOnFactors(), 3);
    EXPECT_TRUE(view.AnalyticalProbability());
    view.AnalyticalProbability(false);
    EXPECT_FALSE(view.AnalyticalProbability());
}

TEST(ContourPlotIniSection, DesignSpacePlotsHaveASectionOfTheirOwn) {
    IniFileSection section;
    ContourPlotIniSection contour(section, false);
    ContourPlotIniSection designSpace(section, true);
    contour.NumSimulations(77);
    contour.AddSelectedResponse("Yield");
    EXPECT_EQ(designSpace.NumSimulations(), 10000);
    EXPECT_EQ(designSpace.GetNumSelectedResponses(), 0);
    designSpace.NumSimulations(88);
    EXPECT_EQ(contour.NumSimulations(), 77);
}

TEST(PredictedPlotIniSection, KeepsConfidenceLevelsInASectionOfItsOwn) {
    IniFileSection section;
    PredictedPlotIniSection view(section);
    EXPECT_TRUE(view.GetUseConfLevels());
    view.SetUseConfLevels(false);
    EXPECT_FALSE(view.GetUseConfLevels());
    view.SetPlotType("predicted");
    EXPECT_EQ(ContourPlotIniSection(section, false).GetPlotType(), "");
    EXPECT_EQ(view.GetPlotType(), "predicted");
}

TEST(PlotWizardIniSection, AViewStaysInItsSectionSoThatDirectKeysStandBesideItsOwn) {
    IniFileSection section;
    section.SetSection("Elsewhere");
    ContourPlotIniSection view(section, false);
    view.AnalyticalProbability(true);
    section.WriteKey("IncludeModelError", false);
    EXPECT_EQ(section.KeyNames(),
              (std::vector<std::string>{"AnalyticalProbability", "IncludeModelError"}));
    section.SetSection("");
    EXPECT_FALSE(view.UseConstraints());
    EXPECT_FALSE(section.ReadKeyOr("IncludeModelError", true)) << "reading enters it as well";
}

TEST(IniFactorConstant, AnswersNotSetAndEmptyBeforeAnythingIsStored) {
    IniFileSection section;
    const IniFactorConstant constants(section);
    EXPECT_EQ(constants.GetConstant("Speed"), kNotSet);
    EXPECT_EQ(constants.GetStrConstant("Speed"), "");
    section.SetSection("");
    EXPECT_TRUE(section.SectionNames().empty());
}

TEST(IniFactorConstant, KeepsOneConstantForEachFactor) {
    const test::TemporaryFolder folder;
    const std::string file = folder.File("study.ini");
    {
        const auto section = IniFileFactory::Instance()->GetIniFile(file, "");
        IniFactorConstant constants(*section);
        constants.SetConstant(" [m/s] = 1;", 0.1);
        constants.SetConstant("Speed", 2.0);
        constants.SetConstant("Speed", 3.0);
        constants.SetStrConstant("Supplier", "5");
    }
    const auto section = IniFileFactory::Instance()->GetIniFile(file, "");
    const IniFactorConstant constants(*section);
    EXPECT_EQ(constants.GetConstant(" [m/s] = 1;"), 0.1);
    EXPECT_EQ(constants.GetConstant("Speed"), 3.0);
    EXPECT_EQ(constants.GetStrConstant("Supplier"), "5");
    EXPECT_EQ(constants.GetConstant("Supplier"), kNotSet) << "a setting is no value";
    EXPECT_EQ(constants.GetStrConstant("Speed"), "") << "a value is no setting";
}

}  // namespace
}  // namespace kvopt
