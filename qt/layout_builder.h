#pragma once

#include <map>

#include "kvopt/platform/dialog_template.h"

class QBoxLayout;
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
    QLayout* MakeLayout(const LayoutItem& item, QWidget& parent);
    QBoxLayout* MakeBox(const LayoutItem& item, QWidget& parent);
    QLayout* MakeGrid(const LayoutItem& item, QWidget& parent);
    QWidget* MakeGroup(const LayoutItem& item, QWidget& parent);
    QWidget* NextControl(QWidget& parent);
    void AddToBox(QBoxLayout& box, const LayoutItem& item, QWidget& parent);
    void BindLabels();
    void SetTabOrder();

    QtDesktop& desktop_;
    CDialog& dialog_;
    QWidget& page_;
    std::size_t next_ = 0;  ///< the dialog's controls stand in the order of the layout's leaves
    std::map<const CControl*, QWidget*> widgets_;
};

}  // namespace kvopt
