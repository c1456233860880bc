#pragma once

/// \file
/// The one value that means "nothing is set" wherever a number may be missing. Compared with ==.

namespace kvopt {

inline constexpr double kNotSet = -99.0;
/// The same value where the type is float; exactly representable, so both compare equal.
inline constexpr float kNotSetF = -99.0F;

}  // namespace kvopt
