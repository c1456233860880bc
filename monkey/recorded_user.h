#pragma once

#include <cstddef>
#include <vector>

#include "monkey/step_source.h"

namespace kvopt::monkey {

/// Plays steps that were recorded, or some of them. Boxes that are expected behind a step lend
/// their answers to those that come; a box too many or too few is no fault.
class RecordedUser : public StepSource {
public:
    explicit RecordedUser(std::vector<UserStep> steps);

    std::optional<UserStep> Next(const StepScope& scope) override;
    BoxAnswer Answer(const MessageBoxRequest& request) override;

private:
    std::vector<UserStep> steps_;
    std::size_t next_ = 0;
};

}  // namespace kvopt::monkey
