#pragma once

#include "kvopt/export.h"

namespace kvopt {

/// Compares with a tolerance that is scaled by the power of two of the larger of the two: -1 when
/// `a` is less, 1 when it is greater, 0 when they count as equal. Of two that tie in absolute value
/// the second gives the exponent. Near 1.0 the tolerance doubles, the exponent of 1.0 being 1.
/// Exported for its tests alone.
KVOPT_EXPORT int CompareTolerantly(double a, double b, double tolerance);

}  // namespace kvopt
