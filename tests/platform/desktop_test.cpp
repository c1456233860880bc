#include "kvopt/platform/desktop.h"

#include <memory>
#include <optional>

#include "kvopt/text/exceptions.h"
#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheDesktop : public PlatformTest {};

TEST_F(TheDesktop, CancelsAndDeclinesEverythingWhenThereAreNoWindows) {
    EXPECT_EQ(Desktop::Install(nullptr), &desktop);
    Desktop& plain = Desktop::Instance();
    Transcript log;
    plain.SetTranscript(&log);
    EXPECT_EQ(plain.ShowBox({L"Go on?", L"Sheet", BoxStyle::YesNoWarning, nullptr}), BoxAnswer::No);
    EXPECT_EQ(plain.ShowBox({L"Go on?", L"Sheet", BoxStyle::YesNoInformation, nullptr}),
              BoxAnswer::No);
    EXPECT_EQ(plain.ShowBox({L"So it is", L"Sheet", BoxStyle::Error, nullptr}), BoxAnswer::Ok);
    EXPECT_EQ(plain.ShowBox({L"So it is", L"Sheet", BoxStyle::Plain, nullptr}), BoxAnswer::Ok);
    EXPECT_EQ(
        plain.ShowBox({L"Mind it", L"Sheet", BoxStyle::Information, nullptr, L"&Never again"}),
        BoxAnswer::Ok);
    {
        KvPropertySheet sheet(L"Sheet", nullptr, 0);
        RecordingPage page("page", kPageA);
        sheet.AddPage(&page);
        EXPECT_EQ(sheet.DoModal(), kResultCancel);
        CDialog dialog(kPageB, nullptr);
        EXPECT_EQ(dialog.DoModal(), kResultCancel);
    }
    plain.SetTranscript(nullptr);
    EXPECT_THAT(
        log.Lines(),
        ElementsAre("box 52 \"Sheet\" \"Go on?\" -> no", "box 68 \"Sheet\" \"Go on?\" -> no",
                    "box 16 \"Sheet\" \"So it is\" -> ok", "box 0 \"Sheet\" \"So it is\" -> ok",
                    "box 64 \"Sheet\" \"Mind it\" check \"&Never again\" -> ok", "sheet \"Sheet\"",
                    "page 90001 \"Page A\"", "page.OnInitDialog", "page.OnSetActive",
                    "page.OnCancel", "page.OnDestroyWindow", "end 2", "dialog \"Page B\"",
                    "end 2"));
    EXPECT_EQ(Desktop::Install(&desktop), nullptr);
}

TEST_F(TheDesktop, ComesBackToTheDefaultWhenAnInstalledOneDies) {
    auto other = std::make_unique<StepDesktop>();
    EXPECT_EQ(Desktop::Install(other.get()), &desktop);
    EXPECT_EQ(&Desktop::Instance(), other.get());
    other.reset();
    EXPECT_EQ(Desktop::Install(&desktop), nullptr);
}

TEST_F(TheDesktop, NotesTheAnswersOfBoxes) {
    desktop.answers = {BoxAnswer::Yes, BoxAnswer::Cancel};
    CWnd owner;
    owner.SetText(L"Host");
    EXPECT_EQ(ShowMessage(&owner, L"a", BoxStyle::YesNoWarning), BoxAnswer::Yes);
    EXPECT_EQ(ShowMessage(nullptr, L"b", BoxStyle::Information), BoxAnswer::Cancel);
    EXPECT_THAT(Log(), ElementsAre("box 52 \"Host\" \"a\" -> yes", "box 64 \"\" \"b\" -> cancel"));
}

TEST_F(TheDesktop, TakesTheCaptionOfABoxFromTheSheetOfAPageOrControl) {
    KvPropertySheet sheet(L"Contour Plot", nullptr, 0);
    RecordingPage page("page", kPageA);
    sheet.AddPage(&page);
    page.Create();
    CDialog dialog(kPageB, nullptr);
    dialog.Create();
    Log();
    ShowMessage(&page, L"1", BoxStyle::Plain);
    ShowMessage(page.GetDlgItem(kEdit), L"2", BoxStyle::Plain);
    ShowMessage(&sheet, L"3", BoxStyle::Plain);
    ShowMessage(&dialog, L"4", BoxStyle::Plain);
    EXPECT_THAT(
        Log(),
        ElementsAre("box 0 \"Contour Plot\" \"1\" -> ok", "box 0 \"Contour Plot\" \"2\" -> ok",
                    "box 0 \"Contour Plot\" \"3\" -> ok", "box 0 \"Page B\" \"4\" -> ok"));
}

TEST_F(TheDesktop, RunsPostedStepsInTheirOrderWithThoseThatTheyPost) {
    CWnd owner;
    owner.PostStep("first", [&] {
        desktop.Note("1");
        owner.PostStep("third", [&] { desktop.Note("3"); });
    });
    owner.PostStep("", [&] { desktop.Note("2"); });
    EXPECT_EQ(desktop.posts, 2);
    EXPECT_THAT(Log(), IsEmpty());
    desktop.RunPostedSteps();
    EXPECT_THAT(Log(), ElementsAre("posted first", "1", "2", "posted third", "3"))
        << "a step without a name leaves no line of its own";
    desktop.RunPostedSteps();
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(TheDesktop, DropsThePostedStepsOfOwnersThatDied) {
    auto owner = std::make_unique<CWnd>();
    CWnd other;
    owner->PostStep("dead", [&] { desktop.Note("dead"); });
    other.PostStep("alive", [&] { owner.reset(); });
    owner->PostStep("dies", [&] { desktop.Note("dies"); });
    desktop.RunPostedSteps();
    EXPECT_THAT(Log(), ElementsAre("posted dead", "dead", "posted alive"));
}

TEST_F(TheDesktop, HoldsPostedStepsWhileTheUserActs) {
    CWnd owner;
    EXPECT_TRUE(desktop.RunUserAction([&] {
        owner.PostStep("later", [&] { desktop.Note("posted step"); });
        EXPECT_FALSE(desktop.RunUserAction([] { return false; }));
        desktop.RunPostedSteps();
        ShowMessage(&owner, L"Box", BoxStyle::Plain);
        desktop.Note("end of action");
        return true;
    }));
    EXPECT_THAT(Log(), ElementsAre("box 0 \"\" \"Box\" -> ok", "end of action", "posted later",
                                   "posted step"));
}

TEST_F(TheDesktop, RunsPostedStepsInAModalRunWithinAnAction) {
    RecordingPage page("page", kPageA);
    KvPropertySheet sheet(L"Options", nullptr, 0);
    sheet.AddPage(&page);
    desktop.steps = {[&] { Log(); }, [&] { sheet.PostStep("inner", [] {}); },
                     [&] { sheet.UserCancel(); }};
    CWnd owner;
    desktop.RunUserAction([&] {
        owner.PostStep("outer", [] {});
        sheet.DoModal();
        desktop.Note("back");
        owner.PostStep("after", [] {});
        return true;
    });
    EXPECT_THAT(Log(), ElementsAre("page.OnCancel", "posted inner", "page.OnDestroyWindow", "end 2",
                                   "back", "posted after"));
}

TEST_F(TheDesktop, StartsAndStopsTimers) {
    int id = 0;
    desktop.StopTimer(&id);
    EXPECT_THAT(Log(), IsEmpty()) << "no timer was running";
    desktop.StartTimer(&id, 100, [&] {
        desktop.StopTimer(&id);
        desktop.Note("fired");
    });
    ASSERT_EQ(desktop.timers.size(), 1U);
    desktop.timers.begin()->second();
    EXPECT_THAT(Log(), ElementsAre("timer 100", "timer stopped", "fired"));
    EXPECT_THAT(desktop.timers, IsEmpty());
}

TEST_F(TheDesktop, RunsPostedStepsBehindATimer) {
    CWnd owner;
    desktop.StartTimer(&owner, 5, [&] {
        owner.PostStep("later", [] {});
        desktop.Note("fired");
    });
    desktop.timers.begin()->second();
    EXPECT_THAT(Log(), ElementsAre("timer 5", "fired", "posted later"));
}

TEST_F(TheDesktop, NotesChangesOfTheCursorOnly) {
    desktop.SetCursor(Cursor::Arrow);
    desktop.SetCursor(Cursor::SizeHorizontal);
    desktop.SetCursor(Cursor::SizeHorizontal);
    desktop.SetCursor(Cursor::Wait);
    desktop.SetCursor(Cursor::Arrow);
    EXPECT_THAT(desktop.log.Lines(),
                ElementsAre("cursor size-horizontal", "cursor wait", "cursor arrow"));
    EXPECT_EQ(desktop.GetCursor(), Cursor::Arrow);
}

TEST_F(TheDesktop, RestoresTheCursorAfterAWait) {
    desktop.SetCursor(Cursor::SizeHorizontal);
    {
        const CWaitCursor outer;
        const CWaitCursor inner;
        EXPECT_EQ(desktop.GetCursor(), Cursor::Wait);
    }
    EXPECT_EQ(desktop.GetCursor(), Cursor::SizeHorizontal);
}

TEST_F(TheDesktop, SendsTheCommandThatAMenuGaveToItsOwner) {
    class Owner : public CWnd {
    public:
        bool OnCommand(int command) override {
            commands.push_back(command);
            return true;
        }
        std::vector<int> commands;
    } owner;
    const std::vector<PopupMenuItem> items{{57642, L"&Select all"}, {0, L""}, {57634, L"&Copy"}};
    desktop.ShowPopupMenu(owner, {1, 2}, items);
    EXPECT_THAT(owner.commands, IsEmpty());
    desktop.menuChoice = 57634;
    desktop.ShowPopupMenu(owner, {1, 2}, items);
    EXPECT_THAT(owner.commands, ElementsAre(57634));
    EXPECT_THAT(Log(), ElementsAre("menu \"&Select all\" - \"&Copy\" -> 0",
                                   "menu \"&Select all\" - \"&Copy\" -> 57634"));
}

TEST_F(TheDesktop, HasAClipboardAndAResolution) {
    desktop.SetClipboardText(L"a\tb");
    EXPECT_EQ(desktop.ClipboardText(), L"a\tb");
    EXPECT_EQ(desktop.DotsPerInch(), 96);
}

TEST_F(TheDesktop, NotesNothingWithoutATranscript) {
    desktop.SetTranscript(nullptr);
    desktop.Note("lost");
    desktop.SetTranscript(&desktop.log);
    EXPECT_THAT(Log(), IsEmpty());
}

/// A page that abandons the plot in a step.
class Abandon : public PlatformTest {
protected:
    Abandon() {
        sheet.AddPage(&page);
        sheet.AddPage(&second);
    }
    void ThrowIn(const std::string& step) {
        page.also[step] = [] { throw CancelException(); };
    }
    void ExpectNothingIsLeft() {
        EXPECT_FALSE(sheet.IsRunning());
        EXPECT_FALSE(page.HasWindow());
        EXPECT_FALSE(second.HasWindow());
        EXPECT_EQ(desktop.GetCursor(), Cursor::Arrow);
        CWnd owner;
        owner.PostStep("works", [] {});
        Log();
        desktop.RunPostedSteps();
        EXPECT_THAT(Log(), ElementsAre("posted works")) << "the posted steps run as before";
    }

    RecordingPage page{"page", kPageA};
    RecordingPage second{"second", kPageB};
    KvPropertySheet sheet{L"Sheet", nullptr, 0};
};

TEST_F(Abandon, LeavesTheRunFromOk) {
    ThrowIn("OnApply");
    desktop.steps = {[&] { sheet.UserSelectPage(1); }, [&] { sheet.UserOk(); }};
    EXPECT_THROW(sheet.DoModal(), CancelException);
    EXPECT_EQ(Log().back(), "end by exception");
    ExpectNothingIsLeft();
}

TEST_F(Abandon, LeavesTheRunFromTheOpeningOfAPage) {
    ThrowIn("OnInitDialog");
    EXPECT_THROW(sheet.DoModal(), CancelException);
    ExpectNothingIsLeft();
}

TEST_F(Abandon, LeavesTheRunFromAHandlerOfAControl) {
    ThrowIn("OnPush");
    desktop.steps = {[&] { page.Item<CButton>(kPush)->UserClick(); }};
    EXPECT_THROW(sheet.DoModal(), CancelException);
    ExpectNothingIsLeft();
}

TEST_F(Abandon, LeavesTheRunFromAPostedStep) {
    desktop.steps = {[&] { page.PostStep("throws", [] { throw CancelException(); }); },
                     [&] { page.Item<CButton>(kPush)->UserClick(); }};
    EXPECT_THROW(sheet.DoModal(), CancelException);
    ExpectNothingIsLeft();
}

TEST_F(Abandon, DropsTheStepsThatWerePostedWithinTheRun) {
    CWnd outside;
    desktop.steps = {[&] {
        page.PostStep("dropped", [] {});
        throw CancelException();
    }};
    EXPECT_THROW(sheet.DoModal(), CancelException);
    Log();
    desktop.RunPostedSteps();
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Abandon, LeavesNestedRunsOneAfterTheOther) {
    RecordingPage inner("inner", kPageC);
    KvPropertySheet options(L"Options", nullptr, 0);
    options.AddPage(&inner);
    page.also["OnPush"] = [&] { options.DoModal(); };
    desktop.steps = {[&] { page.Item<CButton>(kPush)->UserClick(); },
                     [] { throw CancelException(); }};
    EXPECT_THROW(sheet.DoModal(), CancelException);
    EXPECT_FALSE(inner.HasWindow());
    ExpectNothingIsLeft();
}

TEST_F(Abandon, CanBeCaughtByTheSheetThatApplies) {
    class Guarded : public KvPropertySheet {
    public:
        using KvPropertySheet::KvPropertySheet;
        void OnOK() override {
            try {
                KvPropertySheet::OnOK();
            } catch (const CancelException&) {
                EndDialog(kResultCancelRequested);
            }
        }
    };
    Guarded guarded(L"Guarded", nullptr, 0);
    RecordingPage thrower("thrower", kPageA);
    guarded.AddPage(&thrower);
    thrower.also["OnKillActive"] = [] { throw CancelException(); };
    desktop.steps = {[&] { guarded.UserOk(); }};
    EXPECT_EQ(guarded.DoModal(), kResultCancelRequested);
    EXPECT_FALSE(thrower.HasWindow());
}

}  // namespace
}  // namespace kvopt
