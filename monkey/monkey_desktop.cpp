#include "monkey/monkey_desktop.h"

#include <optional>
#include <string>

#include "kvopt/platform.h"
#include "kvopt/text/kv_std_string.h"
#include "monkey/finding.h"

namespace kvopt::monkey {

namespace {

constexpr int kTooManyBoxes = 50;

/// Takes a window from those that are open, also when a step throws.
class Open {
public:
    Open(std::vector<StepScope>& all, const StepScope& scope) : all_(all) { all_.push_back(scope); }
    ~Open() { all_.pop_back(); }
    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;

private:
    std::vector<StepScope>& all_;
};

}  // namespace

MonkeyDesktop::MonkeyDesktop(StepSource& user, Invariants& invariants)
    : user_(user), invariants_(invariants) {}

void MonkeyDesktop::DoRunSheet(CPropertySheet& sheet) {
    RunModal({&sheet, nullptr});
}

void MonkeyDesktop::DoRunDialog(CDialog& dialog) {
    RunModal({nullptr, &dialog});
}

void MonkeyDesktop::RunModal(const StepScope& scope) {
    const StepPlayer::Run run(Player(), scope);
    const Open open(open_, scope);
    while (!scope.HasEnded()) {
        const std::optional<UserStep> step = user_.Next(scope);
        if (!step) {
            GoAway(scope);
            break;
        }
        Play(scope, *step);
    }
    invariants_.RunIsOver();
}

void MonkeyDesktop::Play(const StepScope& scope, const UserStep& step) {
    const Invariants::Moment before = invariants_.BeforeStep(scope);
    const int errors = errors_;
    boxesNow_ = 0;
    played_.push_back(step);
    ++steps_;
    UserScript script;
    script.Add(step);
    Player().Add(script);
    Player().PlayNext();
    invariants_.AfterStep(before, open_, step.verb, errors_ - errors);
}

void MonkeyDesktop::GoAway(const StepScope& scope) {
    UserStep cancel;
    cancel.verb = StepVerb::Cancel;
    Play(scope, cancel);
    if (!scope.HasEnded()) {
        throw Finding("Cancel leaves the window open");
    }
}

BoxAnswer MonkeyDesktop::DoShowBox(const MessageBoxRequest& request) {
    if (++boxesNow_ > kTooManyBoxes) {
        throw Finding("one step raises more than " + std::to_string(kTooManyBoxes) + " boxes");
    }
    if (request.text.empty()) {
        throw Finding("a message box has no text");
    }
    errors_ += request.style == BoxStyle::Error ? 1 : 0;
    UserStep expected;
    expected.verb = StepVerb::ExpectBox;
    expected.box.style = request.style;
    expected.box.text = KvStdString::ToUtf8(request.text);
    expected.box.answer = user_.Answer(request);
    played_.push_back(expected);
    return expected.box.answer;
}

}  // namespace kvopt::monkey
