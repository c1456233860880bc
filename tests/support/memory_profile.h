#pragma once

#include <memory>

#include "kvopt/stores.h"

namespace kvopt::test {

/// The profile of a user who has never run anything, without a file. It is installed while this
/// object lives, and the former one after it.
class MemoryProfile {
public:
    MemoryProfile() : former_(UserProfile::Install(std::make_shared<UserProfile>(nullptr))) {}
    MemoryProfile(const MemoryProfile&) = delete;
    MemoryProfile& operator=(const MemoryProfile&) = delete;
    ~MemoryProfile() { UserProfile::Install(former_); }

private:
    std::shared_ptr<UserProfile> former_;
};

}  // namespace kvopt::test
