#include "kvopt/platform/list_box.h"

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListBox : public ControlsTest {
protected:
    ListBox() {
        for (CListBox* list : {&single, &multi}) {
            for (const wchar_t* text : {L"a", L"b", L"c"}) {
                list->AddString(text);
            }
        }
    }
    CListBox& single = Get<CListBox>(kListSingle);
    CListBox& multi = Get<CListBox>(kListMulti);
};

TEST_F(ListBox, MarksSeveralEntriesByProgramWithoutNotifying) {
    multi.SetSel(2);
    multi.SetSel(0);
    EXPECT_THAT(multi.GetSelItems(), ElementsAre(0, 2));
    EXPECT_EQ(multi.GetSelCount(), 2);
    multi.SetSel(0, false);
    EXPECT_THAT(multi.GetSelItems(), ElementsAre(2));
    multi.SetSel(-1);
    EXPECT_THAT(multi.GetSelItems(), ElementsAre(0, 1, 2));
    multi.SetSel(-1, false);
    EXPECT_THAT(multi.GetSelItems(), IsEmpty());
    multi.SetSel(3);
    EXPECT_FALSE(multi.GetSel(3));
    EXPECT_THAT(dialog.Take(), IsEmpty());
}

TEST_F(ListBox, MovesTheSelectionOfASingleList) {
    single.SetSel(1);
    single.SetSel(2);
    EXPECT_EQ(single.GetCurSel(), 2);
    EXPECT_THAT(single.GetSelItems(), ElementsAre(2));
    single.SetSel(0, false);
    EXPECT_EQ(single.GetCurSel(), 2);
    single.SetSel(2, false);
    EXPECT_EQ(single.GetCurSel(), -1);
    single.SetCurSel(5);
    EXPECT_EQ(single.GetCurSel(), -1);
}

TEST_F(ListBox, TakesTheUsersMarksAsAWhole) {
    EXPECT_TRUE(multi.UserMark({2, 0}));
    EXPECT_THAT(multi.GetSelItems(), ElementsAre(0, 2));
    EXPECT_THAT(dialog.Take(), ElementsAre("selection 21"));
    EXPECT_TRUE(multi.UserMark({0, 2}));
    EXPECT_THAT(dialog.Take(), IsEmpty()) << "the same marks";
    EXPECT_FALSE(multi.UserMark({3}));
    EXPECT_FALSE(single.UserMark({0, 1}));
    EXPECT_TRUE(single.UserMark({1}));
    EXPECT_TRUE(single.UserMark({}));
    EXPECT_EQ(single.GetCurSel(), -1);
    EXPECT_THAT(dialog.Take(), ElementsAre("selection 20", "selection 20"));
}

TEST_F(ListBox, MarksADoubleClickedEntryAloneAndThenRunsItsHandler) {
    multi.UserMark({0, 1});
    dialog.Take();
    EXPECT_TRUE(multi.UserDoubleClick(2));
    EXPECT_THAT(multi.GetSelItems(), ElementsAre(2));
    EXPECT_THAT(dialog.Take(), ElementsAre("selection 21", "double-clicked 21"));
    EXPECT_TRUE(multi.UserDoubleClick(2));
    EXPECT_THAT(dialog.Take(), ElementsAre("double-clicked 21"));
    EXPECT_FALSE(multi.UserDoubleClick(3));
    EXPECT_FALSE(multi.UserDoubleClick(-1));
}

TEST_F(ListBox, RunsNoDoubleClickOnAnEntryThatTheFirstClickTookAway) {
    dialog.also["selection 21"] = [this] { multi.ResetContent(); };
    EXPECT_TRUE(multi.UserDoubleClick(2));
    EXPECT_THAT(dialog.Take(), ElementsAre("selection 21"));
}

TEST_F(ListBox, RunsNoDoubleClickOnAListThatTheFirstClickClosed) {
    dialog.also["selection 21"] = [this] { multi.EnableWindow(false); };
    EXPECT_TRUE(multi.UserDoubleClick(2));
    EXPECT_THAT(dialog.Take(), ElementsAre("selection 21"));
    EXPECT_THAT(multi.GetSelItems(), ElementsAre(2));
}

TEST_F(ListBox, RefusesTheUserWhenDisabled) {
    multi.EnableWindow(false);
    EXPECT_FALSE(multi.UserMark({0}));
    EXPECT_FALSE(multi.UserDoubleClick(0));
    EXPECT_THAT(multi.GetSelItems(), IsEmpty());
    EXPECT_THAT(dialog.Take(), IsEmpty());
}

TEST_F(ListBox, KeepsMarksOnTheirEntries) {
    multi.SetSel(1);
    multi.InsertString(0, L"x");
    EXPECT_THAT(multi.GetSelItems(), ElementsAre(2));
    multi.DeleteString(0);
    EXPECT_THAT(multi.GetSelItems(), ElementsAre(1));
    single.SetCurSel(1);
    single.InsertString(1, L"x");
    EXPECT_EQ(single.GetCurSel(), 2);
    single.DeleteString(2);
    EXPECT_EQ(single.GetCurSel(), -1);
}

TEST_F(ListBox, TellsViewsOfDifferencesOnly) {
    CountingView view;
    multi.AddListener(&view);
    multi.SetSel(1);
    multi.SetSel(1);
    multi.UserMark({1});
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Selection));
    multi.RemoveListener(&view);
}

}  // namespace
}  // namespace kvopt
