#include "qt/worksheet_model.h"

#include "kvopt/platform/virtual_worksheet.h"
#include "qt/qt_text.h"

namespace kvopt {

WorksheetModel::WorksheetModel(VirtualWorksheet& worksheet, QObject* parent)
    : QAbstractTableModel(parent), worksheet_(&worksheet) {}

void WorksheetModel::Refresh() {
    const BaseWorksheetInterface* content = worksheet_ != nullptr ? worksheet_->Content() : nullptr;
    const int rows = content != nullptr ? content->RowCount() : 0;
    const int columns = content != nullptr ? content->ColumnCount() : 0;
    if (rows != rows_ || columns != columns_) {
        beginResetModel();
        rows_ = rows;
        columns_ = columns;
        endResetModel();
    } else if (rows > 0 && columns > 0) {
        emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
    }
}

void WorksheetModel::Forget() {
    worksheet_ = nullptr;
    Refresh();
}

int WorksheetModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int WorksheetModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant WorksheetModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || worksheet_ == nullptr || worksheet_->Content() == nullptr) {
        return {};
    }
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) {
        return ToQt(worksheet_->Content()->GetCellText(index.column() + 1, index.row() + 1));
    }
    return {};
}

QVariant WorksheetModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || worksheet_ == nullptr ||
        worksheet_->Content() == nullptr) {
        return {};
    }
    return ToQt(worksheet_->Content()->GetCellText(section + 1, 0));
}

Qt::ItemFlags WorksheetModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

}  // namespace kvopt
