#include "kvopt/designspace/design_space_interval_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "support/fake_study.h"

namespace kvopt::test {
namespace {

class DesignSpaceIntervalPageTest : public testing::Test {
protected:
    DesignSpaceIntervalPageTest() {
        options.confidenceLevel = CConfLev::Level90;
        options.toleranceProportion = CConfLev::Level99;
        options.intervalType = CIntervalType::Confidence;
        options.dpmoLimit = 777;
        options.whatToUpdate = 0;
    }

    /// The page on the options.
    void Show(bool saveGlobal = false, BasePropertyPageHelper* helper = nullptr) {
        page = std::make_unique<DesignSpaceIntervalPage>(&study, options, helper, saveGlobal);
        page->Create();
        page->OnSetActive();
    }
    CComboBox& Interval() { return *page->Item<CComboBox>(6344); }
    CComboBox& Level() { return *page->Item<CComboBox>(6299); }
    CComboBox& Tolerance() { return *page->Item<CComboBox>(6341); }
    /// What the study remembers; the defaults for nothing.
    DesignSpaceOptions Remembered() const { return DesignSpaceOptions(&study); }

    SheetDesktop desktop;
    FakeStudy study;
    DesignSpaceOptions options;
    std::unique_ptr<DesignSpaceIntervalPage> page;
};

TEST_F(DesignSpaceIntervalPageTest, StandsOnTheTemplateOfItsBase) {
    Show();
    EXPECT_EQ(page->TemplateNumber(), 6230);
    EXPECT_EQ(page->HelpTopicID(), 226U);
    EXPECT_EQ(page->Caption(), L"Interval estimation");
    EXPECT_FALSE(page->IsChanged());
    EXPECT_EQ(Interval().GetCount(), 3) << "there is no way to choose no interval";
    EXPECT_TRUE(page->GetDlgItem(6351)->IsVisible());
}

TEST_F(DesignSpaceIntervalPageTest, ShowsTheValuesOfTheOptions) {
    options.intervalType = CIntervalType::Prediction;
    Show();
    EXPECT_EQ(Interval().GetCurSel(), 1);
    EXPECT_EQ(Level().GetCurSel(), 0);
    EXPECT_EQ(Tolerance().GetCurSel(), 2);
}

TEST_F(DesignSpaceIntervalPageTest, OpensTheLevelForAToleranceIntervalAlone) {
    for (const int type : {-1, 0, 1, 2, 3}) {
        options.intervalType = static_cast<CIntervalType::IntervalType>(type);
        Show();
        EXPECT_EQ(Level().IsEnabled(), type == 3) << type;
        EXPECT_FALSE(Tolerance().IsEnabled()) << type;
    }
}

TEST_F(DesignSpaceIntervalPageTest, SwitchesTheLevelByEachPickAndNeverTheTolerance) {
    Show();
    EXPECT_TRUE(Interval().UserPick(2));
    EXPECT_TRUE(page->IsChanged());
    EXPECT_TRUE(Level().IsEnabled());
    EXPECT_FALSE(Tolerance().IsEnabled());
    for (const int entry : {1, 0}) {
        Interval().UserPick(2);
        Tolerance().EnableWindow(true);
        Interval().UserPick(entry);
        EXPECT_FALSE(Level().IsEnabled()) << entry;
        EXPECT_FALSE(Tolerance().IsEnabled()) << entry;
    }
}

TEST_F(DesignSpaceIntervalPageTest, IsMarkedByEachList) {
    options.intervalType = CIntervalType::Tolerance;
    Show();
    Tolerance().EnableWindow(true);
    for (const int number : {6344, 6299, 6341}) {
        page->Unchanged();
        auto& list = *page->Item<CComboBox>(number);
        EXPECT_TRUE(list.UserPick(list.GetCurSel() == 0 ? 1 : 0)) << number;
        EXPECT_TRUE(page->IsChanged()) << number;
        Interval().UserPick(2);
        Tolerance().EnableWindow(true);
    }
}

TEST_F(DesignSpaceIntervalPageTest, StoresTheIntervalAndMarksEverythingForUpdate) {
    Show();
    Interval().UserPick(2);
    Level().UserPick(2);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(options.intervalType, CIntervalType::Tolerance);
    EXPECT_EQ(options.confidenceLevel, CConfLev::Level99);
    EXPECT_EQ(options.toleranceProportion, CConfLev::Level99);
    EXPECT_EQ(options.whatToUpdate, 15);
    EXPECT_FALSE(page->IsChanged());
    EXPECT_EQ(Remembered(), DesignSpaceOptions()) << "nothing is remembered unless told";
}

TEST_F(DesignSpaceIntervalPageTest, StoresNothingWhenItIsUnchanged) {
    const DesignSpaceOptions before = options;
    Show(true);
    Interval().SetCurSel(2);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(options, before);
    EXPECT_EQ(Remembered(), DesignSpaceOptions());
}

TEST_F(DesignSpaceIntervalPageTest, RemembersAllOfTheOptionsWhenTold) {
    Show(true);
    Interval().UserPick(1);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Remembered().intervalType, CIntervalType::Prediction);
    EXPECT_EQ(Remembered().confidenceLevel, CConfLev::Level90);
    EXPECT_EQ(Remembered().dpmoLimit, 777);
}

TEST_F(DesignSpaceIntervalPageTest, RemembersAlsoWhatItsHelperRefuses) {
    ConnectedHelper helper;
    helper.answer = false;
    Show(true, &helper);
    Interval().UserPick(1);
    EXPECT_FALSE(page->OnApply());
    EXPECT_TRUE(page->IsChanged());
    EXPECT_EQ(options.whatToUpdate, 15);
    EXPECT_EQ(Remembered().intervalType, CIntervalType::Prediction);
    EXPECT_EQ(Remembered().dpmoLimit, 777);
}

/// Looks at the options when the update runs.
class LookingHelper : public ConnectedHelper {
public:
    LookingHelper(const DesignSpaceOptions& options, const Investigation& study)
        : options_(options), study_(study) {}
    bool Update() override {
        seen = options_.whatToUpdate;
        remembered = DesignSpaceOptions(&study_).dpmoLimit;
        return ConnectedHelper::Update();
    }
    int seen = -1;
    int remembered = -1;

private:
    const DesignSpaceOptions& options_;
    const Investigation& study_;
};

TEST_F(DesignSpaceIntervalPageTest, MarksBeforeTheUpdateAndRemembersBehindIt) {
    LookingHelper helper(options, study);
    Show(true, &helper);
    Interval().UserPick(1);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(helper.seen, 15);
    EXPECT_EQ(helper.remembered, DesignSpaceOptions().dpmoLimit);
    EXPECT_EQ(Remembered().dpmoLimit, 777);
}

TEST_F(DesignSpaceIntervalPageTest, TakesOptionsWithoutAStudy) {
    page = std::make_unique<DesignSpaceIntervalPage>(nullptr, options, nullptr, true);
    page->Create();
    Interval().UserPick(1);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(options.intervalType, CIntervalType::Prediction);
}

TEST_F(DesignSpaceIntervalPageTest, EditsThreeValuesOfItsCallerAndRemembersNothing) {
    auto level = CConfLev::Level99;
    auto tolerance = CConfLev::Level90;
    auto type = CIntervalType::Tolerance;
    page = std::make_unique<DesignSpaceIntervalPage>(&study, level, tolerance, type, nullptr, true);
    page->Create();
    EXPECT_EQ(Interval().GetCurSel(), 2);
    EXPECT_EQ(Level().GetCurSel(), 2);
    EXPECT_EQ(Tolerance().GetCurSel(), 0);
    EXPECT_TRUE(Level().IsEnabled());
    EXPECT_FALSE(Tolerance().IsEnabled());
    EXPECT_TRUE(page->GetDlgItem(6351)->IsVisible());
    Level().UserPick(1);
    Interval().UserPick(0);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(level, CConfLev::Level95);
    EXPECT_EQ(tolerance, CConfLev::Level90);
    EXPECT_EQ(type, CIntervalType::Confidence);
    EXPECT_EQ(Remembered(), DesignSpaceOptions());
}

TEST_F(DesignSpaceIntervalPageTest, HasNoWordOfItsOwnOnWhatIsChanged) {
    Show();
    page->Changed();
    EXPECT_TRUE(page->IsChanged());
    EXPECT_FALSE(Level().IsEnabled()) << "only a pick of an interval switches it";
}

}  // namespace
}  // namespace kvopt::test
