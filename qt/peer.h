#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

#include "kvopt/platform/control.h"
#include "kvopt/platform/window_listener.h"

class QFocusEvent;

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

    /// The peer of a widget, null for a widget without one of this kind.
    template <class Kind>
    static Kind* Of(const QWidget& widget) {
        for (QObject* child : widget.children()) {
            if (auto* peer = dynamic_cast<Kind*>(child)) {
                return peer;
            }
        }
        return nullptr;
    }

    QWidget& Widget() const { return widget_; }
    /// Null when the model has died.
    CControl* Model() const { return model_; }

    /// The widget is about to die: nothing that still comes from it reaches the model.
    void LetGo();

    /// Shows everything the model holds; once, when all is connected.
    void ShowAll();

protected:
    /// Shows what changed; runs with the widget's signals blocked.
    virtual void Push(WindowChange change) = 0;
    /// The program moved the keyboard here.
    virtual void TakeFocus();
    /// The keyboard came to the widget, or to the part of it that takes it.
    void FollowFocus(const QFocusEvent& event);
    /// Runs something the user did, unless the model has died or a push is under way; then shows
    /// what the model made of it.
    void User(const std::function<void()>& action);

    QtDesktop& desktop_;

private:
    void PushBlocked(WindowChange change);
    void ShowName();

    CControl* model_;
    QWidget& widget_;
    bool pushing_ = false;
};

}  // namespace kvopt
