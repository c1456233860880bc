#pragma once

#include <string>

#include "kvopt/stores.h"

namespace kvopt::bench {

/// The tree of a saved plot of so many factors.
ConfigurationStore SavedTreeOf(int factors);

}  // namespace kvopt::bench
