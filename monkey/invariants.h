#pragma once

#include <map>
#include <string>
#include <vector>

#include "kvopt/scripted/step_target.h"
#include "kvopt/scripted/user_step.h"

namespace kvopt {
class BasePropertyPageHelper;
class ContourPlotData;
}  // namespace kvopt

namespace kvopt::monkey {

class Stage;

/// What must hold after each step, whatever the user does. Every check throws Finding.
class Invariants {
public:
    explicit Invariants(const Stage& stage) : stage_(stage) {}

    /// What a scene opens. Both may be null and outlive this object's last check.
    void Watch(const ContourPlotData* plot, const BasePropertyPageHelper* helper);

    /// What stood there before a step. Each step keeps its own: a step may open a window in which
    /// others are taken before it ends.
    struct Moment {
        std::string remembered;
        const CDialog* page = nullptr;
        bool isAxisPage = false;
    };
    Moment BeforeStep(const StepScope& scope) const;
    /// Behind it. `boxes` is how many boxes with an error sign came since.
    void AfterStep(const Moment& before, const std::vector<StepScope>& open, StepVerb verb,
                   int boxes);
    /// A modal run is over: its windows are gone.
    void RunIsOver() { lists_.clear(); }

    /// No factor lies on two used axes of the plot.
    void CheckAxes() const;

private:
    void CheckUpdates(const std::vector<StepScope>& open) const;
    void CheckLists(const StepScope& scope);
    void CheckConstants() const;

    const Stage& stage_;
    const ContourPlotData* plot_ = nullptr;
    const BasePropertyPageHelper* helper_ = nullptr;
    std::map<const CDialog*, std::vector<std::wstring>> lists_;
};

}  // namespace kvopt::monkey
