#include "kvopt/statpages/confidence_level_page.h"

#include "statpages/level_page_test.h"
#include "stores/store_test_support.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ConfidenceLevelPageTest : public LevelPageTest {
protected:
    void ShowPage(bool levelAlwaysEnabled = false, BasePropertyPageHelper* helper = nullptr) {
        Show(std::make_unique<ConfidenceLevelPage>(level, tolerance, helper, nullptr, &type,
                                                   levelAlwaysEnabled));
    }
    void ShowWithUseLevel() {
        Show(std::make_unique<ConfidenceLevelPage>(level, tolerance, nullptr, &useLevel, &type,
                                                   true));
    }
    void ShowLevelAlone(bool levelAlwaysEnabled) {
        Show(std::make_unique<ConfidenceLevelPage>(level, tolerance, nullptr, nullptr, nullptr,
                                                   levelAlwaysEnabled));
    }
    CComboBox& Interval() { return *page->Item<CComboBox>(6300); }
};

TEST_F(ConfidenceLevelPageTest, StandsOnItsTemplate) {
    ShowPage();
    EXPECT_EQ(page->TemplateNumber(), 6155);
    EXPECT_EQ(page->HelpTopicID(), 59U);
    EXPECT_EQ(page->CaptionNumber(), 0U);
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(ConfidenceLevelPageTest, IsReadyWhateverItShows) {
    for (const int value : {1, 2, 3}) {
        type = static_cast<CIntervalType::IntervalType>(value);
        ShowPage();
        EXPECT_TRUE(page->OnInitDialog());
    }
    ShowLevelAlone(false);
    EXPECT_TRUE(page->OnInitDialog());
}

TEST_F(ConfidenceLevelPageTest, OffersWhatItsTemplateHolds) {
    CDialog dialog(6155, nullptr);
    dialog.Create();
    const auto list = [&](int number) -> CComboBox& { return *dialog.Item<CComboBox>(number); };
    EXPECT_THAT(EntriesOf(list(6299)), ElementsAre("90%", "95%", "99%"));
    EXPECT_THAT(EntriesOf(list(6300)), ElementsAre("Confidence", "Prediction", "Tolerance"));
    EXPECT_THAT(EntriesOf(list(6341)), ElementsAre("90%", "95%", "99%"));
    EXPECT_TRUE(list(6299).IsEnabled());
    EXPECT_TRUE(list(6300).IsEnabled());
    EXPECT_FALSE(list(6341).IsEnabled());
    EXPECT_EQ(dialog.GetDlgItem(6302)->GetText(), L"Interval type:");
    EXPECT_EQ(dialog.GetDlgItem(6342)->GetText(), L"Tolerance proportion:");
    EXPECT_EQ(dialog.Controls().front()->GetText(), L"Confidence level:");
}

// Showing.

TEST_F(ConfidenceLevelPageTest, ShowsTheLevelAndTheTolerance) {
    for (const LevelRow& row : kLevelRows) {
        level = static_cast<CConfLev::ConfLev>(row.value);
        tolerance = CConfLev::Level95;
        ShowPage();
        EXPECT_EQ(Level().GetCurSel(), row.entry) << row.value;
        EXPECT_EQ(Tolerance().GetCurSel(), 1);
        level = CConfLev::Level95;
        tolerance = static_cast<CConfLev::ConfLev>(row.value);
        ShowPage();
        EXPECT_EQ(Level().GetCurSel(), 1);
        EXPECT_EQ(Tolerance().GetCurSel(), row.entry) << row.value;
    }
}

TEST_F(ConfidenceLevelPageTest, OffersNoLevelOnlyWhereItMayBeLeftOut) {
    ShowPage();
    EXPECT_THAT(EntriesOf(Level()), ElementsAre("90%", "95%", "99%"));
    ShowWithUseLevel();
    EXPECT_THAT(EntriesOf(Level()), ElementsAre("90%", "95%", "99%", "No confidence level"));
    EXPECT_EQ(Level().GetCurSel(), 1);
    EXPECT_EQ(Interval().GetCount(), 3);
    useLevel = false;
    ShowWithUseLevel();
    EXPECT_EQ(Level().GetCurSel(), 3);
}

TEST_F(ConfidenceLevelPageTest, ShowsOnlyTheLevelWithoutAnIntervalType) {
    for (const bool alwaysEnabled : {false, true}) {
        ShowLevelAlone(alwaysEnabled);
        for (const int number : {6300, 6302, 6341, 6342}) {
            EXPECT_FALSE(page->GetDlgItem(number)->IsVisible()) << number;
        }
        EXPECT_TRUE(Level().IsVisible());
        EXPECT_TRUE(Level().IsEnabled());
        EXPECT_TRUE(page->Controls().front()->IsVisible());
        EXPECT_FALSE(Tolerance().IsEnabled());
        EXPECT_EQ(Interval().GetCurSel(), -1);
    }
    ShowPage();
    for (const int number : {6300, 6302, 6341, 6342}) {
        EXPECT_TRUE(page->GetDlgItem(number)->IsVisible()) << number;
    }
}

struct IntervalRow {
    int value;
    int entry;
    bool isTolerance;
};

TEST_F(ConfidenceLevelPageTest, ShowsTheIntervalAndSwitchesTheListsByIt) {
    for (const IntervalRow& row :
         {IntervalRow{1, 0, false}, IntervalRow{2, 1, false}, IntervalRow{3, 2, true},
          IntervalRow{0, 0, false}, IntervalRow{-1, 0, false}, IntervalRow{4, 0, false}}) {
        for (const bool alwaysEnabled : {false, true}) {
            type = static_cast<CIntervalType::IntervalType>(row.value);
            ShowPage(alwaysEnabled);
            EXPECT_EQ(Interval().GetCurSel(), row.entry) << row.value;
            EXPECT_EQ(Tolerance().IsEnabled(), row.isTolerance) << row.value;
            EXPECT_EQ(Level().IsEnabled(), row.isTolerance || alwaysEnabled) << row.value;
            EXPECT_FALSE(page->IsChanged());
        }
    }
}

// Changing.

TEST_F(ConfidenceLevelPageTest, SwitchesTheListsByEachPickOfAnInterval) {
    for (const bool alwaysEnabled : {false, true}) {
        type = CIntervalType::Confidence;
        ShowPage(alwaysEnabled);
        for (const int entry : {2, 1, 2, 0}) {
            EXPECT_TRUE(Interval().UserPick(entry));
            EXPECT_EQ(Tolerance().IsEnabled(), entry == 2) << entry;
            EXPECT_EQ(Level().IsEnabled(), entry == 2 || alwaysEnabled) << entry;
        }
        EXPECT_TRUE(page->IsChanged());
    }
}

TEST_F(ConfidenceLevelPageTest, IsMarkedByEachList) {
    type = CIntervalType::Tolerance;
    for (const int number : {6299, 6300, 6341}) {
        ShowPage();
        EXPECT_TRUE(page->Item<CComboBox>(number)->UserPick(0)) << number;
        EXPECT_TRUE(page->IsChanged()) << number;
    }
}

TEST_F(ConfidenceLevelPageTest, JudgesTheIntervalAgainByEachPickOfALevel) {
    type = CIntervalType::Tolerance;
    ShowPage();
    Interval().SetCurSel(1);
    EXPECT_TRUE(Tolerance().UserPick(2));
    EXPECT_FALSE(Tolerance().IsEnabled());
    EXPECT_FALSE(Level().IsEnabled());
    ShowPage(true);
    Interval().SetCurSel(0);
    EXPECT_TRUE(Level().UserPick(2));
    EXPECT_FALSE(Tolerance().IsEnabled());
    EXPECT_TRUE(Level().IsEnabled());
}

TEST_F(ConfidenceLevelPageTest, SwitchesALevelAloneOffAtTheFirstPick) {
    ShowLevelAlone(false);
    EXPECT_TRUE(Level().UserPick(2));
    EXPECT_FALSE(Level().IsEnabled());
    EXPECT_FALSE(Level().UserPick(0));
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level99);
    ShowLevelAlone(true);
    EXPECT_TRUE(Level().UserPick(0));
    EXPECT_TRUE(Level().IsEnabled());
}

TEST_F(ConfidenceLevelPageTest, CanBeMarkedBeforeItHasAWindow) {
    ConfidenceLevelPage bare(level, tolerance, nullptr, &useLevel, &type, false);
    bare.Changed();
    EXPECT_TRUE(bare.IsChanged());
    level = CConfLev::Level99;
    EXPECT_TRUE(bare.OnApply());
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_EQ(type, CIntervalType::Prediction);
    ShowPage();
    page->DestroyWindow();
    type = CIntervalType::None;
    page->Changed();
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(type, CIntervalType::None) << "nothing is read of a window that is gone";
}

// Applying.

TEST_F(ConfidenceLevelPageTest, StoresWhatIsSelected) {
    type = CIntervalType::Tolerance;
    for (int entry = 0; entry < 3; ++entry) {
        level = CConfLev::None;
        tolerance = CConfLev::Level95;
        ShowPage();
        Level().SetCurSel(entry);
        page->Changed();
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(level, entry + 1);
        EXPECT_EQ(tolerance, CConfLev::Level95);
        tolerance = CConfLev::None;
        level = CConfLev::Level95;
        ShowPage();
        Tolerance().SetCurSel(entry);
        page->Changed();
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(tolerance, entry + 1);
        EXPECT_EQ(level, CConfLev::Level95);
        EXPECT_FALSE(page->IsChanged());
        ShowPage();
        Interval().SetCurSel(entry);
        page->Changed();
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(type, entry + 1);
        type = CIntervalType::Tolerance;
    }
    EXPECT_THAT(desktop.boxes, IsEmpty());
}

TEST_F(ConfidenceLevelPageTest, StoresTheFirstValueWhereNothingIsSelected) {
    level = tolerance = CConfLev::Level99;
    type = CIntervalType::Tolerance;
    ShowPage();
    Level().SetCurSel(-1);
    Tolerance().SetCurSel(-1);
    Interval().SetCurSel(-1);
    page->Changed();
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level90);
    EXPECT_EQ(tolerance, CConfLev::Level90);
    EXPECT_EQ(type, CIntervalType::Confidence);
}

TEST_F(ConfidenceLevelPageTest, KeepsTheLevelThatIsNotUsed) {
    level = CConfLev::Level99;
    ShowWithUseLevel();
    EXPECT_TRUE(Level().UserPick(3));
    EXPECT_TRUE(page->OnApply());
    EXPECT_FALSE(useLevel);
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_TRUE(Level().UserPick(0));
    EXPECT_TRUE(page->OnApply());
    EXPECT_TRUE(useLevel);
    EXPECT_EQ(level, CConfLev::Level90);
}

TEST_F(ConfidenceLevelPageTest, StoresOnlyTheIntervalWhenItIsUnchanged) {
    useLevel = false;
    ShowWithUseLevel();
    level = tolerance = CConfLev::Level99;
    Level().SetCurSel(0);
    Tolerance().SetCurSel(0);
    Interval().SetCurSel(2);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(type, CIntervalType::Tolerance);
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_EQ(tolerance, CConfLev::Level99);
    EXPECT_FALSE(useLevel);
    // A value that is none of the three becomes the first, untouched.
    type = CIntervalType::None;
    ShowPage();
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(type, CIntervalType::Confidence);
}

TEST_F(ConfidenceLevelPageTest, StoresNoIntervalWithoutOne) {
    type = CIntervalType::Tolerance;
    ShowLevelAlone(true);
    Interval().SetCurSel(1);
    EXPECT_TRUE(Level().UserPick(2));
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_EQ(type, CIntervalType::Tolerance);
}

TEST_F(ConfidenceLevelPageTest, KeepsAToleranceOfItsOwnAndLosesItWithThePage) {
    tolerance = CConfLev::Level90;
    type = CIntervalType::Tolerance;
    const auto ownTolerance = [&] {
        return std::make_unique<ConfidenceLevelPage>(level, nullptr, nullptr, &type, false);
    };
    Show(ownTolerance());
    EXPECT_EQ(page->TemplateNumber(), 6155);
    EXPECT_EQ(page->HelpTopicID(), 59U);
    EXPECT_EQ(Tolerance().GetCurSel(), 1);
    EXPECT_TRUE(Tolerance().UserPick(2));
    EXPECT_TRUE(page->OnApply());
    page->DestroyWindow();
    page->Create();
    EXPECT_EQ(Tolerance().GetCurSel(), 2);
    EXPECT_EQ(tolerance, CConfLev::Level90);
    Show(ownTolerance());
    EXPECT_EQ(Tolerance().GetCurSel(), 1);
}

TEST_F(ConfidenceLevelPageTest, TellsItsHelperWhatItStored) {
    ConnectedHelper helper;
    helper.answer = false;
    ShowPage(true, &helper);
    EXPECT_TRUE(Level().UserPick(2));
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_TRUE(page->IsChanged());
    helper.answer = true;
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(helper.updates, 2);
    EXPECT_FALSE(page->IsChanged());
}

// Keeping.

std::string Golden(const char* name) {
    return KVOPT_SOURCE_DIR "/tests/statpages/golden/" + std::string(name) + ".json";
}

TEST_F(ConfidenceLevelPageTest, IsWrittenByteForByte) {
    ConfigurationStore store;
    store.Root()->GetSection("ConfidenceLevelPage")->WriteKey("Old", 1);
    ConfidenceLevelPage::WriteSection(store.Root().get(), CConfLev::Level99, CConfLev::Level90,
                                      CIntervalType::Tolerance);
    EXPECT_EQ(store.Text(), Slurp(Golden("confidence_level_page")));
    ConfidenceLevelPage::WriteSection(store.Root().get(), CConfLev::Level99);
    EXPECT_EQ(store.Text(), Slurp(Golden("confidence_level_alone")));
}

TEST_F(ConfidenceLevelPageTest, WritesAndReadsInOneOrder) {
    ConfigurationStore store;
    SectionLog log;
    RecordingSection section(store.Root(), log);
    ConfidenceLevelPage::WriteSection(&section, level, tolerance, type);
    EXPECT_THAT(log,
                ElementsAre("[ConfidenceLevelPage] Clear", "[ConfidenceLevelPage] int ConfLev = 2",
                            "[ConfidenceLevelPage] int TolProp = 2",
                            "[ConfidenceLevelPage] text IntervalType = Prediction"));
    log.clear();
    EXPECT_TRUE(ConfidenceLevelPage::ReadSection(&section, level, tolerance, type));
    EXPECT_THAT(log, ElementsAre("[ConfidenceLevelPage] read int ConfLev",
                                 "[ConfidenceLevelPage] read int TolProp",
                                 "[ConfidenceLevelPage] read text IntervalType"));
}

TEST_F(ConfidenceLevelPageTest, IsReadBackEqual) {
    const ConfigurationStore store = ConfigurationStore::Load(Golden("confidence_level_page"));
    EXPECT_TRUE(ConfidenceLevelPage::ReadSection(store.Root().get(), level, tolerance, type));
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_EQ(tolerance, CConfLev::Level90);
    EXPECT_EQ(type, CIntervalType::Tolerance);
    level = CConfLev::Level95;
    EXPECT_TRUE(ConfidenceLevelPage::ReadSection(store.Root().get(), level));
    EXPECT_EQ(level, CConfLev::Level99);
}

TEST_F(ConfidenceLevelPageTest, KeepsTheIntervalThatWasNotWritten) {
    const ConfigurationStore store = ConfigurationStore::Load(Golden("confidence_level_alone"));
    EXPECT_TRUE(ConfidenceLevelPage::ReadSection(store.Root().get(), level, tolerance, type));
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_EQ(tolerance, CConfLev::None);
    EXPECT_EQ(type, CIntervalType::Prediction);
}

TEST_F(ConfidenceLevelPageTest, KeepsEverythingWithoutItsSection) {
    const ConfigurationStore store;
    EXPECT_FALSE(ConfidenceLevelPage::ReadSection(store.Root().get(), level, tolerance, type));
    EXPECT_FALSE(ConfidenceLevelPage::ReadSection(store.Root().get(), level));
    EXPECT_FALSE(ConfidenceLevelPage::ReadSection(nullptr, level));
    EXPECT_EQ(level, CConfLev::Level95);
    EXPECT_EQ(tolerance, CConfLev::Level95);
    EXPECT_EQ(type, CIntervalType::Prediction);
    // The section alone is enough, whatever it holds.
    ConfigurationStore empty;
    empty.Root()->GetSection("ConfidenceLevelPage");
    EXPECT_TRUE(ConfidenceLevelPage::ReadSection(empty.Root().get(), level, tolerance, type));
    EXPECT_EQ(level, CConfLev::Level95);
}

}  // namespace
}  // namespace kvopt::test
