#pragma once

#include <stdexcept>

namespace kvopt::monkey {

/// An invariant is broken. Thrown out of the step that broke it, so that every window closes.
class Finding : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace kvopt::monkey
