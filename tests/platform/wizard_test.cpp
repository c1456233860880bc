#include "kvopt/platform/property_sheet.h"
#include "platform_test.h"

namespace kvopt {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// A sheet in wizard mode with three pages.
class Wizard : public PlatformTest {
protected:
    Wizard() {
        sheet.SetWizardMode();
        sheet.AddPage(&a);
        sheet.AddPage(&b);
        sheet.AddPage(&c);
    }

    int Run(std::deque<std::function<void()>> steps) {
        desktop.steps = std::move(steps);
        desktop.steps.push_front([this] { Log(); });
        return sheet.DoModal();
    }

    RecordingPage a{"a", kPageA};
    RecordingPage b{"b", kPageB};
    RecordingPage c{"c", kPageC};
    KvPropertySheet sheet{L"Wizard", nullptr, 0};
};

TEST_F(Wizard, AsksThePageForTheNextOneBeforeItIsLeft) {
    Run({[&] {
             EXPECT_TRUE(sheet.UserNext());
             EXPECT_THAT(Log(),
                         ElementsAre("a.OnWizardNext", "a.OnKillActive", "page 90002 \"Page B\"",
                                     "buttons back next", "b.OnInitDialog", "b.OnSetActive"));
             EXPECT_TRUE(sheet.UserBack());
             EXPECT_THAT(Log(),
                         ElementsAre("b.OnWizardBack", "b.OnKillActive", "page 90001 \"Page A\"",
                                     "buttons next", "a.OnSetActive"));
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, StaysWhereThePageSaysMinusOne) {
    a.nextAnswer = -1;
    b.backAnswer = -1;
    Run({[&] {
             EXPECT_TRUE(sheet.UserNext());
             EXPECT_THAT(Log(), ElementsAre("a.OnWizardNext"));
             sheet.SetActivePage(&b);
             Log();
             EXPECT_TRUE(sheet.UserBack());
             EXPECT_THAT(Log(), ElementsAre("b.OnWizardBack"));
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, GoesToThePageOfTheTemplateThatThePageNames) {
    a.nextAnswer = kPageC;
    c.backAnswer = kPageA;
    Run({[&] {
             sheet.UserNext();
             EXPECT_EQ(sheet.GetActivePage(), &c);
             EXPECT_FALSE(b.HasWindow());
             sheet.UserBack();
             EXPECT_EQ(sheet.GetActivePage(), &a);
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, RunsNothingForAPageThatIsNotThere) {
    a.nextAnswer = 12345;
    Run({[&] {
             sheet.UserNext();
             EXPECT_THAT(Log(), ElementsAre("a.OnWizardNext"));
             a.nextAnswer = kPageA;
             sheet.UserNext();
             EXPECT_THAT(Log(), ElementsAre("a.OnWizardNext")) << "nor for the page itself";
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, RunsNothingBeyondEitherEnd) {
    a.also["OnSetActive"] = [this] { sheet.SetWizardButtons(kWizardBack | kWizardNext); };
    Run({[&] {
             EXPECT_TRUE(sheet.UserBack());
             EXPECT_THAT(Log(), ElementsAre("a.OnWizardBack"));
             sheet.SetActivePage(&c);
             Log();
             EXPECT_TRUE(sheet.UserNext());
             EXPECT_THAT(Log(), ElementsAre("c.OnWizardNext"));
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, StaysOnThePageThatRefusesToBeLeft) {
    a.killAnswer = false;
    Run({[&] {
             sheet.UserNext();
             EXPECT_THAT(Log(), ElementsAre("a.OnWizardNext", "a.OnKillActive"));
             EXPECT_EQ(sheet.GetActivePage(), &a);
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, GivesTheLastWordToAStepThatChangesThePageItself) {
    a.also["OnWizardNext"] = [this] { sheet.SetActivePage(&c); };
    Run({[&] {
             sheet.UserNext();
             EXPECT_THAT(Log(),
                         ElementsAre("a.OnWizardNext", "a.OnKillActive", "page 90003 \"Page C\"",
                                     "buttons back next", "c.OnInitDialog", "c.OnSetActive"));
             EXPECT_EQ(sheet.GetActivePage(), &c);
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, GivesTheLastWordToAStepThatEndsIt) {
    a.also["OnWizardNext"] = [this] { sheet.EndDialog(77); };
    EXPECT_EQ(Run({[&] { sheet.UserNext(); }}), 77);
    EXPECT_THAT(Log(), ElementsAre("a.OnWizardNext", "a.OnDestroyWindow", "end 77"));
    a.also.clear();
    a.also["OnKillActive"] = [this] { sheet.EndDialog(77); };
    EXPECT_EQ(Run({[&] { sheet.UserNext(); }}), 77);
    EXPECT_THAT(Log(),
                ElementsAre("a.OnWizardNext", "a.OnKillActive", "a.OnDestroyWindow", "end 77"));
    for (const char* step : {"OnWizardFinish", "OnKillActive"}) {
        a.also.clear();
        a.also[step] = [this] { sheet.EndDialog(78); };
        EXPECT_EQ(Run({[&] { sheet.SetWizardButtons(kWizardFinish); },
                       [&] { desktop.RunPostedSteps(); }, [&] { sheet.UserFinish(); }}),
                  78)
            << step;
    }
}

TEST_F(Wizard, FinishesWithItsOwnCodeAfterTheLastPageWasLeft) {
    EXPECT_EQ(
        Run({[&] { sheet.SetWizardButtons(kWizardFinish); }, [&] { desktop.RunPostedSteps(); },
             [&] { Log(); }, [&] { EXPECT_TRUE(sheet.UserFinish()); }}),
        kResultFinish);
    EXPECT_THAT(Log(),
                ElementsAre("a.OnWizardFinish", "a.OnKillActive", "a.OnDestroyWindow", "end 12325"))
        << "no OnApply";
}

TEST_F(Wizard, StaysWhenEitherStepOfFinishRefuses) {
    a.finishAnswer = false;
    Run({[&] { sheet.SetWizardButtons(kWizardFinish); }, [&] { desktop.RunPostedSteps(); },
         [&] { Log(); },
         [&] {
             EXPECT_TRUE(sheet.UserFinish());
             EXPECT_THAT(Log(), ElementsAre("a.OnWizardFinish"));
             a.finishAnswer = true;
             a.killAnswer = false;
             EXPECT_TRUE(sheet.UserFinish());
             EXPECT_THAT(Log(), ElementsAre("a.OnWizardFinish", "a.OnKillActive"));
             EXPECT_FALSE(sheet.HasEnded());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, TellsEachPageWithAWindowOfCancel) {
    EXPECT_EQ(Run({[&] { sheet.UserNext(); }, [&] { Log(); }, [&] { sheet.UserCancel(); }}),
              kResultCancel);
    EXPECT_THAT(Log(), ElementsAre("a.OnCancel", "b.OnCancel", "a.OnDestroyWindow",
                                   "b.OnDestroyWindow", "end 2"));
}

TEST_F(Wizard, HasDefaultButtonsUntilTheFirstCall) {
    desktop.steps = {[&] {
                         EXPECT_THAT(Log(), Contains("buttons next"));
                         EXPECT_FALSE(sheet.UserBack()) << "off on the first page";
                         EXPECT_FALSE(sheet.UserFinish());
                         EXPECT_TRUE(sheet.UserNext());
                         EXPECT_TRUE(sheet.UserBack());
                         b.also["OnSetActive"] = [&] { sheet.SetWizardButtons(kWizardFinish); };
                         EXPECT_TRUE(sheet.UserNext());
                         EXPECT_EQ(sheet.WizardButtons(), 4U);
                         EXPECT_FALSE(sheet.UserBack());
                         EXPECT_FALSE(sheet.UserNext());
                         sheet.SetActivePage(&a);
                         EXPECT_EQ(sheet.WizardButtons(), 4U) << "no defaults any more";
                     },
                     [&] { sheet.UserCancel(); }};
    sheet.DoModal();
}

TEST_F(Wizard, AppliesItsButtonsAfterThePresentStepInTheOrderOfTheCalls) {
    b.also["OnSetActive"] = [&] {
        sheet.SetWizardButtons(kWizardBack | kWizardFinish);
        sheet.SetWizardButtons(kWizardFinish);
        EXPECT_EQ(sheet.WizardButtons(), 3U) << "posted";
    };
    Run({[&] {
             sheet.UserNext();
             EXPECT_THAT(Log(),
                         ElementsAre("a.OnWizardNext", "a.OnKillActive", "page 90002 \"Page B\"",
                                     "buttons back next", "b.OnInitDialog", "b.OnSetActive",
                                     "buttons back finish", "buttons finish"));
             EXPECT_EQ(sheet.WizardButtons(), 4U);
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, AppliesTheButtonsOfTheFirstPageBeforeTheUserActs) {
    a.also["OnSetActive"] = [&] { sheet.SetWizardButtons(kWizardBack | kWizardFinish); };
    desktop.steps = {
        [&] {
            EXPECT_THAT(Log(),
                        ElementsAre("wizard \"Wizard\"", "page 90001 \"Page A\"", "buttons next",
                                    "a.OnInitDialog", "a.OnSetActive", "buttons back finish"));
        },
        [&] { sheet.UserCancel(); }};
    sheet.DoModal();
}

TEST_F(Wizard, TellsViewsOfButtonsOnlyWhenTheyDiffer) {
    CountingView view;
    Run({[&] {
             sheet.AddListener(&view);
             sheet.SetWizardButtons(kWizardNext);
             desktop.RunPostedSteps();
             EXPECT_THAT(view.Take(), IsEmpty());
             sheet.SetWizardButtons(kWizardFinish);
             desktop.RunPostedSteps();
             EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Buttons));
             sheet.RemoveListener(&view);
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, HasNeitherTabsNorOkNorApply) {
    sheet.SetHasApply(true);
    Run({[&] {
             a.Changed();
             Log();
             EXPECT_FALSE(sheet.UserOk());
             EXPECT_FALSE(sheet.UserApply());
             EXPECT_FALSE(sheet.UserSelectPage(1));
             EXPECT_THAT(Log(), IsEmpty());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, BeginsWithDefaultButtonsAgainInItsNextRun) {
    Run({[&] { sheet.SetWizardButtons(kWizardFinish); }, [&] { desktop.RunPostedSteps(); },
         [&] { sheet.UserCancel(); }});
    Run({[&] { EXPECT_EQ(sheet.WizardButtons(), 2U); }, [&] { sheet.UserCancel(); }});
}

TEST_F(Wizard, StartsInTheMiddleWithBackOn) {
    sheet.SetActivePage(&b);
    Run({[&] { EXPECT_EQ(sheet.WizardButtons(), 3U); }, [&] { sheet.UserCancel(); }});
}

}  // namespace
}  // namespace kvopt
