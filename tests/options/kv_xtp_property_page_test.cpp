#include "kvopt/options/kv_xtp_property_page.h"

#include "platform/platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CountingHelper : public BasePropertyPageHelper {
public:
    bool Update() override {
        ++updates;
        Desktop::Instance().Note("update");
        return answer && BasePropertyPageHelper::Update();
    }
    int updates = 0;
    bool answer = true;
};

/// Notes what stands behind the sheet's Apply as it lights up and goes out.
class ApplyView : public WindowListener {
public:
    ApplyView(KvPropertySheet& sheet, const KvXtpPropertyPage& page,
              const BasePropertyPageHelper& helper)
        : sheet_(sheet), page_(page), helper_(helper) {
        sheet_.AddListener(this);
    }
    ~ApplyView() override { sheet_.RemoveListener(this); }
    void OnWindowChanged(CWnd& /*window*/, WindowChange change) override {
        if (change == WindowChange::Buttons) {
            seen.push_back(std::string(page_.IsChanged() ? "dirty " : "clean ") +
                           std::to_string(helper_.UpdateCount()));
        }
    }
    void OnWindowGone(CWnd& /*window*/) override {}
    std::vector<std::string> seen;

private:
    KvPropertySheet& sheet_;
    const KvXtpPropertyPage& page_;
    const BasePropertyPageHelper& helper_;
};

class XtpPage : public KvXtpPropertyPage {
public:
    explicit XtpPage(BasePropertyPageHelper* helper, unsigned helpTopic = kNoHelp)
        : KvXtpPropertyPage(kPageA, 0, helper, helpTopic) {}
    void OnOK() override {
        Desktop::Instance().Note("page.OnOK");
        KvXtpPropertyPage::OnOK();
    }
};

class TheXtpPage : public PlatformTest {
protected:
    TheXtpPage() { listener.ConnectTo(&helper); }

    PropertyPageListener listener;
    CountingHelper helper;
    XtpPage page{&helper};
};

TEST_F(TheXtpPage, StartsClean) {
    EXPECT_FALSE(page.IsChanged());
    EXPECT_FALSE(page.IsModified());
    EXPECT_EQ(helper.UpdateCount(), 0);
    EXPECT_EQ(page.TemplateNumber(), kPageA);
    EXPECT_EQ(KvXtpPropertyPage(kPageA, 17, nullptr, kNoHelp).CaptionNumber(), 17U);
}

TEST_F(TheXtpPage, TellsItsHelperOnceWhenItBecomesDirtyAndOnceWhenClean) {
    page.Changed();
    page.Changed();
    EXPECT_EQ(helper.UpdateCount(), 1);
    EXPECT_TRUE(page.IsChanged());
    EXPECT_TRUE(page.IsModified()) << "Apply lights up";
    page.Unchanged();
    page.Unchanged();
    EXPECT_EQ(helper.UpdateCount(), 0);
    EXPECT_FALSE(page.IsChanged());
    EXPECT_FALSE(page.IsModified());
}

TEST_F(TheXtpPage, RemovesNoUpdateOfAnotherPageFromAHelperThatTheyShare) {
    XtpPage second(&helper);
    page.Changed();
    second.Changed();
    page.Unchanged();
    page.Unchanged();
    EXPECT_EQ(helper.UpdateCount(), 1);
    EXPECT_TRUE(page.OnApply());
    EXPECT_EQ(helper.UpdateCount(), 1) << "a clean page has nothing to remove";
}

TEST_F(TheXtpPage, RunsTheUpdateOfAConnectedHelperWhenDirty) {
    page.Changed();
    EXPECT_TRUE(page.OnApply());
    EXPECT_EQ(helper.updates, 1);
    EXPECT_THAT(Log(), ElementsAre("update")) << "no OnOK";
    EXPECT_FALSE(page.IsChanged());
    EXPECT_EQ(helper.UpdateCount(), 0);
}

TEST_F(TheXtpPage, StaysDirtyWhenTheUpdateRefuses) {
    helper.answer = false;
    page.Changed();
    EXPECT_FALSE(page.OnApply());
    EXPECT_TRUE(page.IsChanged());
    EXPECT_TRUE(page.IsModified());
    page.Changed();
    EXPECT_EQ(helper.UpdateCount(), 1) << "the update of before is still open";
}

TEST_F(TheXtpPage, PassesOverAHelperThatIsNotConnected) {
    listener.ConnectTo(nullptr);
    page.Changed();
    EXPECT_TRUE(page.OnApply());
    EXPECT_EQ(helper.updates, 0);
    EXPECT_THAT(Log(), IsEmpty()) << "neither Update nor OnOK";
    EXPECT_FALSE(page.IsChanged());
    EXPECT_EQ(helper.UpdateCount(), 0);
}

TEST_F(TheXtpPage, ReachesOnOkWhenCleanUnderTheWaitCursor) {
    EXPECT_TRUE(page.OnApply());
    EXPECT_THAT(desktop.log.Lines(), ElementsAre("cursor wait", "page.OnOK", "cursor arrow"));
    EXPECT_EQ(helper.updates, 0);
    EXPECT_EQ(helper.UpdateCount(), 0);
}

TEST_F(TheXtpPage, ShowsTheWaitCursorUntilItIsClean) {
    class Noting : public XtpPage {
    public:
        using XtpPage::XtpPage;
        void Unchanged() override {
            Desktop::Instance().Note("page.Unchanged");
            XtpPage::Unchanged();
        }
    } noting(&helper);
    noting.Changed();
    desktop.log.Clear();
    EXPECT_TRUE(noting.OnApply());
    EXPECT_THAT(desktop.log.Lines(),
                ElementsAre("cursor wait", "update", "page.Unchanged", "cursor arrow"));
    helper.answer = false;
    noting.Changed();
    desktop.log.Clear();
    EXPECT_FALSE(noting.OnApply());
    EXPECT_THAT(desktop.log.Lines(), ElementsAre("cursor wait", "update", "cursor arrow"));
}

TEST_F(TheXtpPage, TellsItsHelperBeforeTheApplyButton) {
    KvPropertySheet sheet(L"Sheet", nullptr, 0);
    sheet.AddPage(&page);
    sheet.SetHasApply(true);
    desktop.steps = {[&] {
        const ApplyView view(sheet, page, helper);
        page.Changed();
        page.Unchanged();
        EXPECT_THAT(view.seen, ElementsAre("dirty 1", "clean 0"));
    }};
    sheet.DoModal();
}

TEST_F(TheXtpPage, ReachesOnOkWithoutHelper) {
    XtpPage alone(nullptr);
    alone.Changed();
    EXPECT_TRUE(alone.OnApply());
    EXPECT_THAT(Log(), ElementsAre("page.OnOK"));
    EXPECT_FALSE(alone.IsChanged());
}

TEST_F(TheXtpPage, AsksWhetherItIsDirtyThroughItsVirtualStep) {
    class Dirty : public XtpPage {
    public:
        using XtpPage::XtpPage;
        bool IsChanged() const override { return true; }
    } dirty(&helper);
    EXPECT_TRUE(dirty.OnApply());
    EXPECT_EQ(helper.updates, 1);
}

TEST_F(TheXtpPage, OverridesNoOtherStepThanApply) {
    page.Changed();
    page.OnCancel();
    EXPECT_TRUE(page.OnWizardFinish());
    EXPECT_TRUE(page.IsChanged());
    EXPECT_EQ(helper.UpdateCount(), 1) << "only an apply takes it back";
}

TEST_F(TheXtpPage, AsksForHelpOnItsTopic) {
    XtpPage helped(nullptr, 231);
    EXPECT_TRUE(helped.HasHelp());
    EXPECT_EQ(helped.HelpTopicID(), 231U);
    helped.Create();
    Log();
    EXPECT_TRUE(helped.OnCommand(kCommandHelp));
    helped.OnHelp();
    EXPECT_THAT(Log(), ElementsAre("help 231", "help 231"));
}

TEST_F(TheXtpPage, HasNoHelpWhenItsTopicIsAllOnes) {
    EXPECT_FALSE(page.HasHelp());
    page.Create();
    Log();
    page.OnHelp();
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(TheXtpPage, StandsInASheetBesideTheOtherKind) {
    RecordingPage other("other", kPageB);
    KvPropertySheet sheet(L"Sheet", nullptr, 0);
    sheet.AddPage(&page);
    sheet.AddPage(&other);
    EXPECT_EQ(sheet.GetPageIndex(&page), 0);
    EXPECT_EQ(other.GetSheet(), &sheet);
    EXPECT_EQ(page.Sheet(), &sheet);
    desktop.steps = {[&] {
                         EXPECT_EQ(sheet.GetActivePage(), &page);
                         page.Changed();
                         EXPECT_TRUE(sheet.UserSelectPage(1));
                         Log();
                     },
                     [&] { EXPECT_TRUE(sheet.UserOk()); }};
    EXPECT_EQ(sheet.DoModal(), kResultOk);
    EXPECT_THAT(Log(), ElementsAre("other.OnKillActive", "update", "other.OnApply", "other.OnOK",
                                   "other.OnDestroyWindow", "end 1"));
    EXPECT_EQ(helper.updates, 1) << "the dirty page updated";
}

}  // namespace
}  // namespace kvopt
