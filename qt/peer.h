#pragma once

#include <QObject>
#include <QWidget>

#include "kvopt/platform/control.h"
#include "kvopt/platform/window_listener.h"

namespace kvopt {

class QtDesktop;

/// The bond between one control model and its widget: shows what the model holds, and tells the
/// model what the user does. Child of its widget, and let go of when either dies.
class Peer : public QObject, public WindowListener {
public:
    Peer(QtDesktop& desktop, CControl& model, QWidget& widget);
    ~Peer() override;

    void OnWindowChanged(CWnd& window, WindowChange change) final;
    void OnWindowGone(CWnd& window) final;
    bool eventFilter(QObject* watched, QEvent* event) override;

    QWidget& Widget() const { return widget_; }
    /// Null when the model has died.
    CControl* Model() const { return model_; }

    /// Shows everything the model holds; once, when all is connected.
    void ShowAll();

protected:
    /// Shows what changed; runs with the widget's signals blocked.
    virtual void Push(WindowChange change) = 0;
    /// Runs something the user did, unless the model has died or a push is under way.
    void User(const std::function<void()>& action);

    QtDesktop& desktop_;

private:
    void PushBlocked(WindowChange change);

    CControl* model_;
    QWidget& widget_;
    bool pushing_ = false;
};

}  // namespace kvopt
