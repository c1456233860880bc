#pragma once

#include <vector>

#include "kvopt/scripted.h"
#include "monkey/invariants.h"
#include "monkey/step_source.h"

namespace kvopt::monkey {

/// A scripted desktop whose steps are made as they are played. It keeps them, with the boxes that
/// came, as steps that a ScriptedDesktop can play again.
class MonkeyDesktop : public ScriptedDesktop {
public:
    MonkeyDesktop(StepSource& user, Invariants& invariants);

    const std::vector<UserStep>& Played() const { return played_; }
    /// Those of the steps that the user took, without the boxes.
    int Steps() const { return steps_; }

protected:
    void DoRunSheet(CPropertySheet& sheet) override;
    void DoRunDialog(CDialog& dialog) override;
    BoxAnswer DoShowBox(const MessageBoxRequest& request) override;

private:
    void RunModal(const StepScope& scope);
    void Play(const StepScope& scope, const UserStep& step);
    void GoAway(const StepScope& scope);

    StepSource& user_;
    Invariants& invariants_;
    std::vector<UserStep> played_;
    std::vector<StepScope> open_;
    int steps_ = 0;
    int errors_ = 0;    ///< boxes with an error sign so far
    int boxesNow_ = 0;  ///< boxes since the last step
};

}  // namespace kvopt::monkey
