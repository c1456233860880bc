#include "kvopt/sheets/contour_property_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/platform.h"
#include "kvopt/text.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;

/// A page that says which of its steps have run, and in one of them does what a test wants.
class StepPage : public KvPropertyPage {
public:
    StepPage(std::string name, std::vector<std::string>& steps, BasePropertyPageHelper* helper)
        : KvPropertyPage(6213, 0, helper, kNoHelp), name_(std::move(name)), steps_(steps) {}

    bool OnSetActive() override {
        Note("set active");
        return KvPropertyPage::OnSetActive();
    }
    bool OnKillActive() override {
        Note("kill active");
        return KvPropertyPage::OnKillActive();
    }
    bool OnApply() override {
        Note("apply");
        return KvPropertyPage::OnApply();
    }
    void OnOK() override {
        Note("ok");
        KvPropertyPage::OnOK();
    }
    void OnCancel() override {
        Note("cancel");
        KvPropertyPage::OnCancel();
    }

    std::string step;  ///< in which something happens
    std::function<void()> happens;

private:
    void Note(const std::string& what) {
        steps_.push_back(name_ + " " + what);
        if (what == step) {
            happens();
        }
    }
    std::string name_;
    std::vector<std::string>& steps_;
};

class ContourPropertySheetTest : public testing::Test {
protected:
    ContourPropertySheetTest() : first("first", steps, nullptr), second("second", steps, nullptr) {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        sheet.SetHasApply(true);
    }

    static void Abandon() { throw CancelException(); }
    void AbandonIn(StepPage& page, const std::string& step) {
        page.step = step;
        page.happens = Abandon;
    }
    /// Both pages have been up; the steps begin with what the user does then.
    int Run(const std::function<void()>& act) {
        first.step.clear();
        second.step.clear();
        desktop.user = [this, act](CPropertySheet& running) {
            running.UserSelectPage(1);
            running.UserSelectPage(0);
            steps.clear();
            act();
        };
        return sheet.DoModal();
    }

    SheetDesktop desktop;
    std::vector<std::string> steps;
    StepPage first;
    StepPage second;
    ContourPropertySheet sheet{L"A plot", nullptr, 0};
};

TEST_F(ContourPropertySheetTest, IsAnOrdinarySheetAsLongAsNothingIsAbandoned) {
    EXPECT_FALSE(sheet.IsCancelRequested());
    EXPECT_EQ(sheet.GetText(), L"A plot");
    EXPECT_EQ(Run([this] { EXPECT_TRUE(sheet.UserOk()); }), 1);
    EXPECT_THAT(steps, ElementsAre("first kill active", "first apply", "first ok", "second apply",
                                   "second ok"));
    EXPECT_FALSE(sheet.IsCancelRequested());
    EXPECT_EQ(Run([this] { EXPECT_TRUE(sheet.UserCancel()); }), 2);
    EXPECT_FALSE(sheet.IsCancelRequested());
}

TEST_F(ContourPropertySheetTest, StandsInFrontOfItsParentAndStartsWithTheGivenPage) {
    CWnd parent;
    ContourPropertySheet other(L"Another", &parent, 1);
    EXPECT_EQ(other.GetParent(), &parent);
    StepPage one("one", steps, nullptr);
    StepPage two("two", steps, nullptr);
    other.AddPage(&one);
    other.AddPage(&two);
    EXPECT_EQ(other.GetActivePage(), &two);
}

TEST_F(ContourPropertySheetTest, AppliesAndStaysOpenAsAnOrdinarySheet) {
    Run([this] {
        first.Changed();
        EXPECT_TRUE(sheet.UserApply());
        EXPECT_FALSE(sheet.HasEnded());
    });
    EXPECT_THAT(steps, ElementsAre("first kill active", "first apply", "first ok", "second apply",
                                   "second ok", "first set active"));
    EXPECT_FALSE(sheet.IsCancelRequested());
}

struct AbandonedStep {
    const char* label;
    bool onSecond;
    const char* step;
};

void PrintTo(const AbandonedStep& row, std::ostream* out) {
    *out << row.label;
}

class AbandonedSteps : public ContourPropertySheetTest,
                       public testing::WithParamInterface<AbandonedStep> {
protected:
    void Prepare() { AbandonIn(GetParam().onSecond ? second : first, GetParam().step); }
    std::string LastStep() const {
        return std::string(GetParam().onSecond ? "second " : "first ") + GetParam().step;
    }
};

TEST_P(AbandonedSteps, EndTheSheetOnOk) {
    const int result = Run([this] {
        Prepare();
        EXPECT_TRUE(sheet.UserOk());
        EXPECT_TRUE(sheet.HasEnded());
    });
    EXPECT_EQ(result, 5);
    EXPECT_TRUE(sheet.IsCancelRequested());
    EXPECT_EQ(steps.back(), LastStep());
    EXPECT_EQ(desktop.log.Lines().back(), "end 5");
}

TEST_P(AbandonedSteps, EndTheSheetOnApply) {
    const int result = Run([this] {
        Prepare();
        first.Changed();
        EXPECT_TRUE(sheet.UserApply());
        EXPECT_TRUE(sheet.HasEnded());
        EXPECT_FALSE(sheet.UserOk());
    });
    EXPECT_EQ(result, 5);
    EXPECT_TRUE(sheet.IsCancelRequested());
    EXPECT_EQ(steps.back(), LastStep());
    EXPECT_EQ(desktop.log.Lines().back(), "end 5");
}

INSTANTIATE_TEST_SUITE_P(Steps, AbandonedSteps,
                         testing::Values(AbandonedStep{"Leaving", false, "kill active"},
                                         AbandonedStep{"Applying", false, "apply"},
                                         AbandonedStep{"Confirming", false, "ok"},
                                         AbandonedStep{"ApplyingBehind", true, "apply"},
                                         AbandonedStep{"ConfirmingBehind", true, "ok"}),
                         testing::PrintToStringParamName());

TEST_F(ContourPropertySheetTest, IsAbandonedByAPageThatComesUpAgainAfterApply) {
    const int result = Run([this] {
        AbandonIn(first, "set active");
        first.Changed();
        EXPECT_TRUE(sheet.UserApply());
    });
    EXPECT_EQ(result, 5);
    EXPECT_TRUE(sheet.IsCancelRequested());
}

TEST_F(ContourPropertySheetTest, IsAbandonedByTheUpdateOfAHost) {
    class Host : public ConnectedHelper {
        bool Update() override { throw CancelException(); }
    };
    Host host;
    first.SetPropertyPageHelper(&host);
    const int result = Run([this] {
        first.Changed();
        EXPECT_TRUE(sheet.UserOk());
    });
    EXPECT_EQ(result, 5);
    EXPECT_TRUE(sheet.IsCancelRequested());
    // Whoever was not reached has not been applied.
    EXPECT_THAT(steps, ElementsAre("first kill active", "first apply"));
}

TEST_F(ContourPropertySheetTest, LetsOtherExceptionsThrough) {
    for (const bool apply : {false, true}) {
        EXPECT_THROW(Run([this, apply] {
                         first.step = "apply";
                         first.happens = [] { throw InvalidArgument("a fault"); };
                         first.Changed();
                         apply ? sheet.UserApply() : sheet.UserOk();
                     }),
                     InvalidArgument);
        EXPECT_FALSE(sheet.IsCancelRequested());
        EXPECT_EQ(desktop.log.Lines().back(), "end by exception");
    }
}

TEST_F(ContourPropertySheetTest, LetsAnAbandonedPlotThroughWhenItDoesNotApply) {
    const auto selects = [this] {
        AbandonIn(second, "set active");
        sheet.UserSelectPage(1);
    };
    const auto cancels = [this] {
        AbandonIn(first, "cancel");
        sheet.UserCancel();
    };
    for (const std::function<void()>& act : {std::function<void()>(selects), {cancels}}) {
        EXPECT_THROW(Run(act), CancelException);
        EXPECT_FALSE(sheet.IsCancelRequested());
        EXPECT_EQ(desktop.log.Lines().back(), "end by exception");
    }
}

}  // namespace
}  // namespace kvopt::test
