#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/scripted/step_target.h"
#include "kvopt/scripted/user_step.h"
#include "monkey/portrait.h"
#include "monkey/refusals.h"

namespace kvopt {
class BasePropertyPageHelper;
class ContourPlotData;
}  // namespace kvopt

namespace kvopt::monkey {

class Stage;

/// What a scene opens. It outlives the last check.
struct Subject {
    const ContourPlotData* plot = nullptr;
    const BasePropertyPageHelper* helper = nullptr;
    /// What the pages edit where that is no plot; empty for nothing.
    std::function<Portrait()> edited = {};
};

/// How a step that asks a page ended.
struct Verdict {
    enum Kind { NotAsked, Accepted, Refused } kind = NotAsked;
    Refuser refuser = Refuser::Nobody;
    std::vector<int> asked;  ///< templates of the pages
};

/// What must hold after each step, whatever the user does. Every check throws Finding.
class Invariants {
public:
    explicit Invariants(const Stage& stage) : stage_(stage) {}

    void Watch(Subject subject) { subject_ = std::move(subject); }

    /// What stood there before a step. Each step keeps its own: a step may open a window in which
    /// others are taken before it ends.
    struct Moment {
        std::optional<StepVerb> asks;  ///< the button that is pressed, or Tab; none for other steps
        const CDialog* front = nullptr;
        std::vector<int> asked;
        bool mustTell = false;  ///< when it is refused
        int dirty = 0;
        Portrait edited;
        std::string remembered;
    };
    Moment BeforeStep(const StepScope& scope, const UserStep& step);
    /// Behind it, with the boxes that it raised.
    Verdict AfterStep(const Moment& before, const std::vector<StepScope>& open,
                      const std::vector<SeenBox>& boxes);
    /// A page was accepted and told its helper: what it changed stays, whoever refuses next.
    void PageWasAccepted();
    /// A modal run is over, its windows still stand.
    void RunIsOver(const StepScope& scope);

    /// No factor lies on two used axes of the plot.
    void CheckAxes() const;
    /// The sheet is gone: the helper knows of the pages that it left dirty, and of no other.
    void CheckClosed() const;

private:
    Portrait Edited() const;
    void CheckUpdates(const std::vector<StepScope>& open) const;
    void CheckLists(const StepScope& scope);
    void CheckResponses() const;
    void CheckConstants() const;
    void CheckRefusal(const Moment& before, const Refusal& refusal) const;

    const Stage& stage_;
    Subject subject_;
    std::optional<Portrait> accepted_;
    std::string acceptedRemembered_;
    int leftDirty_ = 0;
    std::map<const CDialog*, std::vector<std::wstring>> lists_;
};

}  // namespace kvopt::monkey
