#pragma once

/// \file
/// Texts of the option pages.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kOptionsWindowText{"General"};

}  // namespace kvopt::texts
