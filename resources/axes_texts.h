#pragma once

/// \file
/// What the axis pages say.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

// Judging what was entered. "%s axis" is one of the ordinals, "%s setting" low or high.
inline constexpr FormatText<1> kAxesDuplicate("The factor '%s' is selected more than once.");
inline constexpr FormatText<1> kAxesIllegalName("Illegal name on %s axis.");
inline constexpr FormatText<3> kAxesNotNumber(
    "The %s setting on the %s axis (%s) is not a number.");
inline constexpr FormatText<4> kAxesLowNotBelowHigh(
    "The low setting (%.3g) on the %s axis (%s) must be lower than the high setting (%.3g).");
inline constexpr FormatText<6> kAxesIllegalSetting(
    "The %s setting (%.3g) on the %s axis (%s) is illegal. "
    "The setting must be in the range %g - %g.");
inline constexpr FormatText<4> kAxesOutsideRecommended(
    "The %s setting (%.3g) on the %s axis (%s) is outside the recommended range for the factor.\n");
inline constexpr PlainText kAxesStillUse("\nDo you still want to use the specified setting");
inline constexpr PlainText kAxesQuestionOne("?");
inline constexpr PlainText kAxesQuestionSeveral("s?");

inline constexpr PlainText kAxesOrdinals[] = {PlainText("1st"), PlainText("2nd"), PlainText("3rd"),
                                              PlainText("4th"), PlainText("5th")};
inline constexpr PlainText kAxesLow("low");
inline constexpr PlainText kAxesHigh("high");

// The region of a mixture plot.
inline constexpr PlainText kAxesDecreaseLow(
    "The sum of the low settings for the axes must be decreased to give a valid region for the "
    "plot. Alternatively the sum of the constant settings may be reduced to get a valid region to "
    "plot.");
inline constexpr PlainText kAxesIncreaseHigh(
    "The sum of the high settings for the axes must be increased to give a valid region for the "
    "plot. Alternatively the sum of the constant settings may be increased to get a valid region "
    "to plot.");

// Joins the settings of a qualitative axis.
inline constexpr FormatText<1> kAxesNextSetting(";%s");

}  // namespace kvopt::texts
