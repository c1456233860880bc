#include "kvopt/selection/select_item_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "axes/sheet_desktop.h"
#include "kvopt/platform.h"
#include "kvopt/scripted.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Names = std::vector<std::string>;

constexpr unsigned kNoLimit = static_cast<unsigned>(-1);

class SelectItemDialogTest : public testing::Test {
protected:
    SelectItemDialog& Show(const Names& left, const Names& right, unsigned limit = kNoLimit) {
        available = left;
        selected = right;
        dialog =
            std::make_unique<SelectItemDialog>(available, selected, "settings", limit, nullptr);
        dialog->Create();
        return *dialog;
    }
    CListBox& Available() const { return *dialog->Item<CListBox>(6075); }
    CListBox& Selected() const { return *dialog->Item<CListBox>(6077); }
    bool ClickAdd() const { return dialog->Item<CButton>(6005)->UserClick(); }
    bool ClickRemove() const { return dialog->Item<CButton>(6017)->UserClick(); }
    std::string Label(int number) const {
        return KvStdString::ToUtf8(dialog->GetDlgItem(number)->GetText());
    }
    /// The entries, marked ones with a "*" before them.
    static Names Entries(const CListBox& list) {
        Names names;
        for (int i = 0; i < list.GetCount(); ++i) {
            names.push_back((list.GetSel(i) ? "*" : "") + KvStdString::ToUtf8(list.GetItemText(i)));
        }
        return names;
    }
    Names Left() const { return Entries(Available()); }
    Names Right() const { return Entries(Selected()); }
    /// Which arrows are on: "add remove".
    std::string Arrows() const {
        return std::string(dialog->GetDlgItem(6005)->IsEnabled() ? "add" : "-") +
               (dialog->GetDlgItem(6017)->IsEnabled() ? " remove" : " -");
    }

    SheetDesktop desktop;
    Names available;
    Names selected;
    std::unique_ptr<SelectItemDialog> dialog;
};

TEST_F(SelectItemDialogTest, OpensWithTheNounInItsLabelsAndBothVectorsInOrder) {
    Show({"b", "a"}, {"d", "c"});
    EXPECT_EQ(dialog->TemplateNumber(), 6150);
    EXPECT_EQ(dialog->Caption(), L"Select Items");
    EXPECT_EQ(Label(6145), "Select the settings you want to display");
    EXPECT_EQ(Label(6144), "Available settings:");
    EXPECT_EQ(Label(6146), "Selected settings:");
    EXPECT_EQ(Label(6005), "»");
    EXPECT_EQ(Label(6017), "«");
    EXPECT_THAT(Left(), ElementsAre("b", "a"));
    EXPECT_THAT(Right(), ElementsAre("d", "c"));
    EXPECT_EQ(Arrows(), "- -");
}

TEST_F(SelectItemDialogTest, EnablesEachArrowWhileItsOwnListHasAMark) {
    Show({"a", "b"}, {"c"});
    Available().UserMark({0, 1});
    EXPECT_EQ(Arrows(), "add -");
    Selected().UserMark({0});
    EXPECT_EQ(Arrows(), "add remove");
    Available().UserMark({});
    EXPECT_EQ(Arrows(), "- remove");
    EXPECT_FALSE(ClickAdd());
    EXPECT_TRUE(ClickRemove());
    EXPECT_EQ(Arrows(), "- -");
}

TEST_F(SelectItemDialogTest, AppendsWhatMovesInItsOrderAndRestoresNone) {
    Show({"a", "b", "c", "d"}, {"x"});
    Available().UserMark({0, 2});
    EXPECT_TRUE(ClickAdd());
    EXPECT_THAT(Left(), ElementsAre("b", "d"));
    EXPECT_THAT(Right(), ElementsAre("x", "a", "c"));
    EXPECT_EQ(Arrows(), "- -");
    Selected().UserMark({0, 1});
    EXPECT_TRUE(ClickRemove());
    EXPECT_THAT(Left(), ElementsAre("b", "d", "x", "a"));
    EXPECT_THAT(Right(), ElementsAre("c"));
}

TEST_F(SelectItemDialogTest, MovesOnADoubleClickToo) {
    Show({"a", "b"}, {"x", "y"});
    Available().UserMark({0});
    EXPECT_TRUE(Available().UserDoubleClick(1));
    EXPECT_THAT(Left(), ElementsAre("a"));
    EXPECT_TRUE(Selected().UserDoubleClick(0));
    EXPECT_THAT(Left(), ElementsAre("a", "x"));
    EXPECT_THAT(Right(), ElementsAre("y", "b"));
    EXPECT_EQ(Arrows(), "- -");
}

TEST_F(SelectItemDialogTest, MovesNoMoreThanTheLimitAndKeepsTheRestMarked) {
    Show({"a", "b", "c", "d", "e", "f"}, {"x", "y"}, 3);
    Available().UserMark({1, 2, 3, 4, 5});
    EXPECT_TRUE(ClickAdd());
    EXPECT_THAT(Right(), ElementsAre("x", "y", "b"));
    EXPECT_THAT(Left(), ElementsAre("a", "*c", "*d", "*e", "*f"));
    EXPECT_EQ(Arrows(), "add -") << "the limit alone switches nothing off";
    EXPECT_TRUE(ClickAdd());
    EXPECT_EQ(Selected().GetCount(), 3);
    EXPECT_THAT(Left(), ElementsAre("a", "*c", "*d", "*e", "*f"));
}

struct LimitRow {
    unsigned limit;
    int moved;
};

class SelectItemLimit : public SelectItemDialogTest,
                        public testing::WithParamInterface<LimitRow> {};

TEST_P(SelectItemLimit, BoundsWhatIsSelected) {
    Show({"a", "b", "c"}, {"x", "y"}, GetParam().limit);
    Available().UserMark({0, 1, 2});
    ClickAdd();
    EXPECT_EQ(Selected().GetCount(), 2 + GetParam().moved);
    EXPECT_EQ(Available().GetCount(), 3 - GetParam().moved);
}

INSTANTIATE_TEST_SUITE_P(Limits, SelectItemLimit,
                         testing::Values(LimitRow{0, 0}, LimitRow{1, 0}, LimitRow{2, 0},
                                         LimitRow{3, 1}, LimitRow{4, 2}, LimitRow{5, 3},
                                         LimitRow{100, 3}, LimitRow{kNoLimit, 3}));

TEST_F(SelectItemDialogTest, TakesBackAnyNumberWhateverTheLimit) {
    Show({"a"}, {"w", "x", "y", "z"}, 1);
    Selected().UserMark({0, 1, 3});
    EXPECT_TRUE(ClickRemove());
    EXPECT_THAT(Left(), ElementsAre("a", "w", "x", "z"));
    EXPECT_THAT(Right(), ElementsAre("y"));
}

TEST_F(SelectItemDialogTest, LeavesTheVectorsAloneUntilOk) {
    Show({"a", "b"}, {"x"});
    Available().UserDoubleClick(1);
    EXPECT_THAT(available, ElementsAre("a", "b"));
    EXPECT_THAT(selected, ElementsAre("x"));
    dialog->UserCancel();
    EXPECT_THAT(available, ElementsAre("a", "b"));
    EXPECT_THAT(selected, ElementsAre("x"));
    EXPECT_EQ(dialog->Result(), kResultCancel);
}

TEST_F(SelectItemDialogTest, WritesBothVectorsOnOk) {
    Show({"Größe", "b"}, {"x"});
    Available().UserDoubleClick(0);
    EXPECT_TRUE(dialog->UserOk());
    EXPECT_TRUE(dialog->HasEnded());
    EXPECT_EQ(dialog->Result(), kResultOk);
    EXPECT_THAT(available, ElementsAre("b"));
    EXPECT_THAT(selected, ElementsAre("x", "Größe"));
    EXPECT_THAT(desktop.boxes, IsEmpty());
}

TEST_F(SelectItemDialogTest, RefusesAnEmptySelectionAndLeavesTheVectorsHalfWritten) {
    Show({"a", "b"}, {"x"});
    Selected().UserDoubleClick(0);
    Names availableThen;
    Names selectedThen{"not asked"};
    desktop.onBox = [&] {
        availableThen = available;
        selectedThen = selected;
    };
    dialog->UserOk();
    EXPECT_THAT(desktop.boxes, ElementsAre(SheetDesktop::Box{"You must at least select one item",
                                                             "Select Items", 16}));
    EXPECT_THAT(availableThen, ElementsAre("a", "b", "x"));
    EXPECT_THAT(selectedThen, IsEmpty());
    EXPECT_FALSE(dialog->HasEnded());
    dialog->UserCancel();
    EXPECT_THAT(available, ElementsAre("a", "b", "x")) << "cancelling takes nothing back";
    EXPECT_THAT(selected, IsEmpty());
}

TEST_F(SelectItemDialogTest, GoesOnAfterARefusal) {
    Show({"a", "b"}, {});
    dialog->UserOk();
    Available().UserDoubleClick(0);
    EXPECT_TRUE(dialog->UserOk());
    EXPECT_EQ(dialog->Result(), kResultOk);
    EXPECT_THAT(available, ElementsAre("b"));
    EXPECT_THAT(selected, ElementsAre("a"));
}

TEST(SelectItemDialogStory, IsPlayedByAScript) {
    ScriptedDesktop desktop(R"(expect page 6150
expect entries "Available" "Low" "Mid" "High"
expect entries "Selected" none
expect disabled "Add"
ok
expect box error "You must at least select one item"
mark "Available" "Low" "High"
click "Add"
double-click "Available" "Mid"
expect marked "Available" "Mid"
expect entries "Selected" "Low" "High"
double-click "Selected" "Low"
ok
)");
    Desktop* const before = Desktop::Install(&desktop);
    Names available{"Low", "Mid", "High"};
    Names selected;
    EXPECT_EQ(SelectItemDialog(available, selected, "settings", 2, nullptr).DoModal(), kResultOk);
    Desktop::Install(before);
    EXPECT_THAT(desktop.Verify(), IsEmpty());
    EXPECT_THAT(available, ElementsAre("Mid", "Low"));
    EXPECT_THAT(selected, ElementsAre("High"));
}

}  // namespace
}  // namespace kvopt::test
