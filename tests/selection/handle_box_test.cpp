#include "kvopt/selection/handle_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/platform.h"
#include "kvopt/text.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kLists = 90201;
constexpr int kMultiFrom = 10;
constexpr int kMultiTo = 11;
constexpr int kSingleFrom = 12;
constexpr int kSingleTo = 13;

class HandleBoxTest : public testing::Test {
protected:
    /// Entries "text:number", marked ones with a "*" before them.
    static void Fill(CListBox& list, const std::vector<std::string>& entries) {
        for (const std::string& entry : entries) {
            const bool marked = entry[0] == '*';
            const std::size_t colon = entry.find(':');
            const std::size_t begin = marked ? 1 : 0;
            const int index =
                list.AddString(KvStdString::ToWide(entry.substr(begin, colon - begin)));
            list.SetItemData(index, std::stoi(entry.substr(colon + 1)));
            if (marked) {
                list.SetSel(index);
            }
        }
    }
    static std::vector<std::string> Entries(const CListBox& list) {
        std::vector<std::string> entries;
        for (int i = 0; i < list.GetCount(); ++i) {
            entries.push_back((list.GetSel(i) ? "*" : "") +
                              KvStdString::ToUtf8(list.GetItemText(i)) + ":" +
                              std::to_string(list.GetItemData(i)));
        }
        return entries;
    }
    CListBox& List(int number) { return *dialog_->Item<CListBox>(number); }

private:
    /// The dialog with the lists, whose template comes to be with the first.
    static std::unique_ptr<CDialog> MakeDialog() {
        using namespace layout;
        if (TemplateCatalog::Instance().Find(kLists) == nullptr) {
            TemplateCatalog::Instance().Add(
                {kLists, "Lists",
                 Column({ListMulti(kMultiFrom), ListMulti(kMultiTo), ListSingle(kSingleFrom),
                         ListSingle(kSingleTo)})});
        }
        auto dialog = std::make_unique<CDialog>(kLists, nullptr);
        dialog->Create();
        return dialog;
    }

    std::unique_ptr<CDialog> dialog_ = MakeDialog();

protected:
    CListBox& from = List(kMultiFrom);
    CListBox& to = List(kMultiTo);
    CListBox& singleFrom = List(kSingleFrom);
    CListBox& singleTo = List(kSingleTo);
};

// Lists in which several entries can be marked.

TEST_F(HandleBoxTest, MovesWhatIsMarkedToTheEndInItsOrder) {
    Fill(from, {"*a:1", "b:2", "*c:3", "*d:4"});
    Fill(to, {"x:9"});
    EXPECT_TRUE(HandleBox::MoveSelItem(&from, &to, false, -1));
    EXPECT_THAT(Entries(from), ElementsAre("b:2"));
    EXPECT_THAT(Entries(to), ElementsAre("x:9", "*a:1", "*c:3", "*d:4"));
}

TEST_F(HandleBoxTest, IsDoneWhenNothingIsMarked) {
    Fill(from, {"a:1"});
    Fill(to, {"x:9"});
    EXPECT_TRUE(HandleBox::MoveSelItem(&from, &to, false, -1));
    EXPECT_TRUE(HandleBox::MoveSelItem(&from, &to, true, 0));
    EXPECT_THAT(Entries(from), ElementsAre("a:1"));
    EXPECT_THAT(Entries(to), ElementsAre("x:9"));
}

TEST_F(HandleBoxTest, PutsOneEntryWhereItIsTold) {
    Fill(from, {"a:1", "*b:2", "*c:3"});
    from.SetSel(2, false);
    Fill(to, {"x:9", "y:8"});
    EXPECT_TRUE(HandleBox::MoveSelItem(&from, &to, false, 1));
    EXPECT_THAT(Entries(to), ElementsAre("x:9", "*b:2", "y:8"));
    from.SetSel(0);
    HandleBox::MoveSelItem(&from, &to, false, 0);
    EXPECT_THAT(Entries(to), ElementsAre("a:1", "x:9", "*b:2", "y:8"));
}

TEST_F(HandleBoxTest, IgnoresThePlaceForSeveralEntries) {
    Fill(from, {"*a:1", "*b:2"});
    Fill(to, {"x:9", "y:8"});
    HandleBox::MoveSelItem(&from, &to, false, 0);
    EXPECT_THAT(Entries(to), ElementsAre("x:9", "y:8", "*a:1", "*b:2"));
}

TEST_F(HandleBoxTest, TakesAPlaceThatDoesNotExistForTheEnd) {
    Fill(from, {"*a:1", "b:2"});
    Fill(to, {"x:9"});
    HandleBox::MoveSelItem(&from, &to, false, 99);
    from.SetSel(0);
    HandleBox::MoveSelItem(&from, &to, false, -2);
    EXPECT_THAT(Entries(to), ElementsAre("x:9", "*a:1", "b:2"));
    EXPECT_THAT(Entries(from), IsEmpty());
}

TEST_F(HandleBoxTest, PutsEntriesByTheirNumbers) {
    Fill(from, {"*c:3", "*a:1", "*e:5"});
    Fill(to, {"b:2", "d:4"});
    HandleBox::MoveSelItem(&from, &to, true, -1);
    EXPECT_THAT(Entries(to), ElementsAre("*a:1", "b:2", "*c:3", "d:4", "*e:5"));
}

TEST_F(HandleBoxTest, PutsAnEntryBehindThoseOfItsNumberWhateverThePlace) {
    Fill(from, {"*new:2"});
    Fill(to, {"a:1", "old:2", "c:3"});
    HandleBox::MoveSelItem(&from, &to, true, 0);
    EXPECT_THAT(Entries(to), ElementsAre("a:1", "old:2", "*new:2", "c:3"));
}

TEST_F(HandleBoxTest, KeepsTheOrderOfNumbersHoweverOftenEntriesReturn) {
    Fill(from, {"a:1", "b:2", "c:3", "d:4"});
    for (const std::vector<int>& marks :
         {std::vector<int>{0, 2}, std::vector<int>{1}, std::vector<int>{0}}) {
        for (const int mark : marks) {
            from.SetSel(mark);
        }
        HandleBox::MoveSelItem(&from, &to, true, -1);
        to.SetSel(-1, false);
        to.SetSel(0);
        HandleBox::MoveSelItem(&to, &from, true, -1);
        from.SetSel(-1, false);
    }
    to.SetSel(-1);
    HandleBox::MoveSelItem(&to, &from, true, -1);
    from.SetSel(-1, false);
    EXPECT_THAT(Entries(from), ElementsAre("a:1", "b:2", "c:3", "d:4"));
}

TEST_F(HandleBoxTest, MarksWhatArrivesOnlyWhereNothingWasMarked) {
    Fill(from, {"*a:1", "*b:2"});
    Fill(to, {"x:9", "*y:8"});
    HandleBox::MoveSelItem(&from, &to, false, -1);
    EXPECT_THAT(Entries(to), ElementsAre("x:9", "*y:8", "a:1", "b:2"));
}

TEST_F(HandleBoxTest, LosesNoEntryOfASharedText) {
    Fill(from, {"*a:1", "a:2", "*a:3"});
    Fill(to, {"a:9"});
    HandleBox::MoveSelItem(&from, &to, false, -1);
    EXPECT_THAT(Entries(from), ElementsAre("a:2"));
    EXPECT_THAT(Entries(to), ElementsAre("a:9", "*a:1", "*a:3"));
}

// Lists with one selection.

TEST_F(HandleBoxTest, MovesTheSelectedEntry) {
    Fill(singleFrom, {"a:1", "*b:2", "c:3"});
    Fill(singleTo, {"x:9"});
    EXPECT_TRUE(HandleBox::MoveSelItem(&singleFrom, &singleTo, false, -1));
    EXPECT_THAT(Entries(singleFrom), ElementsAre("a:1", "*c:3"));
    EXPECT_THAT(Entries(singleTo), ElementsAre("x:9", "*b:2"));
}

TEST_F(HandleBoxTest, SelectsTheOneBeforeWhenTheLastWasTaken) {
    Fill(singleFrom, {"a:1", "b:2", "*c:3"});
    HandleBox::MoveSelItem(&singleFrom, &singleTo, false, -1);
    EXPECT_THAT(Entries(singleFrom), ElementsAre("a:1", "*b:2"));
}

TEST_F(HandleBoxTest, LeavesNothingSelectedWhenTheOnlyOneWasTaken) {
    Fill(singleFrom, {"*a:1"});
    HandleBox::MoveSelItem(&singleFrom, &singleTo, false, -1);
    EXPECT_EQ(singleFrom.GetCurSel(), -1);
    EXPECT_THAT(Entries(singleTo), ElementsAre("*a:1"));
}

TEST_F(HandleBoxTest, KeepsTheSelectionOfTheTarget) {
    Fill(singleFrom, {"*a:1", "b:2"});
    Fill(singleTo, {"*x:9", "y:8"});
    HandleBox::MoveSelItem(&singleFrom, &singleTo, false, 0);
    EXPECT_THAT(Entries(singleTo), ElementsAre("a:1", "*x:9", "y:8"));
}

TEST_F(HandleBoxTest, SelectsTheNewEntryByItsText) {
    Fill(singleFrom, {"*x:1"});
    Fill(singleTo, {"X:7", "x:9"});
    HandleBox::MoveSelItem(&singleFrom, &singleTo, false, -1);
    EXPECT_THAT(Entries(singleTo), ElementsAre("X:7", "*x:9", "x:1"));
}

TEST_F(HandleBoxTest, PutsTheSelectedEntryByNumberOrWhereItIsTold) {
    Fill(singleFrom, {"*b:2", "c:3"});
    Fill(singleTo, {"a:1", "d:4"});
    HandleBox::MoveSelItem(&singleFrom, &singleTo, true, 0);
    EXPECT_THAT(Entries(singleTo), ElementsAre("a:1", "*b:2", "d:4"));
    HandleBox::MoveSelItem(&singleFrom, &singleTo, false, 0);
    EXPECT_THAT(Entries(singleTo), ElementsAre("c:3", "a:1", "*b:2", "d:4"));
}

TEST_F(HandleBoxTest, IsDoneWhenNothingIsSelected) {
    Fill(singleFrom, {"a:1"});
    EXPECT_TRUE(HandleBox::MoveSelItem(&singleFrom, &singleTo, false, -1));
    EXPECT_THAT(Entries(singleFrom), ElementsAre("a:1"));
}

TEST_F(HandleBoxTest, MovesBetweenListsOfBothKinds) {
    Fill(from, {"*a:1", "*b:2"});
    Fill(singleTo, {"x:9"});
    HandleBox::MoveSelItem(&from, &singleTo, false, -1);
    EXPECT_THAT(Entries(from), IsEmpty());
    EXPECT_EQ(singleTo.GetCount(), 3);
    Fill(singleFrom, {"*c:3"});
    HandleBox::MoveSelItem(&singleFrom, &to, false, -1);
    EXPECT_EQ(to.GetCount(), 1);
}

}  // namespace
}  // namespace kvopt::test
