#pragma once

#include <QAbstractTableModel>
#include <memory>

#include "kvopt/platform/geometry.h"

namespace kvopt {

class BaseWorksheetInterface;
class VirtualWorksheet;

/// The data cells of a worksheet as a table of Qt: row and column 0 are the worksheet's row and
/// column 1; the headings are its row 0 and column 0. Holds nothing but the size. The worksheet
/// must outlive it, or the views' last question.
class WorksheetModel : public QAbstractTableModel {
public:
    WorksheetModel(const VirtualWorksheet& worksheet, QObject* parent);

    /// Everything may have changed.
    void Refresh();
    /// Null when the worksheet has died or shows nothing.
    const BaseWorksheetInterface* Content() const;
    QModelIndex IndexOf(CPoint cell) const { return index(cell.y - 1, cell.x - 1); }
    /// What a screen reader calls a cell: its row and its column.
    QString NameOf(CPoint cell) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString SpokenText(CPoint cell) const;

    const VirtualWorksheet& worksheet_;
    std::weak_ptr<const void> alive_;
    int rows_ = 0;
    int columns_ = 0;
};

}  // namespace kvopt
