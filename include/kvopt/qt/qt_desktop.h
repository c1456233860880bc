#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/platform/transcript.h"

class QTimer;
class QWidget;

namespace kvopt {

class ModalWindow;
class QtPlayer;

/// The desktop with real windows, drawn with Qt Widgets. The caller makes the QApplication, which
/// must outlive this object, and installs the desktop (Desktop::Install). Nothing that a page
/// throws passes through Qt: it ends the modal runs and leaves the function that opened them.
class KVOPT_EXPORT QtDesktop : public Desktop {
public:
    QtDesktop();
    ~QtDesktop() override;

    std::wstring ClipboardText() const override;
    void SetClipboardText(std::wstring_view text) override;

    /// Windows are played by a script instead of a person. Not owned; null for a person.
    void SetPlayer(QtPlayer* player) { player_ = player; }
    QtPlayer* Player() const { return player_; }

    /// What happened, in order. It is this desktop's transcript from the start.
    Transcript& Log() { return log_; }

    /// Does something that the user caused. What it throws ends the modal runs that are open and
    /// is thrown again where the innermost of them began.
    void Guard(const std::function<void()>& action);

    /// The window of the modal run in front, null without one.
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
    void OnPosted() override;

private:
    struct State;
    void RunWindow(ModalWindow& window);
    QWidget* ParentFor(CWnd* owner) const;

    Transcript log_;
    std::unique_ptr<State> state_;
    QtPlayer* player_ = nullptr;
};

}  // namespace kvopt
