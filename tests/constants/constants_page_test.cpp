#include "kvopt/constants/constants_page.h"

#include <limits>
#include <optional>
#include <ostream>

#include "axes/axes_study.h"
#include "axes/page_probe.h"
#include "constants/grid_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class ConstantsPageTest : public testing::Test {
protected:
    ConstantsPageTest() {
        study.Number("A", 0, 10);
        study.Number("B", 0, 20);
        study.usedFactors = 2;
    }

    ConstantsPage::Arguments Arguments(ConstantsChooser* chooser = nullptr) {
        ConstantsPage::Arguments arguments;
        arguments.constants = constants.data();
        arguments.backPage = 6161;
        arguments.chooser = chooser;
        arguments.axes = &axes;
        return arguments;
    }

    /// The page with a window.
    std::unique_ptr<ConstantsPage> Shown(BasePropertyPageHelper* helper = nullptr,
                                         bool readOnly = false) {
        auto page = std::make_unique<ConstantsPage>(&study, Arguments(), 6157U, helper, readOnly);
        page->Create();
        page->OnSetActive();
        return page;
    }
    double Stored(int index) const {
        return constants[static_cast<std::size_t>(index)].FloatValue();
    }

    GridDesktop desktop;
    AxesStudy study;
    AxisVector axes;
    std::array<FactorConstants::Constant, 16> constants;
};

TEST_F(ConstantsPageTest, IsAPageWithoutHelpThatIsToldOfItsHelper) {
    BasePropertyPageHelper helper;
    const ConstantsPage page(&study, Arguments(), 6170, &helper, false);
    EXPECT_EQ(page.TemplateNumber(), 6170);
    EXPECT_EQ(page.PageTitle(), L"Constants");
    EXPECT_EQ(page.CaptionNumber(), 0U);
    EXPECT_EQ(page.HelpTopicID(), static_cast<unsigned>(-1));
    EXPECT_FALSE(page.HasHelp());
    EXPECT_EQ(page.GetPropertyPageHelper(), &helper);
}

TEST_F(ConstantsPageTest, OwnsAGridThatMarksIt) {
    int deaths = 0;
    {
        auto* const chooser = new SkipThese({"A"}, &deaths);
        ConstantsPage page(&study, Arguments(chooser), 6157, nullptr, false);
        EXPECT_EQ(page.Grid().GetParent(), &page);
        EXPECT_EQ(page.Grid().GetInvestigation(), &study);
        EXPECT_EQ(page.Grid().GetConstantsChooser(), chooser);
        EXPECT_FALSE(page.Grid().IsReadOnly());
        page.Grid().UserChangedData(2, 1, "5");
        EXPECT_TRUE(page.IsChanged());
    }
    EXPECT_EQ(deaths, 1);
}

TEST_F(ConstantsPageTest, HandsReadOnlyOnToItsGrid) {
    const ConstantsPage page(&study, Arguments(), 6157, nullptr, true);
    EXPECT_TRUE(page.Grid().IsReadOnly());
}

TEST_F(ConstantsPageTest, MakesTheGridForTheFactorsThatTheModelsUse) {
    study.usedFactors = 7;
    study.Response("Y");
    study.ExtraResponse("Derived", ResponseEx::Derived);
    const ConstantsPage page(&study, Arguments(), 6157, nullptr, false);
    EXPECT_EQ(page.Grid().RowCount(), 7);
    EXPECT_EQ(study.usedQuestions,
              (std::vector<std::pair<CEVar, int>>{{CEVar::AllFactors, 2147483647}}));
}

TEST_F(ConstantsPageTest, MakesTheGridForAllFactorsWithAResponseFromOutside) {
    study.usedFactors = 7;
    study.ExtraResponse("Derived", ResponseEx::Derived);
    study.ExtraResponse("Outside", ResponseEx::External);
    const ConstantsPage page(&study, Arguments(), 6157, nullptr, false);
    EXPECT_EQ(page.Grid().RowCount(), 2);
    EXPECT_TRUE(study.usedQuestions.empty());
}

TEST_F(ConstantsPageTest, DoesWithoutAxes) {
    ConstantsPage::Arguments arguments = Arguments();
    arguments.axes = nullptr;
    ConstantsPage page(&study, arguments, 6157, nullptr, false);
    page.Create();
    page.OnSetActive();
    EXPECT_EQ(page.Grid().GetCellText(1, 1), "A");
}

TEST_F(ConstantsPageTest, PutsTheGridIntoItsControl) {
    ConstantsPage page(&study, Arguments(), 6157, nullptr, false);
    EXPECT_EQ(page.Grid().Worksheet(), nullptr);
    page.Create();
    ASSERT_NE(page.Grid().Worksheet(), nullptr);
    EXPECT_EQ(page.Grid().Worksheet(), page.GetDlgItem(6139));
    EXPECT_EQ(page.Grid().GetCellText(1, 1), "");  // filled when it is brought up
}

TEST_F(ConstantsPageTest, FillsTheGridEachTimeItIsBroughtUp) {
    const auto page = Shown();
    EXPECT_EQ(page->Grid().GetCellText(2, 1), "5");
    constants[0].FloatValue(8.0);
    page->OnSetActive();
    EXPECT_EQ(page->Grid().GetCellText(2, 1), "8");
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(ConstantsPageTest, HearsOfAChangeInItsControl) {
    const auto page = Shown();
    EXPECT_FALSE(page->IsChanged());
    page->DispatchNotification(*page->GetDlgItem(6139), Notification::Changed);
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(ConstantsPageTest, IsMarkedByWhatTheUserTypes) {
    const auto page = Shown();
    VirtualWorksheet& worksheet = *page->Grid().Worksheet();
    ASSERT_TRUE(worksheet.UserBeginEdit({2, 1}));
    worksheet.UserEdit("7");
    EXPECT_FALSE(page->IsChanged());
    worksheet.UserCommit();
    EXPECT_TRUE(page->IsChanged());
    EXPECT_EQ(Stored(0), 5.0);
}

TEST_F(ConstantsPageTest, ChecksAndSavesWhenItIsLeft) {
    const auto page = Shown();
    page->Grid().UserChangedData(2, 1, "7");
    EXPECT_TRUE(page->OnKillActive());
    EXPECT_EQ(Stored(0), 7.0);
    EXPECT_THAT(desktop.boxes, IsEmpty());
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(ConstantsPageTest, ChecksAllRowsAlsoWhenNothingWasChanged) {
    constants[0] = {"A", 11.0, FactorConstants::CUSTOM};
    constants[1] = {"B", 21.0, FactorConstants::CUSTOM};
    const auto page = Shown();
    EXPECT_FALSE(page->OnKillActive());
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_NE(desktop.boxes[0].text.find("\n\nA = 11\nB = 21\n\n"), std::string::npos);
}

TEST_F(ConstantsPageTest, StaysAndSavesNothingWhenTheUserWantsToMend) {
    const auto page = Shown();
    page->Grid().UserChangedData(2, 1, "7");
    page->Grid().UserChangedData(2, 2, "21");
    EXPECT_FALSE(page->OnKillActive());
    EXPECT_EQ(Stored(0), 5.0);
    desktop.answers = {BoxAnswer::Yes};
    EXPECT_TRUE(page->OnKillActive());
    EXPECT_EQ(Stored(0), 7.0);
    EXPECT_EQ(Stored(1), 21.0);
}

TEST_F(ConstantsPageTest, NeitherChecksNorSavesWhenAnUnchangedPageIsApplied) {
    const auto page = Shown();
    page->Grid().UpdateValue(2, 1, "11");
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(desktop.boxes, IsEmpty());
    EXPECT_EQ(Stored(0), 5.0);
}

TEST_F(ConstantsPageTest, ChecksAndSavesWhenItIsApplied) {
    ConnectedHelper helper;
    const auto page = Shown(&helper);
    page->Grid().UserChangedData(2, 1, "7");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Stored(0), 7.0);
    EXPECT_EQ(helper.updates, 1);
    EXPECT_FALSE(page->IsChanged());
    EXPECT_EQ(page->Grid().GetParent(), page.get());
}

TEST_F(ConstantsPageTest, AppliesNothingAfterAFailedCheck) {
    ConnectedHelper helper;
    const auto page = Shown(&helper);
    page->Grid().UserChangedData(2, 1, "11");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(Stored(0), 5.0);
    EXPECT_EQ(helper.updates, 0);
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(ConstantsPageTest, LetsGoOfItsGridWithOk) {
    const auto page = Shown();
    page->OnOK();
    EXPECT_EQ(page->Grid().GetParent(), nullptr);
    page->Grid().UserChangedData(2, 1, "7");
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(ConstantsPageTest, LetsGoOfItsGridWhenItIsAppliedWithoutAHelper) {
    const auto page = Shown();
    page->Grid().UserChangedData(2, 1, "7");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Stored(0), 7.0);
    EXPECT_EQ(page->Grid().GetParent(), nullptr);
}

TEST_F(ConstantsPageTest, GoesBackWhereItWasTold) {
    EXPECT_EQ(Shown()->OnWizardBack(), 6161);
}

// In a frame.

TEST_F(ConstantsPageTest, EnablesBackAndFinishInAWizard) {
    ConstantsPage page(&study, Arguments(), 6157, nullptr, false);
    KvPropertySheet wizard(L"A wizard", nullptr, 0);
    wizard.SetWizardMode();
    wizard.AddPage(&page);
    unsigned long buttons = 0;
    std::string first;
    desktop.user = [&](CPropertySheet& sheet) {
        buttons = sheet.WizardButtons();
        first = page.Grid().GetCellText(1, 1);
    };
    wizard.DoModal();
    EXPECT_EQ(buttons, static_cast<unsigned long>(kWizardBack | kWizardFinish));
    EXPECT_EQ(first, "A");
}

TEST_F(ConstantsPageTest, SetsNoButtonsOnASheet) {
    ConstantsPage page(&study, Arguments(), 6157, nullptr, false);
    KvPropertySheet sheet(L"A sheet", nullptr, 0);
    sheet.AddPage(&page);
    sheet.DoModal();
    for (const std::string& line : desktop.log.Lines()) {
        EXPECT_EQ(line.find("buttons"), std::string::npos) << line;
    }
}

TEST_F(ConstantsPageTest, TellsUnderTheSheetsNameWhatIsDoubtful) {
    ConstantsPage page(&study, Arguments(), 6157, nullptr, false);
    KvPropertySheet sheet(L"The sheet", nullptr, 0);
    sheet.AddPage(&page);
    desktop.user = [&](CPropertySheet& running) {
        page.Grid().UserChangedData(2, 1, "11");
        running.UserOk();
        EXPECT_FALSE(running.HasEnded());
    };
    sheet.DoModal();
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].caption, "The sheet");
    EXPECT_EQ(desktop.boxes[0].style, 68U);
}

TEST_F(ConstantsPageTest, AsksTwiceWhenAChangedPageIsConfirmed) {
    ConstantsPage page(&study, Arguments(), 6157, nullptr, false);
    KvPropertySheet sheet(L"The sheet", nullptr, 0);
    sheet.AddPage(&page);
    desktop.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    desktop.user = [&](CPropertySheet& running) {
        page.Grid().UserChangedData(2, 1, "11");
        EXPECT_TRUE(running.UserOk());
    };
    EXPECT_EQ(sheet.DoModal(), kResultOk);
    EXPECT_EQ(desktop.boxes.size(), 2U);
    EXPECT_EQ(Stored(0), 11.0);
}

// Keys.

TEST_F(ConstantsPageTest, GivesTheKeysOfTheWorksheetToItFirst) {
    const auto page = Shown();
    VirtualWorksheet& worksheet = *page->Grid().Worksheet();
    worksheet.UserSelectCell({2, 2});
    EXPECT_TRUE(page->PreTranslateMessage({'C', true}));
    EXPECT_EQ(desktop.ClipboardText(), L"10");
    desktop.SetClipboardText(L"12");
    EXPECT_TRUE(page->PreTranslateMessage({'V', true}));
    EXPECT_EQ(page->Grid().GetCellText(2, 2), "12");
    EXPECT_TRUE(page->PreTranslateMessage({'A', true}));
    EXPECT_EQ(worksheet.Selection(), (CellRange{1, 1, 3, 2}));
}

TEST_F(ConstantsPageTest, LeavesOtherKeysToTheFrame) {
    const auto page = Shown();
    page->Grid().Worksheet()->UserSelectCell({2, 2});
    EXPECT_FALSE(page->PreTranslateMessage({'C'}));
    EXPECT_FALSE(page->PreTranslateMessage({kKeyReturn}));
    ConstantsPage withoutWindow(&study, Arguments(), 6157, nullptr, false);
    EXPECT_FALSE(withoutWindow.PreTranslateMessage({'C', true}));
}

// Templates.

class ConstantsTemplates : public testing::TestWithParam<int> {};

TEST_P(ConstantsTemplates, GiveTheGridTheWholePageBelowItsHeading) {
    CDialog dialog(GetParam(), nullptr);
    dialog.Create();
    EXPECT_STREQ(dialog.Template().caption, "Constants");
    ASSERT_NE(dialog.Item<VirtualWorksheet>(6139), nullptr);
    EXPECT_EQ(dialog.GetDlgItem(6139)->AccessibleName(), L"Constant factors");
    const LayoutItem& root = dialog.Template().layout;
    ASSERT_EQ(root.kind, LayoutKind::Column);
    ASSERT_EQ(root.children.size(), 2U);
    EXPECT_STREQ(root.children[0].control.label, "Constant factors:");
    EXPECT_EQ(root.children[1].control.number, 6139);
    EXPECT_GT(root.children[1].stretch, 0);
}

INSTANTIATE_TEST_SUITE_P(Pages, ConstantsTemplates, testing::Values(6157, 6170));

}  // namespace
}  // namespace kvopt::test
