#include "qt/edit_peer.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "kvopt/platform/edit.h"
#include "qt/qt_text.h"

namespace kvopt {

EditPeer::EditPeer(QtDesktop& desktop, CEdit& model, QLineEdit& edit)
    : Peer(desktop, model, edit), model_(model), edit_(edit) {
    edit.setMinimumWidth(edit.fontMetrics().horizontalAdvance(QStringLiteral("0")) * 10);
    connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        User([&] {
            const std::wstring whole = text.toStdWString();
            if (pasting_) {
                model_.UserPaste(whole);
            } else {
                model_.UserEdit(whole);
            }
        });
    });
}

bool EditPeer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event) == QKeySequence::Paste) {
        // The line edit pastes within this call; afterwards keys are typing again.
        pasting_ = true;
        edit_.paste();
        pasting_ = false;
        return true;
    }
    return Peer::eventFilter(watched, event);
}

void EditPeer::Push(WindowChange change) {
    const QString text = ToQt(model_.GetText());
    if (change == WindowChange::Text && edit_.text() != text) {
        const int cursor = edit_.cursorPosition();
        edit_.setText(text);
        edit_.setCursorPosition(cursor);
    }
}

}  // namespace kvopt
