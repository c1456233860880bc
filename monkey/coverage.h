#pragma once

#include <iosfwd>
#include <map>
#include <set>
#include <string>

#include "kvopt/scripted/step_target.h"
#include "kvopt/scripted/user_step.h"
#include "monkey/invariants.h"

namespace kvopt::monkey {

/// Counts what was reached: pages, buttons of the frame, controls.
class Coverage {
public:
    /// What the steps to come belong to.
    void Begin(const std::string& study, const std::string& scene);

    /// This page or dialog is in front now.
    void Enter(const StepScope& scope);
    /// What a step is aimed at: a kind of control, or the frame.
    static std::string AimOf(const UserStep& step, const StepScope& scope);
    /// A step that was aimed at that, and whether it was taken.
    void Take(StepVerb verb, const std::string& aim, bool isTaken);
    /// Pages were asked: all of them accepted, or one refused.
    void Judge(const Verdict& verdict);

    void Print(std::ostream& out) const;

private:
    struct Page {
        std::string title;
        long entered = 0;
        long accepted = 0;
        std::map<Refuser, long> refused;
        std::set<std::string> studies;
    };
    struct Steps {
        long taken = 0;
        long refused = 0;
    };

    std::map<int, Page> pages_;
    std::map<std::string, std::map<StepVerb, Steps>> verbs_;     ///< by what they are aimed at
    std::map<std::string, std::map<std::string, long>> scenes_;  ///< steps by scene and study
    std::string study_;
    std::string scene_;
};

}  // namespace kvopt::monkey
