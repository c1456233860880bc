#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/desktop.h"

namespace kvopt {

/// Timers in a time that passes only when told to, so that what a script does depends on no
/// machine's speed. Any front end that is driven by scripts may use it.
class KVOPT_EXPORT VirtualClock {
public:
    /// Repeats every `milliseconds` (at least 1) until stopped; a running one of the id starts
    /// anew.
    void Start(Desktop::TimerId id, unsigned milliseconds, std::function<void()> callback);
    void Stop(Desktop::TimerId id);
    bool IsRunning(Desktop::TimerId id) const;

    /// Lets time pass. Timers that fall due run in the order of their time, of those with the same
    /// time the one started first; a callback may start and stop timers.
    void Advance(unsigned milliseconds);
    std::uint64_t Now() const { return now_; }

private:
    struct Timer {
        Desktop::TimerId id;
        unsigned interval;
        std::uint64_t due;
        std::function<void()> callback;
    };
    std::vector<Timer> timers_;  ///< in the order of their start
    std::uint64_t now_ = 0;
};

}  // namespace kvopt
