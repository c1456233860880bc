#pragma once

/// \file
/// Texts of the frame's own boxes.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kDontShowAgain{"&Don't show this message again"};

}  // namespace kvopt::texts
