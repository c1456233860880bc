#include "kvopt/platform/property_sheet.h"

#include <memory>

#include "kvopt/text/exceptions.h"
#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A property sheet of three pages.
class PropertySheet : public PlatformTest {
protected:
    PropertySheet() {
        sheet.AddPage(&a);
        sheet.AddPage(&b);
        sheet.AddPage(&c);
    }

    /// Runs the sheet; the transcript then holds what came after the first page was up.
    int Run(std::deque<std::function<void()>> steps) {
        desktop.steps = std::move(steps);
        desktop.steps.push_front([this] { Log(); });
        return sheet.DoModal();
    }
    /// What happened until the sheet ended, without what its end did.
    std::vector<std::string> LogUntilEnd() {
        std::vector<std::string> lines = Log();
        std::erase_if(lines, [](const std::string& line) {
            return line.ends_with(".OnDestroyWindow") || line.starts_with("end ");
        });
        return lines;
    }

    RecordingPage a{"a", kPageA};
    RecordingPage b{"b", kPageB};
    RecordingPage c{"c", kPageC};
    KvPropertySheet sheet{L"Sheet", nullptr, 0};
};

TEST_F(PropertySheet, InitialisesAPageWhenItIsFirstShownAndActivatesItEachTime) {
    Run({[&] {
             EXPECT_TRUE(a.HasWindow());
             EXPECT_FALSE(b.HasWindow());
             EXPECT_TRUE(sheet.UserSelectPage(1));
             EXPECT_THAT(Log(), ElementsAre("a.OnKillActive", "page 90002 \"Page B\"",
                                            "b.OnInitDialog", "b.OnSetActive"));
             EXPECT_TRUE(sheet.UserSelectPage(0));
             EXPECT_THAT(Log(),
                         ElementsAre("b.OnKillActive", "page 90001 \"Page A\"", "a.OnSetActive"));
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, LeavesATranscriptOfItsWholeRun) {
    desktop.steps = {[&] { sheet.UserOk(); }};
    EXPECT_EQ(sheet.DoModal(), kResultOk);
    EXPECT_THAT(Log(), ElementsAre("sheet \"Sheet\"", "page 90001 \"Page A\"", "a.OnInitDialog",
                                   "a.OnSetActive", "a.OnKillActive", "a.OnApply", "a.OnOK",
                                   "a.OnDestroyWindow", "end 1"));
    EXPECT_FALSE(a.HasWindow());
    EXPECT_EQ(a.GetDlgItem(kEdit), nullptr);
}

TEST_F(PropertySheet, KeepsThePageThatRefusesToBeLeft) {
    a.killAnswer = false;
    Run({[&] {
             EXPECT_TRUE(sheet.UserSelectPage(1));
             EXPECT_THAT(Log(), ElementsAre("a.OnKillActive"));
             EXPECT_EQ(sheet.GetActivePage(), &a);
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, AppliesEachPageWithAWindowInDisplayOrderOnOk) {
    EXPECT_EQ(Run({[&] { sheet.UserSelectPage(2); }, [&] { Log(); }, [&] { sheet.UserOk(); }}),
              kResultOk);
    EXPECT_THAT(LogUntilEnd(),
                ElementsAre("c.OnKillActive", "a.OnApply", "a.OnOK", "c.OnApply", "c.OnOK"));
}

TEST_F(PropertySheet, StopsOkAtARefusalToBeLeft) {
    a.killAnswer = false;
    Run({[&] {
             EXPECT_TRUE(sheet.UserOk());
             EXPECT_THAT(Log(), ElementsAre("a.OnKillActive"));
             EXPECT_FALSE(sheet.HasEnded());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, StopsOkAtTheFirstPageThatRefusesToApply) {
    a.applyAnswer = false;
    Run({[&] { sheet.UserSelectPage(1); }, [&] { Log(); },
         [&] {
             EXPECT_TRUE(sheet.UserOk());
             EXPECT_THAT(Log(), ElementsAre("b.OnKillActive", "a.OnApply"));
             EXPECT_FALSE(sheet.HasEnded());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, BringsTheActivePageUpAgainAfterApply) {
    sheet.SetHasApply(true);
    Run({[&] { a.Changed(); }, [&] { Log(); },
         [&] {
             EXPECT_TRUE(sheet.UserApply());
             EXPECT_THAT(Log(), ElementsAre("a.OnKillActive", "a.OnApply", "a.OnOK",
                                            "page 90001 \"Page A\"", "a.OnSetActive"));
             EXPECT_FALSE(sheet.HasEnded());
             EXPECT_FALSE(sheet.IsApplyEnabled());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, BringsNothingUpAfterAnApplyThatWasRefused) {
    sheet.SetHasApply(true);
    a.applyAnswer = false;
    Run({[&] { a.Changed(); }, [&] { Log(); },
         [&] {
             EXPECT_TRUE(sheet.UserApply());
             EXPECT_THAT(Log(), ElementsAre("a.OnKillActive", "a.OnApply"));
             EXPECT_TRUE(sheet.IsApplyEnabled());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, OffersApplyOnlyWhenItsBuilderSaidSoAndAPageIsModified) {
    Run({[&] {
             a.Changed();
             EXPECT_FALSE(sheet.IsApplyEnabled());
             EXPECT_FALSE(sheet.UserApply());
             a.Unchanged();
             sheet.SetHasApply(true);
             EXPECT_FALSE(sheet.UserApply());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, TellsViewsWhenApplyLightsUp) {
    sheet.SetHasApply(true);
    CountingView view;
    sheet.AddListener(&view);
    a.Changed();
    a.Changed();
    b.Changed();
    a.Unchanged();
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Buttons));
    b.Unchanged();
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Buttons));
    sheet.RemoveListener(&view);
}

TEST_F(PropertySheet, AppliesAllWithoutEndAndWithoutActivation) {
    Run({[&] {
             EXPECT_TRUE(sheet.ApplyAllNow());
             EXPECT_THAT(Log(), ElementsAre("a.OnKillActive", "a.OnApply", "a.OnOK"));
             EXPECT_FALSE(sheet.HasEnded());
             a.applyAnswer = false;
             EXPECT_FALSE(sheet.ApplyAllNow());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, TellsEachPageWithAWindowOfCancel) {
    EXPECT_EQ(Run({[&] { sheet.UserSelectPage(1); }, [&] { Log(); }, [&] { sheet.UserCancel(); }}),
              kResultCancel);
    EXPECT_THAT(LogUntilEnd(), ElementsAre("a.OnCancel", "b.OnCancel"));
}

TEST_F(PropertySheet, StartsWithThePageOfItsThirdArgument) {
    KvPropertySheet other(L"Other", nullptr, 1);
    RecordingPage first("first", kPageA);
    RecordingPage second("second", kPageB);
    other.AddPage(&first);
    other.AddPage(&second);
    EXPECT_EQ(other.GetActivePage(), &second);
    desktop.steps = {[&] {
        EXPECT_EQ(other.GetActiveIndex(), 1);
        EXPECT_FALSE(first.HasWindow());
        other.UserOk();
    }};
    EXPECT_EQ(other.DoModal(), kResultOk);
}

TEST_F(PropertySheet, StartsWithItsLastPageWhereItsThirdArgumentIsBeyondIt) {
    for (const unsigned start : {1U, 7U, 0xFFFFFFFFU}) {
        KvPropertySheet other(L"Other", nullptr, start);
        RecordingPage first("first", kPageA);
        RecordingPage second("second", kPageB);
        other.AddPage(&first);
        other.AddPage(&second);
        EXPECT_EQ(other.GetActivePage(), &second);
        desktop.steps = {[&] {
            EXPECT_EQ(other.GetActivePage(), &second);
            EXPECT_FALSE(first.HasWindow());
            EXPECT_TRUE(other.UserOk());
        }};
        EXPECT_EQ(other.DoModal(), kResultOk);
    }
}

/// A sheet with a step of its own before its first page is up.
class OpeningSheet : public KvPropertySheet {
public:
    using KvPropertySheet::KvPropertySheet;
    std::function<void()> opening;
    bool OnInitDialog() override {
        Desktop::Instance().Note("sheet.OnInitDialog");
        opening();
        return KvPropertySheet::OnInitDialog();
    }
};

TEST_F(PropertySheet, OpensBeforeItsFirstPage) {
    OpeningSheet other(L"Other", nullptr, 0);
    RecordingPage first("first", kPageA);
    other.AddPage(&first);
    other.opening = [] {};
    desktop.steps = {[&] {
        EXPECT_THAT(Log(),
                    ElementsAre("sheet \"Other\"", "sheet.OnInitDialog", "page 90001 \"Page A\"",
                                "first.OnInitDialog", "first.OnSetActive"));
    }};
    other.DoModal();
}

TEST_F(PropertySheet, LetsItsOpeningChooseTheFirstPage) {
    OpeningSheet other(L"Other", nullptr, 0);
    RecordingPage first("first", kPageA);
    RecordingPage second("second", kPageB);
    other.AddPage(&first);
    other.AddPage(&second);
    other.opening = [&] { EXPECT_TRUE(other.SetActivePage(&second)); };
    desktop.steps = {[&] {
        EXPECT_EQ(other.GetActivePage(), &second);
        EXPECT_FALSE(first.HasWindow());
        EXPECT_THAT(Log(),
                    ElementsAre("sheet \"Other\"", "sheet.OnInitDialog", "page 90002 \"Page B\"",
                                "second.OnInitDialog", "second.OnSetActive"));
    }};
    other.DoModal();
}

TEST_F(PropertySheet, StartsWithThePageThatWasMadeActiveBefore) {
    EXPECT_EQ(sheet.GetActivePage(), &a);
    EXPECT_TRUE(sheet.SetActivePage(&c));
    EXPECT_EQ(sheet.GetActivePage(), &c);
    EXPECT_EQ(sheet.GetActiveIndex(), 2);
    desktop.steps = {[&] { sheet.UserCancel(); }};
    sheet.DoModal();
    EXPECT_THAT(Log(), testing::Contains("page 90003 \"Page C\""));
    EXPECT_FALSE(a.HasWindow());
}

TEST_F(PropertySheet, ChangesThePageWhollyAndAtOnceByProgram) {
    Run({[&] {
             EXPECT_TRUE(sheet.SetActivePage(&b));
             EXPECT_THAT(Log(), ElementsAre("a.OnKillActive", "page 90002 \"Page B\"",
                                            "b.OnInitDialog", "b.OnSetActive"));
             EXPECT_TRUE(sheet.SetActivePage(&b));
             EXPECT_THAT(Log(), IsEmpty()) << "nothing for the page that is active already";
             b.killAnswer = false;
             EXPECT_FALSE(sheet.SetActivePage(&a));
             EXPECT_THAT(Log(), ElementsAre("b.OnKillActive"));
             EXPECT_EQ(sheet.GetActivePage(), &b);
             RecordingPage stranger("stranger", kPageA);
             EXPECT_FALSE(sheet.SetActivePage(&stranger));
             EXPECT_THAT(Log(), IsEmpty());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, ActivatesTheRefusingPageBeforeItsFocusAndItsBox) {
    a.also["OnApply"] = [this] {
        sheet.SetActivePage(&a);
        a.GotoDlgCtrl(a.GetDlgItem(kEdit));
        ShowMessage(&a, L"No \"such\"\nvalue", BoxStyle::Error);
    };
    a.applyAnswer = false;
    Run({[&] { sheet.UserSelectPage(1); }, [&] { Log(); },
         [&] {
             sheet.UserOk();
             EXPECT_THAT(Log(),
                         ElementsAre("b.OnKillActive", "a.OnApply", "b.OnKillActive",
                                     "page 90001 \"Page A\"", "a.OnSetActive", "focus 90001:10",
                                     "box 16 \"Sheet\" \"No \\\"such\\\"\\nvalue\" -> ok"));
             EXPECT_EQ(sheet.GetActivePage(), &a);
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, ShowsBoxAndFocusOfARefusalAlsoWhenTheActivePageStays) {
    a.also["OnApply"] = [this] {
        EXPECT_FALSE(sheet.SetActivePage(&a));
        a.GotoDlgCtrl(a.GetDlgItem(kEdit));
        ShowMessage(&a, L"Wrong", BoxStyle::Error);
    };
    a.applyAnswer = false;
    Run({[&] { sheet.UserSelectPage(1); }, [&] { Log(); },
         [&] {
             int kills = 0;
             b.also["OnKillActive"] = [&] { b.killAnswer = ++kills == 1; };
             sheet.UserOk();
             EXPECT_THAT(Log(), ElementsAre("b.OnKillActive", "a.OnApply", "b.OnKillActive",
                                            "focus 90001:10", "box 16 \"Sheet\" \"Wrong\" -> ok"));
             EXPECT_EQ(sheet.GetActivePage(), &b);
             EXPECT_EQ(a.GetFocusControl(), a.GetDlgItem(kEdit)) << "remembered on a page behind";
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, GivesTheLastWordToAStepThatChangesThePageItself) {
    a.also["OnKillActive"] = [this] {
        a.also.clear();
        sheet.SetActivePage(&c);
    };
    Run({[&] {
             sheet.UserSelectPage(1);
             EXPECT_EQ(sheet.GetActivePage(), &c);
             EXPECT_FALSE(b.HasWindow());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, GivesTheLastWordToAStepThatEndsTheSheet) {
    a.also["OnKillActive"] = [this] { sheet.EndDialog(77); };
    EXPECT_EQ(Run({[&] {
                  CountingView view;
                  sheet.AddListener(&view);
                  sheet.UserSelectPage(1);
                  EXPECT_THAT(Log(), ElementsAre("a.OnKillActive"));
                  EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Ended));
                  sheet.RemoveListener(&view);
                  EXPECT_FALSE(b.HasWindow());
              }}),
              77);
    sheet.SetHasApply(true);
    a.also.clear();
    a.also["OnApply"] = [this] { sheet.EndDialog(78); };
    EXPECT_EQ(Run({[&] { a.Changed(); }, [&] { Log(); },
                   [&] {
                       EXPECT_TRUE(sheet.UserApply());
                       EXPECT_THAT(Log(), ElementsAre("a.OnKillActive", "a.OnApply", "a.OnOK"));
                   }}),
              78);
}

TEST_F(PropertySheet, PassesOverAPageThatRefusesToBeActive) {
    b.activeAnswer = false;
    Run({[&] {
             sheet.UserSelectPage(1);
             EXPECT_EQ(sheet.GetActivePage(), &c);
             sheet.UserSelectPage(1);
             EXPECT_EQ(sheet.GetActivePage(), &a) << "in the direction of the change";
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, GivesTheLastWordToAnActivationThatChangesThePageItself) {
    b.activeAnswer = false;
    b.also["OnSetActive"] = [this] { sheet.SetActivePage(&a); };
    Run({[&] {
             sheet.UserSelectPage(1);
             EXPECT_EQ(sheet.GetActivePage(), &a);
             EXPECT_FALSE(c.HasWindow());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, RunsPostedStepsBeforeTheRunReturnsAlsoWhenOkClosesIt) {
    a.also["OnApply"] = [this] {
        a.PostStep("audit", [this] {
            EXPECT_TRUE(a.HasWindow());
            desktop.Note("audited");
        });
    };
    EXPECT_EQ(Run({[&] { sheet.UserOk(); }}), kResultOk);
    EXPECT_THAT(Log(), ElementsAre("a.OnKillActive", "a.OnApply", "a.OnOK", "posted audit",
                                   "audited", "a.OnDestroyWindow", "end 1"));
}

TEST_F(PropertySheet, RunsStepsThatWerePostedOutsideOfAnyAction) {
    EXPECT_EQ(Run({[&] {
                  a.PostStep("last", [] {});
                  sheet.EndDialog(kResultOk);
              }}),
              kResultOk);
    EXPECT_THAT(Log(), ElementsAre("posted last", "a.OnDestroyWindow", "end 1"));
}

TEST_F(PropertySheet, EndsWithTheResultThatItWasGiven) {
    EXPECT_EQ(Run({[&] { sheet.EndDialog(kResultCancelRequested); }}), kResultCancelRequested);
    EXPECT_EQ(Run({[&] {
                  a.also["OnApply"] = [&] { sheet.EndDialog(77); };
                  sheet.UserOk();
              }}),
              77)
        << "a page's own end is not overruled by OK";
}

TEST_F(PropertySheet, RefusesTheUserOnceItHasEndedOrIsHidden) {
    Run({[&] {
        sheet.ShowWindow(false);
        EXPECT_FALSE(sheet.UserOk());
        sheet.ShowWindow(true);
        EXPECT_TRUE(a.Item<CEdit>(kEdit)->UserEdit(L"1"));
        sheet.EndDialog(kResultOk);
        EXPECT_FALSE(sheet.UserCancel());
        EXPECT_FALSE(a.Item<CEdit>(kEdit)->UserEdit(L"2"));
    }});
    EXPECT_EQ(sheet.Result(), kResultOk);
}

TEST_F(PropertySheet, LetsTheUserReachTheActivePageAlone) {
    Run({[&] {
             sheet.UserSelectPage(1);
             EXPECT_FALSE(a.Item<CEdit>(kEdit)->UserEdit(L"1"));
             EXPECT_TRUE(a.Item<CEdit>(kEdit)->IsVisible()) << "its own flag is not touched";
             EXPECT_TRUE(b.Item<CEdit>(kEdit)->UserEdit(L"1"));
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, HasNoWizardButtons) {
    Run({[&] {
             sheet.SetWizardButtons(kWizardNext);
             desktop.RunPostedSteps();
             EXPECT_FALSE(sheet.UserNext());
             EXPECT_FALSE(sheet.UserBack());
             EXPECT_FALSE(sheet.UserFinish());
             EXPECT_THAT(Log(), IsEmpty());
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, RunsAgainWithNewWindows) {
    Run({[&] { a.GetDlgItem(kEdit)->SetText(L"1"); }, [&] { sheet.UserOk(); }});
    Log();
    desktop.steps = {[&] {
        EXPECT_EQ(a.GetDlgItem(kEdit)->GetText(), L"");
        sheet.UserCancel();
    }};
    sheet.DoModal();
    EXPECT_THAT(Log(), testing::Contains("a.OnInitDialog"));
}

TEST_F(PropertySheet, RefusesMisuse) {
    EXPECT_THROW(sheet.AddPage(nullptr), InvalidArgument);
    EXPECT_THROW(sheet.AddPage(&a), InvalidArgument);
    KvPropertySheet empty(L"Empty", nullptr, 0);
    EXPECT_THROW(empty.DoModal(), InvalidArgument);
    EXPECT_EQ(empty.GetActivePage(), nullptr);
    EXPECT_EQ(empty.GetActiveIndex(), -1);
    RecordingPage late("late", kPageA);
    Run({[&] {
             EXPECT_THROW(sheet.AddPage(&late), InvalidArgument);
             EXPECT_THROW(sheet.DoModal(), InvalidArgument);
         },
         [&] { sheet.UserCancel(); }});
}

TEST_F(PropertySheet, FindsItsPages) {
    EXPECT_EQ(sheet.GetPageCount(), 3);
    EXPECT_EQ(sheet.GetPageIndex(&b), 1);
    EXPECT_EQ(sheet.GetPage(1), &b);
    EXPECT_EQ(sheet.GetPage(3), nullptr);
    EXPECT_EQ(sheet.GetPage(-1), nullptr);
    EXPECT_EQ(sheet.GetPageIndex(nullptr), -1);
}

TEST_F(PropertySheet, LetsGoOfPagesThatDieAndPagesOfIt) {
    auto page = std::make_unique<RecordingPage>("d", kPageA);
    sheet.AddPage(page.get());
    EXPECT_EQ(page->GetTopLevelParent(), &sheet);
    page.reset();
    EXPECT_EQ(sheet.GetPageCount(), 3);
    RecordingPage orphan("orphan", kPageA);
    {
        KvPropertySheet shortLived(L"Short", nullptr, 0);
        shortLived.AddPage(&orphan);
        EXPECT_EQ(orphan.GetSheet(), &shortLived);
    }
    EXPECT_EQ(orphan.GetSheet(), nullptr);
    EXPECT_EQ(orphan.GetParent(), nullptr);
}

TEST_F(PropertySheet, CommitsAnOpenCellEditorBeforeItsButtonsAct) {
    class Content : public BaseWorksheetInterface {
    public:
        Content() : BaseWorksheetInterface("content") {
            SetSize(1, 1);
            SetColumnType(1, FieldDef::Number);
        }
        bool UserChangedData(int column, int row, const char* text) override {
            Desktop::Instance().Note("changed to " + std::string(text));
            UpdateValue(column, row, text);
            return true;
        }
    } content;
    a.also["OnInitDialog"] = [&] { VirtualWorksheet::CreateFromStatic(a, kWorksheet, content); };
    Run({[&] {
             content.Worksheet()->UserBeginEdit({1, 1});
             content.Worksheet()->UserEdit("5");
             sheet.UserSelectPage(1);
             EXPECT_THAT(Log(),
                         ElementsAre("changed to 5", "a.OnKillActive", "page 90002 \"Page B\"",
                                     "b.OnInitDialog", "b.OnSetActive"));
             sheet.UserSelectPage(0);
             content.Worksheet()->UserBeginEdit({1, 1});
             content.Worksheet()->UserEdit("6");
             Log();
         },
         [&] { sheet.UserOk(); }});
    EXPECT_THAT(LogUntilEnd(), ElementsAre("changed to 6", "a.OnKillActive", "a.OnApply", "a.OnOK",
                                           "b.OnApply", "b.OnOK"));
    EXPECT_EQ(content.Worksheet(), nullptr) << "the window is gone, the content is not";
    EXPECT_EQ(content.GetCellText(1, 1), "6");
}

TEST_F(PropertySheet, PressesNothingOnceTheCommitOfACellEndedIt) {
    class Content : public BaseWorksheetInterface {
    public:
        explicit Content(KvPropertySheet& owner) : BaseWorksheetInterface("content"), sheet(owner) {
            SetSize(1, 1);
            SetColumnType(1, FieldDef::Number);
        }
        bool UserChangedData(int /*column*/, int /*row*/, const char* /*text*/) override {
            sheet.EndDialog(77);
            return true;
        }
        KvPropertySheet& sheet;
    } content(sheet);
    a.also["OnInitDialog"] = [&] { VirtualWorksheet::CreateFromStatic(a, kWorksheet, content); };
    EXPECT_EQ(Run({[&] {
                  content.Worksheet()->UserBeginEdit({1, 1});
                  content.Worksheet()->UserEdit("5");
                  sheet.UserOk();
              }}),
              77);
    EXPECT_THAT(LogUntilEnd(), IsEmpty());
}

}  // namespace
}  // namespace kvopt
