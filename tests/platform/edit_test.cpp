#include "kvopt/platform/edit.h"

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Edit = ControlsTest;

TEST_F(Edit, NotifiesThePageOfEveryProgramWriteButTheViewsOfDifferencesOnly) {
    auto& edit = Get<CEdit>(kEdit);
    CountingView view;
    edit.AddListener(&view);
    edit.SetText(L"7");
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 10"));
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Text));
    edit.SetText(L"7");
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 10"));
    EXPECT_THAT(view.Take(), IsEmpty());
    edit.RemoveListener(&view);
}

TEST_F(Edit, NotifiesOfProgramWritesWhenHiddenOrDisabled) {
    Get<CEdit>(kHiddenEdit).SetText(L"a");
    Get<CEdit>(kDisabledEdit).SetText(L"b");
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 26", "changed 27"));
}

TEST_F(Edit, ExchangesOnlyWhatDiffers) {
    auto& edit = Get<CEdit>(kEdit);
    edit.ExchangeText(L"7");
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 10"));
    edit.ExchangeText(L"7");
    EXPECT_THAT(dialog.Take(), IsEmpty());
}

TEST_F(Edit, TakesWhatTheUserTypes) {
    auto& edit = Get<CEdit>(kEdit);
    EXPECT_TRUE(edit.UserEdit(L"1,5 kg"));
    EXPECT_EQ(edit.GetText(), L"1,5 kg");
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 10"));
    EXPECT_TRUE(edit.UserEdit(L"1,5 kg"));
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 10")) << "the same text typed anew counts";
    EXPECT_EQ(dialog.GetFocusControl(), &edit);
}

TEST_F(Edit, RefusesTheUserWhenHiddenOrDisabled) {
    for (const int number : {kHiddenEdit, kDisabledEdit}) {
        EXPECT_FALSE(Get<CEdit>(number).UserEdit(L"x"));
        EXPECT_FALSE(Get<CEdit>(number).UserPaste(L"x"));
        EXPECT_EQ(Get<CEdit>(number).GetText(), L"");
    }
    dialog.EnableWindow(false);
    EXPECT_FALSE(Get<CEdit>(kEdit).UserEdit(L"x"));
    dialog.EnableWindow(true);
    dialog.ShowWindow(false);
    EXPECT_FALSE(Get<CEdit>(kEdit).UserEdit(L"x"));
    EXPECT_THAT(dialog.Take(), IsEmpty());
    EXPECT_EQ(dialog.GetFocusControl(), nullptr);
}

TEST_F(Edit, DropsTypedCharactersThatAreNoDigitsAndTellsItsViews) {
    auto& edit = Get<CEdit>(kDigits);
    CountingView view;
    edit.AddListener(&view);
    EXPECT_TRUE(edit.UserEdit(L"12"));
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Text));
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 11"));
    EXPECT_TRUE(edit.UserEdit(L"1-2"));
    EXPECT_EQ(edit.GetText(), L"12");
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Text)) << "the view shows what is left";
    EXPECT_THAT(dialog.Take(), IsEmpty()) << "nothing was typed as far as the page can tell";
    edit.RemoveListener(&view);
}

TEST_F(Edit, TakesDigitsAloneFromWhenItIsTold) {
    auto& edit = Get<CEdit>(kEdit);
    EXPECT_FALSE(edit.IsDigitsOnly());
    edit.UserEdit(L"1.5");
    dialog.Take();
    edit.SetDigitsOnly(true);
    EXPECT_EQ(edit.GetText(), L"1.5");
    EXPECT_THAT(dialog.Take(), IsEmpty());
    edit.UserEdit(L"1.5.");
    EXPECT_EQ(edit.GetText(), L"1.5");
    edit.UserEdit(L"1.57");
    EXPECT_EQ(edit.GetText(), L"1.57");
    EXPECT_TRUE(Get<CEdit>(kDigits).IsDigitsOnly());
    Get<CEdit>(kDigits).SetDigitsOnly(false);
    Get<CEdit>(kDigits).UserEdit(L"x");
    EXPECT_EQ(Get<CEdit>(kDigits).GetText(), L"x");
}

TEST_F(Edit, LetsPastesAndProgramWritesPassItsDigitFilter) {
    auto& edit = Get<CEdit>(kDigits);
    EXPECT_TRUE(edit.UserPaste(L"-3x"));
    EXPECT_EQ(edit.GetText(), L"-3x");
    EXPECT_TRUE(edit.UserEdit(L"-34x")) << "what was there stays";
    EXPECT_EQ(edit.GetText(), L"-34x");
    EXPECT_TRUE(edit.UserEdit(L"-34yx"));
    EXPECT_EQ(edit.GetText(), L"-34x");
    EXPECT_TRUE(edit.UserEdit(L"-3x"));
    EXPECT_EQ(edit.GetText(), L"-3x");
    edit.SetText(L"abc");
    EXPECT_EQ(edit.GetText(), L"abc");
}

}  // namespace
}  // namespace kvopt
