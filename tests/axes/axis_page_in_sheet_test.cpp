#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "axes/axis_page_fixture.h"

namespace kvopt::test {
namespace {

// In a sheet. The second page only stands behind or in front.

class AxisPageInSheetTest : public AxisPageTest {
protected:
    AxisPageInSheetTest() { sheet.AddPage(&page); }

    void Run(std::function<void()> user) {
        desktop.user = [this, user = std::move(user)](CPropertySheet&) {
            page.steps.clear();
            user();
        };
        sheet.DoModal();
    }
    RowProbe Row(int axis) { return {page, axis}; }

    KvPropertySheet sheet{L"Contour Plot", nullptr, 0};
    ConnectedHelper helper;
    Page page{*this, &helper};
    AxisVector otherAxes = MakeAxes({{"Time", 1, 2}});
    AxisPage other{&study, {&otherAxes, 1, 0, &defaults, 4}, 6152, nullptr, 1};
};

TEST_F(AxisPageInSheetTest, TellsAnErrorInTheSheetsNameAndRefuses) {
    Run([&] {
        Row(1).low.UserEdit(L"2");
        EXPECT_FALSE(page.CheckLegalAxes());
    });
    EXPECT_EQ(desktop.boxes,
              (std::vector<SheetDesktop::Box>{
                  {"The low setting (2) on the 1st axis (Time) must be lower than the high "
                   "setting (2).",
                   "Contour Plot", 16}}));
}

TEST_F(AxisPageInSheetTest, AsksAboutWarningsAndTakesYesAlone) {
    study.unusualSettings = {"Time=1"};
    desktop.answers = {BoxAnswer::No, BoxAnswer::Yes};
    Run([&] {
        EXPECT_FALSE(page.CheckLegalAxes());
        EXPECT_TRUE(page.CheckLegalAxes());
    });
    ASSERT_EQ(desktop.boxes.size(), 2U);
    EXPECT_EQ(desktop.boxes[0],
              (SheetDesktop::Box{"The low setting (1) on the 1st axis (Time) is outside the "
                                 "recommended range for the factor.\n\nDo you still want to use "
                                 "the specified setting?",
                                 "Contour Plot", 52}));
}

TEST_F(AxisPageInSheetTest, ShowsNoBoxWhenAllIsLegal) {
    Run([&] { EXPECT_TRUE(page.CheckLegalAxes()); });
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(AxisPageInSheetTest, ComesUpAfterTheBoxWhenItWasJudgedFromBehind) {
    sheet.AddPage(&other);
    study.unusualSettings = {"Time=1"};
    for (const BoxAnswer answer : {BoxAnswer::Yes, BoxAnswer::No}) {
        desktop.answers = {answer};
        CPropertyPage* duringBox = nullptr;
        desktop.onBox = [&] { duringBox = sheet.GetActivePage(); };
        Run([&] {
            sheet.UserSelectPage(1);
            EXPECT_EQ(page.CheckLegalAxes(), answer == BoxAnswer::Yes);
            EXPECT_EQ(sheet.GetActivePage(), &page);
        });
        EXPECT_EQ(duringBox, &other);
    }
}

TEST_F(AxisPageInSheetTest, ComesUpAfterTheBoxWhenItRefusesAnOkFromBehind) {
    sheet.AddPage(&other);
    Run([&] {
        Row(1).low.UserEdit(L"x");
        sheet.UserSelectPage(1);
        desktop.log.Clear();
        sheet.UserOk();
        EXPECT_FALSE(sheet.HasEnded());
        EXPECT_EQ(sheet.GetActivePage(), &page);
        Texts order;
        for (const std::string& line : desktop.log.Lines()) {
            order.push_back(line.substr(0, line.find(' ')));
        }
        order.erase(std::remove(order.begin(), order.end(), "cursor"), order.end());
        EXPECT_EQ(order, (Texts{"box", "page"}));
    });
}

TEST_F(AxisPageInSheetTest, StaysBehindWhenItWasLegal) {
    sheet.AddPage(&other);
    Run([&] {
        sheet.UserSelectPage(1);
        EXPECT_TRUE(page.CheckLegalAxes());
        EXPECT_EQ(sheet.GetActivePage(), &other);
    });
}

TEST_F(AxisPageInSheetTest, SetsNoWizardButtonsInASheet) {
    Run([&] { EXPECT_FALSE(sheet.IsWizard()); });
    EXPECT_EQ(sheet.WizardButtons() & kWizardFinish, 0U);
}

TEST_F(AxisPageInSheetTest, AsksAWizardAloneForItsButtonsAndOnceAtEachActivation) {
    class Asked : public KvPropertySheet {
    public:
        using KvPropertySheet::KvPropertySheet;
        std::vector<unsigned long> calls;
        void SetWizardButtons(unsigned long buttons) override {
            calls.push_back(buttons);
            KvPropertySheet::SetWizardButtons(buttons);
        }
    };
    for (const bool wizard : {false, true}) {
        Asked asked(L"Contour Plot", nullptr, 0);
        AxisPage alone(&study, Arguments(), 6152, nullptr, 1);
        asked.AddPage(&alone);
        if (wizard) {
            asked.SetWizardMode();
        }
        desktop.user = [&](CPropertySheet&) { alone.OnSetActive(); };
        asked.DoModal();
        EXPECT_EQ(asked.calls,
                  wizard ? (std::vector<unsigned long>{5, 5}) : (std::vector<unsigned long>{}));
    }
}

TEST_F(AxisPageInSheetTest, TurnsOnBackAndFinishInAWizard) {
    sheet.SetWizardMode();
    Run([&] { EXPECT_EQ(sheet.WizardButtons(), 5U); });
}

TEST_F(AxisPageInSheetTest, RunsTheDataExchangeAsItIsBroughtUpAgainAndLeft) {
    class Exchanging : public Page {
    public:
        using Page::Page;
        Texts exchanges;

    protected:
        void DoDataExchange(CDataExchange& exchange) override {
            exchanges.emplace_back(exchange.save ? "save" : "show");
        }
    };
    Exchanging exchanging(*this);
    exchanging.Create();
    EXPECT_TRUE(exchanging.OnSetActive());
    EXPECT_EQ(exchanging.exchanges, (Texts{"show"}));
    EXPECT_TRUE(exchanging.OnSetActive());
    EXPECT_TRUE(exchanging.OnKillActive());
    EXPECT_EQ(exchanging.exchanges, (Texts{"show", "show", "save"}));
}

TEST_F(AxisPageInSheetTest, GoesBackToItsBackPageUncheckedAndUntransferred) {
    Run([&] {
        Row(1).low.UserEdit(L"x");
        page.steps.clear();
        EXPECT_EQ(page.OnWizardBack(), 6158);
        EXPECT_TRUE(page.steps.empty());
    });
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_EQ(axes[1]->GetMin(), 1.0F);
}

TEST_F(AxisPageInSheetTest, DoesNotGoOnWithAnError) {
    Run([&] {
        Row(1).low.UserEdit(L"x");
        EXPECT_EQ(page.OnWizardNext(), -1);
        EXPECT_FALSE(page.OnWizardFinish());
        EXPECT_TRUE(page.IsChanged());
    });
    EXPECT_EQ(axes[1]->GetMin(), 1.0F);
    EXPECT_EQ(desktop.boxes.size(), 2U);
}

TEST_F(AxisPageInSheetTest, TransfersOnTheWayForward) {
    Run([&] {
        Row(1).low.UserEdit(L"1.5");
        page.steps.clear();
        EXPECT_EQ(page.OnWizardNext(), 0);
        EXPECT_EQ(page.steps, (Texts{"transfer"}));
        EXPECT_TRUE(page.IsChanged());
    });
    EXPECT_EQ(axes[1]->GetMin(), 1.5F);
}

TEST_F(AxisPageInSheetTest, LosesDigitsBeyondSixOfARangeThatNobodyTouched) {
    axes[1]->SetRange(0.123456789F, 1234567.0F);
    Run([&] { EXPECT_EQ(page.OnWizardNext(), 0); });
    EXPECT_EQ(axes[1]->GetMin(), 0.123457F);
    EXPECT_EQ(axes[1]->GetMax(), 1234570.0F);
}

TEST_F(AxisPageInSheetTest, TransfersADoubtfulRangeThatTheUserKeeps) {
    study.unusualSettings = {"Time=1.5"};
    desktop.answers = {BoxAnswer::No, BoxAnswer::Yes};
    Run([&] {
        Row(1).low.UserEdit(L"1.5");
        EXPECT_EQ(page.OnWizardNext(), -1);
        EXPECT_EQ(axes[1]->GetMin(), 1.0F);
        EXPECT_EQ(page.OnWizardNext(), 0);
    });
    EXPECT_EQ(axes[1]->GetMin(), 1.5F);
}

TEST_F(AxisPageInSheetTest, FinishesTransferredAndClean) {
    sheet.SetWizardMode();
    Run([&] {
        Row(1).low.UserEdit(L"1.5");
        page.steps.clear();
        EXPECT_TRUE(sheet.UserFinish());
    });
    EXPECT_EQ(page.steps, (Texts{"transfer"}));
    EXPECT_EQ(sheet.Result(), kResultFinish);
    EXPECT_EQ(axes[1]->GetMin(), 1.5F);
    EXPECT_EQ(helper.UpdateCount(), 0);
    EXPECT_EQ(helper.updates, 0);
}

TEST_F(AxisPageInSheetTest, AppliesACleanPageWithoutJudgingIt) {
    axes[1]->SetRange(9, 1);
    Run([&] {
        EXPECT_TRUE(page.OnApply());
        EXPECT_EQ(page.steps, (Texts{"ok"}));
    });
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(AxisPageInSheetTest, RefusesToApplyAnErrorAndStaysDirty) {
    Run([&] {
        Row(1).low.UserEdit(L"x");
        EXPECT_FALSE(page.OnApply());
        EXPECT_TRUE(page.IsChanged());
        EXPECT_FALSE(sheet.UserOk() && sheet.HasEnded());
    });
    EXPECT_EQ(helper.updates, 0);
    EXPECT_EQ(axes[1]->GetMin(), 1.0F);
}

TEST_F(AxisPageInSheetTest, AppliesThroughTheHelper) {
    Run([&] {
        Row(1).high.UserEdit(L"2.5");
        page.steps.clear();
        EXPECT_TRUE(page.OnApply());
        EXPECT_EQ(page.steps, (Texts{"transfer"}));
        EXPECT_FALSE(page.IsChanged());
    });
    EXPECT_EQ(helper.updates, 1);
    EXPECT_EQ(axes[1]->GetMax(), 2.5F);
}

TEST_F(AxisPageInSheetTest, LeavesTheAxesAsTheyWereOnCancel) {
    Run([&] {
        Row(1).Pick("Speed");
        sheet.UserCancel();
    });
    EXPECT_EQ(axes[1]->GetName(), "Time");
    EXPECT_EQ(helper.UpdateCount(), 0);
}

}  // namespace
}  // namespace kvopt::test
