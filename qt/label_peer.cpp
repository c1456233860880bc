#include "qt/label_peer.h"

#include <QLabel>

#include "kvopt/platform/dialog.h"
#include "qt/qt_text.h"

namespace kvopt {

LabelPeer::LabelPeer(QtDesktop& desktop, CControl& model, QLabel& label)
    : Peer(desktop, model, label), label_(label) {
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(model.Template().wraps);
}

void LabelPeer::Push(WindowChange change) {
    if (change == WindowChange::Text) {
        label_.setText(ToQt(Model()->GetText()));
        const CControl* led = Model()->Dialog().GetDlgItem(Model()->Template().buddy);
        if (led != nullptr && label_.buddy() != nullptr) {
            // What it leads to may be called by it.
            label_.buddy()->setAccessibleName(ToQt(led->AccessibleName()));
        }
    }
}

}  // namespace kvopt
