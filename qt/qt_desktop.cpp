#include "kvopt/qt/qt_desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <exception>
#include <optional>

#include "kvopt/platform/control.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/qt/qt_player.h"
#include "kvopt/qt/qt_window.h"
#include "qt/dialog_window.h"
#include "qt/page_view.h"
#include "qt/qt_text.h"
#include "qt/sheet_window.h"

namespace kvopt {

struct QtDesktop::State {
    std::vector<ModalWindow*> windows;  ///< open modal runs, the innermost last
    std::exception_ptr fault;           ///< what ended the innermost run
    std::map<TimerId, std::unique_ptr<QTimer>> timers;
    bool cursorShown = false;
    QObject context;  ///< queued calls die with it
};

QtDesktop::QtDesktop() : state_(std::make_unique<State>()) {
    SetTranscript(&log_);
}

QtDesktop::~QtDesktop() {
    if (state_->cursorShown) {
        QApplication::restoreOverrideCursor();
    }
}

QWidget* QtDesktop::FrontWindow() const {
    return state_->windows.empty() ? nullptr : state_->windows.back();
}

QWidget* QtDesktop::ParentFor(CWnd* owner) const {
    if (QWidget* front = FrontWindow()) {
        return front;
    }
    auto* window = owner != nullptr ? dynamic_cast<QtWindow*>(owner->GetTopLevelParent()) : nullptr;
    return window != nullptr ? &window->Widget() : nullptr;
}

void QtDesktop::Guard(const std::function<void()>& action) {
    if (state_->windows.empty()) {
        // A page in a frame of the host's own: what it throws is the host's.
        action();
        return;
    }
    try {
        action();
    } catch (...) {
        if (!state_->fault) {
            state_->fault = std::current_exception();
        }
        state_->windows.back()->done(0);
    }
}

void QtDesktop::RunWindow(ModalWindow& window) {
    const auto hasEnded = [this, &window] {
        return state_->fault != nullptr || window.Scope().HasEnded();
    };
    if (hasEnded()) {
        return;
    }
    state_->windows.push_back(&window);
    {
        std::optional<StepPlayer::Run> played;
        if (player_ != nullptr) {
            played.emplace(player_->Steps(), window.Scope());
            player_->Drive(window, hasEnded);
        }
        window.exec();
    }
    state_->windows.pop_back();
    if (state_->fault) {
        std::rethrow_exception(std::exchange(state_->fault, nullptr));
    }
}

void QtDesktop::DoRunSheet(CPropertySheet& sheet) {
    SheetWindow window(*this, sheet, ParentFor(&sheet));
    RunWindow(window);
}

void QtDesktop::DoRunDialog(CDialog& dialog) {
    DialogWindow window(*this, dialog, ParentFor(&dialog));
    RunWindow(window);
}

BoxAnswer QtDesktop::DoShowBox(const MessageBoxRequest& request) {
    QMessageBox box(ParentFor(request.owner));
    box.setWindowTitle(ToQt(request.caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(request.text));
    switch (request.style) {
        case BoxStyle::Plain:
            box.setIcon(QMessageBox::NoIcon);
            break;
        case BoxStyle::Error:
            box.setIcon(QMessageBox::Critical);
            break;
        case BoxStyle::Information:
        case BoxStyle::YesNoInformation:
            box.setIcon(QMessageBox::Information);
            break;
        case BoxStyle::YesNoWarning:
            box.setIcon(QMessageBox::Warning);
            break;
    }
    if (request.IsQuestion()) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
    }
    if (player_ != nullptr) {
        player_->AnswerBox(box, request);
    }
    switch (box.exec()) {
        case QMessageBox::Yes:
            return BoxAnswer::Yes;
        case QMessageBox::No:
            return BoxAnswer::No;
        default:
            return request.IsQuestion() ? BoxAnswer::No : BoxAnswer::Ok;
    }
}

void QtDesktop::DoStartTimer(TimerId id, unsigned milliseconds, std::function<void()> callback) {
    if (player_ != nullptr) {
        player_->Clock().Start(id, milliseconds, std::move(callback));
        return;
    }
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, &state_->context,
                     [this, callback = std::move(callback)] { Guard(callback); });
    timer->start(static_cast<int>(milliseconds));
    state_->timers[id] = std::move(timer);
}

void QtDesktop::DoStopTimer(TimerId id) {
    if (player_ != nullptr) {
        player_->Clock().Stop(id);
        return;
    }
    const auto found = state_->timers.find(id);
    if (found != state_->timers.end()) {
        // A timer is stopped from within its own callback: it must not die there.
        found->second->stop();
        found->second.release()->deleteLater();
        state_->timers.erase(found);
    }
}

void QtDesktop::DoSetCursor(Cursor cursor) {
    if (state_->cursorShown) {
        QApplication::restoreOverrideCursor();
        state_->cursorShown = false;
    }
    if (cursor != Cursor::Arrow) {
        QApplication::setOverrideCursor(cursor == Cursor::Wait ? Qt::WaitCursor
                                                               : Qt::SizeHorCursor);
        state_->cursorShown = true;
    }
}

int QtDesktop::DoShowPopupMenu(CWnd& owner, CPoint point, const std::vector<PopupMenuItem>& items) {
    QMenu menu(ParentFor(&owner));
    for (const PopupMenuItem& item : items) {
        if (item.command == 0) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(ToQt(item.label));
        action->setEnabled(item.enabled);
        action->setData(item.command);
    }
    QPoint place = QCursor::pos();
    const auto* control = dynamic_cast<const CControl*>(&owner);
    const QWidget* front = FrontWindow();
    if (control != nullptr && front != nullptr) {
        if (const QWidget* widget = PageView::WidgetOf(*front, *control)) {
            place = widget->mapToGlobal(QPoint(point.x, point.y));
        }
    }
    if (player_ != nullptr) {
        player_->ChooseFromMenu(menu, items);
    }
    const QAction* chosen = menu.exec(place);
    return chosen != nullptr ? chosen->data().toInt() : 0;
}

void QtDesktop::OnPosted() {
    QMetaObject::invokeMethod(
        &state_->context, [this] { Guard([this] { RunPostedSteps(); }); }, Qt::QueuedConnection);
}

std::wstring QtDesktop::ClipboardText() const {
    return QApplication::clipboard()->text().toStdWString();
}

void QtDesktop::SetClipboardText(std::wstring_view text) {
    QApplication::clipboard()->setText(ToQt(text));
}

}  // namespace kvopt
