#include "bench/disk_flush.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>

namespace kvopt::bench {
namespace {

std::atomic<bool> isSkipped{false};
std::atomic<std::int64_t> flushesMade{0};

int FlushFile(long call, int file) {
    if (isSkipped) {
        return 0;
    }
    ++flushesMade;
    return static_cast<int>(syscall(call, file));
}

}  // namespace

FlushSwitch::FlushSwitch(Flush flush)
    : before_(isSkipped.exchange(flush == Flush::Skipped)), start_(flushesMade) {}

FlushSwitch::~FlushSwitch() {
    isSkipped = before_;
}

std::int64_t FlushSwitch::FlushesMade() const {
    return flushesMade - start_;
}

void CountFlushes(benchmark::State& state, const FlushSwitch& flushSwitch) {
    state.counters["flushes"] = benchmark::Counter(static_cast<double>(flushSwitch.FlushesMade()),
                                                   benchmark::Counter::kAvgIterations);
}

}  // namespace kvopt::bench

// The program's own functions come before those of the C library, for the libraries too. So no
// store needs a switch of its own, and all are treated alike.
extern "C" {

__attribute__((visibility("default"))) int fsync(int file) {
    return kvopt::bench::FlushFile(SYS_fsync, file);
}

__attribute__((visibility("default"))) int fdatasync(int file) {
    return kvopt::bench::FlushFile(SYS_fdatasync, file);
}
}
