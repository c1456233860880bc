#include "scripted/model_gestures.h"

#include <algorithm>

#include "kvopt/platform/controls.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/scripted/slider_path.h"
#include "kvopt/scripted/virtual_clock.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

bool ModelGestures::Focus(CControl& control) {
    return control.UserFocus();
}

bool ModelGestures::Click(CButton& button) {
    return button.UserClick();
}

bool ModelGestures::Type(CControl& field, const std::wstring& text) {
    const auto keystroke = [&](const std::wstring& whole) {
        auto* edit = dynamic_cast<CEdit*>(&field);
        return edit != nullptr ? edit->UserEdit(whole)
                               : static_cast<CComboBox&>(field).UserEdit(whole);
    };
    bool accepted = Focus(field) && (field.GetText().empty() || keystroke(L""));
    for (const wchar_t character : text) {
        accepted = accepted && keystroke(field.GetText() + character);
    }
    return accepted;
}

bool ModelGestures::Paste(CControl& field, const std::wstring& text) {
    return Focus(field) && static_cast<CEdit&>(field).UserPaste(text);
}

bool ModelGestures::Pick(CComboBox& combo, int index) {
    return combo.UserPick(index);
}

bool ModelGestures::Mark(CListBox& list, const std::vector<int>& indices) {
    if (indices.empty()) {
        bool accepted = Focus(list);
        for (std::vector<int> left = list.GetSelItems(); accepted && !left.empty();) {
            left.erase(left.begin());
            accepted = list.UserMark(left);
        }
        return accepted;
    }
    std::vector<int> marked;
    for (const int index : indices) {
        marked.insert(std::upper_bound(marked.begin(), marked.end(), index), index);
        if (!list.UserMark(marked)) {
            return false;
        }
    }
    return true;
}

bool ModelGestures::DoubleClick(CListBox& list, int index) {
    return list.UserDoubleClick(index);
}

bool ModelGestures::Spin(CSpinButtonCtrl& spin, bool up) {
    return spin.UserStep(up ? 1 : -1);
}

bool ModelGestures::SelectTab(CPropertySheet& sheet, int index) {
    return sheet.UserSelectPage(index);
}

bool ModelGestures::PressOnSheet(CPropertySheet& sheet, FrameButton button) {
    switch (button) {
        case FrameButton::Ok:
            return sheet.UserOk();
        case FrameButton::Apply:
            return sheet.UserApply();
        case FrameButton::Cancel:
        case FrameButton::Close:
            return sheet.UserCancel();
        case FrameButton::Next:
            return sheet.UserNext();
        case FrameButton::Back:
            return sheet.UserBack();
        case FrameButton::Finish:
            return sheet.UserFinish();
    }
    return false;
}

bool ModelGestures::Press(const StepScope& scope, FrameButton button) {
    if (scope.sheet != nullptr) {
        return PressOnSheet(*scope.sheet, button);
    }
    return button == FrameButton::Ok ? scope.dialog->UserOk() : scope.dialog->UserCancel();
}

bool ModelGestures::PressKey(const StepScope& scope, const KeyStroke& key) {
    CDialog* dialog = scope.ActiveDialog();
    if (dialog == nullptr) {
        return false;
    }
    if (dialog->UserKey(key)) {
        return true;
    }
    auto* worksheet = dynamic_cast<VirtualWorksheet*>(dialog->GetFocusControl());
    if (worksheet != nullptr && KeyToWorksheet(*worksheet, key)) {
        return true;
    }
    auto* grid = dynamic_cast<CXTPPropertyGrid*>(dialog->GetFocusControl());
    if (grid != nullptr && KeyToGrid(*grid, key)) {
        return true;
    }
    auto* button = dynamic_cast<CButton*>(dialog->GetFocusControl());
    if (button != nullptr && button->Kind() == ControlKind::Push && key == KeyStroke{kKeyReturn}) {
        return button->UserClick();
    }
    // Return belongs to the worksheet or the property grid that has the focus, edited or not: it
    // never presses OK.
    const bool isKept = (worksheet != nullptr || grid != nullptr) && key == KeyStroke{kKeyReturn};
    return !isKept && KeyToFrame(scope, key);
}

bool ModelGestures::KeyToWorksheet(VirtualWorksheet& worksheet, const KeyStroke& key) {
    if (worksheet.EditedCell()) {
        if (key == KeyStroke{kKeyReturn}) {
            return worksheet.UserCommit();
        }
        return key == KeyStroke{kKeyEscape} && worksheet.UserAbandon();
    }
    if (key == KeyStroke{'C', true}) {
        return worksheet.UserCommand(kCommandCopy);
    }
    if (key == KeyStroke{'V', true}) {
        return worksheet.UserCommand(kCommandPaste);
    }
    return key == KeyStroke{'A', true} && worksheet.UserCommand(kCommandSelectAll);
}

bool ModelGestures::KeyToGrid(CXTPPropertyGrid& grid, const KeyStroke& key) {
    if (grid.EditedItem() == nullptr) {
        return key == KeyStroke{kKeyReturn} && grid.UserBeginEdit(grid.GetSelectedItem());
    }
    if (key == KeyStroke{kKeyReturn}) {
        return grid.UserCommit();
    }
    return key == KeyStroke{kKeyEscape} && grid.UserAbandon();
}

bool ModelGestures::KeyToFrame(const StepScope& scope, const KeyStroke& key) {
    if (key == KeyStroke{kKeyF1}) {
        return Desktop::Instance().RunUserAction(
            [&] { return scope.ActiveDialog()->OnCommand(kCommandHelp); });
    }
    if (key == KeyStroke{kKeyEscape}) {
        return Press(scope, FrameButton::Cancel);
    }
    if (key != KeyStroke{kKeyReturn}) {
        return false;
    }
    for (const FrameButton button : {FrameButton::Ok, FrameButton::Next, FrameButton::Finish}) {
        if (IsFrameButtonEnabled(scope, button)) {
            return Press(scope, button);
        }
    }
    return false;
}

bool ModelGestures::SelectCells(VirtualWorksheet& worksheet, const CellRange& cells) {
    const bool accepted = worksheet.UserSelectCell({cells.firstColumn, cells.firstRow});
    if (accepted) {
        worksheet.SetSelection(cells);
    }
    return accepted;
}

bool ModelGestures::TypeIntoCell(VirtualWorksheet& worksheet, CPoint cell, const std::string& text,
                                 bool commit) {
    bool accepted = worksheet.UserSelectCell(cell) && worksheet.UserBeginEdit(cell) &&
                    (worksheet.EditorText().empty() || worksheet.UserEdit(""));
    for (const wchar_t character : KvStdString::ToWide(text)) {
        accepted = accepted && worksheet.UserEdit(worksheet.EditorText() +
                                                  KvStdString::ToUtf8(std::wstring(1, character)));
    }
    return accepted && (!commit || worksheet.UserCommit());
}

bool ModelGestures::PasteIntoCells(VirtualWorksheet& worksheet) {
    return worksheet.UserCommand(kCommandPaste);
}

bool ModelGestures::PickInCell(VirtualWorksheet& worksheet, CPoint cell, int entry) {
    return worksheet.UserSelectCell(cell) && worksheet.UserPick(cell, entry);
}

bool ModelGestures::MoveMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) {
    const CRect rect = NominalCellRect(*worksheet.Content(), cell);
    return worksheet.UserMouseMove(pixel, cell, rect);
}

bool ModelGestures::PressMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) {
    return worksheet.UserPress(pixel, cell);
}

bool ModelGestures::ReleaseMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) {
    return worksheet.UserRelease(pixel, cell);
}

bool ModelGestures::ContextMenu(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) {
    const CellRange& marked = worksheet.Selection();
    const bool isMarked = cell.x >= marked.firstColumn && cell.x <= marked.lastColumn &&
                          cell.y >= marked.firstRow && cell.y <= marked.lastRow;
    return (isMarked || worksheet.UserSelectCell(cell)) && worksheet.UserContextMenu(pixel);
}

bool ModelGestures::SelectRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row) {
    return grid.UserSelect(&row);
}

bool ModelGestures::ToggleRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row) {
    return grid.UserToggle(&row);
}

bool ModelGestures::ExpandRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row, bool expand) {
    return grid.UserExpand(&row, expand);
}

bool ModelGestures::PickInRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row, int choice) {
    return grid.UserPick(&row, choice);
}

bool ModelGestures::TypeIntoRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row,
                                const std::wstring& text, bool commit) {
    bool accepted = grid.UserBeginEdit(&row) && (grid.EditorText().empty() || grid.UserEdit(L""));
    for (const wchar_t character : text) {
        accepted = accepted && grid.UserEdit(grid.EditorText() + character);
    }
    return accepted && (!commit || grid.UserCommit());
}

bool ModelGestures::Wait(unsigned milliseconds) {
    clock_.Advance(milliseconds);
    return true;
}

bool ModelGestures::TakePicture(const std::string& /*name*/) {
    return true;
}

}  // namespace kvopt
