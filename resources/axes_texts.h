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

// Judging the settings of a qualitative axis; one follows the other with nothing between.
inline constexpr PlainText kAxesNoSettings("No settings selected for qualitative axis");
inline constexpr FormatText<2> kAxesUnknownSetting("%1% is not a legal setting for factor %2% ");
inline constexpr PlainText kAxesManySettings(
    "More than 3 settings are selected. Only the three first will be displayed");
inline constexpr PlainText kAxesThirdUnused("\nThere is nothing selected on the third axis.");
/// What the dialog in which settings are chosen calls them.
inline constexpr PlainText kAxesSettingsNoun("settings");

// What follows the axes of a plot with four dimensions. The two hints are worded apart.
inline constexpr PlainText kAxesNoConstants(
    "There are no unused factors that can be held constant.");
inline constexpr PlainText kAxesConstantsFollow(
    "Click the Next-button to specify the settings for the factors to be held constant in the plot "
    "or click Finish to create the plot now.");
inline constexpr PlainText kAxesMixtureConstantsFollow(
    "Click the 'Next' button to specify the settings for the factors to be held constant in the "
    "plot or click 'Finish' to create the plot now.");

// The switches of a probability plot, when they stand for those of setpoint exploration.
inline constexpr PlainText kAxesExplorationOnAxes(
    "Include distribution from setpoint exploration on axis factors");
inline constexpr PlainText kAxesExplorationOnConstants(
    "Include distribution from setpoint exploration on constant factors");
inline constexpr PlainText kAxesCheckPrecisions(
    "Make sure you have specified correct factor precisions.");
inline constexpr PlainText kAxesCheckDistributions(
    "Make sure you have specified correct distributions on all factors in setpoint exploration.");

}  // namespace kvopt::texts
