#include "kvopt/statpages/prediction_level_page.h"

#include "statpages/level_page_test.h"
#include "stores/store_test_support.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;

class PredictionLevelPageTest : public LevelPageTest {
protected:
    void ShowPage(BasePropertyPageHelper* helper = nullptr) {
        Show(std::make_unique<PredictionLevelPage>(level, tolerance, type, helper, nullptr));
    }
    void ShowWithUseLevel() {
        Show(std::make_unique<PredictionLevelPage>(level, tolerance, type, nullptr, &useLevel));
    }
    CComboBox& Interval() { return *page->Item<CComboBox>(6344); }
};

TEST_F(PredictionLevelPageTest, StandsOnItsTemplate) {
    ShowPage();
    EXPECT_EQ(page->TemplateNumber(), 6230);
    EXPECT_EQ(page->HelpTopicID(), 226U);
    EXPECT_EQ(page->CaptionNumber(), 0U);
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(PredictionLevelPageTest, IsReadyWhateverItShows) {
    ShowPage();
    EXPECT_TRUE(page->OnInitDialog());
}

TEST_F(PredictionLevelPageTest, OffersWhatItsTemplateHolds) {
    CDialog dialog(6230, nullptr);
    dialog.Create();
    const auto list = [&](int number) -> CComboBox& { return *dialog.Item<CComboBox>(number); };
    EXPECT_THAT(EntriesOf(list(6344)), ElementsAre("Confidence", "Prediction", "Tolerance"));
    EXPECT_THAT(EntriesOf(list(6299)), ElementsAre("90%", "95%", "99%"));
    EXPECT_THAT(EntriesOf(list(6341)), ElementsAre("90%", "95%", "99%"));
    EXPECT_TRUE(list(6344).IsEnabled());
    EXPECT_TRUE(list(6299).IsEnabled());
    EXPECT_FALSE(list(6341).IsEnabled());
    Names labels;
    for (const auto& control : dialog.Controls()) {
        if (control->Number() == -1) {
            labels.push_back(KvStdString::ToUtf8(control->GetText()));
        }
    }
    EXPECT_THAT(labels,
                ElementsAre("Interval type:", "Confidence level:", "Tolerance proportion:"));
}

// Showing.

TEST_F(PredictionLevelPageTest, ShowsTheLevelAndTheTolerance) {
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

struct IntervalRow {
    int value;
    int entry;
    int entryWithUseLevel;
};

constexpr IntervalRow kIntervalRows[]{{1, 0, 0}, {2, 1, 1},  {3, 2, 2},
                                      {0, 1, 3}, {-1, 1, 1}, {4, 1, 1}};

TEST_F(PredictionLevelPageTest, ShowsTheInterval) {
    for (const IntervalRow& row : kIntervalRows) {
        type = static_cast<CIntervalType::IntervalType>(row.value);
        ShowPage();
        EXPECT_EQ(Interval().GetCurSel(), row.entry) << row.value;
        EXPECT_EQ(Tolerance().IsEnabled(), row.value == 3) << row.value;
        EXPECT_TRUE(Level().IsEnabled()) << row.value;
        EXPECT_FALSE(page->IsChanged());
    }
}

TEST_F(PredictionLevelPageTest, ShowsTheIntervalWhetherALevelIsUsedOrNot) {
    for (const IntervalRow& row : kIntervalRows) {
        for (const bool uses : {true, false}) {
            type = static_cast<CIntervalType::IntervalType>(row.value);
            useLevel = uses;
            ShowWithUseLevel();
            EXPECT_THAT(EntriesOf(Interval()),
                        ElementsAre("Confidence", "Prediction", "Tolerance", "None"));
            EXPECT_EQ(Interval().GetCurSel(), row.entryWithUseLevel) << row.value << uses;
            EXPECT_EQ(Tolerance().IsEnabled(), row.value == 3) << row.value;
            EXPECT_EQ(Level().GetCount(), 3);
        }
    }
}

/// Notes every entry that is selected while the page opens.
class SelectionsWhileOpening : public PredictionLevelPage, private WindowListener {
public:
    using PredictionLevelPage::PredictionLevelPage;
    std::vector<int> selections;

    bool OnInitDialog() override {
        CWnd* const list = GetDlgItem(6344);
        list->AddListener(this);
        const bool result = PredictionLevelPage::OnInitDialog();
        list->RemoveListener(this);
        return result;
    }

private:
    void OnWindowChanged(CWnd&, WindowChange change) override {
        if (change == WindowChange::Selection) {
            selections.push_back(IntervalCombo()->GetCurSel());
        }
    }
    void OnWindowGone(CWnd&) override {}
};

TEST_F(PredictionLevelPageTest, SelectsNoneFirstAndThenByTheType) {
    useLevel = false;
    SelectionsWhileOpening opened(level, tolerance, type, nullptr, &useLevel);
    opened.Create();
    EXPECT_THAT(opened.selections, ElementsAre(3, 1));
    useLevel = true;
    SelectionsWhileOpening used(level, tolerance, type, nullptr, &useLevel);
    used.Create();
    EXPECT_THAT(used.selections, ElementsAre(1));
}

TEST_F(PredictionLevelPageTest, HidesWhatIntervalsMeanForASimulation) {
    ShowPage();
    const CControl* const text = page->GetDlgItem(6351);
    EXPECT_FALSE(text->IsVisible());
    EXPECT_EQ(KvStdString::ToUtf8(text->GetText()),
              "The simulation will generate points with variance based on the selected interval "
              "estimate. This will in turn generate the required safety margins that correspond to "
              "the defined probability limit of the ideal average prediction. The safety margin "
              "increases from Confidence to Prediction (and in general) to Tolerance.");
}

// Changing.

TEST_F(PredictionLevelPageTest, SwitchesTheToleranceByEachPickOfAnInterval) {
    ShowWithUseLevel();
    for (const int entry : {2, 3, 2, 1, 2, 0}) {
        EXPECT_TRUE(Interval().UserPick(entry));
        EXPECT_EQ(Tolerance().IsEnabled(), entry == 2) << entry;
        EXPECT_TRUE(Level().IsEnabled());
    }
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(PredictionLevelPageTest, IsMarkedByEachListAndSwitchesByTheIntervalAlone) {
    type = CIntervalType::Tolerance;
    for (const int number : {6344, 6299, 6341}) {
        ShowPage();
        Interval().SetCurSel(1);
        EXPECT_TRUE(page->Item<CComboBox>(number)->UserPick(0)) << number;
        EXPECT_TRUE(page->IsChanged()) << number;
        EXPECT_EQ(Tolerance().IsEnabled(), number != 6344) << number;
    }
}

// Applying.

TEST_F(PredictionLevelPageTest, StoresWhatIsSelected) {
    for (int entry = 0; entry < 3; ++entry) {
        level = CConfLev::None;
        tolerance = CConfLev::Level90;
        ShowPage();
        Level().SetCurSel(entry);
        page->Changed();
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(level, entry + 1);
        EXPECT_EQ(tolerance, CConfLev::Level90);
        tolerance = CConfLev::None;
        level = CConfLev::Level90;
        ShowPage();
        Tolerance().SetCurSel(entry);
        page->Changed();
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(tolerance, entry + 1);
        EXPECT_EQ(level, CConfLev::Level90);
        type = CIntervalType::None;
        ShowPage();
        Interval().SetCurSel(entry);
        page->Changed();
        EXPECT_TRUE(page->OnApply());
        EXPECT_EQ(type, entry + 1);
        EXPECT_FALSE(page->IsChanged());
    }
}

TEST_F(PredictionLevelPageTest, StoresTheSecondValueWhereNothingIsSelected) {
    level = tolerance = CConfLev::Level99;
    type = CIntervalType::Tolerance;
    ShowWithUseLevel();
    useLevel = false;
    Level().SetCurSel(-1);
    Tolerance().SetCurSel(-1);
    Interval().SetCurSel(-1);
    page->Changed();
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level95);
    EXPECT_EQ(tolerance, CConfLev::Level95);
    EXPECT_EQ(type, CIntervalType::Prediction);
    EXPECT_TRUE(useLevel);
}

TEST_F(PredictionLevelPageTest, StoresNoIntervalAsZero) {
    ShowWithUseLevel();
    EXPECT_TRUE(Interval().UserPick(3));
    EXPECT_TRUE(Level().UserPick(2));
    EXPECT_TRUE(page->OnApply());
    EXPECT_FALSE(useLevel);
    EXPECT_EQ(type, CIntervalType::None);
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_TRUE(Interval().UserPick(0));
    EXPECT_TRUE(page->OnApply());
    EXPECT_TRUE(useLevel);
    EXPECT_EQ(type, CIntervalType::Confidence);
}

TEST_F(PredictionLevelPageTest, StoresNothingWhenItIsUnchanged) {
    useLevel = false;
    ShowWithUseLevel();
    for (const int number : {6344, 6299, 6341}) {
        page->Item<CComboBox>(number)->SetCurSel(0);
    }
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level95);
    EXPECT_EQ(tolerance, CConfLev::Level95);
    EXPECT_EQ(type, CIntervalType::Prediction);
    EXPECT_FALSE(useLevel);
}

TEST_F(PredictionLevelPageTest, StoresNothingBeforeItHasAWindow) {
    PredictionLevelPage bare(level, tolerance, type, nullptr, &useLevel);
    useLevel = false;
    bare.Changed();
    EXPECT_TRUE(bare.OnApply());
    EXPECT_EQ(type, CIntervalType::Prediction);
    EXPECT_FALSE(useLevel);
}

TEST_F(PredictionLevelPageTest, TellsItsHelperWhatItStored) {
    ConnectedHelper helper;
    helper.answer = false;
    ShowPage(&helper);
    EXPECT_TRUE(Level().UserPick(2));
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_TRUE(page->IsChanged());
    helper.answer = true;
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(helper.updates, 2);
}

// Keeping.

constexpr const char* kGolden =
    KVOPT_SOURCE_DIR "/tests/statpages/golden/prediction_level_page.json";

TEST_F(PredictionLevelPageTest, IsWrittenByteForByte) {
    ConfigurationStore store;
    store.Root()->GetSection("PredictionLevelPage")->WriteKey("Old", 1);
    PredictionLevelPage::WriteSection(store.Root().get(), CConfLev::Level99, CConfLev::Level90,
                                      CIntervalType::Tolerance);
    EXPECT_EQ(store.Text(), Slurp(kGolden));
}

TEST_F(PredictionLevelPageTest, WritesAndReadsInOneOrder) {
    ConfigurationStore store;
    SectionLog log;
    RecordingSection section(store.Root(), log);
    PredictionLevelPage::WriteSection(&section, level, tolerance, type);
    EXPECT_THAT(log,
                ElementsAre("[PredictionLevelPage] Clear", "[PredictionLevelPage] int ConfLev = 2",
                            "[PredictionLevelPage] int TolProp = 2",
                            "[PredictionLevelPage] text IntervalType = Prediction"));
    log.clear();
    EXPECT_TRUE(PredictionLevelPage::ReadSection(&section, level, tolerance, type));
    EXPECT_THAT(log, ElementsAre("[PredictionLevelPage] read int ConfLev",
                                 "[PredictionLevelPage] read int TolProp",
                                 "[PredictionLevelPage] read text IntervalType"));
}

TEST_F(PredictionLevelPageTest, IsReadBackEqual) {
    const ConfigurationStore store = ConfigurationStore::Load(kGolden);
    EXPECT_TRUE(PredictionLevelPage::ReadSection(store.Root().get(), level, tolerance, type));
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_EQ(tolerance, CConfLev::Level90);
    EXPECT_EQ(type, CIntervalType::Tolerance);
}

TEST_F(PredictionLevelPageTest, WritesNoIntervalWithoutATolerance) {
    ConfigurationStore store;
    PredictionLevelPage::WriteSection(store.Root().get(), CConfLev::Level99, CConfLev::None,
                                      CIntervalType::Tolerance);
    EXPECT_TRUE(PredictionLevelPage::ReadSection(store.Root().get(), level, tolerance, type));
    EXPECT_EQ(level, CConfLev::Level99);
    EXPECT_EQ(tolerance, CConfLev::None);
    EXPECT_EQ(type, CIntervalType::Prediction);
}

TEST_F(PredictionLevelPageTest, KeepsEverythingWithoutItsSection) {
    ConfigurationStore store;
    ConfidenceLevelPage::WriteSection(store.Root().get(), CConfLev::Level99);
    EXPECT_FALSE(PredictionLevelPage::ReadSection(store.Root().get(), level, tolerance, type));
    EXPECT_FALSE(PredictionLevelPage::ReadSection(nullptr, level, tolerance, type));
    EXPECT_EQ(level, CConfLev::Level95);
}

}  // namespace
}  // namespace kvopt::test
