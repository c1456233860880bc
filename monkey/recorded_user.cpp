#include "monkey/recorded_user.h"

#include <utility>

namespace kvopt::monkey {

RecordedUser::RecordedUser(std::vector<UserStep> steps) : steps_(std::move(steps)) {}

std::optional<UserStep> RecordedUser::Next(const StepScope& /*scope*/) {
    while (next_ < steps_.size() && steps_[next_].verb == StepVerb::ExpectBox) {
        ++next_;
    }
    return next_ < steps_.size() ? std::optional(steps_[next_++]) : std::nullopt;
}

BoxAnswer RecordedUser::Answer(const MessageBoxRequest& request) {
    const bool isQuestion = request.IsQuestion();
    if (next_ < steps_.size() && steps_[next_].verb == StepVerb::ExpectBox) {
        const BoxAnswer answer = steps_[next_++].box.answer;
        if (isQuestion == (answer == BoxAnswer::Yes || answer == BoxAnswer::No) &&
            (answer != BoxAnswer::Silence || request.OffersSilence())) {
            return answer;
        }
    }
    return isQuestion ? BoxAnswer::No : BoxAnswer::Ok;
}

}  // namespace kvopt::monkey
