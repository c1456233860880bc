#include "qt/worksheet_delegate.h"

#include <QPainter>

#include "kvopt/platform/virtual_worksheet.h"
#include "qt/painter_canvas.h"

namespace kvopt {

WorksheetDelegate::WorksheetDelegate(VirtualWorksheet& worksheet, QObject* parent)
    : QStyledItemDelegate(parent), worksheet_(&worksheet) {}

void WorksheetDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    if (worksheet_ == nullptr || worksheet_->Content() == nullptr) {
        return;
    }
    const BaseWorksheetInterface& content = *worksheet_->Content();
    const int column = index.column() + 1;
    const int row = index.row() + 1;
    const QRect& place = option.rect;
    painter->save();
    painter->setClipRect(place);
    painter->setFont(option.font);
    const QColor text = option.palette.color(QPalette::Text);
    const bool dark = option.palette.color(QPalette::Base).lightnessF() < 0.5F;
    PainterCanvas canvas(*painter, text, dark);
    content.GetCellRenderer(column, row)
        ->DrawCell(canvas, content, column, row,
                   {place.left(), place.top(), place.right() + 1, place.bottom() + 1});
    if ((option.state & QStyle::State_Selected) != 0) {
        // A frame and a tint, so that field colours and sliders stay readable below.
        QColor tint = option.palette.color(QPalette::Highlight);
        painter->setPen(tint);
        painter->drawRect(place.adjusted(0, 0, -1, -1));
        tint.setAlpha(48);
        painter->fillRect(place, tint);
    }
    painter->restore();
}

}  // namespace kvopt
