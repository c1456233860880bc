#include <gmock/gmock.h>

#include "kvopt/plotargs/contour_page_data.h"
#include "plotargs/plot_study.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;

class ContourPageStoreTest : public testing::Test {
protected:
    ContourPageStoreTest() {
        study.Number("A", 0, 10);
        study.Number("B", 0, 10);
        study.Response("Y1");
        study.Response("Y2");
    }

    ContourPageData Contour() { return {&study, false, false, false, false}; }
    ConfigurationSection& Child() {
        child_ = root->GetSection("ContourPlotData");
        return *child_;
    }
    /// A saved plot of a fresh object, from which tests take away or change.
    void Save() { Contour().WriteSection(root.get()); }
    /// Takes one key out of the saved plot.
    void Drop(const std::string& key) {
        ConfigurationStore whole;
        SectionLog log;
        RecordingSection recording(whole.Root(), log);
        Contour().WriteSection(&recording);
        root->GetSection("ContourPlotData")->Clear();
        for (const std::string& line : WrittenKeys(log)) {
            if (KeyOf(line) != key) {
                Replay(line, *root);
            }
        }
    }

    PlotStudy study;
    ConfigurationStore store;
    std::unique_ptr<ConfigurationSection> root = store.Root();

private:
    MemoryIniFiles files_;
    std::unique_ptr<ConfigurationSection> child_;
};

TEST_F(ContourPageStoreTest, WritesItsKeysInOrder) {
    ContourPageData data = Contour();
    data.GetOptions().confLev = CConfLev::Level99;
    data.GetOptions().intervalType = CIntervalType::Tolerance;
    SectionLog log;
    RecordingSection section(store.Root(), log);
    data.WriteSection(&section);
    const auto responses = std::find_if(log.begin(), log.end(), [](const std::string& line) {
        return line.compare(0, 17, "[ContourPlotData]") != 0;
    });
    EXPECT_NE(responses, log.end()) << "the selection stands in the outer section, after the keys";
    EXPECT_THAT(
        SectionLog(log.begin(), responses),
        ElementsAre(
            "[ContourPlotData] Clear", "[ContourPlotData] int PlotType = 0",
            "[ContourPlotData] bool ISDSProbability = false",
            "[ContourPlotData] bool HideSurface = false",
            "[ContourPlotData] bool ISDesirability = false", "[ContourPlotData] int AxisType = 0",
            "[ContourPlotData] bool UseConstraints = false",
            "[ContourPlotData] bool HaveConstraints = false",
            "[ContourPlotData] bool UseDummyData = false",
            "[ContourPlotData] bool MixtureMode = false", "[ContourPlotData] bool UseColor = true",
            "[ContourPlotData] bool ScaleEqual = false",
            "[ContourPlotData] bool UseContourLabels = true",
            "[ContourPlotData] bool HasContourLabels = true",
            "[ContourPlotData] bool IsProbabilityPlot = false",
            "[ContourPlotData] bool FromDesignSpace = false",
            "[ContourPlotData] int NumSimulations = 10000",
            "[ContourPlotData] bool RErrorOnAxisFactors = true",
            "[ContourPlotData] bool RErrorOnConstantFactors = true",
            "[ContourPlotData] int DistributionForFactors = 1",
            "[ContourPlotData] bool AnalyticalProbability = true",
            "[ContourPlotData] int DSOutput = 0", "[ContourPlotData] bool IncludeModelError = true",
            "[ContourPlotData] int DPMOTarget = 10000",
            "[ContourPlotData] bool BackTransformedFactors = false",
            "[ContourPlotData] text IntervalType = " +
                CIntervalType::GetString(CIntervalType::Tolerance),
            "[ContourPlotData] int ConfLev = 3", "[ContourPlotData] int TolProp = 2"));
    EXPECT_THROW(data.WriteSection(nullptr), InvalidArgument);
}

TEST_F(ContourPageStoreTest, ClearsWhatAnEarlierPlotLeftInItsChild) {
    Child().WriteKey("Foreign", 1);
    root->WriteKey("Foreign", 1);
    Save();
    int value = 0;
    EXPECT_FALSE(Child().ReadKey("Foreign", value));
    EXPECT_TRUE(root->ReadKey("Foreign", value));
}

TEST_F(ContourPageStoreTest, ReadsBackWhatItWrote) {
    ContourPageData data(&study, false, false, true, true);
    data.SetPlotType(ContourPageData::surface_3D);
    data.SetAxisType(ContourPageData::mixture);
    data.UseConstraints(true);
    data.SetHaveConstraints(true);
    data.SetUseDummyData(true);
    ContourPageData::Arguments& options = data.GetOptions();
    options.mixtureMode = true;
    options.useColor = false;
    options.scaleEqual = true;
    options.useContourLabels = false;
    options.fromDesignSpaceKey = true;
    options.numSimulations = 5;
    options.errorOnAxisFactors = false;
    options.errorOnConstantFactors = false;
    options.distribution = 3;
    options.analyticalProbability = false;
    options.dsOutput = 4;
    options.includeModelError = false;
    options.dpmoTarget = 6;
    options.backTransformedFactors = true;
    options.surfaceHidden = true;
    options.confLev = CConfLev::Level90;
    options.tolProp = CConfLev::Level99;
    options.intervalType = CIntervalType::Prediction;
    data.SetResponses({"Y2"});
    data.WriteSection(root.get());
    ContourPageData other = Contour();
    EXPECT_TRUE(other.ReadSection(root.get()));
    EXPECT_EQ(Describe(other), Describe(data));
}

TEST_F(ContourPageStoreTest, ReadsNothingWithoutItsChild) {
    ContourPageData data = Contour();
    const std::string before = Describe(data);
    EXPECT_FALSE(data.ReadSection(root.get()));
    EXPECT_FALSE(data.ReadSection(nullptr));
    Child();
    EXPECT_FALSE(data.ReadSection(root.get())) << "no plot type";
    EXPECT_EQ(Describe(data), before);
}

class RequiredKey : public ContourPageStoreTest, public testing::WithParamInterface<const char*> {};

TEST_P(RequiredKey, EndsTheReadingWhereItIsMissing) {
    Save();
    Drop(GetParam());
    ContourPageData data = Contour();
    data.GetOptions().numSimulations = 1;
    EXPECT_FALSE(data.ReadSection(root.get()));
    EXPECT_EQ(data.GetOptions().numSimulations, 1) << "what comes later is not read";
}

INSTANTIATE_TEST_SUITE_P(Keys, RequiredKey,
                         testing::Values("PlotType", "AxisType", "UseConstraints",
                                         "HaveConstraints", "UseDummyData", "MixtureMode",
                                         "UseColor", "ScaleEqual", "UseContourLabels"));

class OptionalKey : public ContourPageStoreTest, public testing::WithParamInterface<const char*> {};

TEST_P(OptionalKey, LeavesItsFieldWhereItIsMissing) {
    Save();
    Drop(GetParam());
    ContourPageData data = Contour();
    ContourPageData::Arguments& options = data.GetOptions();
    options.numSimulations = 5;
    options.errorOnAxisFactors = false;
    options.errorOnConstantFactors = false;
    options.analyticalProbability = false;
    options.dsOutput = 4;
    options.includeModelError = false;
    options.dpmoTarget = 6;
    options.backTransformedFactors = true;
    options.confLev = CConfLev::Level90;
    options.intervalType = CIntervalType::Tolerance;
    const ContourPageData fresh = Contour();
    EXPECT_TRUE(data.ReadSection(root.get()));
    const std::string key = GetParam();
    EXPECT_EQ(options.numSimulations, key == "NumSimulations" ? 5 : 10000);
    EXPECT_EQ(options.errorOnAxisFactors, key != "RErrorOnAxisFactors");
    EXPECT_EQ(options.errorOnConstantFactors, key != "RErrorOnConstantFactors");
    EXPECT_EQ(options.analyticalProbability, key != "AnalyticalProbability");
    EXPECT_EQ(options.dsOutput, key == "DSOutput" ? 4 : 0);
    EXPECT_EQ(options.includeModelError, key != "IncludeModelError");
    EXPECT_EQ(options.dpmoTarget, key == "DPMOTarget" ? 6 : fresh.GetOptions().dpmoTarget);
    EXPECT_EQ(options.backTransformedFactors, key == "BackTransformedFactors");
    EXPECT_EQ(options.confLev, key == "ConfLev" ? CConfLev::Level90 : fresh.GetOptions().confLev);
    EXPECT_EQ(options.intervalType,
              key == "IntervalType" ? CIntervalType::Tolerance : fresh.GetOptions().intervalType);
}

INSTANTIATE_TEST_SUITE_P(Keys, OptionalKey,
                         testing::Values("NumSimulations", "RErrorOnAxisFactors",
                                         "RErrorOnConstantFactors", "AnalyticalProbability",
                                         "DSOutput", "IncludeModelError", "DPMOTarget",
                                         "BackTransformedFactors", "ConfLev", "IntervalType",
                                         "IsProbabilityPlot", "FromDesignSpace"));

TEST_F(ContourPageStoreTest, ReadsFlagsWithoutAKeyAsFalse) {
    Save();
    for (const char* key : {"HideSurface", "ISDSProbability", "ISDesirability"}) {
        Drop(key);
        ContourPageData data(&study, true, true, true, true);
        EXPECT_TRUE(data.ReadSection(root.get()));
        EXPECT_FALSE(data.IsHideSurface()) << key;
        EXPECT_FALSE(data.ISDSProbability()) << key;
        EXPECT_FALSE(data.IsDesirability()) << key;
        EXPECT_TRUE(data.FromDesignSpace()) << "not in the file";
    }
}

TEST_F(ContourPageStoreTest, TakesEveryKnownPlotTypeAndAxisType) {
    for (int type = 0; type < 5; ++type) {
        for (int axis = 0; axis < 2; ++axis) {
            Save();
            Child().WriteKey("PlotType", type);
            Child().WriteKey("AxisType", axis);
            ContourPageData data = Contour();
            data.SetPlotType(type == 0 ? ContourPageData::surface_3D : ContourPageData::contour_2D);
            data.SetAxisType(axis == 0 ? ContourPageData::mixture : ContourPageData::process);
            EXPECT_TRUE(data.ReadSection(root.get()));
            EXPECT_EQ(data.GetPlotType(), type);
            EXPECT_EQ(data.GetAxisType(), axis);
            EXPECT_FALSE(data.ISDSProbability());
        }
    }
}

TEST_F(ContourPageStoreTest, LeavesAnUnknownPlotTypeAndReadsOn) {
    Save();
    for (const int type : {7, 5, -1}) {
        Child().WriteKey("PlotType", type);
        Child().WriteKey("NumSimulations", 3);
        ContourPageData data = Contour();
        data.SetPlotType(ContourPageData::surface_3D);
        EXPECT_TRUE(data.ReadSection(root.get()));
        EXPECT_EQ(data.GetPlotType(), ContourPageData::surface_3D);
        EXPECT_EQ(data.GetOptions().numSimulations, 3);
    }
}

TEST_F(ContourPageStoreTest, LeavesAnUnknownAxisTypeAndReadsOn) {
    Save();
    Child().WriteKey("AxisType", 2);
    ContourPageData data = Contour();
    data.SetAxisType(ContourPageData::mixture);
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_EQ(data.GetAxisType(), ContourPageData::mixture);
}

TEST_F(ContourPageStoreTest, MakesADesignSpacePlotOfAnyStoredPlotType) {
    Save();
    Child().WriteKey("ISDSProbability", true);
    Child().WriteKey("PlotType", 2);
    ContourPageData data = Contour();
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_EQ(data.GetPlotType(), ContourPageData::ds_probability);
    EXPECT_TRUE(data.GetOptions().isProbabilityPlot) << "follows the flag, not its own key";
}

TEST_F(ContourPageStoreTest, DerivesLabelsFromThePlotTypeWhereTheKeyIsThere) {
    for (int type = 0; type < 5; ++type) {
        for (const bool stored : {false, true}) {
            Save();
            Child().WriteKey("PlotType", type);
            Child().WriteKey("HasContourLabels", stored);
            ContourPageData data = Contour();
            EXPECT_TRUE(data.ReadSection(root.get()));
            EXPECT_EQ(data.GetOptions().hasContourLabels, type == 0 || type == 1 || type == 4)
                << type << stored;
        }
    }
}

TEST_F(ContourPageStoreTest, DerivesLabelsFromTheAxisTypeWhereTheKeyIsMissing) {
    for (const int axis : {0, 1, 2}) {
        for (const int type : {0, 2}) {
            Save();
            Drop("HasContourLabels");
            Child().WriteKey("PlotType", type);
            Child().WriteKey("AxisType", axis);
            ContourPageData data = Contour();
            data.SetAxisType(ContourPageData::mixture);
            EXPECT_TRUE(data.ReadSection(root.get()));
            EXPECT_EQ(data.GetOptions().hasContourLabels, axis == 1)
                << "the number stored, whatever the type: " << axis << type;
        }
    }
}

TEST_F(ContourPageStoreTest, TakesTheErrorSwitchesFromTheKeysOfTheStoredOrigin) {
    Save();
    Child().WriteKey("FromDesignSpace", true);
    Child().WriteKey("ErrorOnAxisFactors", false);
    ContourPageData data = Contour();
    data.GetOptions().errorOnConstantFactors = false;
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_TRUE(data.GetOptions().fromDesignSpaceKey);
    EXPECT_FALSE(data.FromDesignSpace());
    EXPECT_FALSE(data.GetOptions().errorOnAxisFactors);
    EXPECT_FALSE(data.GetOptions().errorOnConstantFactors) << "its key of this origin is missing";
}

TEST_F(ContourPageStoreTest, ReadsAMissingDistributionAsOne) {
    Save();
    Drop("DistributionForFactors");
    ContourPageData data = Contour();
    data.GetOptions().distribution = 5;
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_EQ(data.GetOptions().distribution, 1);
}

TEST_F(ContourPageStoreTest, ReadsAMissingToleranceProportionAsTwo) {
    Save();
    Drop("TolProp");
    ContourPageData data = Contour();
    data.GetOptions().tolProp = CConfLev::Level99;
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_EQ(static_cast<int>(data.GetOptions().tolProp), 2);
}

TEST_F(ContourPageStoreTest, ReadsTheConfidenceLevelOfOldFilesAsText) {
    Save();
    Drop("ConfLev");
    Child().WriteKey("ConfLev", CConfLev::GetString(CConfLev::Level99));
    ContourPageData data = Contour();
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_EQ(data.GetOptions().confLev, CConfLev::Level99);
    Child().WriteKey("ConfLev", "no level");
    data.GetOptions().confLev = CConfLev::Level90;
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_EQ(data.GetOptions().confLev, CConfLev::Level90) << "an unknown text keeps the field";
}

TEST_F(ContourPageStoreTest, ReadsTheIntervalOfOldFilesFromTheOuterSection) {
    const std::pair<const char*, int> cases[] = {{"yes", 2}, {"no", 1}, {"Yes", 1}, {"", 1}};
    for (const auto& [text, type] : cases) {
        Save();
        Drop("IntervalType");
        root->WriteKey("IndividualPredictionError", text);
        ContourPageData data = Contour();
        data.GetOptions().intervalType = CIntervalType::Tolerance;
        EXPECT_TRUE(data.ReadSection(root.get()));
        EXPECT_EQ(static_cast<int>(data.GetOptions().intervalType), type) << text;
    }
}

TEST_F(ContourPageStoreTest, PassesOverTheOldIntervalInItsOwnChildOrBesideANewOne) {
    Save();
    Drop("IntervalType");
    Child().WriteKey("IndividualPredictionError", "yes");
    ContourPageData data = Contour();
    data.GetOptions().intervalType = CIntervalType::Tolerance;
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_EQ(data.GetOptions().intervalType, CIntervalType::Tolerance);

    Child().WriteKey("IntervalType", CIntervalType::GetString(CIntervalType::Confidence));
    root->WriteKey("IndividualPredictionError", "yes");
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_EQ(data.GetOptions().intervalType, CIntervalType::Confidence);
    Child().WriteKey("IntervalType", "no interval at all");
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_EQ(data.GetOptions().intervalType, CIntervalType::Confidence);
}

TEST_F(ContourPageStoreTest, ReadsItsKeysInOrder) {
    Save();
    SectionLog log;
    const RecordingSection section(store.Root(), log);
    ContourPageData data = Contour();
    EXPECT_TRUE(data.ReadSection(&section));
    std::vector<std::string> keys;
    for (const std::string& line : log) {
        if (line.compare(0, 17, "[ContourPlotData]") == 0) {
            keys.push_back(line.substr(std::string("[ContourPlotData] read ").size()));
        }
    }
    EXPECT_THAT(
        keys, ElementsAre(
                  "int PlotType", "bool HideSurface", "bool ISDSProbability", "bool ISDesirability",
                  "int AxisType", "bool UseConstraints", "bool HaveConstraints",
                  "bool UseDummyData", "bool MixtureMode", "bool UseColor", "bool ScaleEqual",
                  "bool UseContourLabels", "int HasContourLabels", "bool FromDesignSpace",
                  "int NumSimulations", "bool RErrorOnAxisFactors", "bool AnalyticalProbability",
                  "bool RErrorOnConstantFactors", "int DistributionForFactors", "int DSOutput",
                  "bool IncludeModelError", "int DPMOTarget", "bool BackTransformedFactors",
                  "int ConfLev", "int TolProp", "text IntervalType"));
}

TEST_F(ContourPageStoreTest, ReadsFlagsWrittenAsNumbers) {
    Save();
    Child().WriteKey("UseColor", 0);
    Child().WriteKey("ScaleEqual", 1);
    ContourPageData data = Contour();
    EXPECT_TRUE(data.ReadSection(root.get()));
    EXPECT_FALSE(data.UseColor());
    EXPECT_TRUE(data.GetOptions().scaleEqual);
}

TEST_F(ContourPageStoreTest, SelectsWhatWasSelectedWhenTheRestIsRead) {
    ContourPageData data = Contour();
    data.SetResponses({"Y2", "Y1"});
    data.WriteSection(root.get());
    study.Response("Y3");
    ContourPageData other = Contour();
    EXPECT_TRUE(other.ReadSection(root.get()));
    EXPECT_THAT(other.GetSelectedResponses(), ElementsAre("Y1", "Y2", "Y3"))
        << "all were selected, so all are";
}

}  // namespace
}  // namespace kvopt::test
