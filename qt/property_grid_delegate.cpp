#include "qt/property_grid_delegate.h"

#include <QFontMetrics>

#include "kvopt/platform/property_grid_item.h"
#include "qt/contrast.h"
#include "qt/property_grid_model.h"

namespace kvopt {

namespace {

constexpr int kPadding = 9;
/// How far a grey text is from an ordinary one to its ground, in percent. A style's own grey may be
/// too faint for a value that one wants to read.
constexpr int kGrey = 50;
/// More than the 4.5 that is asked for: thin strokes are drawn fainter.
constexpr double kReadable = 6.0;

}  // namespace

PropertyGridDelegate::PropertyGridDelegate(const PropertyGridModel& rows, QObject* parent)
    : QStyledItemDelegate(parent), rows_(rows) {}

int PropertyGridDelegate::RowHeight(const QFontMetrics& metrics) {
    return metrics.height() + kPadding;
}

QSize PropertyGridDelegate::sizeHint(const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const {
    return {QStyledItemDelegate::sizeHint(option, index).width(), RowHeight(option.fontMetrics)};
}

void PropertyGridDelegate::initStyleOption(QStyleOptionViewItem* option,
                                           const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const CXTPPropertyGridItem* item = rows_.ItemAt(index);
    if (item == nullptr || item->IsCategory() || !item->GetReadOnly()) {
        return;
    }
    const auto grey = [option](QPalette::ColorRole text, QPalette::ColorRole ground) {
        const QColor behind = option->palette.color(ground);
        const QColor faint = Mixed(option->palette.color(text), behind, kGrey);
        option->palette.setColor(text, WithContrast(faint, behind, kReadable));
    };
    grey(QPalette::Text, QPalette::Base);
    grey(QPalette::HighlightedText, QPalette::Highlight);
}

}  // namespace kvopt
