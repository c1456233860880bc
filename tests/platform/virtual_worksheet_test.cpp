#include "kvopt/platform/virtual_worksheet.h"

#include <memory>

#include "kvopt/text/exceptions.h"
#include "worksheet_fixture.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Worksheet = WorksheetTest;

TEST_F(Worksheet, StandsWhereTheTemplateHasIt) {
    EXPECT_EQ(worksheet.Content(), &content);
    EXPECT_EQ(content.Worksheet(), &worksheet);
    EXPECT_EQ(dialog.GetDlgItem(kWorksheet), &worksheet);
    EXPECT_THROW(VirtualWorksheet::CreateFromStatic(dialog, kEdit, content), InvalidArgument);
    EXPECT_THROW(VirtualWorksheet::CreateFromStatic(dialog, 999, content), InvalidArgument);
}

TEST_F(Worksheet, LetsGoOfWhatDies) {
    {
        TestContent other;
        VirtualWorksheet::CreateFromStatic(dialog, kWorksheet, other);
        EXPECT_EQ(content.Worksheet(), nullptr) << "its place was taken";
        worksheet.UserBeginEdit({2, 1});
    }
    EXPECT_EQ(worksheet.Content(), nullptr);
    EXPECT_FALSE(worksheet.EditedCell());
    EXPECT_FALSE(worksheet.UserSelectCell({1, 1}));
    EXPECT_FALSE(worksheet.UserPress({1, 1}, {1, 1}));
    EXPECT_FALSE(worksheet.OnCommand(kCommandCopy));
    VirtualWorksheet::CreateFromStatic(dialog, kWorksheet, content);
    dialog.DestroyWindow();
    EXPECT_EQ(content.Worksheet(), nullptr);
    content.FinishInput();
    content.OnEditPaste();
    content.OnEditCopy();
    content.OnSelectAll();
    EXPECT_TRUE(content.IsValid(true));
    dialog.Create();
}

TEST_F(Worksheet, CommitsAnEditThroughUserChangedData) {
    EXPECT_TRUE(worksheet.UserBeginEdit({2, 1}));
    ASSERT_TRUE(worksheet.EditedCell());
    EXPECT_EQ(*worksheet.EditedCell(), (CPoint{2, 1}));
    EXPECT_EQ(worksheet.EditorText(), "1");
    EXPECT_TRUE(worksheet.UserEdit("12"));
    EXPECT_EQ(content.GetCellText(2, 1), "1") << "not before it is committed";
    EXPECT_TRUE(worksheet.UserCommit());
    EXPECT_THAT(content.Take(), ElementsAre("2,1=12"));
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 24"));
    EXPECT_EQ(content.GetCellText(2, 1), "12");
    EXPECT_FALSE(worksheet.EditedCell());
    EXPECT_FALSE(worksheet.UserCommit());
    EXPECT_FALSE(worksheet.UserEdit("13"));
    EXPECT_FALSE(worksheet.UserAbandon());
}

TEST_F(Worksheet, ChangesNothingForAnEditThatLeftTheTextAsItWas) {
    worksheet.UserBeginEdit({2, 1});
    worksheet.UserEdit("12");
    worksheet.UserEdit("1");
    worksheet.UserCommit();
    EXPECT_THAT(content.Take(), IsEmpty());
    EXPECT_THAT(dialog.Take(), IsEmpty());
}

TEST_F(Worksheet, AbandonsAnEdit) {
    worksheet.UserBeginEdit({2, 1});
    worksheet.UserEdit("12");
    EXPECT_TRUE(worksheet.UserAbandon());
    EXPECT_THAT(content.Take(), IsEmpty());
    EXPECT_FALSE(worksheet.EditedCell());
}

TEST_F(Worksheet, NotifiesThePageOnlyWhenTheContentTookTheText) {
    content.refuses = true;
    worksheet.UserBeginEdit({2, 1});
    worksheet.UserEdit("12");
    worksheet.UserCommit();
    EXPECT_THAT(content.Take(), ElementsAre("2,1=12"));
    EXPECT_THAT(dialog.Take(), IsEmpty());
}

TEST_F(Worksheet, CommitsWhenTheFocusLeavesIt) {
    worksheet.UserBeginEdit({2, 1});
    worksheet.UserEdit("12");
    Get<CButton>(kPush).UserClick();
    EXPECT_THAT(content.Take(), ElementsAre("2,1=12"));
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 24", "clicked 13"));
    worksheet.UserBeginEdit({2, 1});
    worksheet.UserEdit("13");
    dialog.GetDlgItem(kEdit)->SetFocus();
    EXPECT_THAT(content.Take(), ElementsAre("2,1=13")) << "also when the program moves it";
}

TEST_F(Worksheet, CommitsWhenAnotherOfItsCellsIsReached) {
    for (const auto& reach :
         std::vector<std::function<bool()>>{[&] {
                                                return worksheet.UserSelectCell({1, 1});
                                            },
                                            [&] {
                                                return worksheet.UserPress({0, 0}, {3, 1});
                                            },
                                            [&] {
                                                return !worksheet.UserBeginEdit({1, 1});
                                            },
                                            [&] {
                                                return worksheet.UserContextMenu({0, 0});
                                            },
                                            [&] {
                                                return worksheet.UserPick({2, 2}, 0);
                                            }}) {
        worksheet.UserBeginEdit({2, 1});
        worksheet.UserEdit("9");
        EXPECT_TRUE(reach());
        EXPECT_FALSE(worksheet.EditedCell());
        EXPECT_EQ(content.GetCellText(2, 1), "9");
        content.SetCellValue(2, 1, "1");
    }
}

TEST_F(Worksheet, StaysInTheEditorThatIsReachedAgain) {
    worksheet.UserBeginEdit({2, 1});
    worksheet.UserEdit("12");
    EXPECT_TRUE(worksheet.UserBeginEdit({2, 1}));
    EXPECT_TRUE(worksheet.UserSelectCell({2, 1}));
    EXPECT_EQ(worksheet.EditorText(), "12");
    EXPECT_THAT(content.Take(), IsEmpty());
}

TEST_F(Worksheet, OffersNoEditorWhereTheCellIsNotToBeEdited) {
    EXPECT_FALSE(worksheet.UserBeginEdit({1, 1})) << "plain";
    EXPECT_FALSE(worksheet.UserBeginEdit({2, 3})) << "locked";
    EXPECT_FALSE(worksheet.UserBeginEdit({2, 2})) << "a drop-down is picked from";
    EXPECT_FALSE(worksheet.UserBeginEdit({2, 0})) << "a heading";
    EXPECT_FALSE(worksheet.UserBeginEdit({4, 1})) << "outside";
    EXPECT_FALSE(worksheet.UserBeginEdit({2, 4})) << "outside";
}

TEST_F(Worksheet, DropsAnEditWhoseCellWasLockedMeanwhile) {
    worksheet.UserBeginEdit({2, 1});
    worksheet.UserEdit("12");
    *content.GetFieldDef(2, 1, true) = FieldDef::Locked;
    content.FinishInput();
    EXPECT_THAT(content.Take(), IsEmpty());
}

TEST_F(Worksheet, PicksFromADropDown) {
    EXPECT_TRUE(worksheet.UserPick({2, 2}, 1));
    EXPECT_THAT(content.Take(), ElementsAre("2,2=high"));
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 24"));
    EXPECT_TRUE(worksheet.UserPick({2, 2}, 1)) << "the one that stands there";
    EXPECT_THAT(content.Take(), IsEmpty());
    EXPECT_FALSE(worksheet.UserPick({2, 2}, 2));
    EXPECT_FALSE(worksheet.UserPick({2, 2}, -1));
    EXPECT_FALSE(worksheet.UserPick({2, 1}, 0));
    EXPECT_FALSE(worksheet.UserPick({2, 3}, 0));
    EXPECT_THAT(content.Take(), IsEmpty());
}

TEST_F(Worksheet, RefusesTheUserWhenDisabledOrHidden) {
    worksheet.EnableWindow(false);
    EXPECT_FALSE(worksheet.UserSelectCell({2, 1}));
    EXPECT_FALSE(worksheet.UserBeginEdit({2, 1}));
    EXPECT_FALSE(worksheet.UserPick({2, 2}, 0));
    EXPECT_FALSE(worksheet.UserMouseMove({1, 1}, {3, 1}, {}));
    EXPECT_FALSE(worksheet.UserPress({1, 1}, {3, 1}));
    EXPECT_FALSE(worksheet.UserRelease({1, 1}, {3, 1}));
    EXPECT_FALSE(worksheet.UserContextMenu({1, 1}));
    EXPECT_FALSE(worksheet.UserCommand(kCommandSelectAll));
    EXPECT_TRUE(worksheet.Selection().IsEmpty());
    worksheet.EnableWindow(true);
    worksheet.ShowWindow(false);
    EXPECT_FALSE(worksheet.UserBeginEdit({2, 1}));
    EXPECT_THAT(content.Take(), IsEmpty());
}

TEST_F(Worksheet, HandsTheMouseToItsContentAndSelectsWhereThatDoesNothing) {
    EXPECT_FALSE(worksheet.UserMouseMove({1, 1}, {3, 1}, {0, 0, 100, 20}));
    EXPECT_EQ(dialog.GetFocusControl(), nullptr) << "a hovering pointer moves no focus";
    EXPECT_TRUE(worksheet.UserPress({1, 1}, {3, 1}));
    EXPECT_EQ(worksheet.Selection(), (CellRange{3, 1, 3, 1}));
    EXPECT_FALSE(worksheet.UserRelease({1, 1}, {3, 1}));
    EXPECT_EQ(dialog.GetFocusControl(), &worksheet);
    content.usesMouse = true;
    EXPECT_TRUE(worksheet.UserMouseMove({1, 1}, {3, 2}, {0, 0, 100, 20}));
    EXPECT_TRUE(worksheet.UserPress({1, 1}, {3, 2}));
    EXPECT_EQ(worksheet.Selection(), (CellRange{3, 1, 3, 1})) << "the content used it up";
    EXPECT_TRUE(worksheet.UserRelease({1, 1}, {3, 2}));
    EXPECT_THAT(content.Take(), ElementsAre("move", "down", "up", "move", "down", "up"));
}

TEST_F(Worksheet, SelectsCopiesAndPastes) {
    EXPECT_TRUE(worksheet.UserCommand(kCommandSelectAll));
    EXPECT_EQ(worksheet.Selection(), (CellRange{1, 1, 3, 3}));
    EXPECT_TRUE(worksheet.UserCommand(kCommandCopy));
    EXPECT_EQ(desktop.ClipboardText(), L"name1\t1\t\nname2\t2\t\nname3\t3\t");
    worksheet.UserSelectCell({2, 1});
    desktop.SetClipboardText(L"7");
    EXPECT_TRUE(worksheet.UserCommand(kCommandPaste));
    EXPECT_EQ(content.GetCellText(2, 1), "7");
    EXPECT_FALSE(worksheet.UserCommand(kCommandHelp));
}

TEST_F(Worksheet, PastesCellByCellAndPassesOverWhatIsNotToBeEdited) {
    worksheet.UserSelectCell({1, 1});
    desktop.SetClipboardText(L"x\t7\ty\r\nx\thigh\r\nx\t9\r\nx\t10\r\n");
    content.OnEditPaste();
    EXPECT_THAT(content.Take(), ElementsAre("2,1=7", "2,2=high"));
    EXPECT_EQ(content.GetCellText(1, 1), "name1") << "plain";
    EXPECT_EQ(content.GetCellText(2, 3), "3") << "locked";
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 24", "changed 24"));
}

TEST_F(Worksheet, PassesOverTextsThatADropDownDoesNotOffer) {
    worksheet.UserSelectCell({2, 2});
    desktop.SetClipboardText(L"middle");
    content.OnEditPaste();
    EXPECT_THAT(content.Take(), IsEmpty());
}

TEST_F(Worksheet, HandsEmptyAndOddTextsOfAPasteToItsContent) {
    worksheet.UserSelectCell({2, 1});
    desktop.SetClipboardText(L"abc");
    content.OnEditPaste();
    EXPECT_THAT(content.Take(), ElementsAre("2,1=abc"));
}

TEST_F(Worksheet, PastesOnlyWithASelectionAndAClipboard) {
    EXPECT_FALSE(content.OnUpdateEditPaste());
    worksheet.UserSelectCell({2, 1});
    EXPECT_FALSE(content.OnUpdateEditPaste());
    desktop.SetClipboardText(L"5");
    EXPECT_TRUE(content.OnUpdateEditPaste());
    worksheet.SetSelection({});
    content.OnEditPaste();
    content.OnEditCopy();
    EXPECT_THAT(content.Take(), IsEmpty());
    EXPECT_EQ(desktop.ClipboardText(), L"5");
}

TEST_F(Worksheet, LeavesTheKeysToAnOpenEditor) {
    worksheet.UserBeginEdit({2, 1});
    desktop.SetClipboardText(L"5");
    EXPECT_FALSE(worksheet.OnCommand(kCommandPaste));
    EXPECT_THAT(content.Take(), IsEmpty());
    EXPECT_TRUE(worksheet.EditedCell());
}

TEST_F(Worksheet, RunsTheCommandOfItsMenu) {
    desktop.menuChoice = kCommandSelectAll;
    EXPECT_TRUE(worksheet.UserContextMenu({3, 4}));
    EXPECT_EQ(worksheet.Selection(), (CellRange{1, 1, 3, 3}));
    EXPECT_THAT(Log(), ElementsAre("menu \"&Select all\" \"&Paste\" -> 57642"));
}

TEST_F(Worksheet, KeepsItsSelectionWithinItsCells) {
    worksheet.SetSelection({-1, 1, 9, 9});
    EXPECT_EQ(worksheet.Selection(), (CellRange{0, 1, 3, 3}));
    view.Take();
    worksheet.SetSelection({0, 1, 3, 3});
    EXPECT_THAT(view.Take(), IsEmpty());
    worksheet.SetSelection({2, 2, 2, 2});
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Selection));
}

TEST_F(Worksheet, JudgesAnOpenEditorWithoutTakingItOver) {
    EXPECT_TRUE(content.IsValid(true));
    worksheet.UserBeginEdit({2, 1});
    worksheet.UserEdit("abc");
    EXPECT_FALSE(content.IsValid(true));
    EXPECT_FALSE(content.IsValid(false));
    worksheet.UserEdit(" 1.5 ");
    EXPECT_TRUE(content.IsValid(true));
    worksheet.UserEdit("");
    EXPECT_TRUE(content.IsValid(true)) << "nothing typed";
    EXPECT_TRUE(worksheet.EditedCell());
    EXPECT_THAT(content.Take(), IsEmpty());
}

TEST_F(Worksheet, FinishesInputByProgram) {
    worksheet.UserBeginEdit({2, 1});
    worksheet.UserEdit("12");
    content.FinishInput();
    EXPECT_THAT(content.Take(), ElementsAre("2,1=12"));
    EXPECT_FALSE(worksheet.EditedCell());
    content.FinishInput();
    EXPECT_THAT(content.Take(), IsEmpty());
}

TEST_F(Worksheet, TellsItsViewsOfItsContentsChangesUnlessTheyAreHeldBack) {
    view.Take();
    content.SetCellValue(2, 1, "5");
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Cells));
    content.SetCellValue(2, 1, "5");
    EXPECT_THAT(view.Take(), IsEmpty());
    content.ResetOff();
    content.ResetOff();
    content.SetCellValue(2, 1, "6");
    content.AddRow(1, 1);
    content.SetFieldColor(1, 1, 0xFF);
    content.ResetWorksheetWindow();
    content.ResetOn();
    EXPECT_THAT(view.Take(), IsEmpty()) << "the calls nest";
    content.ResetOn();
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Cells));
    content.ResetOn();
    content.ResetWorksheetWindow();
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Cells)) << "one call too many is nothing";
}

}  // namespace
}  // namespace kvopt
