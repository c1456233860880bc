#include "kvopt/options/grid_page.h"

#include <memory>
#include <type_traits>

#include "kvopt/options.h"
#include "kvopt/stores/user_profile.h"
#include "kvopt/text.h"
#include "platform/platform_test.h"
#include "support/memory_profile.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kGrid = 6334;
constexpr int kDetails = 6335;
constexpr int kReset = 6336;
constexpr int kHeader = 6337;

struct Settings {
    bool smooth = true;
    int count = 3;
};

/// Edits two settings in its grid.
template <class Base>
class SettingsPage : public Base {
public:
    explicit SettingsPage(Settings& settings, BasePropertyPageHelper* helper = nullptr)
        : Base(helper, kNoHelp), settings_(settings) {
        this->SetTitle(L"What to draw", 8571);
    }

    void OnBnReset() {
        settings_ = {};
        Init();
        this->Changed();
    }
    long OnGridNotify(int code, CXTPPropertyGridItem* item) override {
        notified.push_back(std::to_string(code) + " " + KvStdString::ToUtf8(item->GetCaption()));
        return Base::OnGridNotify(code, item);
    }
    /// What stood there at each of its steps.
    std::vector<std::string> seen;
    std::vector<std::string> notified;
    CXTPPropertyGridItemBool* smooth = nullptr;
    CXTPPropertyGridItemNumber* count = nullptr;
    using Base::EnableReset;

protected:
    void Init() override {
        seen.push_back("Init " + State());
        this->Grid()->ResetContent();
        auto& lines = this->Grid()->AddCategory(L"Lines\nHow lines look.");
        smooth = &lines.AddChildItem(std::make_unique<CXTPPropertyGridItemBool>(
            L"Smooth\nRound the corners.", L"Yes", L"No"));
        smooth->BindToBool(&settings_.smooth);
        count = &lines.AddChildItem(
            std::make_unique<CXTPPropertyGridItemNumber>(L"Count", 0, &settings_.count));
        lines.Expand();
    }
    void DoDataExchange(CDataExchange& exchange) override {
        Base::DoDataExchange(exchange);
        seen.push_back("exchange " + State());
    }
    void GetMessageMap(MessageMap& map) override {
        Base::GetMessageMap(map);
        Base::RouteReset(map, [this] { OnBnReset(); });
    }

private:
    std::string State() const {
        std::string state = KvStdString::ToUtf8(this->GetText());
        state += this->Header() == nullptr ? ", no header"
                                           : ", " + KvStdString::ToUtf8(this->Header()->GetText());
        if (this->Grid() == nullptr) {
            return state + ", no grid";
        }
        state += this->Grid()->GetViewDivider() == 0.4 ? ", divided" : "";
        state += this->Grid()->IsHelpVisible() ? ", described" : ", plain";
        return state + (this->template Item<CButton>(kDetails)->GetCheck() ? ", pressed" : "");
    }

    Settings& settings_;
};

/// Notes for each text that the page gets whether the header stands by then.
template <class Page>
class TextView : public WindowListener {
public:
    explicit TextView(Page& page) : page_(page) { page.AddListener(this); }
    ~TextView() override { page_.RemoveListener(this); }
    void OnWindowChanged(CWnd& window, WindowChange change) override {
        if (change == WindowChange::Text) {
            texts.push_back(KvStdString::ToUtf8(window.GetText()) +
                            (page_.Header() != nullptr ? " below a header" : ""));
        }
    }
    void OnWindowGone(CWnd& /*window*/) override {}
    std::vector<std::string> texts;

private:
    Page& page_;
};

/// Notes what the profile holds as something of the page changes.
class ProfileView : public WindowListener {
public:
    void OnWindowChanged(CWnd& /*window*/, WindowChange change) override {
        const int stored =
            UserProfile::Instance()->GetProfileInteger("Settings", "GeneralOptionsShowDetails", -1);
        if (change == WindowChange::Pane) {
            seen.push_back("pane " + std::to_string(stored));
        } else if (change == WindowChange::Check) {
            seen.push_back("check " + std::to_string(stored));
        }
    }
    void OnWindowGone(CWnd& /*window*/) override {}
    std::vector<std::string> seen;
};

template <class Base>
class GridPages : public PlatformTest {
protected:
    using Page = SettingsPage<Base>;

    static void SetProfile(int value) {
        UserProfile::Instance()->WriteProfileInteger("Settings", "GeneralOptionsShowDetails",
                                                     value);
    }
    /// -1 when nothing stands there.
    static int Profile() {
        return UserProfile::Instance()->GetProfileInteger("Settings", "GeneralOptionsShowDetails",
                                                          -1);
    }
    CButton& Details() { return *page.template Item<CButton>(kDetails); }

    test::MemoryProfile profile;
    Settings settings;
    Page page{settings};
};

using Bases = testing::Types<OptionsPageBase, KvXtpOptionsPageBase>;
TYPED_TEST_SUITE(GridPages, Bases);

TYPED_TEST(GridPages, HaveTheirTemplateAndNoCaptionNumber) {
    constexpr bool isFirst = std::is_same_v<TypeParam, OptionsPageBase>;
    EXPECT_EQ(this->page.TemplateNumber(), isFirst ? 6350 : 6222);
    EXPECT_EQ(this->page.CaptionNumber(), 0U);
    this->page.Create();
    EXPECT_EQ(this->page.GetDlgItem(kGrid), this->page.Grid());
    EXPECT_EQ(this->page.GetDlgItem(kHeader), this->page.Header());
    EXPECT_EQ(this->page.GetDlgItem(kDetails)->GetText(), L"Show details");
    EXPECT_EQ(this->page.GetDlgItem(kReset)->GetText(), L"Reset");
}

TYPED_TEST(GridPages, HoldTheirPlacesInTheirTemplate) {
    CDialog dialog(this->page.TemplateNumber(), nullptr);
    dialog.Create();
    EXPECT_EQ(dialog.GetDlgItem(kGrid)->GetText(), L"[ Placeholder for propertygrid ]");
    EXPECT_EQ(dialog.GetDlgItem(kHeader)->GetText(), L"[Placeholder for a markup static]");
    EXPECT_EQ(dialog.Controls().size(), 4U);
}

TYPED_TEST(GridPages, OpenInTheirOrder) {
    const TextView<typename TestFixture::Page> view(this->page);
    this->page.Create();
    EXPECT_THAT(this->page.seen, ElementsAre("exchange Options, no header, no grid",
                                             "Init General, What to draw, divided, described"));
    EXPECT_TRUE(this->Details().GetCheck()) << "after Init";
    constexpr bool isFirst = std::is_same_v<TypeParam, OptionsPageBase>;
    EXPECT_THAT(view.texts, ElementsAre("Options", isFirst ? "General" : "General below a header"));
    EXPECT_FALSE(this->page.IsChanged());
}

TYPED_TEST(GridPages, AnswerThatTheyOpened) {
    class Asked : public TestFixture::Page {
    public:
        using TestFixture::Page::Page;
        bool answer = false;
        bool OnInitDialog() override {
            answer = TestFixture::Page::OnInitDialog();
            return answer;
        }
    } asked(this->settings);
    asked.Create();
    EXPECT_TRUE(asked.answer);
}

TYPED_TEST(GridPages, KeepTheirCaptionApartFromTheirWindowText) {
    this->page.Create();
    EXPECT_EQ(this->page.GetText(), L"General");
    EXPECT_EQ(this->page.PageTitle(), L"Options");
}

TYPED_TEST(GridPages, ReadTheirTitleAsTheyOpen) {
    this->page.SetTitle(L"Another", 12);
    this->page.Create();
    EXPECT_EQ(this->page.Header()->GetText(), L"Another");
    EXPECT_EQ(this->page.Header()->TitleNumber(), 12U);
    this->page.SetTitle(L"Too late", 13);
    EXPECT_EQ(this->page.Header()->GetText(), L"Another");
    EXPECT_EQ(this->page.Header()->TitleNumber(), 12U);
    TypeParam untitled(nullptr, kNoHelp);
    untitled.Create();
    EXPECT_EQ(untitled.Header()->GetText(), L"");
    EXPECT_EQ(untitled.Header()->TitleNumber(), 0U);
    TypeParam unnamed(nullptr, kNoHelp);
    unnamed.SetTitle(nullptr, 5);
    unnamed.Create();
    EXPECT_EQ(unnamed.Header()->GetText(), L"");
    EXPECT_EQ(unnamed.Header()->TitleNumber(), 5U);
}

TYPED_TEST(GridPages, ShowTheirDetailsAsTheUserLeftThem) {
    struct Case {
        int stored;
        bool shown;
    };
    for (const Case& each : {Case{0, false}, Case{1, true}, Case{7, true}}) {
        this->SetProfile(each.stored);
        typename TestFixture::Page opened(this->settings);
        opened.Create();
        EXPECT_EQ(opened.Grid()->IsHelpVisible(), each.shown) << each.stored;
        EXPECT_EQ(opened.template Item<CButton>(kDetails)->GetCheck(), each.shown) << each.stored;
        EXPECT_EQ(this->Profile(), each.stored) << "opening writes nothing";
    }
}

TYPED_TEST(GridPages, RememberAtOnceThatDetailsAreShown) {
    this->page.Create();
    EXPECT_EQ(this->Profile(), -1);
    EXPECT_TRUE(this->Details().UserClick());
    EXPECT_FALSE(this->page.Grid()->IsHelpVisible());
    EXPECT_FALSE(this->Details().GetCheck());
    EXPECT_EQ(this->Profile(), 0);
    EXPECT_FALSE(this->page.IsChanged()) << "it is no change of the page";
    EXPECT_TRUE(this->Details().UserClick());
    EXPECT_TRUE(this->page.Grid()->IsHelpVisible());
    EXPECT_TRUE(this->Details().GetCheck());
    EXPECT_EQ(this->Profile(), 1);
}

TYPED_TEST(GridPages, SwitchTheirPaneThenRememberItThenPressTheButton) {
    this->page.Create();
    ProfileView view;
    this->page.Grid()->AddListener(&view);
    this->Details().AddListener(&view);
    this->page.OnBnShowDetails();
    EXPECT_THAT(view.seen, ElementsAre("pane -1", "check 0"));
    this->page.Grid()->RemoveListener(&view);
    this->Details().RemoveListener(&view);
}

TYPED_TEST(GridPages, LeaveTheRememberedNumberAsItWasWhenDetailsAreSwitchedTwice) {
    for (const int stored : {0, 1}) {
        this->SetProfile(stored);
        typename TestFixture::Page opened(this->settings);
        opened.Create();
        opened.OnBnShowDetails();
        EXPECT_EQ(this->Profile(), 1 - stored);
        opened.OnBnShowDetails();
        EXPECT_EQ(this->Profile(), stored);
    }
}

TYPED_TEST(GridPages, ShareTheDetailsWithTheNextPageOfEitherKind) {
    this->page.Create();
    this->page.OnBnShowDetails();
    OptionsPageBase next(nullptr, kNoHelp);
    KvXtpOptionsPageBase other(nullptr, kNoHelp);
    next.Create();
    other.Create();
    EXPECT_FALSE(next.Grid()->IsHelpVisible());
    EXPECT_FALSE(other.Grid()->IsHelpVisible());
    this->page.OnBnShowDetails();
    EXPECT_TRUE(this->page.Grid()->IsHelpVisible());
    EXPECT_FALSE(next.Grid()->IsHelpVisible()) << "a page that is open stays as it is";
}

TYPED_TEST(GridPages, AreMarkedByAnotherValueAndByNothingElse) {
    PropertyPageListener listener;
    BasePropertyPageHelper helper;
    listener.ConnectTo(&helper);
    typename TestFixture::Page opened(this->settings, &helper);
    opened.Create();
    opened.Grid()->UserSelect(opened.count);
    opened.Grid()->UserExpand(opened.count->Parent(), false);
    opened.Grid()->UserExpand(opened.count->Parent(), true);
    opened.count->SetNumber(8);
    EXPECT_FALSE(opened.IsChanged());
    EXPECT_TRUE(opened.Grid()->UserToggle(opened.smooth));
    EXPECT_TRUE(opened.IsChanged());
    EXPECT_FALSE(this->settings.smooth);
    EXPECT_TRUE(opened.Grid()->UserToggle(opened.smooth));
    EXPECT_EQ(helper.UpdateCount(), 1);
    EXPECT_THAT(opened.notified, ElementsAre("3 Smooth", "3 Smooth"));
}

TYPED_TEST(GridPages, AnswerNoughtToEveryCodeAndHeedOne) {
    this->page.Create();
    for (const int code : {0, 1, 2, 4}) {
        EXPECT_EQ(this->page.OnGridNotify(code, this->page.count), 0) << code;
        EXPECT_FALSE(this->page.IsChanged()) << code;
    }
    EXPECT_EQ(this->page.OnGridNotify(3, this->page.count), 0);
    EXPECT_TRUE(this->page.IsChanged());
}

TYPED_TEST(GridPages, AreFilledAnewByTheirReset) {
    this->page.Create();
    this->page.Grid()->UserToggle(this->page.smooth);
    this->page.count->SetNumber(8);
    this->page.Unchanged();
    this->page.seen.clear();
    EXPECT_TRUE(this->page.template Item<CButton>(kReset)->UserClick());
    EXPECT_EQ(this->page.seen.size(), 1U) << "Init ran again";
    EXPECT_TRUE(this->settings.smooth);
    EXPECT_EQ(this->settings.count, 3);
    EXPECT_EQ(this->page.Grid()->Rows().size(), 3U);
    EXPECT_EQ(this->page.count->GetValue(), L"3");
    EXPECT_TRUE(this->page.IsChanged());
    this->page.notified.clear();
    EXPECT_TRUE(this->page.Grid()->UserToggle(this->page.smooth));
    EXPECT_THAT(this->page.notified, ElementsAre("3 Smooth")) << "the new rows are heard too";
}

TYPED_TEST(GridPages, CommitWhatIsBeingTypedBeforeTheirReset) {
    this->page.Create();
    this->page.Grid()->UserBeginEdit(this->page.count);
    this->page.Grid()->UserEdit(L"12");
    EXPECT_TRUE(this->page.template Item<CButton>(kReset)->UserClick());
    EXPECT_THAT(this->page.notified, ElementsAre("3 Count"));
    EXPECT_EQ(this->settings.count, 3);
}

TYPED_TEST(GridPages, SwitchTheirResetOff) {
    this->page.Create();
    EXPECT_TRUE(this->page.GetDlgItem(kReset)->IsEnabled());
    this->page.EnableReset(false);
    EXPECT_FALSE(this->page.template Item<CButton>(kReset)->UserClick());
    this->page.EnableReset(true);
    EXPECT_TRUE(this->page.template Item<CButton>(kReset)->UserClick());
}

TYPED_TEST(GridPages, LetGoOfHeaderAndGridWithTheirWindow) {
    EXPECT_EQ(this->page.Grid(), nullptr);
    EXPECT_EQ(this->page.Header(), nullptr);
    this->page.OnBnShowDetails();
    EXPECT_EQ(this->Profile(), -1) << "nothing is there to switch";
    this->page.Create();
    EXPECT_NE(this->page.Grid(), nullptr);
    EXPECT_NE(this->page.Header(), nullptr);
    this->page.DestroyWindow();
    EXPECT_EQ(this->page.Grid(), nullptr);
    EXPECT_EQ(this->page.Header(), nullptr);
    this->page.Create();
    EXPECT_TRUE(this->page.Grid()->UserToggle(this->page.smooth));
}

TYPED_TEST(GridPages, AreEmptyUnlessADerivedPageFillsThem) {
    TypeParam bare(nullptr, kNoHelp);
    bare.Create();
    EXPECT_THAT(bare.Grid()->Rows(), IsEmpty());
    EXPECT_TRUE(bare.OnApply());
}

TYPED_TEST(GridPages, StandInOneSheet) {
    OptionsPageBase first(nullptr, 65);
    KvXtpOptionsPageBase second(nullptr, kNoHelp);
    EXPECT_TRUE(first.HasHelp());
    EXPECT_FALSE(second.HasHelp());
    KvPropertySheet sheet(L"Options of the study", nullptr, 0);
    sheet.AddPage(&first);
    sheet.AddPage(&this->page);
    sheet.AddPage(&second);
    this->desktop.steps = {[&] {
                               EXPECT_TRUE(sheet.UserSelectPage(1));
                               EXPECT_TRUE(this->page.Grid()->UserToggle(this->page.smooth));
                               EXPECT_TRUE(this->page.IsModified());
                           },
                           [&] { EXPECT_TRUE(sheet.UserOk()); }};
    EXPECT_EQ(sheet.DoModal(), kResultOk);
    EXPECT_FALSE(this->page.IsChanged());
    EXPECT_FALSE(this->settings.smooth);
}

}  // namespace
}  // namespace kvopt
