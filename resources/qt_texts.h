#pragma once

/// \file
/// Texts of the frames that the Qt front end draws around pages.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kFrameOk{"OK"};
inline constexpr PlainText kFrameCancel{"Cancel"};
inline constexpr PlainText kFrameApply{"&Apply"};
inline constexpr PlainText kFrameHelp{"Help"};
inline constexpr PlainText kFrameBack{"< &Back"};
inline constexpr PlainText kFrameNext{"&Next >"};
inline constexpr PlainText kFrameFinish{"&Finish"};
/// What a screen reader says of a slider: its value, then its ends.
inline constexpr FormatText<3> kSpokenSlider{
    "Slider at %s, from %s to %s. Type the value in the cell to the left."};

}  // namespace kvopt::texts
