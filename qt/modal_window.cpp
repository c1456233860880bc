#include "qt/modal_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>

#include "kvopt/platform/dialog.h"
#include "kvopt/platform/keys.h"
#include "kvopt/platform/kv_property_page.h"
#include "kvopt/qt/qt_desktop.h"
#include "qt/qt_text.h"
#include "resources/qt_texts.h"

namespace kvopt {

namespace {

KeyStroke StrokeOf(const QKeyEvent& event) {
    KeyStroke stroke{0, (event.modifiers() & Qt::ControlModifier) != 0,
                     (event.modifiers() & Qt::ShiftModifier) != 0,
                     (event.modifiers() & Qt::AltModifier) != 0};
    switch (event.key()) {
        case Qt::Key_Insert:
            stroke.key = kKeyInsert;
            break;
        case Qt::Key_Delete:
            stroke.key = kKeyDelete;
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            stroke.key = kKeyReturn;
            break;
        case Qt::Key_Escape:
            stroke.key = kKeyEscape;
            break;
        case Qt::Key_F1:
            stroke.key = kKeyF1;
            break;
        default:
            if ((event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9) ||
                (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z)) {
                stroke.key = event.key();
            }
            break;
    }
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
    connect(widget, &QPushButton::clicked, this,
            [this, button] { desktop_.Guard([&] { PressButton(button); }); });
    buttons_[button] = widget;
    return widget;
}

QAbstractButton* ModalWindow::AddHelpButton() {
    auto* button = new QPushButton(ToQt(texts::kFrameHelp.Wide()), this);
    connect(button, &QPushButton::clicked, this, [this] { ShowHelp(); });
    help_ = button;
    return help_;
}

void ModalWindow::ShowHelpButton() {
    const auto* page = dynamic_cast<const KvPropertyPage*>(Scope().ActiveDialog());
    help_->setVisible(desktop_.HasHelpViewer() && page != nullptr && page->HasHelp());
}

void ModalWindow::ShowHelp() {
    if (CDialog* dialog = Scope().ActiveDialog()) {
        desktop_.Guard(
            [&] { desktop_.RunUserAction([dialog] { return dialog->OnCommand(kCommandHelp); }); });
    }
}

bool ModalWindow::eventFilter(QObject* watched, QEvent* event) {
    // What the focused widget does not take comes by again on its way up to the window.
    const QObject* first = focusWidget() != nullptr ? focusWidget() : this;
    return event->type() == QEvent::KeyPress && watched == first &&
           TakeKey(static_cast<QKeyEvent&>(*event));
}

bool ModalWindow::TakeKey(const QKeyEvent& event) {
    const KeyStroke stroke = StrokeOf(event);
    CDialog* dialog = Scope().ActiveDialog();
    if (stroke.key == 0 || dialog == nullptr) {
        return false;
    }
    bool taken = false;
    desktop_.Guard([&] { taken = dialog->UserKey(stroke); });
    return taken;
}

void ModalWindow::keyPressEvent(QKeyEvent* event) {
    CDialog* dialog = Scope().ActiveDialog();
    if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier && dialog != nullptr) {
        desktop_.Guard(
            [&] { desktop_.RunUserAction([dialog] { return dialog->OnCommand(kCommandHelp); }); });
        return;
    }
    QDialog::keyPressEvent(event);
}

void ModalWindow::accept() {
    // Return presses the default button; nothing else confirms.
}

void ModalWindow::reject() {
    desktop_.Guard([this] { PressButton(FrameButton::Cancel); });
}

bool ModalWindow::event(QEvent* event) {
    const bool taken = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        KeepHeight();
    }
    return taken;
}

void ModalWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    KeepHeight();
}

/// Texts that are broken into lines need more height in a narrower window, which its layout does
/// not see to.
void ModalWindow::KeepHeight() {
    if (layout() != nullptr && layout()->hasHeightForWidth()) {
        setMinimumHeight(layout()->totalMinimumHeightForWidth(width()));
    }
}

void ModalWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    reject();
}

}  // namespace kvopt
