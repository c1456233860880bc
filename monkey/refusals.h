#pragma once

#include <string>
#include <vector>

#include "kvopt/platform/desktop.h"
#include "kvopt/scripted/user_step.h"

namespace kvopt::monkey {

/// A message box that came, and what it was answered.
struct SeenBox {
    BoxStyle style = BoxStyle::Plain;
    std::string text;
    BoxAnswer answer = BoxAnswer::Ok;
};

/// What of a page speaks in a box that refuses.
enum class Refuser {
    Nobody,       ///< the box tells or asks something else, or the question was answered with yes
    Responses,    ///< no response is selected
    Axes,         ///< an axis is illegal, or doubtful and was not confirmed
    Region,       ///< a mixture plot has no region to draw
    Constants,    ///< a constant or their sum
    Resolution,   ///< of the plot
    Simulations,  ///< their number
    Limit,        ///< of the risk
    Items,        ///< no item is selected
};
Refuser RefuserOf(const SeenBox& box);

/// A step that somebody refused.
struct Refusal {
    StepVerb verb = StepVerb::Ok;  ///< a button of the frame, or Tab
    int front = 0;                 ///< template of the page or dialog in front before the step
    std::vector<int> asked;        ///< templates of all that the step asks, with that one
    Refuser refuser = Refuser::Nobody;
    bool wasAgreed = false;  ///< a question of the same step was answered with yes before
};

/// The parts of what is edited that may differ behind a refusal. Everything else may not.
std::vector<std::string> PartsThatMayChange(const Refusal& refusal);

}  // namespace kvopt::monkey
