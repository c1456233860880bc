#pragma once

#include <QKeyEvent>
#include <QLineEdit>

namespace kvopt {

/// A line edit that knows whether its text changes because of a keystroke; anything else that
/// changes it (paste from keyboard or menu, a drop) is pasting.
class LineEdit : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

    bool IsTyping() const { return typing_; }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        typing_ = !event->matches(QKeySequence::Paste);
        QLineEdit::keyPressEvent(event);
        typing_ = false;
    }
    void inputMethodEvent(QInputMethodEvent* event) override {
        typing_ = true;
        QLineEdit::inputMethodEvent(event);
        typing_ = false;
    }

private:
    bool typing_ = false;
};

}  // namespace kvopt
