#include "qt/worksheet_delegate.h"

#include <QPainter>
#include <QTableView>

#include "kvopt/platform/worksheet_interface.h"
#include "qt/painter_canvas.h"
#include "qt/worksheet_model.h"

namespace kvopt {

namespace {

/// How much of the highlight colour lies over a marked cell, of 255.
constexpr int kTint = 56;

}  // namespace

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
    // The view has drawn a marked cell's ground already, in a colour that hides the renderers'.
    painter->fillRect(place, option.palette.color(QPalette::Base));
    PainterCanvas canvas(*painter, rect, option.palette);
    if (const VWSRenderer* renderer = content->GetCellRenderer(column, row)) {
        renderer->DrawCell(canvas, *content, column, row, rect);
    }
    if ((option.state & QStyle::State_Selected) != 0) {
        // A frame and a tint, so that field colours and sliders stay readable below.
        QColor tint = option.palette.color(QPalette::Highlight);
        painter->setPen(tint);
        painter->drawRect(place.adjusted(0, 0, -1, -1));
        tint.setAlpha(kTint);
        painter->fillRect(place, tint);
    }
    painter->restore();
}

}  // namespace kvopt
