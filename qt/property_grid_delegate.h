#pragma once

#include <QStyledItemDelegate>

class QFontMetrics;

namespace kvopt {

class PropertyGridModel;

/// Draws the cells of a property grid; what the user cannot change is grey.
class PropertyGridDelegate : public QStyledItemDelegate {
public:
    PropertyGridDelegate(const PropertyGridModel& rows, QObject* parent);

    /// Room for an editor around a line of text.
    static int RowHeight(const QFontMetrics& metrics);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    const PropertyGridModel& rows_;
};

}  // namespace kvopt
