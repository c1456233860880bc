#pragma once

#include <map>

#include "kvopt/platform/dialog_template.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLayout;
class QWidget;

namespace kvopt {

class CControl;
class CDialog;
class QtDesktop;

/// Turns a dialog's template into widgets with layouts: rows, columns, grids and groups take the
/// places that they need, items with a stretch share what is left. No pixel positions.
class LayoutBuilder {
public:
    /// The dialog must have its window (controls). `page` owns everything that is made.
    LayoutBuilder(QtDesktop& desktop, CDialog& dialog, QWidget& page);

    void Build();

private:
    /// One of these: a control or a group is a widget, any other container a layout, a space
    /// neither.
    struct Part {
        QWidget* widget = nullptr;
        QLayout* layout = nullptr;
    };

    Part Make(const LayoutItem& item, QWidget& parent);
    QBoxLayout* MakeRow(const LayoutItem& item, QWidget& parent);
    QBoxLayout* MakeColumn(const LayoutItem& item, QWidget& parent);
    QGridLayout* MakeGrid(const LayoutItem& item, QWidget& parent);
    QGridLayout* MakeStack(const LayoutItem& item, QWidget& parent);
    QWidget* MakeGroup(const LayoutItem& item, QWidget& parent);
    QWidget* NextControl(QWidget& parent);
    void AlignLabels(const LayoutItem& column) const;
    void BindBuddies();
    void SetTabOrder();

    QtDesktop& desktop_;
    CDialog& dialog_;
    QWidget& page_;
    std::size_t next_ = 0;  ///< the dialog's controls stand in the order of the layout's leaves
    std::map<const CControl*, QWidget*> widgets_;
    std::map<const LayoutItem*, QLabel*> labels_;
};

}  // namespace kvopt
