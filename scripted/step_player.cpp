#include "kvopt/scripted/step_player.h"

#include <utility>

#include "kvopt/platform/dialog.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/scripted/step_gestures.h"
#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_std_string.h"
#include "scripted/control_names.h"
#include "scripted/script_lexer.h"
#include "scripted/script_words.h"
#include "scripted/step_action.h"
#include "scripted/step_check.h"

namespace kvopt {

namespace {

bool Matches(const ExpectedBox& box, const MessageBoxRequest& request) {
    const std::string text = KvStdString::ToUtf8(request.text);
    return box.style == request.style &&
           (box.containing ? text.find(box.text) != std::string::npos : text == box.text);
}

std::string Describe(const MessageBoxRequest& request) {
    return std::string(BoxStyleText(request.style)) + ' ' +
           QuoteForScript(KvStdString::ToUtf8(request.text));
}

BoxAnswer DefaultAnswer(const MessageBoxRequest& request) {
    return request.IsQuestion() ? BoxAnswer::No : BoxAnswer::Ok;
}

/// Whether the box has what gives this answer.
bool CanAnswer(const MessageBoxRequest& request, BoxAnswer answer) {
    if (answer == BoxAnswer::Silence) {
        return request.OffersSilence();
    }
    return request.IsQuestion() == (answer == BoxAnswer::Yes || answer == BoxAnswer::No);
}

/// Keeps a step among those under way, also when a handler throws.
class UnderWay {
public:
    UnderWay(std::vector<std::size_t>& playing, std::size_t index) : playing_(playing) {
        playing_.push_back(index);
    }
    ~UnderWay() { playing_.pop_back(); }
    UnderWay(const UnderWay&) = delete;
    UnderWay& operator=(const UnderWay&) = delete;

private:
    std::vector<std::size_t>& playing_;
};

}  // namespace

StepGestures::~StepGestures() = default;

bool StepGestures::SelectRow(CXTPPropertyGrid& /*grid*/, CXTPPropertyGridItem& /*row*/) {
    return false;
}

bool StepGestures::ToggleRow(CXTPPropertyGrid& /*grid*/, CXTPPropertyGridItem& /*row*/) {
    return false;
}

bool StepGestures::ExpandRow(CXTPPropertyGrid& /*grid*/, CXTPPropertyGridItem& /*row*/,
                             bool /*expand*/) {
    return false;
}

bool StepGestures::PickInRow(CXTPPropertyGrid& /*grid*/, CXTPPropertyGridItem& /*row*/,
                             int /*choice*/) {
    return false;
}

bool StepGestures::TypeIntoRow(CXTPPropertyGrid& /*grid*/, CXTPPropertyGridItem& /*row*/,
                               const std::wstring& /*text*/, bool /*commit*/) {
    return false;
}

StepPlayer::Run::Run(StepPlayer& player, StepScope scope) : player_(player) {
    player_.runs_.push_back(scope);
}

StepPlayer::Run::~Run() {
    player_.runs_.pop_back();
}

StepPlayer::StepPlayer(Desktop& desktop, StepGestures& gestures)
    : desktop_(desktop), gestures_(gestures) {}

StepPlayer::~StepPlayer() = default;

void StepPlayer::Add(const UserScript& script) {
    for (const UserStep& step : script.Steps()) {
        steps_.push_back({step, script.Source()});
    }
}

void StepPlayer::PlayNext() {
    if (runs_.empty()) {
        throw InvalidArgument("StepPlayer::PlayNext: no modal run is open");
    }
    const StepScope scope = runs_.back();
    DropUnmetBoxes();
    if (IsAtEnd()) {
        faults_.push_back((steps_.empty() ? "script" : steps_.back().source) +
                          ": the steps end while " + scope.Describe() + " is open");
        CancelInnermost(scope);
        return;
    }
    const UnderWay underWay(playing_, next_);
    const UserStep& step = steps_[next_++].step;
    std::string problem;
    if (IsExpectation(step.verb)) {
        problem = CheckStep(desktop_, scope, step);
    } else {
        if (step.verb != StepVerb::Picture) {
            desktop_.Note("> " + step.Text());
        }
        const bool wantsMenu = step.verb == StepVerb::Menu;
        menuEntry_ = wantsMenu ? std::optional(step.values.front()) : std::nullopt;
        problem = PerformStep(desktop_, gestures_, scope, step);
        if (wantsMenu && problem.empty() && menuEntry_) {
            problem = "no menu came";
        }
    }
    if (!problem.empty()) {
        Fail(problem);
    }
}

void StepPlayer::DropUnmetBoxes() {
    for (; !IsAtEnd() && steps_[next_].step.verb == StepVerb::ExpectBox; ++next_) {
        if (!steps_[next_].step.box.optional) {
            FailAt(steps_[next_], "the box never came");
        }
    }
}

void StepPlayer::CancelInnermost(const StepScope& scope) {
    if (scope.sheet != nullptr) {
        scope.sheet->UserCancel();
        if (!scope.HasEnded()) {
            scope.sheet->EndDialog(kResultCancel);
        }
    } else if (scope.dialog != nullptr) {
        scope.dialog->UserCancel();
        if (!scope.HasEnded()) {
            scope.dialog->EndDialog(kResultCancel);
        }
    }
}

BoxAnswer StepPlayer::AnswerBox(const MessageBoxRequest& request) {
    for (; !IsAtEnd() && steps_[next_].step.verb == StepVerb::ExpectBox; ++next_) {
        const QueuedStep& expected = steps_[next_];
        const ExpectedBox& box = expected.step.box;
        const bool matches = Matches(box, request);
        if (!matches && box.optional) {
            continue;
        }
        ++next_;
        const bool canAnswer = CanAnswer(request, box.answer);
        if (!matches) {
            FailAt(expected, "another box came: " + Describe(request));
        } else if (!canAnswer) {
            FailAt(expected, "the box does not offer this answer");
        }
        return canAnswer ? box.answer : DefaultAnswer(request);
    }
    Fail("an unexpected box came: " + Describe(request));
    return DefaultAnswer(request);
}

int StepPlayer::ChooseFromMenu(const std::vector<PopupMenuItem>& items) {
    if (!menuEntry_) {
        Fail("a menu came that no step asks for");
        return 0;
    }
    const std::string wanted =
        PlainLabel(KvStdString::ToWide(*std::exchange(menuEntry_, std::nullopt)));
    std::string labels;
    for (const PopupMenuItem& item : items) {
        const std::string label = PlainLabel(item.label);
        if (item.command == 0) {
            continue;
        }
        if (label == wanted) {
            if (!item.enabled) {
                Fail("the menu entry " + QuoteForScript(wanted) + " is disabled");
            }
            return item.enabled ? item.command : 0;
        }
        labels += (labels.empty() ? "" : ", ") + QuoteForScript(label);
    }
    Fail("the menu has no entry " + QuoteForScript(wanted) + "; there are " +
         (labels.empty() ? "none" : labels));
    return 0;
}

void StepPlayer::Fail(const std::string& reason) {
    if (playing_.empty()) {
        faults_.push_back((steps_.empty() ? "script" : steps_.front().source) + ": " + reason);
    } else {
        FailAt(steps_[playing_.back()], reason);
    }
}

void StepPlayer::FailAt(const QueuedStep& at, const std::string& reason) {
    const std::string line = at.step.line > 0 ? ':' + std::to_string(at.step.line) : "";
    faults_.push_back(at.source + line + ": " + at.step.Text() + ": " + reason);
}

const std::vector<std::string>& StepPlayer::Verify() {
    for (; !IsAtEnd(); ++next_) {
        const QueuedStep& left = steps_[next_];
        const bool isBox = left.step.verb == StepVerb::ExpectBox;
        if (!isBox || !left.step.box.optional) {
            FailAt(left, isBox ? "the box never came" : "the step was never reached");
        }
    }
    return faults_;
}

}  // namespace kvopt
