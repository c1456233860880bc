#pragma once

/// \file
/// What the axis pages say.

#include "kvopt/text/literal.h"

namespace kvopt::axes_texts {

// Judging what was entered. "%s axis" is one of the ordinals, "%s setting" low or high.
inline constexpr FormatText<1> kDuplicate("The factor '%s' is selected more than once.");
inline constexpr FormatText<1> kIllegalName("Illegal name on %s axis.");
inline constexpr FormatText<3> kNotNumber("The %s setting on the %s axis (%s) is not a number.");
inline constexpr FormatText<4> kLowNotBelowHigh(
    "The low setting (%.3g) on the %s axis (%s) must be lower than the high setting (%.3g).");
inline constexpr FormatText<6> kIllegalSetting(
    "The %s setting (%.3g) on the %s axis (%s) is illegal. "
    "The setting must be in the range %g - %g.");
inline constexpr FormatText<4> kOutsideRecommended(
    "The %s setting (%.3g) on the %s axis (%s) is outside the recommended range for the factor.\n");
inline constexpr PlainText kStillUse("\nDo you still want to use the specified setting");
inline constexpr PlainText kQuestionOne("?");
inline constexpr PlainText kQuestionSeveral("s?");

inline constexpr PlainText kOrdinals[] = {PlainText("1st"), PlainText("2nd"), PlainText("3rd"),
                                          PlainText("4th"), PlainText("5th")};
inline constexpr PlainText kLow("low");
inline constexpr PlainText kHigh("high");

// The region of a mixture plot.
inline constexpr PlainText kDecreaseLow(
    "The sum of the low settings for the axes must be decreased to give a valid region for the "
    "plot. Alternatively the sum of the constant settings may be reduced to get a valid region to "
    "plot.");
inline constexpr PlainText kIncreaseHigh(
    "The sum of the high settings for the axes must be increased to give a valid region for the "
    "plot. Alternatively the sum of the constant settings may be increased to get a valid region "
    "to plot.");

// Joins the settings of a qualitative axis.
inline constexpr FormatText<1> kNextSetting(";%s");

}  // namespace kvopt::axes_texts
