#pragma once

#include <QDialog>
#include <map>

#include "kvopt/platform/window_listener.h"
#include "kvopt/scripted/step_target.h"

class QAbstractButton;

namespace kvopt {

class CWnd;
class QtDesktop;

/// The window of one modal run: a sheet, a wizard or a free-standing dialog. The model says when it
/// ends; closing the window only tells the model that the user cancels.
class ModalWindow : public QDialog, public WindowListener {
public:
    ModalWindow(QtDesktop& desktop, CWnd& model, QWidget* parent);
    ~ModalWindow() override;

    /// What stands in front of the user here.
    virtual StepScope Scope() const = 0;
    /// Null when the frame has no such button.
    QAbstractButton* ButtonFor(FrameButton button) const;

    void OnWindowChanged(CWnd& window, WindowChange change) override;
    void OnWindowGone(CWnd& window) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reject() override;
    void accept() override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    virtual void PressButton(FrameButton button) = 0;
    QAbstractButton* AddButton(FrameButton button, const QString& text);
    /// A button that is seen while the desktop can show help and the page in front has some.
    QAbstractButton* AddHelpButton();
    void ShowHelpButton();

    QtDesktop& desktop_;

private:
    void KeepHeight();
    bool TakeKey(const QKeyEvent& event);
    void ShowHelp();

    CWnd* model_;
    std::map<FrameButton, QAbstractButton*> buttons_;
    QAbstractButton* help_ = nullptr;
};

}  // namespace kvopt
