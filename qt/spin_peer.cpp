#include "qt/spin_peer.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include "kvopt/platform/spin_button_ctrl.h"

namespace kvopt {

SpinPeer::SpinPeer(QtDesktop& desktop, CSpinButtonCtrl& model, QWidget& arrows)
    : Peer(desktop, model, arrows), model_(model) {
    auto* column = new QVBoxLayout(&arrows);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    arrows.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    for (const int delta : {1, -1}) {
        auto* arrow = new QToolButton(&arrows);
        arrow->setArrowType(delta > 0 ? Qt::UpArrow : Qt::DownArrow);
        arrow->setAutoRepeat(true);
        // The keyboard's way is the edit's Up and Down keys.
        arrow->setFocusPolicy(Qt::NoFocus);
        arrow->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        arrow->setFixedWidth(arrows.fontMetrics().height() + 2);
        column->addWidget(arrow);
        connect(arrow, &QToolButton::clicked, this, [this, delta] { Step(delta); });
    }
}

void SpinPeer::SetBuddy(QWidget& edit) {
    buddy_ = &edit;
    edit.installEventFilter(this);
}

bool SpinPeer::eventFilter(QObject* watched, QEvent* event) {
    if (watched == buddy_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            Step(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return Peer::eventFilter(watched, event);
}

void SpinPeer::Step(int delta) {
    User([&] { model_.UserStep(delta); });
}

void SpinPeer::Push(WindowChange /*change*/) {}

}  // namespace kvopt
