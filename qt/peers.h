#pragma once

#include <QWidget>
#include <map>

namespace kvopt {

class CControl;
class CDialog;
class QtDesktop;

/// Makes the widget of a control with its peer; `parent` owns both.
QWidget* MakeWidget(QtDesktop& desktop, CControl& control, QWidget& parent);

/// Binds the radio buttons of each group of a dialog together, so that the arrow keys move within
/// the group. `widgets` holds the widget of each control.
void BindRadioGroups(CDialog& dialog, const std::map<const CControl*, QWidget*>& widgets,
                     QWidget& parent);

}  // namespace kvopt
