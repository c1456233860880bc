#include "kvopt/platform/dialog.h"

#include "kvopt/text/exceptions.h"
#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A dialog that notes its steps and exchanges one text.
class NotingDialog : public CDialog {
public:
    NotingDialog() : CDialog(kPageA, nullptr) {}
    std::wstring text = L"member";
    bool usesKey = false;

    bool OnInitDialog() override {
        CDialog::OnInitDialog();
        Desktop::Instance().Note("OnInitDialog");
        return true;
    }
    bool PreTranslateMessage(const KeyStroke& key) override {
        Desktop::Instance().Note("key");
        return usesKey && key.control;
    }

protected:
    void DoDataExchange(CDataExchange& exchange) override { DDX_Text(exchange, kEdit, text); }
    void GetMessageMap(MessageMap& map) override {
        CDialog::GetMessageMap(map);
        map.OnClicked(kPush, [] { Desktop::Instance().Note("replaced"); });
        map.OnClicked(kPush, [] { Desktop::Instance().Note("pushed"); });
        map.OnCommand(7, [] { Desktop::Instance().Note("command 7"); });
    }
    void OnDestroyWindow() override {
        CDialog::OnDestroyWindow();
        Desktop::Instance().Note(GetDlgItem(kEdit) != nullptr ? "controls are there"
                                                              : "no control");
    }
};

using Dialog = PlatformTest;

TEST_F(Dialog, HasItsControlsFromCreateOn) {
    NotingDialog dialog;
    EXPECT_FALSE(dialog.HasWindow());
    EXPECT_EQ(dialog.GetDlgItem(kEdit), nullptr);
    EXPECT_EQ(dialog.Caption(), L"Page A");
    dialog.Create();
    EXPECT_TRUE(dialog.HasWindow());
    EXPECT_EQ(dialog.GetText(), L"Page A");
    EXPECT_EQ(dialog.Item<CEdit>(kEdit)->GetText(), L"member");
    EXPECT_EQ(dialog.Item<CEdit>(kCheck), nullptr) << "of another kind";
    EXPECT_EQ(dialog.GetDlgItem(-1), nullptr) << "anonymous texts are not asked for";
    dialog.Create();
    EXPECT_THAT(Log(), ElementsAre("OnInitDialog")) << "once";
    dialog.DestroyWindow();
    EXPECT_THAT(Log(), ElementsAre("controls are there"));
    EXPECT_EQ(dialog.GetDlgItem(kEdit), nullptr);
    dialog.DestroyWindow();
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Dialog, HasItsControlsInTabOrder) {
    NotingDialog dialog;
    dialog.Create();
    std::vector<int> numbers;
    for (const auto& control : dialog.Controls()) {
        numbers.push_back(control->Number());
    }
    EXPECT_THAT(numbers, ElementsAre(kLabel, kEdit, kDigits, kCheck, kPush, kFirstRadio,
                                     kSecondRadio, kOtherRadio, kLastRadio, kComboList, kComboEdit,
                                     kListSingle, kListMulti, kSpinEdit, kSpin, kWorksheet,
                                     kHiddenEdit, kDisabledEdit, kRangeEdit, kMarkup, -1));
}

TEST_F(Dialog, KnowsItsGroupsOfRadioButtons) {
    NotingDialog dialog;
    dialog.Create();
    const auto numbers = [&](int number) {
        std::vector<int> result;
        for (const CButton* button : dialog.RadioGroup(number)) {
            result.push_back(button->Number());
        }
        return result;
    };
    EXPECT_THAT(numbers(kFirstRadio), ElementsAre(kFirstRadio, kSecondRadio));
    EXPECT_THAT(numbers(kSecondRadio), ElementsAre(kFirstRadio, kSecondRadio));
    EXPECT_THAT(numbers(kLastRadio), ElementsAre(kOtherRadio, kLastRadio));
    EXPECT_THAT(numbers(kCheck), IsEmpty());
}

TEST_F(Dialog, ThrowsForATemplateThatIsNotThere) {
    CDialog dialog(99999, nullptr);
    EXPECT_THROW(dialog.Create(), InvalidArgument);
    EXPECT_FALSE(dialog.HasWindow());
}

TEST_F(Dialog, ExchangesItsDataOnOkAndNotOnCancel) {
    NotingDialog dialog;
    desktop.steps = {[&] { dialog.Item<CEdit>(kEdit)->UserEdit(L"typed"); },
                     [&] { EXPECT_TRUE(dialog.UserCancel()); }};
    EXPECT_EQ(dialog.DoModal(), kResultCancel);
    EXPECT_EQ(dialog.text, L"member");
    desktop.steps = {[&] { dialog.Item<CEdit>(kEdit)->UserEdit(L"typed"); },
                     [&] { EXPECT_TRUE(dialog.UserOk()); }};
    EXPECT_EQ(dialog.DoModal(), kResultOk);
    EXPECT_EQ(dialog.text, L"typed");
    EXPECT_THAT(Log(),
                ElementsAre("dialog \"Page A\"", "OnInitDialog", "controls are there", "end 2",
                            "dialog \"Page A\"", "OnInitDialog", "controls are there", "end 1"));
}

TEST_F(Dialog, EndsWithTheResultThatItWasGiven) {
    NotingDialog dialog;
    CountingView view;
    desktop.steps = {[&] {
        dialog.AddListener(&view);
        dialog.EndDialog(42);
        EXPECT_FALSE(dialog.UserOk()) << "it has ended";
        dialog.RemoveListener(&view);
    }};
    EXPECT_EQ(dialog.DoModal(), 42);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Ended));
}

TEST_F(Dialog, LeavesAnExceptionOfItsOkStepThrough) {
    class Throwing : public NotingDialog {
    public:
        void OnOK() override { throw InvalidArgument("no number"); }
    } dialog;
    desktop.steps = {[&] { dialog.UserOk(); }};
    EXPECT_THROW(dialog.DoModal(), InvalidArgument);
    EXPECT_FALSE(dialog.HasWindow());
    EXPECT_EQ(Log().back(), "end by exception");
}

TEST_F(Dialog, RoutesNotificationsToTheLastHandlerThatWasNamed) {
    NotingDialog dialog;
    dialog.Create();
    Log();
    dialog.Item<CButton>(kPush)->UserClick();
    EXPECT_THAT(Log(), ElementsAre("pushed"));
    EXPECT_TRUE(dialog.Item<CButton>(kCheck)->UserClick()) << "without a handler";
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Dialog, RoutesCommands) {
    NotingDialog dialog;
    dialog.Create();
    Log();
    EXPECT_TRUE(dialog.OnCommand(7));
    EXPECT_FALSE(dialog.OnCommand(8));
    EXPECT_THAT(Log(), ElementsAre("command 7"));
}

TEST_F(Dialog, SeesTheUsersKeysBeforeTheFocusedControl) {
    NotingDialog dialog;
    EXPECT_FALSE(dialog.UserKey({.key = 'A', .control = true})) << "no window";
    dialog.Create();
    Log();
    EXPECT_FALSE(dialog.UserKey({.key = 'A', .control = true}));
    dialog.usesKey = true;
    EXPECT_TRUE(dialog.UserKey({.key = 'A', .control = true}));
    EXPECT_FALSE(dialog.UserKey({.key = 'A'}));
    EXPECT_THAT(Log(), ElementsAre("key", "key", "key"));
}

}  // namespace
}  // namespace kvopt
