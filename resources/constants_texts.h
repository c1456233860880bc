#pragma once

/// \file
/// Texts of the constants grid and its page.

#include <array>

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kConstantsFactorHeading{"Factor"};
inline constexpr PlainText kConstantsValueHeading{"Value"};
inline constexpr PlainText kConstantsSettingHeading{"Setting"};
inline constexpr PlainText kConstantsRandomBlock{"Random"};
inline constexpr PlainText kConstantsLockedTip{
    "Formulation factors can only be edited in 'Properties'"};
inline constexpr PlainText kConstantsSelectAll{"&Select all"};
inline constexpr PlainText kConstantsCopy{"&Copy"};
inline constexpr PlainText kConstantsPaste{"&Paste"};
inline constexpr PlainText kConstantsBelowRange{"<<<"};
inline constexpr PlainText kConstantsAboveRange{">>>"};
inline constexpr FormatText<2> kConstantsDoubtful{"%1% = %2%\n"};
inline constexpr FormatText<1> kConstantsMissing{"%1% = Missing\n"};
inline constexpr PlainText kConstantsReportHead{
    "The following constant settings are missing or outside the recommended range:\n\n"};
inline constexpr PlainText kConstantsReportQuestion{"\nDo you still want to use these settings?"};
inline constexpr PlainText kConstantsSumTooHigh{
    "The sum of all constant formulation factors can not exceed 1."};
inline constexpr PlainText kConstantsSumTooLow{"The sum of all formulation factors should be 1."};

}  // namespace kvopt::texts
