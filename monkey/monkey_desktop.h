#pragma once

#include <cstddef>
#include <vector>

#include "kvopt/scripted.h"
#include "monkey/invariants.h"
#include "monkey/step_source.h"

namespace kvopt::monkey {

class Coverage;

/// A scripted desktop whose steps are made as they are played. It keeps them, with the boxes that
/// came, as steps that a ScriptedDesktop can play again.
class MonkeyDesktop : public ScriptedDesktop {
public:
    /// Without `coverage` nothing is counted.
    MonkeyDesktop(StepSource& user, Invariants& invariants, Coverage* coverage);

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
    void CheckBoxes();

    StepSource& user_;
    Invariants& invariants_;
    Coverage* coverage_;
    std::vector<UserStep> played_;
    std::vector<StepScope> open_;
    int steps_ = 0;
    std::vector<SeenBox> boxes_;  ///< since the present step began
    int answered_ = 0;            ///< boxes so far
    int noted_ = 0;               ///< boxes in the transcript, as far as it was read
    std::size_t lineToRead_ = 0;  ///< of the transcript
};

}  // namespace kvopt::monkey
