#include "kvopt/plotargs/contour_plot_data.h"

#include <gmock/gmock.h>

#include "kvopt/plotargs/contour_page_data.h"
#include "plotargs/plot_study.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;

class ContourPlotDataTest : public testing::Test {
protected:
    ContourPlotDataTest() {
        study.Number("A", 0, 10);
        study.Number("B", 20, 30);
        study.Number("C", 40, 50);
        study.Number("D", 60, 70);
        study.Names("Cat", {"Pd", "Pt"});
        study.Part("M1", 0, 0.5);
        study.Part("M2", 0, 0.6);
        study.Part("M3", 0, 0.7);
        study.Response("Y");
    }

    ContourPlotData Plot(bool designSpace = false) {
        return {&study, 8, "study.ini", designSpace, false, false, false};
    }
    IniFileSection& In(const char* section) {
        IniFileSection& ini = files.File("study.ini");
        ini.SetSection(section);
        return ini;
    }
    std::string Text(const char* section, const char* key) {
        return In(section).ReadKeyOr(key, std::string("absent"));
    }
    static void Set(ContourPlotData& plot, int type, int axisType) {
        plot.GetContourTypeData()->SetPlotType(static_cast<ContourPageData::Type>(type));
        plot.GetContourTypeData()->SetAxisType(static_cast<ContourPageData::AxisType>(axisType));
    }

    MemoryIniFiles files;
    PlotStudy study;
    ConfigurationStore store;
    std::unique_ptr<ConfigurationSection> root = store.Root();
};

TEST_F(ContourPlotDataTest, HasFiveSetsOfFiveAxes) {
    ContourPlotData plot = Plot();
    EXPECT_EQ(plot.GetMaxNumAxis(), 5);
    EXPECT_EQ(plot.GetAxisInfo(5).size(), 6U);
    EXPECT_THROW(plot.GetAxisInfo(6), InvalidArgument);
    EXPECT_FALSE(plot.FromOptimizer());
}

TEST_F(ContourPlotDataTest, ReadsTheDefaultOfAQualitativeFactorBackAsAPositionsText) {
    ContourPlotData plot = Plot();
    ASSERT_LT(FactorConstants::Lookup(plot.GetPlotConstants(), "Cat"), 0);
    plot.WriteSection(root.get());
    EXPECT_TRUE(plot.ReadSection(root.get()));
    const int index = FactorConstants::Lookup(plot.GetPlotConstants(), "Cat");
    ASSERT_GE(index, 0);
    EXPECT_EQ(plot.GetPlotConstants()[index].QualValue(), "REF")
        << "written as the first setting, read through the target of the last position";
}

struct SetCase {
    int plotType;
    int axisType;
    int set;
    int numAxes;

    friend std::ostream& operator<<(std::ostream& out, const SetCase& value) {
        return out << "plot type " << value.plotType << ", axis type " << value.axisType;
    }
};

class SelectedSet : public ContourPlotDataTest, public testing::WithParamInterface<SetCase> {};

TEST_P(SelectedSet, FollowsPlotTypeAndAxisType) {
    ContourPlotData plot = Plot();
    Set(plot, GetParam().plotType, GetParam().axisType);
    EXPECT_EQ(plot.GetAxisType(), GetParam().set);
    EXPECT_EQ(plot.GetUsedAxisIx(), GetParam().set);
    int numAxes = 0;
    EXPECT_EQ(&plot.GetSelectedAxisInfo(numAxes), &plot.GetAxisInfo(GetParam().set));
    EXPECT_EQ(numAxes, GetParam().numAxes);
    numAxes = 0;
    EXPECT_EQ(&std::as_const(plot).GetSelectedAxisInfo(numAxes), &plot.GetAxisInfo(GetParam().set));
    EXPECT_EQ(numAxes, GetParam().numAxes);
    EXPECT_EQ(&plot.GetAxisInfo(-1), &plot.GetAxisInfo(GetParam().set));
}

INSTANTIATE_TEST_SUITE_P(Types, SelectedSet,
                         testing::Values(SetCase{0, 0, 1, 2}, SetCase{0, 1, 3, 3},
                                         SetCase{1, 0, 2, 4}, SetCase{1, 1, 4, 5},
                                         SetCase{2, 0, 1, 2}, SetCase{2, 1, 3, 3},
                                         SetCase{3, 0, 2, 4}, SetCase{3, 1, 4, 5},
                                         SetCase{4, 0, 2, 4}, SetCase{4, 1, 4, 5}));

TEST_F(ContourPlotDataTest, RefusesAnUnknownPlotType) {
    ContourPlotData plot = Plot();
    for (const int type : {5, -1}) {
        Set(plot, type, 0);
        int numAxes = 0;
        EXPECT_EQ(plot.GetAxisType(), ContourPlotData::NoAxes);
        EXPECT_THROW(plot.GetSelectedAxisInfo(numAxes), InvalidArgument);
        EXPECT_THROW(std::as_const(plot).GetSelectedAxisInfo(numAxes), InvalidArgument);
        EXPECT_THROW(plot.GetAxisInfo(-1), InvalidArgument);
        EXPECT_THROW(plot.AvailableConstants(), InvalidArgument);
        try {
            plot.GetUsedAxisIx();
            ADD_FAILURE() << "nothing thrown";
        } catch (const InvalidArgument& error) {
            EXPECT_STREQ(error.what(), "ContourPlotData::GetSelectedAxisInfo");
        }
        const std::string before = store.Text();
        EXPECT_THROW(plot.WriteSection(root.get()), InvalidArgument);
        EXPECT_EQ(store.Text(), before) << "thrown before anything is written";
    }
}

TEST_F(ContourPlotDataTest, RefusesToReadAPlotWhoseTypeStaysUnknown) {
    Plot().WriteSection(root.get());
    root->GetSection("ContourPlotData")->WriteKey("PlotType", 9);
    ContourPlotData plot = Plot();
    Set(plot, 9, 0);
    EXPECT_THROW(plot.ReadSection(root.get()), InvalidArgument);
    root->GetSection("ContourPlotData")->WriteKey("PlotType", 0);
    EXPECT_TRUE(plot.ReadSection(root.get())) << "the stored type is known";
}

TEST_F(ContourPlotDataTest, WritesAnUnknownPlotTypesSettingsToTheFirstSection) {
    ContourPlotData plot = Plot();
    Set(plot, 9, 0);
    plot.Write4DSettings(plot.GetAxisType());
    EXPECT_EQ(Text("ContourAxis", "1stAxis"), "absent") << "no set, no axes";
    EXPECT_THROW(plot.Write4DSettings(static_cast<ContourPlotData::AxisType>(9)), InvalidArgument);
}

TEST_F(ContourPlotDataTest, WritesTheSetThatIsNeverSelectedToTheFirstSection) {
    ContourPlotData plot = Plot();
    SetAxis(*plot.GetAxisInfo(5)[1], "A", 1, 2);
    plot.Write4DSettings(static_cast<ContourPlotData::AxisType>(5));
    EXPECT_EQ(Text("ContourAxis", "1stAxis"), "A");
    EXPECT_EQ(Text("ContourAxis2D", "1stAxis"), "absent");
}

TEST_F(ContourPlotDataTest, CountsConstantsOfTheSelectedSet) {
    ContourPlotData plot = Plot();
    EXPECT_EQ(plot.AvailableConstants(), 8);
    plot.GetAxisInfo(1)[1]->SetName("A");
    plot.GetAxisInfo(2)[3]->SetName("B");
    plot.GetAxisInfo(2)[4]->SetName("C");
    EXPECT_EQ(plot.AvailableConstants(), 7);
    Set(plot, 1, 0);
    EXPECT_EQ(plot.AvailableConstants(), 6);
    EXPECT_EQ(plot.AvailableConstants(plot.GetAxisInfo(1), 1), 7);
}

TEST_F(ContourPlotDataTest, StartsADesignSpacePlotAsOne) {
    EXPECT_EQ(Plot(true).GetContourTypeData()->GetPlotType(), ContourPageData::ds_probability);
    const ContourPlotData plot(&study, 8, "study.ini", true, true, true, true);
    EXPECT_TRUE(plot.GetContourTypeData()->FromDesignSpace());
    EXPECT_TRUE(plot.GetContourTypeData()->IsHideSurface());
    EXPECT_TRUE(plot.GetContourTypeData()->IsDesirability());
}

TEST_F(ContourPlotDataTest, TakesItsOptionsFromTheIniFile) {
    ContourPlotData plot = Plot();
    Set(plot, 2, 1);
    plot.WriteSettings(WizardPlotData::ContourAxis2D, 1, 2, true);
    EXPECT_EQ(Plot().GetContourTypeData()->GetPlotType(), ContourPageData::surface_3D);
    EXPECT_EQ(Plot().GetContourTypeData()->GetAxisType(), ContourPageData::mixture);
}

TEST_F(ContourPlotDataTest, LeavesAxesFreshWithoutKeys) {
    const ContourPlotData plot = Plot();
    for (int set = 1; set <= 5; ++set) {
        for (int i = 1; i <= 5; ++i) {
            EXPECT_EQ(Describe(*plot.GetAxisInfo(set)[static_cast<std::size_t>(i)]),
                      "'' [] -99..-99 {} quantitative");
        }
    }
}

TEST_F(ContourPlotDataTest, RestoresPlotAxesOfEverySetFromTwoSections) {
    In("ContourAxis2D").WriteKey("1stAxis", "A");
    In("ContourAxis2D").WriteKey("2ndAxis", "B");
    In("ContourAxis2D").WriteKey("3rdAxis", "C");
    In("ContourAxisMixture").WriteKey("1stAxis", "M1");
    In("ContourAxisMixture").WriteKey("2ndAxis", "M2");
    In("ContourAxisMixture").WriteKey("3rdAxis", "M3");
    In("ContourAxisMixture").WriteKey("4thAxis", "C");
    In("ContourAxis").WriteKey("1stAxis", "D");
    In("A").WriteKey("Min3D", 1.5);
    In("A").WriteKey("Max3D", 2.5);
    const ContourPlotData plot = Plot();
    for (const int set : {1, 2, 5}) {
        EXPECT_THAT(NamesOf(plot.GetAxisInfo(set)), ElementsAre("-", "A", "B", "", "", "")) << set;
        EXPECT_EQ(Describe(*plot.GetAxisInfo(set)[1]), "'A' [] 1.5..2.5 {} quantitative");
        EXPECT_EQ(Describe(*plot.GetAxisInfo(set)[2]), "'B' [] 20..30 {} quantitative");
    }
    for (const int set : {3, 4}) {
        EXPECT_THAT(NamesOf(plot.GetAxisInfo(set)), ElementsAre("-", "M1", "M2", "M3", "", ""))
            << set;
    }
}

TEST_F(ContourPlotDataTest, TakesAMissingLimitFromTheFactor) {
    In("ContourAxis2D").WriteKey("1stAxis", "A");
    In("A").WriteKey("Min3D", 1.5);
    In("ContourAxis2D").WriteKey("2ndAxis", "B");
    In("B").WriteKey("Min3D", -99.0);
    In("B").WriteKey("Max3D", 25);
    const ContourPlotData plot = Plot();
    EXPECT_EQ(Describe(*plot.GetAxisInfo(1)[1]), "'A' [] 1.5..10 {} quantitative");
    EXPECT_EQ(Describe(*plot.GetAxisInfo(1)[2]), "'B' [] 20..25 {} quantitative");
}

TEST_F(ContourPlotDataTest, RestoresAQualitativeAxisOnlyWithSettings) {
    In("ContourAxis2D").WriteKey("1stAxis", "Cat");
    EXPECT_EQ(Describe(*Plot().GetAxisInfo(1)[1]), "'' [] -99..-99 {} quantitative");
    In("Cat").WriteKey("QualitativeSettings", "");
    EXPECT_EQ(Describe(*Plot().GetAxisInfo(1)[1]), "'' [] -99..-99 {} quantitative");
    In("Cat").WriteKey("QualitativeSettings", "Pt");
    EXPECT_EQ(Describe(*Plot().GetAxisInfo(1)[1]), "'Cat' [] -99..-99 {Pt} quantitative")
        << "the qualitative mark is not restored here";
}

TEST_F(ContourPlotDataTest, NeverTakesTheNameOfAnUnknownFactor) {
    In("ContourAxis2D").WriteKey("1stAxis", "Gone");
    In("Gone").WriteKey("Min3D", 1.0);
    EXPECT_EQ(Describe(*Plot().GetAxisInfo(1)[1]), "'' [] -99..-99 {} quantitative");
}

/// Restores its axes again when the test says so.
class RestoredPlotData : public ContourPlotData {
public:
    using ContourPlotData::ContourPlotData;
    using ContourPlotData::InitAxisInfo;
};

TEST_F(ContourPlotDataTest, TakesTheRangeAndNotTheNameForAnUnknownFactor) {
    RestoredPlotData plot(&study, 8, "study.ini", false, false, false, false);
    SetAxis(*plot.GetAxisInfo(1)[1], "A", 1, 2);
    SetAxis(*plot.GetAxisInfo(1)[2], "B", 21, 22);
    In("ContourAxis2D").WriteKey("1stAxis", "Gone");
    plot.InitAxisInfo();
    EXPECT_EQ(Describe(*plot.GetAxisInfo(1)[1]), "'A' [] -99..-99 {} quantitative");
    EXPECT_EQ(Describe(*plot.GetAxisInfo(1)[2]), "'B' [] 21..22 {} quantitative") << "no key";
    In("ContourAxis2D").WriteKey("2ndAxis", AxisInfo::GetNotUsedName());
    plot.InitAxisInfo();
    EXPECT_EQ(Describe(*plot.GetAxisInfo(1)[2]), "'B' [] -99..-99 {} quantitative")
        << "the not-used name is no factor either";
}

TEST_F(ContourPlotDataTest, RestoresTheExtraPairOfBothFourDimensionalSets) {
    In("ContourAxis4D").WriteKey("1stAxis", "C");
    In("ContourAxis4D").WriteKey("2ndAxis", "Cat");
    In("C").WriteKey("Min3D", 41.0);
    In("Cat").WriteKey("QualitativeSettings", "Pt;Pd");
    const ContourPlotData plot = Plot();
    EXPECT_THAT(NamesOf(plot.GetAxisInfo(2)), ElementsAre("-", "", "", "C", "Cat", ""));
    EXPECT_THAT(NamesOf(plot.GetAxisInfo(4)), ElementsAre("-", "", "", "", "C", "Cat"));
    EXPECT_EQ(Describe(*plot.GetAxisInfo(2)[3]), "'C' [] 41..50 {} quantitative");
    EXPECT_EQ(Describe(*plot.GetAxisInfo(4)[5]), "'Cat' [] -99..-99 {Pt;Pd} quantitative");
}

TEST_F(ContourPlotDataTest, GivesAnExtraQualitativeAxisItsFirstSettingWithoutStoredOnes) {
    In("ContourAxis4D").WriteKey("1stAxis", "Cat");
    EXPECT_EQ(Plot().GetAxisInfo(2)[3]->GetSettings(), "Pd");
    In("Cat").WriteKey("QualitativeSettings", "");
    EXPECT_EQ(Plot().GetAxisInfo(4)[4]->GetSettings(), "Pd");
}

TEST_F(ContourPlotDataTest, LeavesAnExtraAxisThatIsEmptyOrNotUsed) {
    In("ContourAxis4D").WriteKey("1stAxis", "");
    In("ContourAxis4D").WriteKey("2ndAxis", AxisInfo::GetNotUsedName());
    In("ContourAxis2D").WriteKey("1stAxis", "A");
    In("ContourAxis2D").WriteKey("2ndAxis", "B");
    const ContourPlotData plot = Plot();
    EXPECT_THAT(NamesOf(plot.GetAxisInfo(2)), ElementsAre("-", "A", "B", "", "", ""));
    EXPECT_EQ(plot.GetAxisInfo(1)[2]->GetMax(), 30.0F) << "it counts as no unknown factor";
    EXPECT_EQ(plot.GetAxisInfo(2)[2]->GetMax(), 30.0F);
}

TEST_F(ContourPlotDataTest, MakesAnExtraAxisUnusedThatIsAPlotAxisAlready) {
    In("ContourAxis2D").WriteKey("1stAxis", "A");
    In("ContourAxis2D").WriteKey("2ndAxis", "B");
    In("ContourAxis4D").WriteKey("1stAxis", "B");
    In("ContourAxis4D").WriteKey("2ndAxis", "A");
    const std::string unused = AxisInfo::GetNotUsedName();
    const ContourPlotData plot = Plot();
    EXPECT_THAT(NamesOf(plot.GetAxisInfo(2)), ElementsAre("-", "A", "B", unused, unused, ""));
    EXPECT_THAT(NamesOf(plot.GetAxisInfo(4)), ElementsAre("-", "", "", "", "B", "A"))
        << "that set has other plot axes";
}

TEST_F(ContourPlotDataTest, DoesNotCompareTheThirdMixtureAxisWithTheExtraPair) {
    In("ContourAxisMixture").WriteKey("1stAxis", "M1");
    In("ContourAxisMixture").WriteKey("2ndAxis", "M2");
    In("ContourAxisMixture").WriteKey("3rdAxis", "M3");
    In("ContourAxis4D").WriteKey("1stAxis", "M3");
    In("ContourAxis4D").WriteKey("2ndAxis", "M2");
    EXPECT_THAT(NamesOf(Plot().GetAxisInfo(4)),
                ElementsAre("-", "M1", "M2", "M3", "M3", AxisInfo::GetNotUsedName()));
}

TEST_F(ContourPlotDataTest, TakesTheRangeOfAnotherSetForAnUnknownExtraFactor) {
    In("ContourAxis2D").WriteKey("1stAxis", "A");
    In("ContourAxis2D").WriteKey("2ndAxis", "B");
    In("ContourAxisMixture").WriteKey("2ndAxis", "M2");
    In("ContourAxis4D").WriteKey("2ndAxis", "Gone");
    const ContourPlotData plot = Plot();
    for (const int set : {3, 4}) {
        EXPECT_NE(plot.GetAxisInfo(set)[2]->GetMax(), kNotSetF) << set;
    }
    for (const int set : {1, 2}) {
        EXPECT_EQ(Describe(*plot.GetAxisInfo(set)[1]), "'A' [] 0..10 {} quantitative") << set;
        EXPECT_EQ(Describe(*plot.GetAxisInfo(set)[2]), "'B' [] -99..-99 {} quantitative") << set;
    }
    EXPECT_EQ(Describe(*plot.GetAxisInfo(5)[2]), "'B' [] 20..30 {} quantitative");
    EXPECT_EQ(Describe(*plot.GetAxisInfo(2)[4]), "'' [] -99..-99 {} quantitative");
}

TEST_F(ContourPlotDataTest, WritesAxesTwiceThenOptionsThenFlushes) {
    ContourPlotData plot = Plot();
    SetAxis(*plot.GetAxisInfo(1)[1], "A", 1, 2);
    plot.GetAxisInfo(1)[2]->SetName("Cat");
    plot.GetAxisInfo(1)[2]->SetSettings("Pt");
    files.Log().clear();
    plot.WriteSettings(WizardPlotData::ContourAxis2D, 1, 2, true);
    SectionLog log = files.Log();
    std::erase_if(log, [](const std::string& line) {
        return line.find("Const3D") != std::string::npos || line.compare(0, 7, "[Factor") == 0;
    });
    ASSERT_GE(log.size(), 11U);
    EXPECT_THAT(
        SectionLog(log.begin(), log.begin() + 11),
        ElementsAre("[ContourAxis2D] text 1stAxis = A", "[A] double Min3D = 1",
                    "[A] double Max3D = 2", "[ContourAxis2D] text 2ndAxis = Cat",
                    "[Cat] text QualitativeSettings = Pt", "[ContourAxis] text 1stAxis = A",
                    "[A] double Min3D = 1", "[A] double Max3D = 2",
                    "[ContourAxis] text 2ndAxis = Cat", "[Cat] text QualitativeSettings = Pt",
                    "[ContourPlot] text PlotType = contour_2D"));
    EXPECT_THAT(log.back(), testing::HasSubstr("Flush"));
    files.Log().clear();
    plot.WriteSettings(WizardPlotData::ContourAxis2D, 1, 2, false);
    EXPECT_THAT(files.Log(), testing::Not(testing::Contains(testing::HasSubstr("Flush"))));
}

TEST_F(ContourPlotDataTest, WritesConstantsBetweenTheTwoSetsOfAxes) {
    ContourPlotData plot = Plot();
    files.Log().clear();
    plot.WriteSettings(WizardPlotData::ContourAxis2D, 1, 1, false);
    const auto position = [&](const std::string& line) {
        return std::find(files.Log().begin(), files.Log().end(), line) - files.Log().begin();
    };
    EXPECT_LT(position("[ContourAxis2D] text 1stAxis = "), position("[Const3D] double A = 5"));
    EXPECT_LT(position("[Const3D] double A = 5"), position("[ContourAxis] text 1stAxis = "));
}

TEST_F(ContourPlotDataTest, SplitsTheExtraPairOffWhenItWritesAProcessSet) {
    ContourPlotData plot = Plot();
    const char* const names[] = {"A", "B", "C", "Cat"};
    for (std::size_t i = 0; i < 4; ++i) {
        SetAxis(*plot.GetAxisInfo(2)[i + 1], names[i], 1, 2);
    }
    plot.GetAxisInfo(2)[4]->SetSettings("Pt");
    files.Log().clear();
    plot.Write4DSettings(ContourPlotData::Process4D);
    EXPECT_EQ(Text("ContourAxis2D", "1stAxis"), "A");
    EXPECT_EQ(Text("ContourAxis2D", "2ndAxis"), "B");
    EXPECT_EQ(Text("ContourAxis2D", "3rdAxis"), "absent");
    EXPECT_EQ(Text("ContourAxis", "2ndAxis"), "B");
    EXPECT_EQ(Text("ContourAxis", "3rdAxis"), "absent");
    EXPECT_EQ(Text("ContourAxis4D", "1stAxis"), "C");
    EXPECT_EQ(Text("ContourAxis4D", "2ndAxis"), "Cat");
    EXPECT_EQ(Text("ContourAxis4D", "3rdAxis"), "absent");
    EXPECT_EQ(Text("Cat", "QualitativeSettings"), "Pt");
    EXPECT_EQ(In("C").ReadKeyOr("Max3D", 0.0), 2.0);
    const auto flushes = std::count_if(
        files.Log().begin(), files.Log().end(),
        [](const std::string& line) { return line.find("Flush") != std::string::npos; });
    EXPECT_EQ(flushes, 1);
    EXPECT_THAT(files.Log().back(), testing::HasSubstr("Flush"));
}

TEST_F(ContourPlotDataTest, SplitsTheExtraPairOffWhenItWritesAMixtureSet) {
    ContourPlotData plot = Plot();
    const char* const names[] = {"M1", "M2", "M3", "A", "B"};
    for (std::size_t i = 0; i < 5; ++i) {
        SetAxis(*plot.GetAxisInfo(4)[i + 1], names[i], 0.1F, 0.2F);
    }
    plot.Write4DSettings(ContourPlotData::Mixture4D);
    EXPECT_EQ(Text("ContourAxisMixture", "3rdAxis"), "M3");
    EXPECT_EQ(Text("ContourAxisMixture", "4thAxis"), "absent");
    EXPECT_EQ(Text("ContourAxis", "3rdAxis"), "M3");
    EXPECT_EQ(Text("ContourAxis4D", "1stAxis"), "A");
    EXPECT_EQ(Text("ContourAxis4D", "2ndAxis"), "B");
    EXPECT_EQ(Text("ContourAxis2D", "1stAxis"), "absent");
    const ContourPlotData next = Plot();
    EXPECT_EQ(Describe(next.GetAxisInfo(4)), Describe(plot.GetAxisInfo(4)));
}

TEST_F(ContourPlotDataTest, RefusesToWriteACopysSettings) {
    ContourPlotData plot = Plot();
    const ContourPlotData copy(plot);
    EXPECT_THROW(copy.WriteSettings(WizardPlotData::ContourAxis2D, 1, 2, true), InvalidArgument);
    EXPECT_THROW(copy.Write4DSettings(ContourPlotData::Process4D), InvalidArgument);
}

TEST_F(ContourPlotDataTest, SavesAllAxesOfAFourDimensionalPlotInTheSectionOfTheRow) {
    ContourPlotData plot = Plot();
    Set(plot, 1, 0);
    plot.WriteSection(root.get());
    const auto section = root->GetSection("ContourAxis2D");
    for (const char* axis : {"Axis_1", "Axis_2", "Axis_3", "Axis_4"}) {
        EXPECT_TRUE(section->HasSection(axis, true)) << axis;
    }
    EXPECT_FALSE(section->HasSection("Axis_5", true));
    EXPECT_FALSE(root->HasSection("ContourAxis4D", true));
    EXPECT_TRUE(root->HasSection("ContourPlotData", true));
}

TEST_F(ContourPlotDataTest, WritesAxesAndConstantsBeforeItsOptions) {
    SectionLog log;
    RecordingSection section(store.Root(), log);
    Plot().WriteSection(&section);
    ASSERT_FALSE(log.empty());
    EXPECT_THAT(log.front(), testing::StartsWith("[ContourAxis2D/Axis_1]"));
}

TEST_F(ContourPlotDataTest, SelectsTheSetByTheOptionsThatItReads) {
    study.optimum = {1, 21, 41, 61, 2, 0.2F, 0.3F, 0.5F};
    ContourPlotData plot = Plot();
    Set(plot, 1, 1);
    const char* const names[] = {"M1", "M2", "M3", "A", "B"};
    for (std::size_t i = 0; i < 5; ++i) {
        SetAxis(*plot.GetAxisInfo(4)[i + 1], names[i], 0.1F, 0.2F);
    }
    plot.WriteSection(root.get());
    ContourPlotData other = Plot();
    EXPECT_TRUE(other.ReadSection(root.get()));
    EXPECT_EQ(other.GetAxisType(), ContourPlotData::Mixture4D);
    EXPECT_EQ(Describe(other), Describe(plot));
}

TEST_F(ContourPlotDataTest, ReadsNoAxesWithoutItsOptions) {
    ContourPlotData plot = Plot();
    SetAxis(*plot.GetAxisInfo(1)[1], "A", 1, 2);
    plot.WriteSection(root.get());
    root->GetSection("ContourPlotData")->Clear();
    ContourPlotData other = Plot();
    EXPECT_FALSE(other.ReadSection(root.get()));
    EXPECT_EQ(other.GetAxisInfo(1)[1]->GetName(), "");
}

TEST_F(ContourPlotDataTest, ReadsNothingMoreWithoutTheSectionOfItsAxes) {
    ContourPlotData plot = Plot();
    plot.WriteSection(root.get());
    root->GetSection("ContourPlotData")->WriteKey("AxisType", 1);
    ContourPlotData other = Plot();
    EXPECT_FALSE(other.ReadSection(root.get()));
    EXPECT_EQ(other.GetContourTypeData()->GetAxisType(), ContourPageData::mixture)
        << "the options stay read";
}

TEST_F(ContourPlotDataTest, CopiesItsOptions) {
    ContourPlotData plot = Plot();
    plot.GetContourTypeData()->SetResolution(77);
    const ContourPlotData copy(plot);
    EXPECT_NE(copy.GetContourTypeData(), plot.GetContourTypeData());
    EXPECT_EQ(Describe(copy), Describe(plot));
    plot.GetContourTypeData()->SetResolution(78);
    EXPECT_EQ(copy.GetContourTypeData()->Resolution(), 77);
}

TEST_F(ContourPlotDataTest, AssignsItsOptionsIntoTheObjectThatPagesReferTo) {
    ContourPlotData plot = Plot();
    plot.GetContourTypeData()->SetResolution(77);
    ContourPlotData other = Plot();
    const ContourPageData* const options = other.GetContourTypeData();
    other = plot;
    EXPECT_EQ(other.GetContourTypeData(), options);
    EXPECT_EQ(options->Resolution(), 77);
    plot.GetContourTypeData()->SetResolution(78);
    EXPECT_EQ(options->Resolution(), 77) << "its own";
    EXPECT_EQ(other.GetAxisInfo(1)[1], plot.GetAxisInfo(1)[1]) << "axes are shared";
}

class OptimizedPlotData : public ContourPlotData {
public:
    using ContourPlotData::ContourPlotData;
    bool FromOptimizer() const override { return true; }
    void Again() { Init(false, false, false, false); }

protected:
    void InitAxisInfo() override { ++restored; }

public:
    int restored = 0;
};

TEST_F(ContourPlotDataTest, RestoresAxesThroughTheDerivedObjectAndKeepsOptionsItHas) {
    OptimizedPlotData plot(&study, 8, "study.ini", false, false, false, false);
    EXPECT_TRUE(plot.FromOptimizer());
    const ContourPageData* const options = plot.GetContourTypeData();
    plot.Again();
    EXPECT_EQ(plot.restored, 1);
    EXPECT_EQ(plot.GetContourTypeData(), options);
}

}  // namespace
}  // namespace kvopt::test
