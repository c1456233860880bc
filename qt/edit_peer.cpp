#include "qt/edit_peer.h"

#include <algorithm>

#include "kvopt/platform/edit.h"
#include "qt/line_edit.h"
#include "qt/qt_text.h"

namespace kvopt {

namespace {

/// Room for a number as pages print it, "-1.23457e-05".
constexpr int kCharacters = 12;

}  // namespace

EditPeer::EditPeer(QtDesktop& desktop, CEdit& model, LineEdit& edit)
    : Peer(desktop, model, edit), model_(model), edit_(edit) {
    edit.setMinimumWidth(edit.fontMetrics().horizontalAdvance(QLatin1Char('0')) * kCharacters);
    connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        User([&] {
            if (edit_.IsTyping()) {
                model_.UserEdit(text.toStdWString());
            } else {
                model_.UserPaste(text.toStdWString());
            }
        });
    });
}

void EditPeer::TakeFocus() {
    Peer::TakeFocus();
    // What was refused is replaced by typing.
    edit_.selectAll();
}

void EditPeer::Push(WindowChange change) {
    const QString text = ToQt(model_.GetText());
    if (change != WindowChange::Text || edit_.text() == text) {
        return;
    }
    // A character that was dropped leaves the cursor where it was before it.
    const auto dropped = static_cast<int>(edit_.text().size() - text.size());
    const int cursor = edit_.cursorPosition() - (edit_.IsTyping() ? std::max(dropped, 0) : 0);
    edit_.setText(text);
    edit_.setCursorPosition(std::max(cursor, 0));
}

}  // namespace kvopt
