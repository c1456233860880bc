#pragma once

#include <map>

#include "qt/modal_window.h"

class QLabel;
class QStackedWidget;
class QTabBar;
class QVBoxLayout;

namespace kvopt {

class CPropertyPage;
class CPropertySheet;
class PageView;

/// A property sheet with tabs, or a wizard with Back, Next and Finish. It draws the machine of the
/// sheet: which page is up and which buttons are on is the model's affair.
class SheetWindow : public ModalWindow {
public:
    /// The sheet must have begun its run.
    SheetWindow(QtDesktop& desktop, CPropertySheet& sheet, QWidget* parent);

    StepScope Scope() const override;
    /// Null for a wizard.
    QTabBar* Tabs() const { return tabs_; }

    void OnWindowChanged(CWnd& window, WindowChange change) override;

protected:
    void PressButton(FrameButton button) override;

private:
    void AddTabs(QVBoxLayout& column);
    void AddHeading(QVBoxLayout& column);
    void AddFrameButtons(QVBoxLayout& column);
    void ShowPage();
    void ShowButtons();

    CPropertySheet& sheet_;
    QTabBar* tabs_ = nullptr;
    QLabel* heading_ = nullptr;
    QStackedWidget* pages_;
    std::map<CPropertyPage*, PageView*> views_;
};

}  // namespace kvopt
