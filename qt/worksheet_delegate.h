#pragma once

#include <QStyledItemDelegate>

namespace kvopt {

class VirtualWorksheet;

/// Draws the cells of a worksheet through its content's renderers.
class WorksheetDelegate : public QStyledItemDelegate {
public:
    WorksheetDelegate(VirtualWorksheet& worksheet, QObject* parent);
    void Forget() { worksheet_ = nullptr; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    VirtualWorksheet* worksheet_;
};

}  // namespace kvopt
