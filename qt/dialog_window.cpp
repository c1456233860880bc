#include "qt/dialog_window.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "kvopt/platform/dialog.h"
#include "qt/page_view.h"
#include "qt/qt_text.h"
#include "resources/qt_texts.h"

namespace kvopt {

DialogWindow::DialogWindow(QtDesktop& desktop, CDialog& dialog, QWidget* parent)
    : ModalWindow(desktop, dialog, parent), dialog_(dialog) {
    setWindowTitle(ToQt(dialog.Caption()));
    auto* column = new QVBoxLayout(this);
    auto* view = new PageView(desktop, dialog, this);
    column->addWidget(view, 1);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    auto* ok = qobject_cast<QPushButton*>(AddButton(FrameButton::Ok, ToQt(texts::kFrameOk.Wide())));
    ok->setDefault(true);
    row->addWidget(ok);
    row->addWidget(AddButton(FrameButton::Cancel, ToQt(texts::kFrameCancel.Wide())));
    column->addLayout(row);
    view->TakeFocus();
}

StepScope DialogWindow::Scope() const {
    return {nullptr, &dialog_};
}

void DialogWindow::PressButton(FrameButton button) {
    if (button == FrameButton::Ok) {
        dialog_.UserOk();
    } else {
        dialog_.UserCancel();
    }
}

}  // namespace kvopt
