#include "qt/label_peer.h"

#include <QLabel>

#include "qt/qt_text.h"

namespace kvopt {

LabelPeer::LabelPeer(QtDesktop& desktop, CControl& model, QLabel& label)
    : Peer(desktop, model, label), label_(label) {
    label.setTextFormat(Qt::PlainText);
}

void LabelPeer::Push(WindowChange change) {
    if (change == WindowChange::Text) {
        label_.setText(ToQt(Model()->GetText()));
    }
}

}  // namespace kvopt
