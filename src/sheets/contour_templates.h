#pragma once

namespace kvopt {

/// Dialog templates of the contour family.
inline constexpr unsigned kProcessConstantsTemplate = 6157;
inline constexpr unsigned kContourTemplate = 6158;
inline constexpr unsigned kContourOptionsTemplate = 6159;
inline constexpr int kProcessAxisTemplate = 6160;
inline constexpr int kProcess4DAxisTemplate = 6161;
inline constexpr int kMixtureAxisTemplate = 6168;
inline constexpr int kMixture4DAxisTemplate = 6169;
inline constexpr unsigned kMixtureConstantsTemplate = 6170;
inline constexpr unsigned kResponsesTemplate = 6172;
inline constexpr unsigned kSurfaceOptionsTemplate = 6213;

}  // namespace kvopt
