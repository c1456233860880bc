#pragma once

/// \file
/// Texts of the selection of responses and other items, and of the pages that choose them.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kSelectionResponses{"responses"};
inline constexpr FormatText<1> kSelectTitle{"Select %s"};
inline constexpr FormatText<1> kSelectHeading{"Select the %s you want to display."};
/// The same over the dialog, where no full stop ends it.
inline constexpr FormatText<1> kSelectItemsHeading{"Select the %s you want to display"};
inline constexpr FormatText<1> kAvailableLabel{"Available %s:"};
inline constexpr FormatText<1> kSelectedLabel{"Selected %s:"};
inline constexpr FormatText<1> kNothingSelected{"No %s are selected. Please select at least one."};
inline constexpr PlainText kSelectOneItem{"You must at least select one item"};
inline constexpr PlainText kNoResponseSelected{"<no response selected>"};

}  // namespace kvopt::texts
