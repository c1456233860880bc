#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "kvopt/text.h"
#include "stores/store_test_support.h"

namespace kvopt {
namespace {

// Files of version 1 of each format, as they were once written: they open for ever, and what is
// written today is the same to the byte.

std::string Golden(const char* name) {
    return std::string(KVOPT_SOURCE_DIR) + "/tests/stores/golden/" + name;
}

void WriteStudy(const std::string& file) {
    const auto section = IniFileFactory::Instance()->GetIniFile(file, "");
    ContourPlotIniSection contour(*section, false);
    contour.SetPlotType("contour");
    contour.SetAxisType("process");
    contour.SetUseColor(false);
    contour.SetUseConstraints(true);
    contour.NumSimulations(5000);
    contour.ErrorOnAxisFactors(false, false);
    contour.ErrorOnConstantFactors(false, true);
    contour.DistributionOnFactors(2);
    contour.AnalyticalProbability(false);
    section->WriteKey("IncludeModelError", true);
    section->WriteKey("ContourLabels", false);
    contour.AddSelectedResponse("Yield; 100 %");
    contour.AddSelectedResponse(" Öl [g] ");
    PredictedPlotIniSection predicted(*section);
    predicted.SetPlotType("overlay");
    predicted.SetAxisType("mixture");
    predicted.SetUseConfLevels(false);
    section->SetSection("ContourAxis");
    section->WriteKey("X", "Speed = [m/s] #1");
    section->SetSection("Speed = [m/s] #1");
    section->WriteKey("Min3D", 0.1);
    section->WriteKey("Max3D", static_cast<double>(0.3F));
    section->SetSection("温度");
    section->WriteKey("QualitativeSettings", "Low;\"High\"");
    IniFactorConstant constants(*section);
    constants.SetConstant("Speed = [m/s] #1", -1e-300);
    constants.SetStrConstant("温度", "first line\nsecond\tline");
}

TEST(GoldenFiles, AStudyIniFileIsWrittenAsItAlwaysWas) {
    const test::TemporaryFolder folder;
    WriteStudy(folder.File("study.ini"));
    EXPECT_EQ(test::Slurp(folder.File("study.ini")), test::Slurp(Golden("study-1.ini")));
}

TEST(GoldenFiles, AnOldStudyIniFileOpens) {
    const auto section = IniFileFactory::Instance()->GetIniFile(Golden("study-1.ini"), "");
    ASSERT_NE(section, nullptr);
    const ContourPlotIniSection contour(*section, false);
    EXPECT_EQ(contour.GetPlotType(), "contour");
    EXPECT_EQ(contour.GetAxisType(), "process");
    EXPECT_FALSE(contour.UseColor());
    EXPECT_TRUE(contour.UseConstraints());
    EXPECT_EQ(contour.NumSimulations(), 5000);
    EXPECT_FALSE(contour.ErrorOnAxisFactors(false));
    EXPECT_TRUE(contour.ErrorOnConstantFactors(false));
    EXPECT_EQ(contour.DistributionOnFactors(), 2);
    EXPECT_FALSE(contour.AnalyticalProbability());
    EXPECT_TRUE(section->ReadKeyOr("IncludeModelError", false));
    EXPECT_FALSE(section->ReadKeyOr("ContourLabels", true));
    EXPECT_EQ(contour.GetNumSelectedResponses(), 2);
    EXPECT_EQ(contour.GetSelectedResponse(1), "Yield; 100 %");
    EXPECT_EQ(contour.GetSelectedResponse(2), " Öl [g] ");
    const PredictedPlotIniSection predicted(*section);
    EXPECT_EQ(predicted.GetPlotType(), "overlay");
    EXPECT_EQ(predicted.GetAxisType(), "mixture");
    EXPECT_FALSE(predicted.GetUseConfLevels());
    section->SetSection("ContourAxis");
    EXPECT_EQ(section->ReadKeyOr("X", std::string()), "Speed = [m/s] #1");
    section->SetSection("Speed = [m/s] #1");
    EXPECT_EQ(section->ReadKeyOr("Min3D", kNotSet), 0.1);
    EXPECT_EQ(section->ReadKeyOr("Max3D", kNotSet), static_cast<double>(0.3F));
    section->SetSection("温度");
    EXPECT_EQ(section->ReadKeyOr("QualitativeSettings", std::string()), "Low;\"High\"");
    const IniFactorConstant constants(*section);
    EXPECT_EQ(constants.GetConstant("Speed = [m/s] #1"), -1e-300);
    EXPECT_EQ(constants.GetStrConstant("温度"), "first line\nsecond\tline");
}

ConfigurationStore MakePlot() {
    ConfigurationStore store;
    const auto root = store.Root();
    root->WriteKey("IndividualPredictionError", "yes");
    const auto plot = root->GetSection("ContourPlotData");
    plot->WriteKey("PlotType", 4);
    plot->WriteKey("ISDSProbability", true);
    plot->WriteKey("Resolution", std::numeric_limits<int>::min());
    const auto axes = root->GetSection("ContourAxis");
    axes->GetSection("Axis_1")->WriteKey("Name", "Speed = [m/s] #1");
    axes->GetSection("Axis_2");
    const auto constants = axes->GetSection("Constants");
    for (const int number : {1, 2, 4}) {
        const auto constant = constants->GetIndexedSection("Constant", number);
        constant->WriteKey("Name", number == 4 ? "bad \xFF name" : "温度 \"T\"\\\n");
        constant->WriteKey("Value", number == 1   ? -0.0
                                    : number == 2 ? std::numeric_limits<double>::infinity()
                                                  : 5e-324);
    }
    return store;
}

TEST(GoldenFiles, ASavedPlotIsWrittenAsItAlwaysWas) {
    const test::TemporaryFolder folder;
    MakePlot().Save(folder.File("plot.json"));
    EXPECT_EQ(test::Slurp(folder.File("plot.json")), test::Slurp(Golden("plot-1.json")));
}

TEST(GoldenFiles, AnOldSavedPlotOpens) {
    const ConfigurationStore store = ConfigurationStore::Load(Golden("plot-1.json"));
    const auto root = store.Root();
    EXPECT_EQ(root->ReadKeyOr("IndividualPredictionError", std::string()), "yes");
    const auto plot = root->GetSection("ContourPlotData");
    EXPECT_EQ(plot->ReadKeyOr("PlotType", -1), 4);
    EXPECT_TRUE(plot->ReadKeyOr("ISDSProbability", false));
    EXPECT_EQ(plot->ReadKeyOr("Resolution", 0), std::numeric_limits<int>::min());
    const auto axes = root->GetSection("ContourAxis");
    EXPECT_EQ(axes->GetSection("Axis_1")->ReadKeyOr("Name", std::string()), "Speed = [m/s] #1");
    EXPECT_TRUE(axes->HasSection("Axis_2", true));
    const auto constants = axes->GetSection("Constants");
    EXPECT_EQ(constants->CountSections("Constant"), 3);
    EXPECT_EQ(constants->GetIndexedSection("Constant", 3), nullptr);
    const auto first = constants->GetIndexedSection("Constant", 1);
    EXPECT_EQ(first->ReadKeyOr("Name", std::string()), "温度 \"T\"\\\n");
    EXPECT_TRUE(std::signbit(first->ReadKeyOr("Value", 1.0)));
    EXPECT_TRUE(std::isinf(constants->GetIndexedSection("Constant", 2)->ReadKeyOr("Value", 1.0)));
    const auto last = constants->GetIndexedSection("Constant", 4);
    EXPECT_EQ(last->ReadKeyOr("Name", std::string()), "bad \xFF name");
    EXPECT_EQ(last->ReadKeyOr("Value", 1.0), 5e-324);
    EXPECT_EQ(store.Text(), test::Slurp(Golden("plot-1.json")));
}

}  // namespace
}  // namespace kvopt
