#pragma once

#include "monkey/scenes.h"

namespace kvopt::monkey {

/// Scenes of which each breaks one invariant, when the user does what their name says.

/// Apply with a number of samples that is no number stores the limit, then refuses.
Scene StoresBeforeItRefuses();
/// The first change of the page counts twice for the helper.
Scene CountsAChangeTwice();
/// Each change takes an item away from one of the two lists.
Scene LosesAnItem();
/// Apply raises a box without a text.
Scene RaisesABoxWithoutAText();
/// Apply raises a box that the user never sees.
Scene RaisesABoxThatNobodyAnswers();
/// Apply raises boxes without end.
Scene RaisesBoxesWithoutEnd();
/// Cancel does nothing.
Scene StaysOpenBehindCancel();
/// A change throws.
Scene ThrowsOnAChange();
/// Finish accepts one factor on both axes.
Scene AcceptsAFactorTwice();
/// Finish fills the constants to the last slot.
Scene FillsTheConstants();

}  // namespace kvopt::monkey
