#include "kvopt/platform/combo_box.h"

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ComboBox : public ControlsTest {
protected:
    ComboBox() {
        for (CComboBox* combo : {&list, &editable}) {
            combo->AddString(L"16");
            combo->AddString(L"160");
            combo->AddString(L"Abc");
        }
    }
    CComboBox& list = Get<CComboBox>(kComboList);
    CComboBox& editable = Get<CComboBox>(kComboEdit);
};

TEST_F(ComboBox, HasTheTextOfTheSelectedEntry) {
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(list.GetText(), L"");
    list.SetCurSel(1);
    EXPECT_EQ(list.GetText(), L"160");
    list.SetCurSel(3);
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(list.GetText(), L"");
}

TEST_F(ComboBox, SelectsTheEntryOfATextThatIsSetOrNothing) {
    list.SetText(L"Abc");
    EXPECT_EQ(list.GetCurSel(), 2);
    list.SetText(L"abc");
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(list.GetText(), L"");
}

TEST_F(ComboBox, TakesAnyTextWhereItIsFree) {
    EXPECT_TRUE(editable.IsEditable());
    editable.SetText(L"99");
    EXPECT_EQ(editable.GetText(), L"99");
    EXPECT_EQ(editable.GetCurSel(), -1);
    editable.SetText(L"160");
    EXPECT_EQ(editable.GetCurSel(), 1);
    editable.SetCurSel(0);
    EXPECT_EQ(editable.GetText(), L"16");
    editable.SetCurSel(-1);
    EXPECT_EQ(editable.GetText(), L"");
}

TEST_F(ComboBox, NeverNotifiesOfWhatTheProgramSets) {
    list.SetText(L"Abc");
    list.SetCurSel(0);
    editable.SetText(L"99");
    list.SelectString(-1, L"ab");
    EXPECT_THAT(dialog.Take(), IsEmpty());
}

TEST_F(ComboBox, SelectsByPrefixAndLeavesTheSelectionWhenItFails) {
    EXPECT_EQ(list.SelectString(-1, L"ab"), 2);
    EXPECT_EQ(list.GetCurSel(), 2);
    EXPECT_EQ(list.SelectString(0, L"16"), 1);
    EXPECT_EQ(list.SelectString(-1, L"x"), -1);
    EXPECT_EQ(list.GetCurSel(), 1);
}

TEST_F(ComboBox, RunsTheHandlerOfAPickUnlessTheEntryIsSelectedAlready) {
    EXPECT_TRUE(list.UserPick(1));
    EXPECT_THAT(dialog.Take(), ElementsAre("selection 18"));
    EXPECT_TRUE(list.UserPick(1));
    EXPECT_THAT(dialog.Take(), IsEmpty());
    EXPECT_FALSE(list.UserPick(3));
    EXPECT_FALSE(list.UserPick(-1));
    EXPECT_EQ(list.GetCurSel(), 1);
}

TEST_F(ComboBox, PicksTheSameEntryAnewWhenItsFieldSaysOtherwise) {
    EXPECT_TRUE(editable.UserPick(0));
    EXPECT_TRUE(editable.UserEdit(L"17"));
    EXPECT_EQ(editable.GetCurSel(), -1);
    EXPECT_TRUE(editable.UserPick(0));
    EXPECT_EQ(editable.GetText(), L"16");
    EXPECT_THAT(dialog.Take(), ElementsAre("selection 19", "changed 19", "selection 19"));
}

TEST_F(ComboBox, RefusesTypingWhereTheTextIsNotFree) {
    EXPECT_FALSE(list.UserEdit(L"17"));
    EXPECT_EQ(list.GetText(), L"");
    list.EnableWindow(false);
    EXPECT_FALSE(list.UserPick(0));
    EXPECT_EQ(list.GetCurSel(), -1);
}

TEST_F(ComboBox, KeepsItsSelectionOnTheEntryWhenTheListChanges) {
    list.SetCurSel(1);
    list.InsertString(0, L"8");
    EXPECT_EQ(list.GetText(), L"160");
    list.DeleteString(0);
    EXPECT_EQ(list.GetText(), L"160");
    list.DeleteString(1);
    EXPECT_EQ(list.GetCurSel(), -1);
    editable.SetText(L"free");
    editable.ResetContent();
    EXPECT_EQ(editable.GetText(), L"");
}

TEST_F(ComboBox, HasNoSelectionWhenItIsFilledAnew) {
    list.SetCurSel(1);
    list.ResetContent();
    list.AddString(L"8");
    list.AddString(L"80");
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(list.GetText(), L"");
}

TEST_F(ComboBox, TellsViewsOfDifferencesOnly) {
    CountingView view;
    list.AddListener(&view);
    list.SetCurSel(1);
    list.SetCurSel(1);
    list.SetText(L"160");
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Selection));
    list.RemoveListener(&view);
}

}  // namespace
}  // namespace kvopt
