#include "qt/worksheet_model.h"

#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/text/format.h"
#include "kvopt/text/kv_string.h"
#include "qt/qt_text.h"
#include "resources/qt_texts.h"

namespace kvopt {

namespace {

QString TextOf(const BaseWorksheetInterface& content, int column, int row) {
    return ToQt(std::string_view(content.GetCellText(column, row)));
}

}  // namespace

WorksheetModel::WorksheetModel(const VirtualWorksheet& worksheet, QObject* parent)
    : QAbstractTableModel(parent), worksheet_(worksheet), alive_(worksheet.LifeToken()) {}

const BaseWorksheetInterface* WorksheetModel::Content() const {
    return alive_.expired() ? nullptr : worksheet_.Content();
}

void WorksheetModel::Refresh() {
    const BaseWorksheetInterface* content = Content();
    const int rows = content != nullptr ? content->RowCount() : 0;
    const int columns = content != nullptr ? content->ColumnCount() : 0;
    if (rows != rows_ || columns != columns_) {
        beginResetModel();
        rows_ = rows;
        columns_ = columns;
        endResetModel();
    } else if (rows > 0 && columns > 0) {
        emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
        emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
    }
}

QString WorksheetModel::NameOf(CPoint cell) const {
    const BaseWorksheetInterface* content = Content();
    return content == nullptr
               ? QString()
               : TextOf(*content, 1, cell.y) + QLatin1Char(' ') + TextOf(*content, cell.x, 0);
}

int WorksheetModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int WorksheetModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant WorksheetModel::data(const QModelIndex& index, int role) const {
    const BaseWorksheetInterface* content = Content();
    if (!index.isValid() || content == nullptr) {
        return {};
    }
    const CPoint cell{index.column() + 1, index.row() + 1};
    switch (role) {
        case Qt::DisplayRole:
            return TextOf(*content, cell.x, cell.y);
        case Qt::AccessibleTextRole:
            return SpokenText(cell);
        default:
            return {};
    }
}

QString WorksheetModel::SpokenText(CPoint cell) const {
    const BaseWorksheetInterface& content = *Content();
    const VWSRenderer* renderer = content.GetCellRenderer(cell.x, cell.y);
    const auto slider =
        renderer != nullptr ? renderer->Slider(content, cell.x, cell.y) : std::nullopt;
    if (!slider) {
        return TextOf(content, cell.x, cell.y);
    }
    const auto number = [](float value) { return KvString::FormatG(static_cast<double>(value)); };
    return ToQt(FormatWide(texts::kSpokenSlider, number(slider->value), number(slider->low),
                           number(slider->high)));
}

QVariant WorksheetModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const BaseWorksheetInterface* content = Content();
    if (role != Qt::DisplayRole || content == nullptr) {
        return {};
    }
    return orientation == Qt::Horizontal ? TextOf(*content, section + 1, 0)
                                         : TextOf(*content, 0, section + 1);
}

Qt::ItemFlags WorksheetModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

}  // namespace kvopt
