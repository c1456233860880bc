#include "qt/worksheet_delegate.h"

#include <QPainter>
#include <QTableView>

#include "kvopt/platform/worksheet_interface.h"
#include "qt/painter_canvas.h"
#include "qt/worksheet_model.h"

namespace kvopt {

WorksheetDelegate::WorksheetDelegate(const WorksheetModel& cells, QObject* parent)
    : QStyledItemDelegate(parent), cells_(cells) {}

void WorksheetDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    const BaseWorksheetInterface* content = cells_.Content();
    if (content == nullptr) {
        return;
    }
    const int column = index.column() + 1;
    const int row = index.row() + 1;
    const QRect& place = option.rect;
    // The whole cell, with the line that the view draws over its last pixels: the mouse is told
    // places in the same rectangle.
    const auto* table = qobject_cast<const QTableView*>(option.widget);
    const int line = table != nullptr && table->showGrid() ? 1 : 0;
    const CRect rect{place.left(), place.top(), place.left() + place.width() + line,
                     place.top() + place.height() + line};
    painter->save();
    painter->setClipRect(place);
    painter->setFont(option.font);
    const bool marked = (option.state & QStyle::State_Selected) != 0;
    PainterCanvas canvas(*painter, rect, option.palette, marked);
    if (const VWSRenderer* renderer = content->GetCellRenderer(column, row)) {
        renderer->DrawCell(canvas, *content, column, row, rect);
    }
    if (marked) {
        painter->setPen(option.palette.color(QPalette::Highlight));
        painter->drawRect(place.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

}  // namespace kvopt
