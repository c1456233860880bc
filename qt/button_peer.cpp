#include "qt/button_peer.h"

#include <QAbstractButton>
#include <QButtonGroup>

#include "kvopt/platform/button.h"
#include "qt/qt_text.h"

namespace kvopt {

ButtonPeer::ButtonPeer(QtDesktop& desktop, CButton& model, QAbstractButton& button)
    : Peer(desktop, model, button), model_(model), button_(button) {
    connect(&button, &QAbstractButton::clicked, this,
            [this] { User([&] { model_.UserClick(); }); });
}

void ButtonPeer::Push(WindowChange change) {
    if (change == WindowChange::Text && button_.text() != ToQt(model_.GetText())) {
        button_.setText(ToQt(model_.GetText()));
    } else if (change == WindowChange::Check) {
        ShowCheck();
    }
}

void ButtonPeer::ShowCheck() {
    if (model_.GetCheck() && !button_.isCheckable()) {
        // A push button that shows a state stays down while that is on.
        button_.setCheckable(true);
    }
    QButtonGroup* group = button_.group();
    const bool exclusive = group != nullptr && group->exclusive();
    if (exclusive) {
        group->setExclusive(false);
    }
    button_.setChecked(model_.GetCheck());
    if (exclusive) {
        group->setExclusive(true);
    }
}

}  // namespace kvopt
