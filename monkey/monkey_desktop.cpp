#include "monkey/monkey_desktop.h"

#include <optional>
#include <string>
#include <utility>

#include "kvopt/platform.h"
#include "kvopt/text/kv_std_string.h"
#include "monkey/coverage.h"
#include "monkey/finding.h"

namespace kvopt::monkey {

namespace {

constexpr std::size_t kTooManyBoxes = 50;

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

MonkeyDesktop::MonkeyDesktop(StepSource& user, Invariants& invariants, Coverage* coverage)
    : user_(user), invariants_(invariants), coverage_(coverage) {}

void MonkeyDesktop::DoRunSheet(CPropertySheet& sheet) {
    RunModal({&sheet, nullptr});
}

void MonkeyDesktop::DoRunDialog(CDialog& dialog) {
    RunModal({nullptr, &dialog});
}

void MonkeyDesktop::RunModal(const StepScope& scope) {
    const StepPlayer::Run run(Player(), scope);
    const Open open(open_, scope);
    if (coverage_ != nullptr) {
        coverage_->Enter(scope);
    }
    while (!scope.HasEnded()) {
        const std::optional<UserStep> step = user_.Next(scope);
        if (!step) {
            GoAway(scope);
            break;
        }
        Play(scope, *step);
    }
    CheckBoxes();
    invariants_.RunIsOver(scope);
}

void MonkeyDesktop::Play(const StepScope& scope, const UserStep& step) {
    const Invariants::Moment before = invariants_.BeforeStep(scope, step);
    const std::size_t faults = Player().Faults().size();
    const std::string aim = coverage_ != nullptr ? Coverage::AimOf(step, scope) : "";
    std::vector<SeenBox> outer = std::exchange(boxes_, {});
    played_.push_back(step);
    ++steps_;
    UserScript script;
    script.Add(step);
    Player().Add(script);
    Player().PlayNext();
    CheckBoxes();
    const Verdict verdict = invariants_.AfterStep(before, open_, boxes_);
    boxes_ = std::move(outer);
    if (coverage_ != nullptr) {
        coverage_->Take(step.verb, aim, Player().Faults().size() == faults);
        coverage_->Judge(verdict);
        if (!scope.HasEnded() && scope.ActiveDialog() != before.front) {
            coverage_->Enter(scope);
        }
    }
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
    if (request.text.empty()) {
        throw Finding("a message box has no text");
    }
    UserStep expected;
    expected.verb = StepVerb::ExpectBox;
    expected.box.style = request.style;
    expected.box.text = KvStdString::ToUtf8(request.text);
    expected.box.answer = user_.Answer(request);
    boxes_.push_back({request.style, expected.box.text, expected.box.answer});
    if (boxes_.size() > kTooManyBoxes) {
        throw Finding("one step raises more than " + std::to_string(kTooManyBoxes) + " boxes");
    }
    ++answered_;
    played_.push_back(expected);
    return expected.box.answer;
}

/// Every box of the transcript was put to the user.
void MonkeyDesktop::CheckBoxes() {
    const std::vector<std::string>& lines = Log().Lines();
    for (; lineToRead_ < lines.size(); ++lineToRead_) {
        noted_ += lines[lineToRead_].starts_with("box ") ? 1 : 0;
    }
    if (noted_ != answered_) {
        throw Finding("boxes in the transcript: " + std::to_string(noted_) +
                      ", answered: " + std::to_string(answered_));
    }
}

}  // namespace kvopt::monkey
