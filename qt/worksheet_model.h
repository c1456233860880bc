#pragma once

#include <QAbstractTableModel>

namespace kvopt {

class VirtualWorksheet;

/// The data cells of a worksheet as a table of Qt: row and column 0 are the worksheet's row and
/// column 1; the headings are its row 0. Holds nothing of its own. The worksheet must outlive it or
/// be taken away.
class WorksheetModel : public QAbstractTableModel {
public:
    WorksheetModel(VirtualWorksheet& worksheet, QObject* parent);

    /// Everything may have changed.
    void Refresh();
    void Forget();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    VirtualWorksheet* worksheet_;
    int rows_ = 0;
    int columns_ = 0;
};

}  // namespace kvopt
