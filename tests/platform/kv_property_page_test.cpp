#include "kvopt/platform/kv_property_page.h"

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CountingHelper : public BasePropertyPageHelper {
public:
    bool Update() override {
        ++updates;
        return answer && BasePropertyPageHelper::Update();
    }
    int updates = 0;
    bool answer = true;
};

class ThePage : public PlatformTest {
protected:
    ThePage() { listener.ConnectTo(&helper); }

    PropertyPageListener listener;
    CountingHelper helper;
    RecordingPage page{"page", kPageA, &helper};
};

TEST_F(ThePage, StartsClean) {
    EXPECT_FALSE(page.IsChanged());
    EXPECT_FALSE(page.IsModified());
    EXPECT_EQ(helper.UpdateCount(), 0);
}

TEST_F(ThePage, TellsItsHelperOnceWhenItBecomesDirtyAndOnceWhenClean) {
    page.Changed();
    page.Changed();
    EXPECT_EQ(helper.UpdateCount(), 1);
    EXPECT_TRUE(helper.IsChanged());
    EXPECT_TRUE(page.IsModified());
    page.Unchanged();
    page.Unchanged();
    EXPECT_EQ(helper.UpdateCount(), 0);
    EXPECT_FALSE(helper.IsChanged());
    EXPECT_FALSE(page.IsModified());
}

TEST_F(ThePage, RunsTheUpdateOfAConnectedHelperWhenDirty) {
    page.Changed();
    Log();
    EXPECT_TRUE(page.OnApply());
    EXPECT_EQ(helper.updates, 1);
    EXPECT_THAT(Log(), ElementsAre("page.OnApply")) << "no OnOK";
    EXPECT_FALSE(page.IsChanged());
    EXPECT_EQ(helper.UpdateCount(), 0);
}

TEST_F(ThePage, StaysDirtyWhenTheUpdateRefuses) {
    helper.answer = false;
    page.Changed();
    EXPECT_FALSE(page.OnApply());
    EXPECT_TRUE(page.IsChanged());
    EXPECT_TRUE(page.IsModified());
    page.Changed();
    EXPECT_EQ(helper.UpdateCount(), 1) << "the update of before is still open";
}

TEST_F(ThePage, PassesOverAHelperThatIsNotConnected) {
    listener.ConnectTo(nullptr);
    page.Changed();
    Log();
    EXPECT_TRUE(page.OnApply());
    EXPECT_EQ(helper.updates, 0);
    EXPECT_THAT(Log(), ElementsAre("page.OnApply")) << "neither Update nor OnOK";
    EXPECT_FALSE(page.IsChanged());
    EXPECT_EQ(helper.UpdateCount(), 0);
}

TEST_F(ThePage, ReachesOnOkWhenClean) {
    EXPECT_TRUE(page.OnApply());
    EXPECT_THAT(Log(), ElementsAre("page.OnApply", "page.OnOK"));
    EXPECT_EQ(helper.updates, 0);
    EXPECT_EQ(helper.UpdateCount(), 0);
}

TEST_F(ThePage, ReachesOnOkWithoutHelper) {
    RecordingPage alone("alone", kPageA);
    alone.Changed();
    Log();
    EXPECT_TRUE(alone.OnApply());
    EXPECT_THAT(Log(), ElementsAre("alone.OnApply", "alone.OnOK"));
    EXPECT_FALSE(alone.IsChanged());
}

TEST_F(ThePage, ShowsTheWaitCursorWhileItApplies) {
    page.OnApply();
    EXPECT_THAT(desktop.log.Lines(),
                ElementsAre("page.OnApply", "cursor wait", "page.OnOK", "cursor arrow"));
}

TEST_F(ThePage, LeavesNoUpdateOpenWhenCancelledOrFinished) {
    page.Changed();
    page.OnCancel();
    EXPECT_EQ(helper.UpdateCount(), 0);
    EXPECT_FALSE(page.IsChanged());
    page.Changed();
    EXPECT_TRUE(page.OnWizardFinish());
    EXPECT_EQ(helper.UpdateCount(), 0);
    EXPECT_EQ(helper.updates, 0) << "finish updates nothing";
}

TEST_F(ThePage, TakesItsUpdateAlongToAnotherHelper) {
    CountingHelper other;
    page.Changed();
    page.SetPropertyPageHelper(&other);
    EXPECT_EQ(page.GetPropertyPageHelper(), &other);
    EXPECT_EQ(helper.UpdateCount(), 0);
    EXPECT_EQ(other.UpdateCount(), 1);
    page.SetPropertyPageHelper(nullptr);
    EXPECT_EQ(other.UpdateCount(), 0);
}

TEST_F(ThePage, SharesAHelperWhichUpdatesOnceForEachDirtyPage) {
    RecordingPage second("second", kPageB, &helper);
    RecordingPage third("third", kPageC, &helper);
    KvPropertySheet sheet(L"Sheet", nullptr, 0);
    sheet.AddPage(&page);
    sheet.AddPage(&second);
    sheet.AddPage(&third);
    desktop.steps = {[&] { sheet.UserSelectPage(1); }, [&] { sheet.UserSelectPage(2); },
                     [&] {
                         page.Changed();
                         third.Changed();
                         EXPECT_EQ(helper.UpdateCount(), 2);
                         sheet.UserOk();
                     }};
    sheet.DoModal();
    EXPECT_EQ(helper.updates, 2);
    EXPECT_EQ(helper.UpdateCount(), 0);
}

TEST_F(ThePage, RemovesNoUpdateOfAnotherPageFromAHelperThatTheyShare) {
    RecordingPage second("second", kPageB, &helper);
    page.Changed();
    second.Changed();
    page.Unchanged();
    page.Unchanged();
    EXPECT_EQ(helper.UpdateCount(), 1) << "one remove for one add";
    EXPECT_TRUE(page.OnApply());
    page.OnCancel();
    EXPECT_TRUE(page.OnWizardFinish());
    EXPECT_EQ(helper.UpdateCount(), 1) << "a clean page has nothing to remove";
    second.Unchanged();
    EXPECT_EQ(helper.UpdateCount(), 0);
}

TEST_F(ThePage, AsksWhetherItIsDirtyThroughItsVirtualStep) {
    class Dirty : public RecordingPage {
    public:
        using RecordingPage::RecordingPage;
        bool IsChanged() const override { return true; }
    };
    Dirty dirty("dirty", kPageB, &helper);
    EXPECT_TRUE(dirty.OnApply());
    EXPECT_EQ(helper.updates, 1);
    EXPECT_THAT(Log(), ElementsAre("dirty.OnApply")) << "no OnOK";
}

TEST_F(ThePage, ReachesOnOkFromThePlainPagesApply) {
    class Plain : public CPropertyPage {
    public:
        Plain() : CPropertyPage(kPageA) {}
        void OnOK() override { Desktop::Instance().Note("plain.OnOK"); }
    } plain;
    EXPECT_TRUE(plain.OnApply());
    EXPECT_THAT(Log(), ElementsAre("plain.OnOK"));
}

TEST_F(ThePage, IsDirtyWhenItFillsAnEditAsItOpens) {
    page.also["OnInitDialog"] = [&] { page.GetDlgItem(kEdit)->SetText(L""); };
    page.Create();
    EXPECT_TRUE(page.IsChanged()) << "the page counts as having a window in OnInitDialog";
}

TEST_F(ThePage, AsksForHelpOnItsTopic) {
    RecordingPage helped("helped", kPageA, nullptr, 231);
    EXPECT_TRUE(helped.HasHelp());
    EXPECT_EQ(helped.HelpTopicID(), 231U);
    helped.Create();
    Log();
    EXPECT_TRUE(helped.OnCommand(kCommandHelp));
    EXPECT_TRUE(helped.OnHelpInfo());
    EXPECT_THAT(Log(), ElementsAre("help 231", "help 231"));
    helped.SetHelpTopicID(65);
    helped.OnHelp();
    EXPECT_THAT(Log(), ElementsAre("help 65"));
}

TEST_F(ThePage, HasNoHelpWhenItsTopicIsAllOnes) {
    EXPECT_FALSE(page.HasHelp());
    page.Create();
    Log();
    page.OnHelp();
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(ThePage, TakesItsTitleFromItsTemplateUntilItIsGivenOne) {
    EXPECT_EQ(page.PageTitle(), L"Page A");
    CountingView view;
    page.AddListener(&view);
    page.SetPageTitle(L"Select factors");
    EXPECT_EQ(page.PageTitle(), L"Select factors");
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Text));
    page.RemoveListener(&view);
    page.Create();
    page.SetText(L"General");
    EXPECT_EQ(page.PageTitle(), L"Select factors") << "the window text is no caption";
    page.SetPageTitle(nullptr);
    EXPECT_EQ(page.PageTitle(), L"Page A");
}

TEST_F(ThePage, SkipsSheetStepsWhenItStandsInNone) {
    page.Create();
    EXPECT_EQ(page.GetSheet(), nullptr);
    Log();
    EXPECT_EQ(ShowMessage(&page, L"Text", BoxStyle::Error), BoxAnswer::Ok);
    EXPECT_THAT(Log(), ElementsAre("box 16 \"\" \"Text\" -> ok"));
    EXPECT_TRUE(page.OnSetActive());
    EXPECT_TRUE(page.OnKillActive());
    EXPECT_TRUE(page.OnApply());
}

TEST_F(ThePage, AnswersItsStepsWithoutAWindow) {
    KvPropertyPage plain(kPageA, 0, nullptr, kNoHelp);
    EXPECT_TRUE(plain.OnKillActive());
    EXPECT_TRUE(plain.OnSetActive());
    EXPECT_TRUE(plain.OnApply());
    EXPECT_EQ(plain.OnWizardNext(), 0);
    EXPECT_EQ(plain.OnWizardBack(), 0);
    EXPECT_TRUE(plain.OnWizardFinish());
    EXPECT_EQ(plain.GetDlgItem(kEdit), nullptr);
}

TEST_F(ThePage, CountsItsReferences) {
    EXPECT_EQ(page.CountRefs(), 0);
    page.AddRef();
    page.AddRef();
    page.ReleaseRef();
    EXPECT_EQ(page.CountRefs(), 1);
    page.ReleaseRef();
    page.ReleaseRef();
    EXPECT_EQ(page.CountRefs(), 0);
}

/// A page with one exchanged member of each kind.
class ExchangePage : public KvPropertyPage {
public:
    ExchangePage() : KvPropertyPage(kPageA, 0, nullptr, kNoHelp) {}
    std::wstring text = L"start";
    std::wstring missing = L"kept";
    bool check = true;
    int radio = 1;
    int combo = 1;
    CEdit* edit = nullptr;
    CEdit* wrongKind = nullptr;
    int writes = 0;

    bool OnInitDialog() override {
        Item<CComboBox>(kComboList)->AddString(L"first");
        Item<CComboBox>(kComboList)->AddString(L"second");
        KvPropertyPage::OnInitDialog();
        return true;
    }

protected:
    void DoDataExchange(CDataExchange& exchange) override {
        DDX_Text(exchange, kEdit, text);
        DDX_Text(exchange, 999, missing);
        DDX_Check(exchange, kCheck, check);
        DDX_Radio(exchange, kFirstRadio, radio);
        DDX_CBIndex(exchange, kComboList, combo);
        DDX_Control(exchange, kEdit, edit);
        DDX_Control(exchange, kCheck, wrongKind);
    }
    void GetMessageMap(MessageMap& map) override {
        KvPropertyPage::GetMessageMap(map);
        map.OnChanged(kEdit, [this] { ++writes; });
    }
};

TEST_F(ThePage, ExchangesItsMembersWhenShownAndItsControlsWhenLeft) {
    ExchangePage exchange;
    exchange.Create();
    EXPECT_EQ(exchange.edit, exchange.GetDlgItem(kEdit));
    EXPECT_EQ(exchange.wrongKind, nullptr);
    EXPECT_EQ(exchange.edit->GetText(), L"start");
    EXPECT_TRUE(exchange.Item<CButton>(kCheck)->GetCheck());
    EXPECT_TRUE(exchange.Item<CButton>(kSecondRadio)->GetCheck());
    EXPECT_EQ(exchange.Item<CComboBox>(kComboList)->GetText(), L"second");
    EXPECT_EQ(exchange.writes, 1);

    exchange.edit->UserEdit(L"typed");
    exchange.Item<CButton>(kCheck)->UserClick();
    exchange.Item<CButton>(kFirstRadio)->UserClick();
    exchange.Item<CComboBox>(kComboList)->UserPick(0);
    EXPECT_TRUE(exchange.OnKillActive());
    EXPECT_EQ(exchange.text, L"typed");
    EXPECT_FALSE(exchange.check);
    EXPECT_EQ(exchange.radio, 0);
    EXPECT_EQ(exchange.combo, 0);
    EXPECT_EQ(exchange.missing, L"kept");
}

TEST_F(ThePage, KeepsWhatItsControlsWereGivenBehindOnInitDialogWhenItIsFirstActive) {
    ExchangePage exchange;
    exchange.Create();
    exchange.edit->SetText(L"written by the page");
    exchange.OnSetActive();
    EXPECT_EQ(exchange.edit->GetText(), L"written by the page");
    exchange.text = L"member";
    exchange.radio = -1;
    exchange.OnSetActive();
    EXPECT_EQ(exchange.edit->GetText(), L"member");
    EXPECT_FALSE(exchange.Item<CButton>(kSecondRadio)->GetCheck());
    exchange.radio = 1;
    exchange.OnKillActive();
    EXPECT_EQ(exchange.radio, -1) << "no mark";
}

TEST_F(ThePage, CountsItsFirstActivationAnewForEachWindow) {
    ExchangePage exchange;
    for (int window = 0; window < 2; ++window) {
        exchange.Create();
        exchange.edit->SetText(L"written by the page");
        exchange.OnSetActive();
        EXPECT_EQ(exchange.edit->GetText(), L"written by the page") << window;
        exchange.DestroyWindow();
    }
}

TEST_F(ThePage, WritesOnlyDifferencesWhenItExchanges) {
    ExchangePage exchange;
    exchange.Create();
    exchange.OnSetActive();
    exchange.writes = 0;
    exchange.OnSetActive();
    EXPECT_EQ(exchange.writes, 0);
    exchange.text = L"other";
    exchange.OnSetActive();
    EXPECT_EQ(exchange.writes, 1);
}

TEST_F(ThePage, ExchangesNothingWithoutAWindow) {
    ExchangePage exchange;
    EXPECT_FALSE(exchange.UpdateData(true));
    EXPECT_EQ(exchange.text, L"start");
    exchange.Create();
    exchange.DestroyWindow();
    EXPECT_TRUE(exchange.OnKillActive());
    EXPECT_EQ(exchange.text, L"start");
}

TEST_F(ThePage, KnowsItsCaptionNumber) {
    KvPropertyPage plain(kPageA, 17, nullptr, kNoHelp);
    EXPECT_EQ(plain.CaptionNumber(), 17U);
}

}  // namespace
}  // namespace kvopt
