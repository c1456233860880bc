#include "kvopt/platform/virtual_worksheet.h"

#include <algorithm>
#include <cstddef>

#include "kvopt/platform/desktop.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/keys.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {

VirtualWorksheet::VirtualWorksheet(CDialog& dialog, const ControlTemplate& what)
    : CControl(dialog, what) {}

VirtualWorksheet::~VirtualWorksheet() {
    if (content_ != nullptr) {
        content_->worksheet_ = nullptr;
    }
}

VirtualWorksheet& VirtualWorksheet::CreateFromStatic(CDialog& dialog, int number,
                                                     BaseWorksheetInterface& content) {
    auto* worksheet = dialog.Item<VirtualWorksheet>(number);
    if (worksheet == nullptr) {
        throw InvalidArgument("VirtualWorksheet::CreateFromStatic: dialog " +
                              std::to_string(dialog.TemplateNumber()) + " has no worksheet " +
                              std::to_string(number));
    }
    if (worksheet->content_ != nullptr) {
        worksheet->content_->worksheet_ = nullptr;
    }
    if (content.worksheet_ != nullptr) {
        content.worksheet_->content_ = nullptr;
    }
    worksheet->content_ = &content;
    content.worksheet_ = worksheet;
    worksheet->Reset();
    return *worksheet;
}

void VirtualWorksheet::Reset() {
    NotifyViews(WindowChange::Cells);
}

bool VirtualWorksheet::OnCommand(int command) {
    if (content_ == nullptr || edited_) {
        return CControl::OnCommand(command);
    }
    switch (command) {
        case kCommandSelectAll:
            content_->OnSelectAll();
            return true;
        case kCommandCopy:
            content_->OnEditCopy();
            return true;
        case kCommandPaste:
            content_->OnEditPaste();
            return true;
        default:
            return CControl::OnCommand(command);
    }
}

void VirtualWorksheet::OnLosesFocus() {
    CommitEdit();
}

void VirtualWorksheet::SetSelection(const CellRange& range) {
    CellRange inside = range;
    if (content_ != nullptr) {
        inside = {std::max(range.firstColumn, 0), std::max(range.firstRow, 0),
                  std::min(range.lastColumn, content_->ColumnCount()),
                  std::min(range.lastRow, content_->RowCount())};
    }
    if (inside != selection_) {
        selection_ = inside;
        NotifyViews(WindowChange::Selection);
    }
}

void VirtualWorksheet::CommitEdit() {
    if (!edited_) {
        return;
    }
    const CPoint cell = *edited_;
    const std::string text = editorText_;
    edited_.reset();
    NotifyViews(WindowChange::Cells);
    if (IsData(cell) && content_->GetFieldType(cell.x, cell.y) == FieldDef::Number) {
        TakeOver(cell, text);
    }
}

bool VirtualWorksheet::IsData(CPoint cell) const {
    return content_ != nullptr && cell.x >= 1 && cell.x <= content_->ColumnCount() && cell.y >= 1 &&
           cell.y <= content_->RowCount();
}

bool VirtualWorksheet::TakeOver(CPoint cell, const std::string& text) {
    if (content_->GetCellText(cell.x, cell.y) == text) {
        return true;
    }
    if (!content_->UserChangedData(cell.x, cell.y, text.c_str())) {
        return false;
    }
    Notify(Notification::Changed);
    return true;
}

void VirtualWorksheet::PasteInto(CPoint cell, const std::string& text) {
    if (!IsData(cell)) {
        return;
    }
    const FieldDef* field = content_->GetFieldDef(cell.x, cell.y);
    const FieldDef::FieldType type = content_->GetFieldType(cell.x, cell.y);
    const bool offered =
        field != nullptr && std::find(field->ComboSettings().begin(), field->ComboSettings().end(),
                                      text) != field->ComboSettings().end();
    if ((type == FieldDef::Number || (type == FieldDef::Combo && offered)) &&
        content_->UserChangedData(cell.x, cell.y, text.c_str())) {
        Notify(Notification::Changed);
    }
}

void VirtualWorksheet::CommitElsewhere(CPoint cell) {
    if (edited_ && *edited_ != cell) {
        CommitEdit();
    }
}

bool VirtualWorksheet::UserSelectCell(CPoint cell) {
    return IsData(cell) && Act([this, cell] {
               CommitElsewhere(cell);
               SetSelection({cell.x, cell.y, cell.x, cell.y});
               return true;
           });
}

bool VirtualWorksheet::UserBeginEdit(CPoint cell) {
    return IsData(cell) && Act([this, cell] {
               CommitElsewhere(cell);
               if (!IsData(cell) || content_->GetFieldType(cell.x, cell.y) != FieldDef::Number) {
                   return false;
               }
               SetSelection({cell.x, cell.y, cell.x, cell.y});
               if (!edited_) {
                   edited_ = cell;
                   editorText_ = content_->GetCellText(cell.x, cell.y);
                   NotifyViews(WindowChange::Cells);
               }
               return true;
           });
}

bool VirtualWorksheet::UserEdit(const std::string& text) {
    return edited_ && Act([&] {
               if (!edited_) {
                   return false;
               }
               editorText_ = text;
               return true;
           });
}

bool VirtualWorksheet::UserCommit() {
    return edited_ && Act([this] {
               CommitEdit();
               return true;
           });
}

bool VirtualWorksheet::UserAbandon() {
    return edited_ && Act([this] {
               edited_.reset();
               NotifyViews(WindowChange::Cells);
               return true;
           });
}

bool VirtualWorksheet::UserPick(CPoint cell, int entry) {
    return IsData(cell) && Act([this, cell, entry] {
               CommitEdit();
               const FieldDef* field = content_->GetFieldDef(cell.x, cell.y);
               if (!IsData(cell) || field == nullptr || field->Type() != FieldDef::Combo ||
                   entry < 0 || entry >= static_cast<int>(field->ComboSettings().size())) {
                   return false;
               }
               SetSelection({cell.x, cell.y, cell.x, cell.y});
               const std::string text = field->ComboSettings()[static_cast<std::size_t>(entry)];
               return TakeOver(cell, text);
           });
}

bool VirtualWorksheet::UserMouseMove(CPoint point, CPoint cell, const CRect& rect) {
    // A hovering pointer moves no focus.
    return content_ != nullptr && IsUsable() && Desktop::Instance().RunUserAction([&] {
        return content_->MouseMove(point, cell, rect);
    });
}

bool VirtualWorksheet::UserPress(CPoint point, CPoint cell) {
    return content_ != nullptr && Act([&] {
               CommitElsewhere(cell);
               if (!content_->LButtonDown(point, cell) && IsData(cell)) {
                   SetSelection({cell.x, cell.y, cell.x, cell.y});
               }
               return true;
           });
}

bool VirtualWorksheet::UserRelease(CPoint point, CPoint cell) {
    return content_ != nullptr && Act([&] { return content_->LButtonUp(point, cell); });
}

bool VirtualWorksheet::UserContextMenu(CPoint point) {
    return content_ != nullptr && Act([&] {
               CommitEdit();
               return content_->RButtonDown(point);
           });
}

bool VirtualWorksheet::UserCommand(int command) {
    return Act([this, command] { return OnCommand(command); });
}

}  // namespace kvopt
