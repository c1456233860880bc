#include "qt/property_grid_view.h"

#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "qt/contrast.h"
#include "qt/property_grid_delegate.h"
#include "qt/property_grid_model.h"

namespace kvopt {

namespace {

constexpr int kRowsAtLeast = 8;
constexpr int kCharactersAtLeast = 50;
/// Lines of a description that the pane has room for without being scrolled.
constexpr int kDescriptionLines = 4;

}  // namespace

PropertyTree::PropertyTree(QWidget* parent) : QTreeView(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    // One step of the bar is one row: its value is the row at the upper edge.
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setIndentation(fontMetrics().height());
    setMinimumSize(fontMetrics().averageCharWidth() * kCharactersAtLeast,
                   PropertyGridDelegate::RowHeight(fontMetrics()) * kRowsAtLeast);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(1);
    header()->setSectionResizeMode(QHeaderView::Fixed);
}

void PropertyTree::SetDivider(double share) {
    divider_ = share;
    PlaceDivider();
}

void PropertyTree::PlaceDivider() {
    header()->resizeSection(PropertyGridModel::kCaptionColumn,
                            qRound(divider_ * viewport()->width()));
}

void PropertyTree::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    PlaceDivider();
}

int PropertyTree::TopRow() const {
    return verticalScrollBar()->value();
}

void PropertyTree::SetTopRow(int row) {
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(row);
}

void PropertyTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    const bool isHeading = !index.parent().isValid();
    const bool isMarked = selectionModel()->isSelected(index);
    if (isHeading && !isMarked) {
        painter->fillRect(option.rect, option.palette.brush(QPalette::Button));
    }
    QStyleOptionViewItem row(option);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QPalette& palette = option.palette;
        row.palette.setColor(group, QPalette::Highlight,
                             Tinted(palette.color(group, QPalette::Base),
                                    palette.color(QPalette::Active, QPalette::Highlight)));
        row.palette.setColor(group, QPalette::HighlightedText,
                             palette.color(group, QPalette::Text));
    }
    QTreeView::drawRow(painter, row, index);
    painter->save();
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    if (!isHeading) {
        const int place = columnViewportPosition(PropertyGridModel::kValueColumn) - 1;
        painter->drawLine(place, option.rect.top(), place, option.rect.bottom());
    }
    painter->restore();
}

PropertyGridView::PropertyGridView(QWidget* parent)
    : QWidget(parent),
      tree_(new PropertyTree(this)),
      pane_(new QFrame(this)),
      caption_(new QLabel(pane_)),
      description_(new QLabel) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tree_, 1);
    column->addWidget(pane_);
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(tree_);

    pane_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    QFont bold = caption_->font();
    bold.setBold(true);
    caption_->setFont(bold);
    for (QLabel* label : {caption_, description_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    // As high for a long description as for a short one, so that the rows stay where they are.
    auto* scroll = new QScrollArea(pane_);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setFixedHeight(fontMetrics().lineSpacing() * kDescriptionLines);
    scroll->setWidget(description_);
    // The pane's ground, not that of a window.
    scroll->viewport()->setAutoFillBackground(false);
    description_->setAutoFillBackground(false);
    auto* texts = new QVBoxLayout(pane_);
    texts->addWidget(caption_);
    texts->addWidget(scroll);
}

QWidget& PropertyGridView::Pane() const {
    return *pane_;
}

void PropertyGridView::Describe(const QString& caption, const QString& description) {
    caption_->setText(caption);
    description_->setText(description);
}

}  // namespace kvopt
