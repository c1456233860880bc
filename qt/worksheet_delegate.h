#pragma once

#include <QStyledItemDelegate>

namespace kvopt {

class WorksheetModel;

/// Draws the cells of a worksheet through its content's renderers.
class WorksheetDelegate : public QStyledItemDelegate {
public:
    WorksheetDelegate(const WorksheetModel& cells, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const WorksheetModel& cells_;
};

}  // namespace kvopt
