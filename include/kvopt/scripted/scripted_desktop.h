#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/platform/transcript.h"
#include "kvopt/scripted/step_gestures.h"
#include "kvopt/scripted/step_player.h"
#include "kvopt/scripted/user_script.h"
#include "kvopt/scripted/virtual_clock.h"

namespace kvopt {

/// A desktop without windows whose user is a script. Sheets and dialogs run their pages' models,
/// message boxes are answered from the script, time is virtual. Install it, run what opens pages,
/// then ask Verify().
class KVOPT_EXPORT ScriptedDesktop : public Desktop {
public:
    explicit ScriptedDesktop(const UserScript& script = {});
    /// The same from a script's text.
    explicit ScriptedDesktop(std::string_view script);
    ~ScriptedDesktop() override;

    StepPlayer& Player() { return player_; }
    VirtualClock& Clock() { return clock_; }
    /// What happened, in order. It is this desktop's transcript from the start.
    Transcript& Log() { return log_; }

    /// What went wrong, empty when all went as told: see StepPlayer::Verify.
    const std::vector<std::string>& Verify() { return player_.Verify(); }

protected:
    void DoRunSheet(CPropertySheet& sheet) override;
    void DoRunDialog(CDialog& dialog) override;
    BoxAnswer DoShowBox(const MessageBoxRequest& request) override;
    void DoStartTimer(TimerId id, unsigned milliseconds, std::function<void()> callback) override;
    void DoStopTimer(TimerId id) override;
    int DoShowPopupMenu(CWnd& owner, CPoint point,
                        const std::vector<PopupMenuItem>& items) override;

private:
    void RunModal(StepScope scope);

    Transcript log_;
    VirtualClock clock_;
    std::unique_ptr<StepGestures> hands_;
    StepPlayer player_;
};

}  // namespace kvopt
