#pragma once

#include <string>

namespace kvopt {

class Desktop;
class StepGestures;
struct StepScope;
struct UserStep;

/// Finds what a step is aimed at and performs it. The result says why it could not be performed;
/// empty when it was. What a handler throws passes through.
std::string PerformStep(Desktop& desktop, StepGestures& gestures, const StepScope& scope,
                        const UserStep& step);

}  // namespace kvopt
