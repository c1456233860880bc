#include <gmock/gmock.h>

#include "kvopt/plotargs/wizard_plot_data.h"
#include "plotargs/plot_study.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"

namespace kvopt::test {
namespace {

using FactorConstants::Constant;
using testing::ElementsAre;

class WizardPlotStoreTest : public testing::Test {
protected:
    using Plot = WizardPlotData;

    WizardPlotStoreTest() {
        study.Number("A", 0, 10);
        study.Names("Cat", {"Pd", "Pt"});
        study.Number("C", 100, 200);
        study.Number("D", 0, 1);
    }

    /// The text at a path of the ini file, "absent" without the key.
    std::string Ini(const char* section, const char* key) {
        IniFileSection& ini = files.File("study.ini");
        ini.SetSection(section);
        std::string text = "absent";
        if (!ini.ReadKey(key, text)) {
            double number = kNotSet;
            if (ini.ReadKey(key, number)) {
                text = KvString::FromDouble(number);
            }
        }
        return text;
    }
    static std::unique_ptr<ConfigurationSection> Entry(ConfigurationSection& root, int number) {
        return root.GetSection("ContourAxis2D")
            ->GetSection("Constants")
            ->GetIndexedSection("Constant", number);
    }
    static Constant* Find(const WizardPlotData& plot, const std::string& name) {
        const int index = FactorConstants::Lookup(plot.GetPlotConstants(), name);
        return index < 0 ? nullptr : &plot.GetPlotConstants()[index];
    }

    MemoryIniFiles files;
    PlotStudy study;
    ConfigurationStore store;
    std::unique_ptr<ConfigurationSection> root = store.Root();
};

TEST_F(WizardPlotStoreTest, WritesEachAxisAndThenEachConstantToTheIniFile) {
    study.optimum = {2, 2, 150, 0.5F};
    AnyPlotData plot(study, 2, 5);
    SetAxis(*plot.GetAxisInfo(2)[1], "A", 1, 2.5F);
    plot.GetAxisInfo(2)[2]->SetName("Cat");
    plot.GetAxisInfo(2)[2]->SetSettings("Pt;Pd");
    files.Log().clear();
    plot.WriteSettings(Plot::ContourAxisMixture, 2, 2);
    EXPECT_THAT(files.Log(),
                ElementsAre("[ContourAxisMixture] text 1stAxis = A", "[A] double Min3D = 1",
                            "[A] double Max3D = 2.5", "[ContourAxisMixture] text 2ndAxis = Cat",
                            "[Cat] text QualitativeSettings = Pt;Pd", "[Const3D] double A = 2",
                            "[FactorConstants] double A = 2", "[Cat] text Const3D = Pt",
                            "[FactorSettings] text Cat = Pt", "[Const3D] double C = 150",
                            "[FactorConstants] double C = 150", "[Const3D] double D = 0.5",
                            "[FactorConstants] double D = 0.5"));
}

TEST_F(WizardPlotStoreTest, DoesNotFlushTheIniFile) {
    const AnyPlotData plot(study);
    plot.WriteSettings(Plot::ContourAxis2D, 1, 2);
    for (const std::string& line : files.Log()) {
        EXPECT_EQ(line.find("Flush"), std::string::npos) << line;
    }
}

TEST_F(WizardPlotStoreTest, WritesTheUsedSetForANumberBelowZeroAndOnlyPositionsThatExist) {
    AnyPlotData plot(study, 2, 3);
    plot.used = 2;
    plot.GetAxisInfo(2)[3]->SetName("D");
    plot.WriteSettings(Plot::ContourAxis2D, -1, 8);
    EXPECT_EQ(Ini("ContourAxis2D", "3rdAxis"), "D");
    EXPECT_EQ(Ini("ContourAxis2D", "4thAxis"), "absent");
    files.Log().clear();
    for (const int numAxes : {0, 2}) {
        EXPECT_THROW(plot.WriteSettings(Plot::ContourAxis2D, 3, numAxes), InvalidArgument);
    }
    EXPECT_THAT(files.Log(), ElementsAre());
}

TEST_F(WizardPlotStoreTest, WritesAnUnusedAxisLikeAnyOtherAndOfANamelessOneTheKeyAlone) {
    AnyPlotData plot(study, 1, 2);
    const std::string unused = AxisInfo::GetNotUsedName();
    plot.GetAxisInfo(1)[1]->SetName(unused);
    files.Log().clear();
    plot.WriteSettings(Plot::ContourAxis2D, 1, 2);
    const SectionLog firstLines(files.Log().begin(), files.Log().begin() + 5);
    EXPECT_THAT(
        firstLines,
        ElementsAre("[ContourAxis2D] text 1stAxis = " + unused,
                    "[" + unused + "] double Min3D = -99", "[" + unused + "] double Max3D = -99",
                    "[ContourAxis2D] text 2ndAxis = ", testing::StartsWith("[Const3D]")));
}

TEST_F(WizardPlotStoreTest, WritesADefaultForAFactorWithoutAConstant) {
    study.Part("M", 0.2, 0.4);
    const AnyPlotData plot(study);
    plot.GetPlotConstants()[0] = Constant();
    plot.WriteSettings(Plot::ContourAxis2D, 1, 0);
    EXPECT_EQ(Ini("Const3D", "A"), "5");
    EXPECT_EQ(Ini("Cat", "Const3D"), "Pd");
    EXPECT_EQ(Ini("Const3D", "C"), "150");
    const Variables& variables = *study.GetVariables();
    EXPECT_EQ(Ini("Const3D", "M"), KvString::FromDouble(FactorConstants::GetQuantitativeFloatValue(
                                       variables, variables.GetFactor("M"), FactorConstants::REF)));
    EXPECT_EQ(IniFactorConstant(files.File("study.ini")).GetStrConstant("Cat"), "Pd");
}

TEST_F(WizardPlotStoreTest, WritesConstantsOfMixtureFactorsAndOfAvailableOnesInAModel) {
    study.Part("M", 0.2, 0.4);
    study.inNoModel = {"A", "M"};
    study.unavailable = {"C", "M"};
    const AnyPlotData plot(study);
    plot.WriteSettings(Plot::ContourAxis2D, 1, 0);
    EXPECT_EQ(Ini("Const3D", "A"), "absent") << "in no model";
    EXPECT_EQ(Ini("Const3D", "C"), "absent") << "not available";
    EXPECT_EQ(Ini("Const3D", "D"), "0.5");
    EXPECT_NE(Ini("Const3D", "M"), "absent") << "a mixture factor always";
}

TEST_F(WizardPlotStoreTest, TellsAConstantsKindByTheEntryAndNotByTheFactor) {
    const AnyPlotData plot(study);
    *Find(plot, "A") = Constant("A", "text", FactorConstants::CUSTOM);
    plot.WriteSettings(Plot::ContourAxis2D, 1, 0);
    EXPECT_EQ(Ini("Const3D", "A"), "absent");
    EXPECT_EQ(Ini("A", "Const3D"), "text");
}

TEST_F(WizardPlotStoreTest, BringsRememberedConstantsBackInTheNextPlot) {
    {
        const AnyPlotData plot(study);
        Find(plot, "A")->FloatValue(0.1);
        plot.WriteSettings(Plot::ContourAxis2D, 1, 0);
    }
    EXPECT_EQ(Find(AnyPlotData(study), "A")->FloatValue(), 0.1);
    EXPECT_EQ(Find(AnyPlotData(study), "Cat")->QualValue(), "Pd");
}

TEST_F(WizardPlotStoreTest, RefusesToWriteACopysSettingsBeforeAnythingIsWritten) {
    const AnyPlotData plot(study);
    const AnyPlotData copy(plot);
    files.Log().clear();
    EXPECT_THROW(copy.WriteSettings(Plot::ContourAxis2D, 1, 2), InvalidArgument);
    EXPECT_THAT(files.Log(), ElementsAre());
}

TEST_F(WizardPlotStoreTest, WritesASavedPlotInOrder) {
    study.optimum = {2, 2, -99, 0.5F};
    AnyPlotData plot(study, 1, 5);
    SetAxis(*plot.GetAxisInfo(1)[1], "A", 1, 2);
    FactorConstants::Lookup(plot.GetPlotConstants(), "C");
    SectionLog log;
    RecordingSection section(store.Root(), log);
    plot.WriteSection(&section, Plot::ContourAxis2D, 1, 1);
    std::erase_if(log,
                  [](const std::string& line) { return line.find("Axis_1") != std::string::npos; });
    EXPECT_THAT(log, ElementsAre("[ContourAxis2D/Constants] Clear",
                                 "[ContourAxis2D/Constants/Constant#1] text Name = A",
                                 "[ContourAxis2D/Constants/Constant#1] text Setting = CUSTOM",
                                 "[ContourAxis2D/Constants/Constant#1] double Value = 2",
                                 "[ContourAxis2D/Constants/Constant#2] text Name = Cat",
                                 "[ContourAxis2D/Constants/Constant#2] text Value = Pt",
                                 "[ContourAxis2D/Constants/Constant#3] text Name = C",
                                 "[ContourAxis2D/Constants/Constant#3] text Setting = REF",
                                 "[ContourAxis2D/Constants/Constant#3] double Value = 150",
                                 "[ContourAxis2D/Constants/Constant#4] text Name = D",
                                 "[ContourAxis2D/Constants/Constant#4] text Setting = REF",
                                 "[ContourAxis2D/Constants/Constant#4] double Value = 0.5"));
}

TEST_F(WizardPlotStoreTest, WritesAxesBeforeConstants) {
    AnyPlotData plot(study, 1, 5);
    plot.GetAxisInfo(1)[2]->SetName("A");
    SectionLog log;
    RecordingSection section(store.Root(), log);
    plot.WriteSection(&section, Plot::YPredictedAxis, 1, 9);
    ASSERT_FALSE(log.empty());
    EXPECT_THAT(log.front(), testing::StartsWith("[YPredictedAxis/Axis_1]"));
    const auto child = root->GetSection("YPredictedAxis");
    EXPECT_TRUE(child->HasSection("Axis_5", true));
    EXPECT_FALSE(child->HasSection("Axis_6", true));
    EXPECT_THROW(plot.WriteSection(nullptr, Plot::ContourAxis2D, 1, 2), InvalidArgument);
    for (const int numAxes : {0, 2}) {
        EXPECT_THROW(plot.WriteSection(&section, Plot::ContourAxis2D, 2, numAxes), InvalidArgument);
    }
    EXPECT_FALSE(root->HasSection("ContourAxis2D", true));
}

TEST_F(WizardPlotStoreTest, NumbersConstantsByTheFactorsPlaceWithGaps) {
    study.inNoModel = {"C"};
    const AnyPlotData plot(study);
    plot.WriteSection(root.get(), Plot::ContourAxis2D, 1, 0);
    const auto constants = root->GetSection("ContourAxis2D")->GetSection("Constants");
    EXPECT_EQ(constants->CountSections("Constant"), 3);
    const ConfigurationSection& reading = *constants;
    for (const auto& [number, name] :
         std::map<int, std::string>{{1, "A"}, {2, "Cat"}, {3, ""}, {4, "D"}}) {
        const auto entry = reading.GetIndexedSection("Constant", number);
        std::string read;
        if (entry) {
            entry->ReadKey("Name", read);
        }
        EXPECT_EQ(read, name) << number;
    }
}

TEST_F(WizardPlotStoreTest, DoesNotReadBackAnEntryWithANumberAboveTheCount) {
    study.inNoModel = {"C"};
    AnyPlotData plot(study);
    Find(plot, "A")->FloatValue(1);
    Find(plot, "D")->FloatValue(1);
    plot.WriteSection(root.get(), Plot::ContourAxis2D, 1, 0);
    AnyPlotData other(study);
    EXPECT_TRUE(other.ReadSection(root.get(), Plot::ContourAxis2D, 1, 0));
    EXPECT_EQ(Find(other, "A")->FloatValue(), 1);
    EXPECT_EQ(Find(other, "D")->FloatValue(), 0.5) << "written as number 4, three are counted";
}

TEST_F(WizardPlotStoreTest, WritesNoSettingForADefault) {
    const AnyPlotData plot(study);
    plot.GetPlotConstants()[0] = Constant();
    plot.WriteSection(root.get(), Plot::ContourAxis2D, 1, 0);
    const auto entry = Entry(*root, 1);
    std::string text = "absent";
    EXPECT_FALSE(entry->ReadKey("Setting", text));
    double value = 0;
    EXPECT_TRUE(entry->ReadKey("Value", value));
    EXPECT_EQ(value, 5);
    EXPECT_TRUE(Entry(*root, 2)->ReadKey("Value", text));
    EXPECT_EQ(text, "Pd");
    EXPECT_FALSE(Entry(*root, 2)->ReadKey("Setting", text));
}

TEST_F(WizardPlotStoreTest, ClearsTheConstantsAndNotTheSectionOfTheType) {
    const auto section = root->GetSection("ContourAxis2D");
    section->WriteKey("Foreign", 1);
    section->GetSection("Axis_4")->WriteKey("Name", "A");
    Entry(*root, 9)->WriteKey("Name", "A");
    const AnyPlotData plot(study);
    plot.WriteSection(root.get(), Plot::ContourAxis2D, 1, 2);
    int foreign = 0;
    EXPECT_TRUE(section->ReadKey("Foreign", foreign));
    EXPECT_TRUE(section->HasSection("Axis_4", false));
    EXPECT_EQ(section->GetSection("Constants")->CountSections("Constant"), 4);
}

TEST_F(WizardPlotStoreTest, ReadsBackWhatItWrote) {
    study.optimum = {2, 2, 133, 0.25F};
    AnyPlotData plot(study, 2, 5);
    SetAxis(*plot.GetAxisInfo(2)[1], "A", 0.1F, 2.5F);
    plot.GetAxisInfo(2)[2]->SetName("Cat");
    plot.GetAxisInfo(2)[2]->SetIsQualitative(true);
    plot.GetAxisInfo(2)[2]->SetSettings("Pt;Pd");
    plot.GetAxisInfo(2)[3]->SetName(AxisInfo::GetNotUsedName());
    plot.WriteSection(root.get(), Plot::ContourAxis2D, 2, 3);
    study.optimum.clear();
    study.optimum = {1, 1, -99, -99};
    AnyPlotData other(study, 2, 5);
    other.used = 2;
    EXPECT_TRUE(other.ReadSection(root.get(), Plot::ContourAxis2D, -1, 3));
    EXPECT_EQ(Describe(other.GetAxisInfo(2), 3), Describe(plot.GetAxisInfo(2), 3));
    EXPECT_EQ(DescribeConstants(other.GetPlotConstants()),
              "  A = 2 (CUSTOM)\n  C = 133 (CUSTOM)\n  Cat = Pt (CUSTOM)\n"
              "  D = 0.25 (CUSTOM)\n");
    EXPECT_THAT(NamesOf(other.GetAxisInfo(2)),
                ElementsAre("-", "A", "Cat", AxisInfo::GetNotUsedName(), AxisInfo::GetNotUsedName(),
                            AxisInfo::GetNotUsedName()));
    EXPECT_THAT(NamesOf(other.GetAxisInfo(1)), ElementsAre("-", "", "", "", "", ""));
}

TEST_F(WizardPlotStoreTest, ReadsNothingWithoutTheSectionOfTheType) {
    AnyPlotData plot(study);
    plot.GetAxisInfo(1)[5]->SetName("A");
    root->GetSection("ContourAxis2D");
    EXPECT_FALSE(plot.ReadSection(root.get(), Plot::ContourAxisMixture, 1, 2));
    EXPECT_FALSE(plot.ReadSection(nullptr, Plot::ContourAxis2D, 1, 2));
    EXPECT_EQ(plot.GetAxisInfo(1)[5]->GetName(), "A");
    EXPECT_THROW(plot.ReadSection(root.get(), Plot::ContourAxis2D, 3, 2), InvalidArgument);
    EXPECT_THROW(plot.ReadSection(root.get(), Plot::ContourAxisMixture, 3, 2), InvalidArgument)
        << "a set that is not there is told before a section that is not";
}

TEST_F(WizardPlotStoreTest, ReadsAnEmptySectionOfTheType) {
    AnyPlotData plot(study, 1, 3);
    root->GetSection("ContourAxis2D");
    SetAxis(*plot.GetAxisInfo(1)[1], "A", 1, 2);
    EXPECT_TRUE(plot.ReadSection(root.get(), Plot::ContourAxis2D, 1, 2));
    EXPECT_THAT(NamesOf(plot.GetAxisInfo(1)),
                ElementsAre("-", "A", "", AxisInfo::GetNotUsedName()));
    const AnyPlotData fresh(study);
    EXPECT_EQ(DescribeConstants(plot.GetPlotConstants()),
              DescribeConstants(fresh.GetPlotConstants()));
}

TEST_F(WizardPlotStoreTest, CreatesNothingInASavedPlotThatItReads) {
    root->GetSection("ContourAxis2D");
    const std::string before = store.Text();
    AnyPlotData plot(study);
    plot.ReadSection(root.get(), Plot::ContourAxis2D, 1, 5);
    EXPECT_EQ(store.Text(), before);
}

TEST_F(WizardPlotStoreTest, StopsAtAnAxisWhoseFactorIsGoneWithEarlierAxesChanged) {
    AnyPlotData plot(study, 1, 3);
    SetAxis(*plot.GetAxisInfo(1)[1], "C", 1, 2);
    SetAxis(*plot.GetAxisInfo(1)[2], "D", 3, 4);
    Find(plot, "A")->FloatValue(1);
    plot.WriteSection(root.get(), Plot::ContourAxis2D, 1, 2);
    study.RemoveFactor("D");
    AnyPlotData other(study, 1, 3);
    EXPECT_FALSE(other.ReadSection(root.get(), Plot::ContourAxis2D, 1, 2));
    EXPECT_THAT(NamesOf(other.GetAxisInfo(1)), ElementsAre("-", "C", "D", ""));
    EXPECT_EQ(Find(other, "A")->FloatValue(), 5) << "constants are not read";
}

TEST_F(WizardPlotStoreTest, StopsAtAnAxisWhoseFactorIsNotAvailable) {
    AnyPlotData plot(study, 1, 3);
    plot.GetAxisInfo(1)[1]->SetName("C");
    plot.WriteSection(root.get(), Plot::ContourAxis2D, 1, 1);
    study.unavailable = {"C"};
    AnyPlotData other(study, 1, 3);
    EXPECT_FALSE(other.ReadSection(root.get(), Plot::ContourAxis2D, 1, 1));
}

TEST_F(WizardPlotStoreTest, JudgesAnAxisThatTheSavedPlotDoesNotHold) {
    root->GetSection("ContourAxis2D");
    AnyPlotData plot(study, 1, 2);
    plot.GetAxisInfo(1)[1]->SetName("Gone");
    EXPECT_FALSE(plot.ReadSection(root.get(), Plot::ContourAxis2D, 1, 2));
}

class SavedConstants : public WizardPlotStoreTest {
protected:
    void Write(int number, const char* name, const char* setting) {
        Entry(*root, number)->WriteKey("Name", name);
        if (setting) {
            Entry(*root, number)->WriteKey("Setting", setting);
        }
    }
    void Write(int number, const char* name, const char* setting, double value) {
        Write(number, name, setting);
        Entry(*root, number)->WriteKey("Value", value);
    }
    void Write(int number, const char* name, const char* setting, const char* value) {
        Write(number, name, setting);
        Entry(*root, number)->WriteKey("Value", value);
    }
    std::string Read(bool empty) {
        study.optimum = {1, 1, 101, 0.75F};
        AnyPlotData plot(study);
        if (empty) {
            plot.GetPlotConstants()[0] = Constant();
        }
        EXPECT_TRUE(plot.ReadSection(root.get(), Plot::ContourAxis2D, 1, 0));
        return DescribeConstants(plot.GetPlotConstants());
    }
};

TEST_F(SavedConstants, ChangeTheEntriesThatAreThere) {
    Write(1, "A", "LOW", 0.0);
    Write(2, "Cat", nullptr, "Pt");
    EXPECT_EQ(Read(false),
              "  A = 0 (LOW)\n  C = 101 (CUSTOM)\n  Cat = Pt (CUSTOM)\n  D = 0.75 (CUSTOM)\n");
}

TEST_F(SavedConstants, ChangeAQualitativeEntryThatIsTheFirst) {
    PlotStudy other;
    other.Names("Cat", {"Pd", "Pt"});
    other.optimum = {1};
    AnyPlotData plot(other);
    Write(1, "Cat", nullptr, "Pt");
    EXPECT_TRUE(plot.ReadSection(root.get(), Plot::ContourAxis2D, 1, 0));
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 1);
    EXPECT_EQ(Find(plot, "Cat")->QualValue(), "Pt");
}

TEST_F(SavedConstants, KeepAQualitativeEntryForASettingThatIsNotLegal) {
    Write(1, "Cat", nullptr, "Cu");
    EXPECT_EQ(Read(false),
              "  A = 1 (CUSTOM)\n  C = 101 (CUSTOM)\n  Cat = Pd (CUSTOM)\n  D = 0.75 (CUSTOM)\n");
}

TEST_F(SavedConstants, AreAddedWhereMissing) {
    Write(1, "A", "HIGH", 10.0);
    EXPECT_EQ(Read(true), "  A = 10 (HIGH)\n");
}

TEST_F(SavedConstants, GiveANewQualitativeEntryTheLastSettingTextAndNotItsValue) {
    Write(1, "A", "HIGH", 10.0);
    Write(2, "Cat", "REF", "Pt");
    EXPECT_EQ(Read(true), "  A = 10 (HIGH)\n  Cat = HIGH (CUSTOM)\n");
}

TEST_F(SavedConstants, GiveANewQualitativeEntryNothingWithoutAQuantitativeOneBefore) {
    Write(1, "Cat", "REF", "Pt");
    EXPECT_EQ(Read(true), "  Cat =  (CUSTOM)\n");
}

TEST_F(SavedConstants, TakeAMissingValueAndSettingFromTheEntryBefore) {
    Write(1, "A", "HIGH", 10.0);
    Write(2, "C", nullptr);
    Write(3, "D", "LOW");
    EXPECT_EQ(Read(true), "  A = 10 (HIGH)\n  C = 10 (HIGH)\n  D = 10 (LOW)\n");
}

TEST_F(SavedConstants, TakeAMissingTextFromTheQualitativeEntryBefore) {
    study.Names("Cat2", {"Pd", "Pt"});
    Write(1, "Cat", nullptr, "Pt");
    Write(2, "Cat2", nullptr);
    study.optimum = {1, 1, 101, 0.75F, 1};
    AnyPlotData plot(study);
    EXPECT_TRUE(plot.ReadSection(root.get(), Plot::ContourAxis2D, 1, 0));
    EXPECT_EQ(Find(plot, "Cat2")->QualValue(), "Pt");
}

TEST_F(SavedConstants, StartFromNotSetAndNoPosition) {
    Write(1, "A", nullptr);
    EXPECT_EQ(Read(true), "  A = -99 (NO_SETTING)\n");
}

TEST_F(SavedConstants, DoNotTakeAMissingNameFromTheEntryBefore) {
    Write(1, "A", "LOW", 0.0);
    Entry(*root, 2)->WriteKey("Value", 7.0);
    EXPECT_EQ(Read(true), "  A = 0 (LOW)\n");
}

TEST_F(SavedConstants, AreSkippedForUnknownUnusedAndUnavailableFactors) {
    study.inNoModel = {"A"};
    study.unavailable = {"C"};
    Write(1, "A", "LOW", 0.0);
    Write(2, "Nobody", "LOW", 0.0);
    Write(3, "C", "LOW", 100.0);
    Write(4, "D", "HIGH", 1.0);
    EXPECT_EQ(Read(true), "  D = 1 (HIGH)\n");
}

TEST_F(SavedConstants, OfASkippedFactorLeaveNothingBehind) {
    Write(1, "Nobody", "LOW", 3.0);
    Write(2, "A", nullptr);
    EXPECT_EQ(Read(true), "  A = -99 (NO_SETTING)\n");
}

TEST_F(SavedConstants, AreReadForAMixtureFactorInNoModel) {
    study.Part("M", 0, 1);
    study.inNoModel = {"M"};
    Write(1, "M", "CUSTOM", 0.3);
    EXPECT_EQ(Read(true), "  M = 0.3 (CUSTOM)\n");
}

}  // namespace
}  // namespace kvopt::test
