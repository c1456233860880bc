#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/platform/transcript.h"

class QWidget;

namespace kvopt {

class ModalWindow;
class QtPlayer;

/// The desktop with real windows, drawn with Qt Widgets. The caller makes the QApplication, which
/// must outlive this object, and installs the desktop (Desktop::Install). Nothing that a page
/// throws passes through Qt: it ends the innermost modal run and leaves the function that opened
/// it, to be caught there or to end the next.
class KVOPT_EXPORT QtDesktop : public Desktop {
public:
    /// Throws InvalidArgument when there is no QApplication.
    QtDesktop();
    ~QtDesktop() override;

    std::wstring ClipboardText() const override;
    void SetClipboardText(std::wstring_view text) override;
    int DotsPerInch() const override;

    /// What shows help on a topic. With one, sheets whose pages have help get a Help button.
    void SetHelpViewer(std::function<void(unsigned topic)> viewer);
    bool HasHelpViewer() const { return helpViewer_ != nullptr; }

    /// Windows are played by a script instead of a person. Not owned; null for a person.
    void SetPlayer(QtPlayer* player) { player_ = player; }
    QtPlayer* Player() const { return player_; }

    /// What happened, in order. It is this desktop's transcript from the start.
    Transcript& Log() { return log_; }

    /// Does something that the user or a timer caused. What it throws ends the innermost modal run
    /// or message box and is thrown again from the operation that opened that.
    void Guard(const std::function<void()>& action);

    /// The window of the modal run in front, null without one. Message boxes do not count.
    QWidget* FrontWindow() const;

protected:
    void DoRunSheet(CPropertySheet& sheet) override;
    void DoRunDialog(CDialog& dialog) override;
    BoxAnswer DoShowBox(const MessageBoxRequest& request) override;
    void DoStartTimer(TimerId id, unsigned milliseconds, std::function<void()> callback) override;
    void DoStopTimer(TimerId id) override;
    void DoSetCursor(Cursor cursor) override;
    int DoShowPopupMenu(CWnd& owner, CPoint point,
                        const std::vector<PopupMenuItem>& items) override;
    void DoShowHelp(unsigned topic) override;
    void OnPosted() override;
    /// What a page in a frame of the host's own threw while no modal run was open. Runs inside Qt:
    /// it must not throw. The base writes the text to Qt's critical messages.
    virtual void OnFault(std::exception_ptr fault);

private:
    struct ModalRun;
    struct State;
    void RunWindow(ModalWindow& window);
    int Execute(ModalRun& run);
    QWidget* ParentFor(CWnd* owner) const;

    Transcript log_;
    std::unique_ptr<State> state_;
    std::function<void(unsigned)> helpViewer_;
    QtPlayer* player_ = nullptr;
};

}  // namespace kvopt
