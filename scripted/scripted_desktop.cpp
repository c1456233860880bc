#include "kvopt/scripted/scripted_desktop.h"

#include <utility>

#include "scripted/model_gestures.h"

namespace kvopt {

ScriptedDesktop::ScriptedDesktop(const UserScript& script)
    : hands_(std::make_unique<ModelGestures>(clock_)), player_(*this, *hands_) {
    SetTranscript(&log_);
    player_.Add(script);
}

ScriptedDesktop::ScriptedDesktop(std::string_view script)
    : ScriptedDesktop(UserScript::FromText(script)) {}

ScriptedDesktop::~ScriptedDesktop() = default;

void ScriptedDesktop::RunModal(StepScope scope) {
    const StepPlayer::Run run(player_, scope);
    while (!scope.HasEnded()) {
        player_.PlayNext();
    }
}

void ScriptedDesktop::DoRunSheet(CPropertySheet& sheet) {
    RunModal({&sheet, nullptr});
}

void ScriptedDesktop::DoRunDialog(CDialog& dialog) {
    RunModal({nullptr, &dialog});
}

BoxAnswer ScriptedDesktop::DoShowBox(const MessageBoxRequest& request) {
    return player_.AnswerBox(request);
}

void ScriptedDesktop::DoStartTimer(TimerId id, unsigned milliseconds,
                                   std::function<void()> callback) {
    clock_.Start(id, milliseconds, std::move(callback));
}

void ScriptedDesktop::DoStopTimer(TimerId id) {
    clock_.Stop(id);
}

int ScriptedDesktop::DoShowPopupMenu(CWnd& /*owner*/, CPoint /*point*/,
                                     const std::vector<PopupMenuItem>& items) {
    return player_.ChooseFromMenu(items);
}

}  // namespace kvopt
