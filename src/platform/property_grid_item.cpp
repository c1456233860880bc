#include "kvopt/platform/property_grid_item.h"

#include <cstddef>

#include "kvopt/platform/dialog.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {

CXTPPropertyGridItem::CXTPPropertyGridItem(std::wstring_view literal) {
    const std::size_t end = literal.find(L'\n');
    caption_ = literal.substr(0, end);
    if (end != std::wstring_view::npos) {
        description_ = literal.substr(end + 1);
    }
}

CXTPPropertyGridItem::~CXTPPropertyGridItem() = default;

void CXTPPropertyGridItem::SetDescription(std::wstring_view description) {
    if (description != description_) {
        description_ = description;
        CellsChanged();
    }
}

void CXTPPropertyGridItem::SetReadOnly(bool readOnly) {
    if (readOnly != readOnly_) {
        readOnly_ = readOnly;
        CellsChanged();
    }
}

void CXTPPropertyGridItem::SetHidden(bool hidden) {
    if (hidden != hidden_) {
        hidden_ = hidden;
        RowsChanged();
    }
}

void CXTPPropertyGridItem::Expand() {
    if (!expanded_) {
        expanded_ = true;
        RowsChanged();
    }
}

void CXTPPropertyGridItem::Collapse() {
    if (expanded_) {
        expanded_ = false;
        RowsChanged();
    }
}

void CXTPPropertyGridItem::Adopt(std::unique_ptr<CXTPPropertyGridItem> item) {
    if (item == nullptr) {
        throw InvalidArgument("CXTPPropertyGridItem::AddChildItem: there is no row");
    }
    item->parent_ = this;
    children_.push_back(std::move(item));
    RowsChanged();
}

CXTPPropertyGrid* CXTPPropertyGridItem::Grid() const {
    return parent_ != nullptr ? parent_->Grid() : grid_;
}

CWnd* CXTPPropertyGridItem::Window() const {
    const CXTPPropertyGrid* grid = Grid();
    return grid != nullptr ? &grid->Dialog() : nullptr;
}

bool CXTPPropertyGridItem::IsShown() const {
    return !hidden_ && (parent_ == nullptr || (parent_->expanded_ && parent_->IsShown()));
}

void CXTPPropertyGridItem::SetValue(std::wstring_view text) {
    if (text != text_) {
        text_ = text;
        ValueChanged();
    }
}

void CXTPPropertyGridItem::SetDefaultValue(std::wstring_view text) {
    if (text != default_) {
        default_ = text;
        CellsChanged();
    }
}

void CXTPPropertyGridItem::ValueChanged() {
    ++changes_;
    CellsChanged();
}

void CXTPPropertyGridItem::RowsChanged() {
    if (CXTPPropertyGrid* grid = Grid()) {
        grid->OnRowsChanged();
    }
}

void CXTPPropertyGridItem::CellsChanged() {
    if (CXTPPropertyGrid* grid = Grid()) {
        grid->OnCellsChanged();
    }
}

void CXTPPropertyGridItemCategory::SetValue(std::wstring_view /*text*/) {}

}  // namespace kvopt
