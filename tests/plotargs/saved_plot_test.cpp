// Whole plots through their stores: the files that they are saved in, byte for byte, and what comes
// back of a file that lacks something.

#include <gmock/gmock.h>

#include <set>

#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"
#include "plotargs/plot_study.h"
#include "stores/store_test_support.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"
#include "text/german_process.h"

namespace kvopt::test {
namespace {

struct GoldenCase {
    const char* name;
    int plotType;
    int axisType;
    bool designSpace;
    std::vector<const char*> axes;

    friend std::ostream& operator<<(std::ostream& out, const GoldenCase& value) {
        return out << value.name;
    }
};

class SavedPlot : public testing::TestWithParam<GoldenCase> {
protected:
    SavedPlot() {
        study.Number("Temperature", 20, 80).units = "°C";
        study.Number("Pressure", 0.1, 2.5).units = "bar";
        study.Number("Time", 5, 60).units = "min";
        study.Names("Catalyst", {"Pd", "Pt", "Ni"});
        study.Number("Unfitted", 0, 1);
        study.Part("Water", 0.1, 0.8);
        study.Part("Oil", 0.1, 0.6);
        study.Part("Emulsifier", 0.05, 0.2);
        for (const char* response : {"Yield", "Cost", "Purity"}) {
            study.Response(response);
        }
        study.inNoModel = {"Unfitted"};
        study.favouriteSetpoint.SetStart({50, 0.7F, 5, 2, 0.5F, 0.5F, 0.3F, 0.2F});
    }

    std::unique_ptr<ContourPlotData> Fresh() {
        return std::make_unique<ContourPlotData>(&study, 8, "study.ini", GetParam().designSpace,
                                                 GetParam().designSpace, false, false);
    }
    /// A plot in which most things differ from the defaults.
    std::unique_ptr<ContourPlotData> Plot() {
        std::unique_ptr<ContourPlotData> plot = Fresh();
        ContourPageData& data = *plot->GetContourTypeData();
        data.SetPlotType(static_cast<ContourPageData::Type>(GetParam().plotType));
        data.SetAxisType(static_cast<ContourPageData::AxisType>(GetParam().axisType));
        data.UseConstraints(true);
        data.SetResponses({"Purity", "Yield"});
        ContourPageData::Arguments& options = data.GetOptions();
        options.mixtureMode = GetParam().axisType == 1;
        options.useColor = false;
        options.numSimulations = 2500;
        options.errorOnConstantFactors = false;
        options.distribution = 2;
        options.dpmoTarget = 500;
        options.confLev = CConfLev::Level99;
        options.tolProp = CConfLev::Level90;
        options.intervalType = CIntervalType::Tolerance;
        int numAxes = 0;
        auto& axes = plot->GetSelectedAxisInfo(numAxes);
        EXPECT_EQ(GetParam().axes.size(), static_cast<std::size_t>(numAxes));
        for (std::size_t i = 0; i < GetParam().axes.size(); ++i) {
            const std::string name = GetParam().axes[i];
            AxisInfo& axis = *axes[i + 1];
            axis.SetName(name);
            const FactorClass* factor = study.GetVariables()->GetFactor(name);
            if (factor && factor->IsQualitative()) {
                axis.SetIsQualitative(true);
                axis.SetSettings("Pt;Ni");
            } else if (factor) {
                axis.SetUnit(factor->GetUnits());
                axis.SetRange(0.1F, static_cast<float>(factor->GetHigh(true)));
            }
        }
        FactorConstants::Constant* const constants = plot->GetPlotConstants();
        const auto constant = [&](const char* name) -> FactorConstants::Constant& {
            return constants[FactorConstants::Lookup(constants, name)];
        };
        constant("Pressure").FloatValue(1.25);
        constant("Pressure").SettingPos() = FactorConstants::CUSTOM;
        constant("Water").FloatValue(0.1);
        constant("Water").SettingPos() = FactorConstants::LOW;
        constant("Catalyst").QualValue("Ni");
        return plot;
    }
    std::string GoldenFile() const {
        return KVOPT_SOURCE_DIR "/tests/plotargs/golden/" + std::string(GetParam().name) + ".json";
    }
    /// The keys that the writer writes, in its order.
    SectionLog Keys() {
        ConfigurationStore store;
        SectionLog log;
        RecordingSection section(store.Root(), log);
        Plot()->WriteSection(&section);
        return WrittenKeys(log);
    }

    MemoryIniFiles files;
    PlotStudy study;
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, SavedPlot,
    testing::Values(
        GoldenCase{"process_2d", 0, 0, false, {"Temperature", "Pressure"}},
        GoldenCase{"process_4d", 1, 0, false, {"Temperature", "Pressure", "Catalyst", "Time"}},
        GoldenCase{"mixture_3_axes", 2, 1, false, {"Water", "Oil", "Emulsifier"}},
        GoldenCase{"mixture_5_axes",
                   3,
                   1,
                   false,
                   {"Water", "Oil", "Emulsifier", "Temperature", "<not used>"}},
        GoldenCase{"design_space", 4, 0, true, {"Time", "Temperature", "Pressure", "Catalyst"}}),
    [](const auto& testCase) { return testCase.param.name; });

TEST_P(SavedPlot, IsWrittenByteForByte) {
    ConfigurationStore store;
    Plot()->WriteSection(store.Root().get());
    EXPECT_EQ(store.Text(), Slurp(GoldenFile()));
}

TEST_P(SavedPlot, IsReadBackEqual) {
    const ConfigurationStore store = ConfigurationStore::Load(GoldenFile());
    const std::unique_ptr<ContourPlotData> plot = Fresh();
    EXPECT_TRUE(plot->ReadSection(store.Root().get()));
    EXPECT_EQ(Describe(*plot), Describe(*Plot()));
}

TEST_P(SavedPlot, IsWrittenAgainWithoutAChange) {
    ConfigurationStore store = ConfigurationStore::Load(GoldenFile());
    const std::unique_ptr<ContourPlotData> plot = Fresh();
    ASSERT_TRUE(plot->ReadSection(store.Root().get()));
    plot->WriteSection(store.Root().get());
    EXPECT_EQ(store.Text(), Slurp(GoldenFile()));
}

TEST_P(SavedPlot, AnswersEveryPrefixOfItsKeysByTheLastRequiredOne) {
    const SectionLog keys = Keys();
    bool complete = false;
    for (std::size_t count = 0; count <= keys.size(); ++count) {
        ConfigurationStore store;
        const auto root = store.Root();
        for (std::size_t i = 0; i < count; ++i) {
            ASSERT_TRUE(Replay(keys[i], *root)) << keys[i];
        }
        // Axes and constants are written before the options, whose required keys end with this one.
        complete = complete || (count > 0 && KeyOf(keys[count - 1]) == "UseContourLabels");
        const std::unique_ptr<ContourPlotData> plot = Fresh();
        EXPECT_EQ(plot->ReadSection(root.get()), complete) << "after " << count << " keys";
        if (count == keys.size()) {
            EXPECT_EQ(Describe(*plot), Describe(*Plot()));
        }
    }
    EXPECT_TRUE(complete);
}

TEST_P(SavedPlot, AnswersEveryPrefixInTheReadersOrderByTheSectionOfItsAxes) {
    // The reader asks the options and the selection before the axes: the same keys in that order.
    SectionLog keys = Keys();
    const auto axes = std::stable_partition(keys.begin(), keys.end(), [](const std::string& line) {
        return line.find("Axis") != 1 + std::string("Contour").size();
    });
    ASSERT_NE(axes, keys.end());
    const auto options = static_cast<std::size_t>(axes - keys.begin());
    for (std::size_t count = 0; count <= keys.size(); ++count) {
        ConfigurationStore store;
        const auto root = store.Root();
        for (std::size_t i = 0; i < count; ++i) {
            ASSERT_TRUE(Replay(keys[i], *root)) << keys[i];
        }
        const std::unique_ptr<ContourPlotData> plot = Fresh();
        EXPECT_EQ(plot->ReadSection(root.get()), count > options) << "after " << count << " keys";
    }
}

TEST_P(SavedPlot, AnswersForEachMissingKeyWhetherItIsRequired) {
    const std::set<std::string> required = {"PlotType",        "AxisType",     "UseConstraints",
                                            "HaveConstraints", "UseDummyData", "MixtureMode",
                                            "UseColor",        "ScaleEqual",   "UseContourLabels"};
    const SectionLog keys = Keys();
    for (std::size_t missing = 0; missing < keys.size(); ++missing) {
        ConfigurationStore store;
        const auto root = store.Root();
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (i != missing) {
                Replay(keys[i], *root);
            }
        }
        EXPECT_EQ(Fresh()->ReadSection(root.get()), required.count(KeyOf(keys[missing])) == 0)
            << keys[missing];
    }
}

TEST_P(SavedPlot, SurvivesEachKeyHoldingATextOfAnotherKind) {
    const SectionLog keys = Keys();
    for (std::size_t wrong = 0; wrong < keys.size(); ++wrong) {
        ConfigurationStore store;
        const auto root = store.Root();
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const std::size_t pathEnd = keys[i].find("] ");
            Replay(i == wrong ? keys[i].substr(0, pathEnd) + "] text " + KeyOf(keys[i]) + " = none"
                              : keys[i],
                   *root);
        }
        const std::unique_ptr<ContourPlotData> plot = Fresh();
        EXPECT_NO_THROW(plot->ReadSection(root.get())) << keys[wrong];
        EXPECT_FALSE(Describe(*plot).empty());
    }
}

class HostileName : public testing::TestWithParam<NastyText> {};

INSTANTIATE_TEST_SUITE_P(Texts, HostileName, testing::ValuesIn(NastyTexts()),
                         [](const auto& testCase) { return testCase.param.label; });

TEST_P(HostileName, GoesThroughIniFileAndSavedPlotExactlyAlsoInAGermanProcess) {
    const std::string& name = GetParam().text;
    const TemporaryFolder folder;
    const TroubleRecorder trouble;
    const std::string iniFile = folder.File("study.ini");
    const std::string plotFile = folder.File("plot.json");
    PlotStudy study;
    study.Number("Other", 0, 1);
    study.Names("Cat", {"plain", name});
    if (!name.empty()) {
        study.Number(name, 0, 1e7);
        study.Response(name);
    }
    study.Response("Y");
    const auto plotOf = [&] {
        return std::make_unique<ContourPlotData>(&study, 4, iniFile, false, false, false, false);
    };
    std::string written;
    {
        const GermanProcess german;
        const std::unique_ptr<ContourPlotData> plot = plotOf();
        plot->GetContourTypeData()->SetPlotType(ContourPageData::contour_4D);
        plot->GetContourTypeData()->SetAxisType(ContourPageData::process);
        if (!name.empty()) {
            SetAxis(*plot->GetAxisInfo(2)[1], name, 0.1F, 1234567.9F);
            plot->GetContourTypeData()->SetResponses({name});
        }
        SetAxis(*plot->GetAxisInfo(2)[2], "Other", -1e-7F, 0.3F);
        plot->GetAxisInfo(2)[3]->SetName("Cat");
        plot->GetAxisInfo(2)[3]->SetSettings(name.empty() ? "plain" : name);
        plot->GetAxisInfo(2)[4]->SetName(AxisInfo::GetNotUsedName());
        const int other = FactorConstants::Lookup(plot->GetPlotConstants(), "Other");
        ASSERT_GE(other, 0);
        plot->GetPlotConstants()[other].FloatValue(1234567.125);
        plot->GetPlotConstants()[other].SettingPos() = FactorConstants::CUSTOM;
        FactorConstants::Add(plot->GetPlotConstants(),
                             {"Cat", name.empty() ? "plain" : name, FactorConstants::CUSTOM}, 4);
        plot->Write4DSettings(ContourPlotData::Process4D);
        ConfigurationStore store;
        plot->WriteSection(store.Root().get());
        store.Save(plotFile);
        written = Describe(*plot);
    }
    const std::unique_ptr<ContourPlotData> saved = plotOf();
    const ConfigurationStore store = ConfigurationStore::Load(plotFile);
    EXPECT_TRUE(saved->ReadSection(store.Root().get()));
    EXPECT_EQ(Describe(*saved), written);

    const std::unique_ptr<ContourPlotData> remembered = plotOf();
    remembered->GetContourTypeData()->SetAxisType(ContourPageData::process);
    EXPECT_EQ(remembered->GetContourTypeData()->GetPlotType(), ContourPageData::contour_4D);
    const auto& axes = remembered->GetAxisInfo(2);
    if (!name.empty()) {
        EXPECT_EQ(Describe(*axes[1]), "'" + name + "' [] " +
                                          KvString::FromDouble(static_cast<double>(0.1F)) +
                                          "..1234567.875 {} quantitative");
        EXPECT_EQ(axes[3]->GetSettings(), name);
    }
    EXPECT_EQ(axes[2]->GetMin(), -1e-7F);
    EXPECT_EQ(DescribeConstants(remembered->GetPlotConstants()),
              DescribeConstants(saved->GetPlotConstants()));
    EXPECT_TRUE(trouble.troubles.empty());
}

}  // namespace
}  // namespace kvopt::test
