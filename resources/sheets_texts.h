#pragma once

/// \file
/// Texts of the wizards and sheets.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kContourWizardTitle{"Contour Plot"};
inline constexpr PlainText kDesignSpaceWizardTitle{"Design Space Plot"};
inline constexpr PlainText kDesirabilityWizardTitle{"Desirability Plot"};
inline constexpr PlainText kContourOptionsTitle{"Contour Plot Options"};
inline constexpr PlainText kSurfaceOptionsTitle{"Surface Plot Options"};
inline constexpr PlainText kDesignSpaceOptionsTitle{"Design Space Contour Options"};
inline constexpr PlainText kPropertiesTitle{"Properties"};
inline constexpr PlainText kResolutionNotNumber{"Not a number in resolution field."};
inline constexpr PlainText kResolutionTooLow{"Too low resolution. Use at least 16."};
inline constexpr PlainText kResolutionTooHigh{"Too high resolution. Use 1024 or less."};

}  // namespace kvopt::texts
