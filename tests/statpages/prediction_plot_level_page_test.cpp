#include "kvopt/statpages/prediction_plot_level_page.h"

#include "statpages/level_page_test.h"
#include "support/fake_study.h"

namespace kvopt::test {
namespace {

class PredictionPlotLevelPageTest : public LevelPageTest {
protected:
    PredictionPlotLevelPageTest() {
        study.iniFileName = "study.ini";
        before.dpmoLimit = 77;
        before.confidenceLevel = CConfLev::Level90;
        before.toleranceProportion = CConfLev::Level90;
        before.intervalType = CIntervalType::Confidence;
        before.SaveAsGlobalSettings(&study);
    }

    void ShowPage(bool saveGlobal, BasePropertyPageHelper* helper = nullptr) {
        Show(std::make_unique<PredictionPlotLevelPage>(&study, level, tolerance, type, helper,
                                                       &useLevel, saveGlobal));
    }

    MemoryIniFiles files;
    FakeStudy study;
    DesignSpaceOptions before;
};

TEST_F(PredictionPlotLevelPageTest, IsAPageOfPredictionLevels) {
    type = CIntervalType::None;
    useLevel = false;
    ShowPage(false);
    EXPECT_EQ(page->TemplateNumber(), 6230);
    EXPECT_EQ(page->HelpTopicID(), 226U);
    auto* interval = page->Item<CComboBox>(6344);
    EXPECT_EQ(interval->GetCurSel(), 3);
    EXPECT_TRUE(interval->UserPick(2));
    EXPECT_TRUE(page->IsChanged());
    EXPECT_TRUE(Tolerance().IsEnabled());
    EXPECT_TRUE(interval->UserPick(0));
    EXPECT_FALSE(Tolerance().IsEnabled());
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(type, CIntervalType::Confidence);
    EXPECT_TRUE(useLevel);
}

TEST_F(PredictionPlotLevelPageTest, MakesTheChoiceTheStudysOwn) {
    ShowPage(true);
    EXPECT_TRUE(page->Item<CComboBox>(6344)->UserPick(2));
    EXPECT_TRUE(Level().UserPick(2));
    EXPECT_TRUE(Tolerance().UserPick(2));
    EXPECT_TRUE(page->OnApply());
    DesignSpaceOptions expected = before;
    expected.confidenceLevel = CConfLev::Level99;
    expected.toleranceProportion = CConfLev::Level99;
    expected.intervalType = CIntervalType::Tolerance;
    EXPECT_EQ(DesignSpaceOptions(&study), expected);
}

TEST_F(PredictionPlotLevelPageTest, RemembersOnlyTheThreeValues) {
    ShowPage(true);
    Level().UserPick(2);
    files.Log().clear();
    EXPECT_TRUE(page->OnApply());
    SectionLog keys;
    for (const std::string& line : WrittenKeys(files.Log())) {
        keys.push_back(KeyOf(line));
    }
    EXPECT_THAT(keys, testing::ElementsAre("ConfLev", "TolProp", "IntervalType"));
}

TEST_F(PredictionPlotLevelPageTest, RemembersAnUnchangedChoiceToo) {
    ShowPage(true);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(DesignSpaceOptions(&study).confidenceLevel, CConfLev::Level95);
    EXPECT_EQ(DesignSpaceOptions(&study).intervalType, CIntervalType::Prediction);
}

TEST_F(PredictionPlotLevelPageTest, RemembersNothingWhenItIsNotAskedTo) {
    ShowPage(false);
    Level().UserPick(2);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_EQ(DesignSpaceOptions(&study), before);
}

TEST_F(PredictionPlotLevelPageTest, RemembersNothingThatWasRefused) {
    ConnectedHelper helper;
    helper.answer = false;
    ShowPage(true, &helper);
    Level().UserPick(2);
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(DesignSpaceOptions(&study), before);
}

TEST_F(PredictionPlotLevelPageTest, RemembersNothingWithoutAStudy) {
    Show(std::make_unique<PredictionPlotLevelPage>(nullptr, level, tolerance, type, nullptr,
                                                   nullptr, true));
    Level().UserPick(2);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_EQ(DesignSpaceOptions(&study), before);
}

}  // namespace
}  // namespace kvopt::test
