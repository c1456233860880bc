#include "kvopt/platform/worksheet_interface.h"

#include <algorithm>
#include <utility>

#include "kvopt/platform/desktop.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_std_string.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {

namespace {

/// Width of an average character of the standard font at 96 dots per inch.
constexpr int kCharacterWidth = 7;
/// The narrowest cell in which a slider can be dragged, at 96 dots per inch.
constexpr int kSliderWidth = 100;

/// The parts between the separators, empty ones included.
std::vector<std::string> Parts(std::string_view text, char separator) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == separator) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

/// Lines of a clipboard text, whatever their ends; the end of the last line begins no other.
std::vector<std::string> Lines(std::string text) {
    std::erase(text, '\r');
    if (!text.empty() && text.back() == '\n') {
        text.pop_back();
    }
    return Parts(text, '\n');
}

}  // namespace

VWSInterFace_VWSAccess::~VWSInterFace_VWSAccess() = default;

BaseWorksheetInterface::BaseWorksheetInterface(std::string name) : name_(std::move(name)) {
    SetSize(0, 0);
}

BaseWorksheetInterface::~BaseWorksheetInterface() {
    if (worksheet_ != nullptr) {
        worksheet_->content_ = nullptr;
        worksheet_->edited_.reset();
    }
}

void BaseWorksheetInterface::UpdateValue(int column, int row, const char* text) {
    SetCellValue(column, row, text != nullptr ? text : "");
}

const VWSRenderer* BaseWorksheetInterface::GetCellRenderer(int /*column*/, int /*row*/) const {
    return &plainRenderer_;
}

std::string BaseWorksheetInterface::GetCellText(int column, int row) const {
    const std::string* text = data_.GetData(column, row);
    return text != nullptr ? *text : std::string();
}

bool BaseWorksheetInterface::LButtonDown(const CPoint& /*point*/, const CPoint& /*cell*/) {
    return false;
}

bool BaseWorksheetInterface::LButtonUp(const CPoint& /*point*/, const CPoint& /*cell*/) {
    return false;
}

bool BaseWorksheetInterface::MouseMove(const CPoint& /*point*/, const CPoint& /*cell*/,
                                       const CRect& /*rect*/) {
    return false;
}

bool BaseWorksheetInterface::RButtonDown(CPoint& /*point*/) {
    return false;
}

bool BaseWorksheetInterface::GetToolTipText(int /*column*/, int /*row*/, std::wstring& /*text*/) {
    return false;
}

void BaseWorksheetInterface::SetSize(int columns, int rows) {
    data_.SetSize(columns + 1, rows + 1);
    columns_ = columns;
    rows_ = rows;
    TellWindow();
}

void BaseWorksheetInterface::AddRow(int row, int count) {
    if (row < 1 || count < 0) {
        throw InvalidArgument("BaseWorksheetInterface::AddRow: there is no row " +
                              std::to_string(row));
    }
    const int before = std::min(row, rows_ + 1);
    data_.AddRows(before, count);
    if (before <= rows_) {
        fields_.AddRows(before, count);
    }
    rows_ += count;
    TellWindow();
}

void BaseWorksheetInterface::SetCellValue(int column, int row, std::string_view text) {
    const std::string* before = data_.GetData(column, row);
    const bool differs = before == nullptr ? !text.empty() : *before != text;
    data_.SetData(column, row, text);
    if (differs) {
        TellWindow();
    }
}

void BaseWorksheetInterface::SetColumnType(int column, FieldDef::FieldType type) {
    fields_.SetColumnType(column, type);
    TellWindow();
}

void BaseWorksheetInterface::SetColumnWidth(int column, int pixels) {
    widths_[column] = pixels;
    TellWindow();
}

int BaseWorksheetInterface::ColumnWidth(int column) const {
    const auto found = widths_.find(column);
    return found == widths_.end() ? ScaleToDpi(kSliderWidth) : found->second;
}

void BaseWorksheetInterface::SetColumnFont(int column, int font) {
    fonts_[column] = font;
    TellWindow();
}

int BaseWorksheetInterface::ColumnFont(int column) const {
    const auto found = fonts_.find(column);
    return found == fonts_.end() ? 0 : found->second;
}

int BaseWorksheetInterface::GetMaxTextColWidth(int column, int row) const {
    const int first = row == -1 ? 0 : row;
    const int last = row == -1 ? rows_ : row;
    int characters = 0;
    for (int i = first; i <= last; ++i) {
        const std::wstring text = KvStdString::ToWide(GetCellText(column, i));
        characters = std::max(characters, static_cast<int>(text.size()));
    }
    return ScaleToDpi(std::max(characters * kCharacterWidth, kSliderWidth));
}

int BaseWorksheetInterface::ScaleToDpi(int pixels) const {
    return pixels * Desktop::Instance().DotsPerInch() / 96;
}

FieldDef* BaseWorksheetInterface::GetFieldDef(int column, int row, bool create) {
    return create ? &fields_.GetOrCreateField(column, row) : fields_.Find(column, row);
}

const FieldDef* BaseWorksheetInterface::GetFieldDef(int column, int row) const {
    return fields_.Find(column, row);
}

FieldDef::FieldType BaseWorksheetInterface::GetFieldType(int column, int row) const {
    return fields_.TypeOf(column, row);
}

void BaseWorksheetInterface::AddFieldComboSetting(int column, int row, std::string_view text) {
    fields_.GetOrCreateField(column, row).AddComboSetting(text);
    TellWindow();
}

void BaseWorksheetInterface::ClearFieldComboSetting(int column, int row) {
    FieldDef* field = fields_.Find(column, row);
    if (field != nullptr && !field->ComboSettings().empty()) {
        field->ClearComboSettings();
        TellWindow();
    }
}

void BaseWorksheetInterface::SetFieldColor(int column, int row, Colour colour) {
    FieldDef& field = fields_.GetOrCreateField(column, row);
    if (field.FieldColour() != colour) {
        field.SetFieldColour(colour);
        TellWindow();
    }
}

void BaseWorksheetInterface::ResetOff() {
    ++resetOff_;
}

void BaseWorksheetInterface::ResetOn() {
    if (resetOff_ > 0 && --resetOff_ == 0) {
        TellWindow();
    }
}

void BaseWorksheetInterface::ResetWorksheetWindow() {
    TellWindow();
}

void BaseWorksheetInterface::TellWindow() {
    if (worksheet_ != nullptr && resetOff_ == 0) {
        worksheet_->Reset();
    }
}

bool BaseWorksheetInterface::IsValid(bool /*showState*/) const {
    if (worksheet_ == nullptr || !worksheet_->EditedCell()) {
        return true;
    }
    const CPoint cell = *worksheet_->EditedCell();
    const std::string text = KvStdString::Trim(worksheet_->EditorText());
    double number = 0.0;
    return GetFieldType(cell.x, cell.y) != FieldDef::Number || text.empty() ||
           KvString::ToDouble(text, number);
}

void BaseWorksheetInterface::FinishInput() {
    if (worksheet_ != nullptr) {
        worksheet_->CommitEdit();
    }
}

void BaseWorksheetInterface::OnEditPaste() {
    if (!OnUpdateEditPaste()) {
        return;
    }
    const CellRange& selection = worksheet_->Selection();
    const std::vector<std::string> lines =
        Lines(KvStdString::ToUtf8(Desktop::Instance().ClipboardText()));
    int row = selection.firstRow;
    const int firstColumn = selection.firstColumn;
    for (const std::string& line : lines) {
        int column = firstColumn;
        for (const std::string& text : Parts(line, '\t')) {
            worksheet_->PasteInto({column, row}, text);
            ++column;
        }
        ++row;
    }
}

bool BaseWorksheetInterface::OnUpdateEditPaste() const {
    return worksheet_ != nullptr && !worksheet_->Selection().IsEmpty() &&
           !Desktop::Instance().ClipboardText().empty();
}

void BaseWorksheetInterface::OnEditCopy() const {
    if (worksheet_ == nullptr || worksheet_->Selection().IsEmpty()) {
        return;
    }
    const CellRange& selection = worksheet_->Selection();
    std::string text;
    for (int row = selection.firstRow; row <= selection.lastRow; ++row) {
        text += row > selection.firstRow ? "\n" : "";
        for (int column = selection.firstColumn; column <= selection.lastColumn; ++column) {
            text += column > selection.firstColumn ? "\t" : "";
            text += GetCellText(column, row);
        }
    }
    Desktop::Instance().SetClipboardText(KvStdString::ToWide(text));
}

void BaseWorksheetInterface::OnSelectAll() {
    if (worksheet_ != nullptr) {
        worksheet_->SetSelection({1, 1, columns_, rows_});
    }
}

}  // namespace kvopt
