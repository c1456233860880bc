#pragma once

#include <QTreeView>
#include <QWidget>

class QFrame;
class QLabel;

namespace kvopt {

class PropertyGridModel;

/// The rows of a property grid: headings are bold and shaded over the whole width, lines part the
/// rows and the columns.
class PropertyTree : public QTreeView {
public:
    explicit PropertyTree(QWidget* parent);

    /// The share of the width that captions take.
    void SetDivider(double share);
    /// The row at the upper edge, zero-based among those that are shown.
    int TopRow() const;
    /// As far as the rows reach.
    void SetTopRow(int row);

protected:
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceDivider();

    double divider_ = 0.5;
};

/// A property tree with the pane that describes a row below it.
class PropertyGridView : public QWidget {
public:
    explicit PropertyGridView(QWidget* parent);

    PropertyTree& Tree() const { return *tree_; }
    QWidget& Pane() const;
    /// Caption and description in the pane; plain texts.
    void Describe(const QString& caption, const QString& description);

private:
    PropertyTree* tree_;
    QFrame* pane_;
    QLabel* caption_;
    QLabel* description_;
};

}  // namespace kvopt
