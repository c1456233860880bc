#pragma once

#include <QWidget>

namespace kvopt {

class CDialog;
class CControl;
class QtDesktop;

/// The widgets of one page or dialog. The dialog must have its window for as long as this lives.
class PageView : public QWidget {
public:
    PageView(QtDesktop& desktop, CDialog& dialog, QWidget* parent);
    ~PageView() override;

    CDialog& Dialog() const { return dialog_; }
    /// Gives the keyboard to what the page says has the focus, else to the first control.
    void TakeFocus();

    /// The widget of a control below `window`; null when it shows none.
    static QWidget* WidgetOf(const QWidget& window, const CControl& control);

private:
    CDialog& dialog_;
};

}  // namespace kvopt
