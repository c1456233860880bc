#include "kvopt/platform/item_control.h"

#include "kvopt/text/exceptions.h"
#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ItemControl : public ControlsTest {
protected:
    void Fill(std::initializer_list<const wchar_t*> texts) {
        for (const wchar_t* text : texts) {
            list.AddString(text);
        }
    }
    CListBox& list = Get<CListBox>(kListMulti);
};

TEST_F(ItemControl, AddsAtTheEndAndInsertsBefore) {
    EXPECT_EQ(list.AddString(L"b"), 0);
    EXPECT_EQ(list.InsertString(0, L"a"), 0);
    EXPECT_EQ(list.InsertString(2, L"c"), 2);
    EXPECT_EQ(list.InsertString(-1, L"d"), 3);
    EXPECT_THAT(list.Texts(), ElementsAre(L"a", L"b", L"c", L"d"));
    EXPECT_EQ(list.GetCount(), 4);
    list.DeleteString(1);
    EXPECT_THAT(list.Texts(), ElementsAre(L"a", L"c", L"d"));
    list.ResetContent();
    EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(ItemControl, ThrowsForEntriesThatDoNotExist) {
    Fill({L"a"});
    EXPECT_THROW(list.InsertString(2, L"x"), InvalidArgument);
    EXPECT_THROW(list.InsertString(-2, L"x"), InvalidArgument);
    EXPECT_THROW(list.DeleteString(1), InvalidArgument);
    EXPECT_THROW(list.GetItemText(-1), InvalidArgument);
    EXPECT_THROW(list.GetItemData(1), InvalidArgument);
    EXPECT_THROW(list.SetItemData(1, 1), InvalidArgument);
    EXPECT_THAT(list.Texts(), ElementsAre(L"a"));
}

TEST_F(ItemControl, KeepsTheProgramsNumbersWithTheirEntries) {
    Fill({L"a", L"b"});
    list.SetItemData(1, 42);
    list.InsertString(0, L"x");
    EXPECT_EQ(list.GetItemData(2), 42);
    EXPECT_EQ(list.GetItemData(0), 0);
}

TEST_F(ItemControl, FindsExactlyWithCaseAndAll) {
    Fill({L"Temp2", L"temp", L"Temp"});
    EXPECT_EQ(list.FindStringExact(-1, L"Temp"), 2);
    EXPECT_EQ(list.FindStringExact(-1, L"TEMP"), -1);
    EXPECT_EQ(list.FindStringExact(-1, L""), -1);
    Fill({L""});
    EXPECT_EQ(list.FindStringExact(-1, L""), -1) << "an empty text selects nothing";
    EXPECT_EQ(list.FindString(-1, L""), -1);
}

TEST_F(ItemControl, FindsPrefixesWithoutRegardToCase) {
    Fill({L"Pressure", L"Temp2", L"TEMP", L"\u00d6l", L"\u0391lpha", L"\u0416ar"});
    EXPECT_EQ(list.FindString(-1, L"temp"), 1);
    EXPECT_EQ(list.FindString(-1, L"\u00f6"), 3);
    EXPECT_EQ(list.FindString(-1, L"\u03b1LPHA"), 4);
    EXPECT_EQ(list.FindString(-1, L"\u0436"), 5);
    Fill({L"\u0101bc", L"\u0178", L"\u03c2"});
    EXPECT_EQ(list.FindString(-1, L"\u0100B"), 6) << "capital and small letters in turn";
    EXPECT_EQ(list.FindString(-1, L"\u00ff"), 7);
    EXPECT_EQ(list.FindString(-1, L"\u03a3"), 8) << "the sigma at the end of a word";
    EXPECT_EQ(list.FindString(-1, L"Temp22"), -1);
    EXPECT_EQ(list.FindString(-1, L"\u00f7"), -1) << "the division sign is no small letter";
}

TEST_F(ItemControl, SearchesBehindTheGivenEntryAndWrapsRound) {
    Fill({L"Temp", L"Temp2", L"Time"});
    EXPECT_EQ(list.FindString(-1, L"Temp"), 0);
    EXPECT_EQ(list.FindString(0, L"Temp"), 1);
    EXPECT_EQ(list.FindString(1, L"Temp"), 0);
    EXPECT_EQ(list.FindString(2, L"Temp"), 0);
    EXPECT_EQ(list.FindString(3, L"Temp"), 0) << "an index that does not exist begins at the top";
    EXPECT_EQ(list.FindStringExact(0, L"Temp"), 0) << "wraps round to the entry itself";
}

TEST_F(ItemControl, TellsViewsOnceWhenRedrawingIsAllowedAgain) {
    CountingView view;
    list.AddListener(&view);
    list.SetRedraw(false);
    Fill({L"a", L"b"});
    list.SetSel(1);
    EXPECT_THAT(view.Take(), IsEmpty());
    list.SetRedraw(true);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Items));
    list.SetRedraw(true);
    EXPECT_THAT(view.Take(), IsEmpty());
    list.RemoveListener(&view);
}

}  // namespace
}  // namespace kvopt
