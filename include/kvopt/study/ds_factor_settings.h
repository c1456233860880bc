#pragma once

#include <string>

#include "kvopt/export.h"

namespace kvopt {

/// How the settings of a factor scatter around what was set, when a design space is simulated.
class KVOPT_EXPORT DSFactorSettings {
public:
    DSFactorSettings() = delete;

    enum Distribution : int {
        Uniform = 0,
        /// Unbounded, so that it fits what may leave its range a little; a part of a mixture may
        /// not.
        Normal = 1,
        Triangular = 2,
        /// A normal distribution from elsewhere: it has no text of its own, and pages show Normal.
        OtherNormal = 3,
    };

    /// The text for the user; empty for what has none.
    static std::wstring ToString(Distribution distribution);
};

}  // namespace kvopt
