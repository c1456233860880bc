#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/scripted/step_target.h"
#include "kvopt/scripted/user_script.h"

namespace kvopt {

class StepGestures;

/// Plays a script: takes its steps one after the other, answers message boxes, checks what the
/// script expects, and collects what went wrong. A front end reports which modal runs begin and
/// end, calls PlayNext while one is open, and performs the gestures.
///
/// An expected box stands in the script behind the step that raises it. It is used up when the box
/// comes; one that is still there when the next step is due never came, which is a fault. Every
/// step is noted in the transcript, with "> " before it, before it acts.
class KVOPT_EXPORT StepPlayer {
public:
    /// Neither is owned; both outlive the player.
    StepPlayer(Desktop& desktop, StepGestures& gestures);
    ~StepPlayer();
    StepPlayer(const StepPlayer&) = delete;
    StepPlayer& operator=(const StepPlayer&) = delete;

    /// Adds a script behind what is there to play.
    void Add(const UserScript& script);

    /// A modal run, from where it begins to where it ends. Runs nest; the innermost gets the steps.
    class KVOPT_EXPORT Run {
    public:
        Run(StepPlayer& player, StepScope scope);
        ~Run();
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;

    private:
        StepPlayer& player_;
    };

    /// Plays the next step on the innermost modal run. With no step left it notes a fault and
    /// cancels that run. A step may open another run and return after it. What a page's handler
    /// throws passes through.
    void PlayNext();

    /// The answer to a box that the desktop shows: the script's when it comes next there, else a
    /// fault, and No to a question and OK to the rest.
    BoxAnswer AnswerBox(const MessageBoxRequest& request);

    /// The command of the entry that the present step asks for; 0, and a fault, when the menu does
    /// not offer it, or nobody asked for a menu.
    int ChooseFromMenu(const std::vector<PopupMenuItem>& items);

    /// Adds a fault of the step that is being played.
    void Fail(const std::string& reason);

    /// Closes the account: steps and boxes that were never reached are faults too. Gives all
    /// faults, in order, each with source, line and reason; empty when all went as told.
    const std::vector<std::string>& Verify();
    /// The faults so far.
    const std::vector<std::string>& Faults() const { return faults_; }
    /// True when every step was played.
    bool IsAtEnd() const { return next_ >= steps_.size(); }

private:
    struct QueuedStep {
        UserStep step;
        std::string source;
    };

    void DropUnmetBoxes();
    void CancelInnermost(const StepScope& scope);
    void FailAt(const QueuedStep& at, const std::string& reason);

    Desktop& desktop_;
    StepGestures& gestures_;
    std::deque<QueuedStep> steps_;
    std::size_t next_ = 0;
    std::vector<StepScope> runs_;
    std::vector<std::size_t> playing_;  ///< steps under way, the innermost last
    std::vector<std::string> faults_;
    std::optional<std::string> menuEntry_;  ///< what the present step wants of a menu
};

}  // namespace kvopt
