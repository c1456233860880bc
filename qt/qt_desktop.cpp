#include "kvopt/qt/qt_desktop.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCursor>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <exception>
#include <map>
#include <optional>

#include "kvopt/platform/control.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/qt/qt_player.h"
#include "kvopt/qt/qt_window.h"
#include "kvopt/text/exceptions.h"
#include "qt/dialog_window.h"
#include "qt/page_view.h"
#include "qt/qt_text.h"
#include "qt/sheet_window.h"

namespace kvopt {

/// A window, or a message box, in whose event loop the program is.
struct QtDesktop::ModalRun {
    QDialog& dialog;
    ModalWindow* window;       ///< null for a message box
    std::exception_ptr fault;  ///< what ended it
};

struct QtDesktop::State {
    std::vector<ModalRun*> runs;  ///< the innermost last
    std::map<TimerId, std::unique_ptr<QTimer>> timers;
    bool waits = false;
    QObject context;  ///< queued calls die with it
};

QtDesktop::QtDesktop() : state_(std::make_unique<State>()) {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        throw InvalidArgument("QtDesktop: there is no QApplication");
    }
    SetTranscript(&log_);
}

QtDesktop::~QtDesktop() {
    if (state_->waits) {
        QApplication::restoreOverrideCursor();
    }
}

QWidget* QtDesktop::FrontWindow() const {
    for (auto run = state_->runs.rbegin(); run != state_->runs.rend(); ++run) {
        if ((*run)->window != nullptr) {
            return (*run)->window;
        }
    }
    return nullptr;
}

QWidget* QtDesktop::ParentFor(CWnd* owner) const {
    if (!state_->runs.empty()) {
        return &state_->runs.back()->dialog;
    }
    auto* window = owner != nullptr ? dynamic_cast<QtWindow*>(owner->GetTopLevelParent()) : nullptr;
    return window != nullptr ? &window->Widget() : nullptr;
}

void QtDesktop::Guard(const std::function<void()>& action) {
    try {
        action();
    } catch (...) {
        if (state_->runs.empty()) {
            OnFault(std::current_exception());
            return;
        }
        ModalRun& run = *state_->runs.back();
        if (!run.fault) {
            run.fault = std::current_exception();
        }
        run.dialog.done(QDialog::Rejected);
    }
}

void QtDesktop::OnFault(std::exception_ptr fault) {
    try {
        std::rethrow_exception(std::move(fault));
    } catch (const std::exception& exception) {
        qCritical("%s", exception.what());
    } catch (...) {
        qCritical("kvopt: a page threw something that is no std::exception");
    }
}

int QtDesktop::Execute(ModalRun& run) {
    state_->runs.push_back(&run);
    const int result = run.dialog.exec();
    state_->runs.pop_back();
    if (!state_->runs.empty()) {
        // Not every window manager gives the keyboard back to the window that opened this one.
        state_->runs.back()->dialog.activateWindow();
    }
    if (run.fault) {
        std::rethrow_exception(run.fault);
    }
    return result;
}

void QtDesktop::RunWindow(ModalWindow& window) {
    ModalRun run{window, &window, nullptr};
    const auto hasEnded = [&run] { return run.fault != nullptr || run.window->Scope().HasEnded(); };
    if (hasEnded()) {
        return;
    }
    std::optional<StepPlayer::Run> played;
    if (player_ != nullptr) {
        played.emplace(player_->Steps(), window.Scope());
        player_->Drive(window, hasEnded);
    }
    Execute(run);
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
    if (request.OffersSilence()) {
        box.setCheckBox(new QCheckBox(ToQt(request.silenceLabel)));  // the box owns it
    }
    if (player_ != nullptr) {
        player_->AnswerBox(box, request);
    }
    ModalRun run{box, nullptr, nullptr};
    switch (Execute(run)) {
        case QMessageBox::Yes:
            return BoxAnswer::Yes;
        case QMessageBox::No:
            return BoxAnswer::No;
        default:
            break;
    }
    if (box.checkBox() != nullptr && box.checkBox()->isChecked()) {
        return BoxAnswer::Silence;
    }
    return request.IsQuestion() ? BoxAnswer::No : BoxAnswer::Ok;
}

void QtDesktop::DoStartTimer(TimerId id, unsigned milliseconds, std::function<void()> callback) {
    if (player_ != nullptr) {
        player_->Clock().Start(id, milliseconds, std::move(callback));
        return;
    }
    DoStopTimer(id);
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
        // A timer may be stopped or started anew from within its own callback: it must not die
        // there.
        found->second->stop();
        found->second.release()->deleteLater();
        state_->timers.erase(found);
    }
}

void QtDesktop::DoSetCursor(Cursor cursor) {
    // The other cursors belong to the worksheet that the mouse is over, which shows them itself.
    const bool waits = cursor == Cursor::Wait;
    if (waits == state_->waits) {
        return;
    }
    state_->waits = waits;
    if (waits) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
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

void QtDesktop::SetHelpViewer(std::function<void(unsigned)> viewer) {
    helpViewer_ = std::move(viewer);
}

void QtDesktop::DoShowHelp(unsigned topic) {
    if (helpViewer_) {
        helpViewer_(topic);
    }
}

int QtDesktop::DotsPerInch() const {
    // In the pixels that widgets count in: a scale factor of the screen is not in it.
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? qRound(screen->logicalDotsPerInch()) : Desktop::DotsPerInch();
}

std::wstring QtDesktop::ClipboardText() const {
    return QApplication::clipboard()->text().toStdWString();
}

void QtDesktop::SetClipboardText(std::wstring_view text) {
    QApplication::clipboard()->setText(ToQt(text));
}

}  // namespace kvopt
