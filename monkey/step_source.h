#pragma once

#include <optional>

#include "kvopt/platform/desktop.h"
#include "kvopt/scripted/step_target.h"
#include "kvopt/scripted/user_step.h"

namespace kvopt::monkey {

/// Where the next step of a user comes from.
class StepSource {
public:
    StepSource() = default;
    virtual ~StepSource() = default;
    StepSource(const StepSource&) = delete;
    StepSource& operator=(const StepSource&) = delete;

    /// The next step on what is in front; none when the user goes away.
    virtual std::optional<UserStep> Next(const StepScope& scope) = 0;
    virtual BoxAnswer Answer(const MessageBoxRequest& request) = 0;
};

}  // namespace kvopt::monkey
