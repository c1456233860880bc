#include "qt/spin_peer.h"

#include <QToolButton>
#include <QVBoxLayout>

#include "kvopt/platform/spin_button_ctrl.h"

namespace kvopt {

SpinPeer::SpinPeer(QtDesktop& desktop, CSpinButtonCtrl& model, QWidget& arrows)
    : Peer(desktop, model, arrows),
      model_(model),
      up_(*new QToolButton(&arrows)),
      down_(*new QToolButton(&arrows)) {
    auto* column = new QVBoxLayout(&arrows);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (QToolButton* arrow : {&up_, &down_}) {
        arrow->setArrowType(arrow == &up_ ? Qt::UpArrow : Qt::DownArrow);
        arrow->setAutoRepeat(true);
        arrow->setFocusPolicy(Qt::NoFocus);
        column->addWidget(arrow);
        const int delta = arrow == &up_ ? 1 : -1;
        connect(arrow, &QToolButton::clicked, this,
                [this, delta] { User([&] { model_.UserStep(delta); }); });
    }
}

void SpinPeer::Push(WindowChange /*change*/) {}

}  // namespace kvopt
