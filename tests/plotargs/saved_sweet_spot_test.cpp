// Sweet spot plots through the saved plot: the files byte for byte, and what comes back of a file
// that lacks something or was saved by another study.

#include <gmock/gmock.h>

#include "plotargs/sweet_spot_test.h"
#include "stores/store_test_support.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;

struct SweetSpotCase {
    const char* name;
    SweetSpotData::PlotType type;
    bool mixture;
    const char* section;
    std::vector<const char*> axes;

    friend std::ostream& operator<<(std::ostream& out, const SweetSpotCase& value) {
        return out << value.name;
    }
};

class SavedSweetSpot : public SweetSpotTest, public testing::WithParamInterface<SweetSpotCase> {
protected:
    SweetSpotData CasePlot() { return Plot(GetParam().type, GetParam().mixture, GetParam().axes); }
    static std::string GoldenFile() {
        return KVOPT_SOURCE_DIR "/tests/plotargs/golden/" + std::string(GetParam().name) + ".json";
    }
    /// The keys that the writer writes, in its order.
    SectionLog Log() {
        ConfigurationStore written;
        SectionLog log;
        RecordingSection section(written.Root(), log);
        CasePlot().WriteSection(&section);
        return log;
    }
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, SavedSweetSpot,
    testing::Values(SweetSpotCase{"sweet_spot_process_2d",
                                  SweetSpotData::SweetSpot,
                                  false,
                                  "ContourAxis2D",
                                  {"Temperature", "Pressure"}},
                    SweetSpotCase{"sweet_spot_process_4d",
                                  SweetSpotData::SweetSpot4D,
                                  false,
                                  "ContourAxis4D",
                                  {"Temperature", "Pressure", "Catalyst", "Time"}},
                    SweetSpotCase{"sweet_spot_mixture_3_axes",
                                  SweetSpotData::SweetSpot,
                                  true,
                                  "ContourAxisMixture",
                                  {"Water", "Oil", "Emulsifier"}},
                    SweetSpotCase{"sweet_spot_mixture_5_axes",
                                  SweetSpotData::SweetSpot4D,
                                  true,
                                  "ContourAxisMixture",
                                  {"Water", "Oil", "Emulsifier", "Temperature", "<not used>"}}),
    [](const auto& testCase) { return testCase.param.name; });

TEST_P(SavedSweetSpot, IsWrittenByteForByte) {
    CasePlot().WriteSection(root.get());
    EXPECT_EQ(store.Text(), Slurp(GoldenFile()));
    EXPECT_TRUE(root->HasSection(GetParam().section, false));
}

TEST_P(SavedSweetSpot, IsReadBackEqual) {
    const ConfigurationStore golden = ConfigurationStore::Load(GoldenFile());
    SweetSpotData plot = Fresh();
    EXPECT_TRUE(plot.ReadSection(golden.Root().get()));
    EXPECT_EQ(Described(plot), Described(CasePlot()));
}

TEST_P(SavedSweetSpot, IsWrittenAgainWithoutAChange) {
    ConfigurationStore golden = ConfigurationStore::Load(GoldenFile());
    SweetSpotData plot = Fresh();
    ASSERT_TRUE(plot.ReadSection(golden.Root().get()));
    plot.WriteSection(golden.Root().get());
    EXPECT_EQ(golden.Text(), Slurp(GoldenFile()));
}

TEST_P(SavedSweetSpot, WritesItsOwnKeysLastAndBesideTheirEmptySection) {
    SectionLog own;
    bool after = false;
    for (const std::string& line : Log()) {
        after = after || line == "[SweetSpot] Clear";
        if (after) {
            own.push_back(line);
        }
    }
    EXPECT_THAT(own,
                ElementsAre("[SweetSpot] Clear",
                            std::string("[] int Mixture = ") + (GetParam().mixture ? "1" : "0"),
                            "[] int UseConstraints = 0",
                            "[] int PlotType = " + std::to_string(GetParam().type),
                            "[] bool Surface = true", "[] bool ShowLabels = false"));
}

TEST_P(SavedSweetSpot, AnswersForEachMissingKeyWhetherItIsRequired) {
    const SectionLog keys = WrittenKeys(Log());
    for (std::size_t missing = 0; missing < keys.size(); ++missing) {
        ConfigurationStore partial;
        const auto partialRoot = partial.Root();
        partialRoot->GetSection("SweetSpot");
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (i != missing) {
                Replay(keys[i], *partialRoot);
            }
        }
        SweetSpotData plot = Fresh();
        // Without its type a process plot reads as a plot without axes, for which none are needed.
        EXPECT_EQ(plot.ReadSection(partialRoot.get()), KeyOf(keys[missing]) != "Mixture")
            << keys[missing];
    }
}

TEST_P(SavedSweetSpot, SurvivesEachKeyHoldingATextOfAnotherKind) {
    const SectionLog keys = WrittenKeys(Log());
    for (std::size_t wrong = 0; wrong < keys.size(); ++wrong) {
        ConfigurationStore odd;
        const auto oddRoot = odd.Root();
        oddRoot->GetSection("SweetSpot");
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const std::size_t pathEnd = keys[i].find("] ");
            Replay(i == wrong ? keys[i].substr(0, pathEnd) + "] text " + KeyOf(keys[i]) + " = none"
                              : keys[i],
                   *oddRoot);
        }
        SweetSpotData plot = Fresh();
        EXPECT_NO_THROW(plot.ReadSection(oddRoot.get())) << keys[wrong];
    }
}

// What is not kept.

TEST_F(SweetSpotTest, KeepsNeitherResolutionsNorWhereItCameFrom) {
    SweetSpotData plot = Plot();
    const std::string before = (plot.WriteSection(root.get()), store.Text());
    plot.SetResolution(1);
    plot.SetCreatedFromOptimizer(true);
    plot.SetOverrideDisableMixture(true);
    plot.SetExtraHeaderInformation(L"header");
    plot.WriteSection(root.get());
    EXPECT_EQ(store.Text(), before);
    SweetSpotData other = Fresh();
    other.SetResolution(5);
    EXPECT_TRUE(other.ReadSection(root.get()));
    EXPECT_EQ(other.GetResolution(), 5);
}

TEST_F(SweetSpotTest, EmptiesItsSectionAndKeepsWhatElseStandsBesideIt) {
    root->GetSection("SweetSpot")->WriteKey("Old", 1);
    root->WriteKey("Other", 2);
    Plot().WriteSection(root.get());
    int number = 0;
    EXPECT_FALSE(root->GetSection("SweetSpot")->ReadKey("Old", number));
    EXPECT_TRUE(root->ReadKey("Other", number));
    EXPECT_TRUE(root->HasSection("SweetSpot", true));
    EXPECT_FALSE(root->HasSection("SweetSpot", false));
}

TEST_F(SweetSpotTest, WritesNoAxesWithoutAPlotType) {
    SweetSpotData plot = Plot();
    plot.SetPlotType(SweetSpotData::NoPlot);
    plot.WriteSection(root.get());
    for (const char* section : {"ContourAxis", "ContourAxis2D", "ContourAxisMixture",
                                "ContourAxis4D", "YPredictedAxis"}) {
        EXPECT_FALSE(root->HasSection(section, true)) << section;
    }
    SweetSpotData other = Fresh();
    EXPECT_TRUE(other.ReadSection(root.get()));
    EXPECT_EQ(other.GetPlotType(), SweetSpotData::NoPlot);
}

TEST_F(SweetSpotTest, IsWrittenNowhereWithoutASection) {
    EXPECT_THROW(Plot().WriteSection(nullptr), InvalidArgument);
    EXPECT_FALSE(Fresh().ReadSection(nullptr));
}

// Reading.

TEST_F(SweetSpotTest, KeepsEverythingWithoutTheForm) {
    Plot().WriteSection(root.get());
    ConfigurationStore partial;
    const auto partialRoot = partial.Root();
    partialRoot->GetSection("SweetSpot");
    partialRoot->WriteKey("PlotType", 2);
    partialRoot->WriteKey("UseConstraints", 0);
    SweetSpotData plot = Fresh();
    const std::string before = Described(plot);
    EXPECT_FALSE(plot.ReadSection(partialRoot.get()));
    EXPECT_EQ(Described(plot), before);
}

struct FormRow {
    int stored;
    bool mixtureOnly;
    bool processOnly;
    bool surface;  ///< of the plot before the reading
    bool mixture;
};

TEST_F(SweetSpotTest, TakesTheFormThatTheFactorsAllow) {
    for (const FormRow& row :
         {FormRow{0, false, false, false, false}, FormRow{1, false, false, false, true},
          FormRow{0, true, false, false, true}, FormRow{1, true, false, false, true},
          FormRow{0, false, true, false, false}, FormRow{1, false, true, false, false},
          FormRow{1, false, false, true, false}, FormRow{0, true, false, true, true},
          FormRow{1, true, false, true, false}, FormRow{2, false, false, false, false},
          FormRow{2, true, false, false, false}, FormRow{-1, true, false, false, false}}) {
        study.mixtureOnly = row.mixtureOnly;
        study.processOnly = row.processOnly;
        ConfigurationStore saved;
        saved.Root()->GetSection("SweetSpot");
        saved.Root()->WriteKey("Mixture", row.stored);
        saved.Root()->WriteKey("PlotType", 0);
        for (const bool before : {false, true}) {
            SweetSpotData plot = Fresh(before);
            plot.SetIsSurface(row.surface);
            EXPECT_TRUE(plot.ReadSection(saved.Root().get()));
            EXPECT_EQ(plot.IsMixture(), row.mixture)
                << row.stored << row.mixtureOnly << row.processOnly << row.surface;
        }
    }
}

TEST_F(SweetSpotTest, GoesByTheSurfaceThatItWasAndNotByTheStoredOne) {
    Plot(SweetSpotData::SweetSpot, true, {"Water", "Oil", "Emulsifier"}).WriteSection(root.get());
    SweetSpotData plot = Fresh();
    EXPECT_TRUE(plot.ReadSection(root.get()));
    EXPECT_TRUE(plot.IsMixture());
    EXPECT_TRUE(plot.IsSurface());
    // Read once more it is a surface, and so looks for process axes, which are not there.
    EXPECT_FALSE(plot.ReadSection(root.get()));
    EXPECT_FALSE(plot.IsMixture());
}

TEST_F(SweetSpotTest, SetsTheFormWithoutLookingAtConstants) {
    Plot(SweetSpotData::NoPlot, true, {}).WriteSection(root.get());
    SweetSpotData plot = Fresh();
    plot.GetPlotConstants()[0] = FactorConstants::Constant();
    EXPECT_TRUE(plot.ReadSection(root.get()));
    EXPECT_TRUE(plot.IsMixture());
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 0);
}

TEST_F(SweetSpotTest, ReadsTheAxesByTheFormThatItTook) {
    Plot(SweetSpotData::SweetSpot, true, {"Water", "Oil", "Emulsifier"}).WriteSection(root.get());
    // The axes of the process form, as another plot may have left them in the same place.
    SweetSpotData process = Plot();
    process.WizardPlotData::WriteSection(root.get(), WizardPlotData::ContourAxis2D, 1, 2);
    study.processOnly = true;
    SweetSpotData plot = Fresh(true);
    EXPECT_TRUE(plot.ReadSection(root.get()));
    EXPECT_FALSE(plot.IsMixture());
    EXPECT_EQ(plot.GetAxisInfo(1)[1]->GetName(), "Temperature");
    EXPECT_EQ(plot.GetAxisInfo(1)[3]->GetName(), AxisInfo::GetNotUsedName());
    study.processOnly = false;
    study.mixtureOnly = true;
    root->WriteKey("Mixture", 0);
    SweetSpotData mixture = Fresh();
    EXPECT_TRUE(mixture.ReadSection(root.get()));
    EXPECT_TRUE(mixture.IsMixture());
    EXPECT_EQ(mixture.GetAxisInfo(1)[1]->GetName(), "Water");
    EXPECT_EQ(mixture.GetAxisInfo(1)[3]->GetName(), "Emulsifier");
}

TEST_F(SweetSpotTest, KnowsTwoPlotTypesAndTakesTheFormForAMissingOne) {
    Plot().WriteSection(root.get());
    root->WriteKey("Mixture", 0);
    for (const int stored : {0, 3, -1, 100}) {
        root->WriteKey("PlotType", stored);
        SweetSpotData plot = Fresh();
        EXPECT_TRUE(plot.ReadSection(root.get()));
        EXPECT_EQ(plot.GetPlotType(), SweetSpotData::NoPlot) << stored;
        EXPECT_EQ(plot.GetAxisInfo(1)[1]->GetName(), "") << "no axes are read";
    }
    ConfigurationStore old;
    const auto oldRoot = old.Root();
    oldRoot->GetSection("SweetSpot");
    SweetSpotData process = Plot();
    process.WizardPlotData::WriteSection(oldRoot.get(), WizardPlotData::ContourAxis4D, 1, 2);
    SweetSpotData axes = Plot(SweetSpotData::SweetSpot, true, {"Water", "Oil", "Emulsifier"});
    axes.WizardPlotData::WriteSection(oldRoot.get(), WizardPlotData::ContourAxisMixture, 1, 3);
    for (const int stored : {0, 1, 2, 3}) {
        oldRoot->WriteKey("Mixture", stored);
        SweetSpotData plot = Fresh();
        EXPECT_TRUE(plot.ReadSection(oldRoot.get())) << stored;
        EXPECT_EQ(plot.GetPlotType(), stored == 3 ? 0 : stored);
    }
}

TEST_F(SweetSpotTest, StopsWhereItsAxesCannotBeRead) {
    SweetSpotData saved = Plot();
    saved.SetPlotType(SweetSpotData::SweetSpot4D);
    saved.WriteSection(root.get());
    study.unavailable = {"Pressure"};
    SetAxis(*saved.GetAxisInfo(2)[1], "Time", 1, 2);
    SetAxis(*saved.GetAxisInfo(2)[2], "Pressure", 1, 2);
    saved.WriteSection(root.get());
    SweetSpotData plot = Fresh();
    EXPECT_FALSE(plot.ReadSection(root.get()));
    EXPECT_EQ(plot.GetPlotType(), SweetSpotData::SweetSpot4D);
    EXPECT_EQ(plot.GetAxisInfo(2)[1]->GetName(), "Time");
    EXPECT_TRUE(plot.UseConstraints()) << "the keys behind the axes are not read";
    EXPECT_TRUE(plot.IsShowLabels());
}

TEST_F(SweetSpotTest, NeedsItsEmptySectionAfterTheAxes) {
    ConfigurationStore partial;
    const auto partialRoot = partial.Root();
    SectionLog log;
    RecordingSection section(store.Root(), log);
    Plot().WriteSection(&section);
    for (const std::string& line : log) {
        Replay(line, *partialRoot);
    }
    ASSERT_FALSE(partialRoot->HasSection("SweetSpot", true));
    SweetSpotData plot = Fresh();
    EXPECT_FALSE(plot.ReadSection(partialRoot.get()));
    EXPECT_EQ(plot.GetAxisInfo(1)[1]->GetName(), "Temperature") << "the axes were changed";
    EXPECT_TRUE(plot.UseConstraints());
    EXPECT_FALSE(plot.IsSurface());
}

TEST_F(SweetSpotTest, UsesConstraintsUnlessToldOtherwise) {
    root->GetSection("SweetSpot");
    root->WriteKey("Mixture", 0);
    SweetSpotData plot = Fresh();
    plot.SetUseConstraints(false);
    plot.SetIsSurface(true);
    plot.ShowLabels(false);
    EXPECT_TRUE(plot.ReadSection(root.get()));
    EXPECT_TRUE(plot.UseConstraints());
    EXPECT_TRUE(plot.IsSurface()) << "a missing key leaves it";
    EXPECT_FALSE(plot.IsShowLabels()) << "a missing key leaves it";
    for (const int stored : {0, 1, 2, -1}) {
        root->WriteKey("UseConstraints", stored);
        EXPECT_TRUE(plot.ReadSection(root.get()));
        EXPECT_EQ(plot.UseConstraints(), stored == 1) << stored;
    }
}

}  // namespace
}  // namespace kvopt::test
