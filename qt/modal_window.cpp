#include "qt/modal_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

#include "kvopt/platform/dialog.h"
#include "kvopt/platform/keys.h"
#include "kvopt/qt/qt_desktop.h"
#include "qt/qt_text.h"

namespace kvopt {

namespace {

/// Nothing for a key that no page is asked about.
KeyStroke StrokeOf(const QKeyEvent& event) {
    KeyStroke stroke;
    switch (event.key()) {
        case Qt::Key_Insert:
            stroke.key = kKeyInsert;
            break;
        case Qt::Key_Delete:
            stroke.key = kKeyDelete;
            break;
        case Qt::Key_F1:
            stroke.key = kKeyF1;
            break;
        default:
            if (event.key() >= Qt::Key_0 && event.key() <= Qt::Key_Z &&
                (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) {
                stroke.key = event.key();
            }
            break;
    }
    stroke.control = (event.modifiers() & Qt::ControlModifier) != 0;
    stroke.shift = (event.modifiers() & Qt::ShiftModifier) != 0;
    stroke.alt = (event.modifiers() & Qt::AltModifier) != 0;
    return stroke;
}

}  // namespace

ModalWindow::ModalWindow(QtDesktop& desktop, CWnd& model, QWidget* parent)
    : QDialog(parent), desktop_(desktop), model_(&model) {
    model.AddListener(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setSizeGripEnabled(true);
    setWindowTitle(ToQt(model.GetText()));
    qApp->installEventFilter(this);
}

ModalWindow::~ModalWindow() {
    qApp->removeEventFilter(this);
    if (model_ != nullptr) {
        model_->RemoveListener(this);
    }
}

void ModalWindow::OnWindowGone(CWnd& /*window*/) {
    model_ = nullptr;
}

void ModalWindow::OnWindowChanged(CWnd& window, WindowChange change) {
    if (change == WindowChange::Ended) {
        done(0);
    } else if (change == WindowChange::Text) {
        setWindowTitle(ToQt(window.GetText()));
    }
}

QAbstractButton* ModalWindow::ButtonFor(FrameButton button) const {
    const auto found = buttons_.find(button);
    return found != buttons_.end() ? found->second : nullptr;
}

QAbstractButton* ModalWindow::AddButton(FrameButton button, const QString& text) {
    auto* widget = new QPushButton(text, this);
    widget->setAutoDefault(false);
    connect(widget, &QPushButton::clicked, this,
            [this, button] { desktop_.Guard([&] { PressButton(button); }); });
    buttons_[button] = widget;
    return widget;
}

bool ModalWindow::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || widget == nullptr || widget->window() != this) {
        return false;
    }
    const KeyStroke stroke = StrokeOf(*static_cast<QKeyEvent*>(event));
    CDialog* dialog = Scope().ActiveDialog();
    if (stroke.key == 0 || dialog == nullptr) {
        return false;
    }
    bool taken = false;
    desktop_.Guard([&] {
        taken = dialog->UserKey(stroke);
        if (!taken && stroke == KeyStroke{kKeyF1}) {
            taken = desktop_.RunUserAction([&] { return dialog->OnCommand(kCommandHelp); });
        }
    });
    return taken;
}

void ModalWindow::accept() {
    // Return presses the default button; nothing else confirms.
}

void ModalWindow::reject() {
    desktop_.Guard([this] { PressButton(FrameButton::Cancel); });
}

void ModalWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    reject();
}

}  // namespace kvopt
