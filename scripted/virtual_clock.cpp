#include "kvopt/scripted/virtual_clock.h"

#include <algorithm>
#include <utility>

namespace kvopt {

void VirtualClock::Start(Desktop::TimerId id, unsigned milliseconds,
                         std::function<void()> callback) {
    Stop(id);
    const unsigned interval = std::max(milliseconds, 1U);
    timers_.push_back({id, interval, now_ + interval, std::move(callback)});
}

void VirtualClock::Stop(Desktop::TimerId id) {
    std::erase_if(timers_, [id](const Timer& timer) { return timer.id == id; });
}

bool VirtualClock::IsRunning(Desktop::TimerId id) const {
    return std::any_of(timers_.begin(), timers_.end(),
                       [id](const Timer& timer) { return timer.id == id; });
}

void VirtualClock::Advance(unsigned milliseconds) {
    const std::uint64_t end = now_ + milliseconds;
    while (true) {
        const auto next = std::min_element(
            timers_.begin(), timers_.end(),
            [](const Timer& left, const Timer& right) { return left.due < right.due; });
        if (next == timers_.end() || next->due > end) {
            break;
        }
        now_ = next->due;
        next->due += next->interval;
        const std::function<void()> callback = next->callback;
        callback();
    }
    now_ = end;
}

}  // namespace kvopt
