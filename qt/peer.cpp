#include "qt/peer.h"

#include <QEvent>
#include <QFocusEvent>
#include <QPointer>
#include <QSignalBlocker>

#include "kvopt/qt/qt_desktop.h"
#include "qt/qt_text.h"

namespace kvopt {

Peer::Peer(QtDesktop& desktop, CControl& model, QWidget& widget)
    : QObject(&widget), desktop_(desktop), model_(&model), widget_(widget) {
    model.AddListener(this);
    widget.setObjectName(QString::number(model.Number()));
}

Peer::~Peer() {
    LetGo();
}

void Peer::LetGo() {
    if (model_ != nullptr) {
        model_->RemoveListener(this);
        model_ = nullptr;
    }
}

void Peer::OnWindowGone(CWnd& /*window*/) {
    model_ = nullptr;
}

void Peer::OnWindowChanged(CWnd& /*window*/, WindowChange change) {
    PushBlocked(change);
}

void Peer::ShowAll() {
    // Not before the derived peer is complete: the first children of the widget come as events.
    widget_.installEventFilter(this);
    for (const auto change :
         {WindowChange::Range, WindowChange::Items, WindowChange::Text, WindowChange::Selection,
          WindowChange::Check, WindowChange::Cells, WindowChange::Pane, WindowChange::TopRow,
          WindowChange::Enabled, WindowChange::Visible}) {
        PushBlocked(change);
    }
}

void Peer::PushBlocked(WindowChange change) {
    if (model_ == nullptr) {
        return;
    }
    const bool outer = pushing_;
    pushing_ = true;
    const QSignalBlocker blocker(&widget_);
    switch (change) {
        case WindowChange::Enabled:
            widget_.setEnabled(model_->IsEnabled());
            break;
        case WindowChange::Visible:
            // A widget that was never hidden comes up with its window; showing it by itself costs.
            if (widget_.isHidden() == model_->IsVisible()) {
                widget_.setVisible(model_->IsVisible());
            }
            break;
        case WindowChange::Focus:
            TakeFocus();
            break;
        default:
            Push(change);
            ShowName();
            break;
    }
    pushing_ = outer;
}

void Peer::ShowName() {
    const QString name = ToQt(model_->AccessibleName());
    if (name != widget_.accessibleName()) {
        widget_.setAccessibleName(name);
    }
}

void Peer::TakeFocus() {
    widget_.setFocus(Qt::OtherFocusReason);
}

void Peer::User(const std::function<void()>& action) {
    if (model_ == nullptr || pushing_) {
        return;
    }
    const QPointer<Peer> alive(this);
    desktop_.Guard(action);
    // The model has the last word: a refused gesture leaves the widget as it was.
    for (const auto change : {WindowChange::Text, WindowChange::Selection, WindowChange::Check}) {
        if (alive != nullptr) {
            PushBlocked(change);
        }
    }
}

void Peer::FollowFocus(const QFocusEvent& event) {
    const Qt::FocusReason reason = event.reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
        reason == Qt::MouseFocusReason || reason == Qt::ShortcutFocusReason) {
        User([this] { model_->UserFocus(); });
    }
}

bool Peer::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &widget_ && event->type() == QEvent::FocusIn) {
        FollowFocus(static_cast<QFocusEvent&>(*event));
    }
    return false;
}

}  // namespace kvopt
