#pragma once

#include <string>

namespace kvopt {

class Desktop;
struct StepScope;
struct UserStep;

/// Checks what a step expects of the page in front. The result says what is so instead; empty when
/// all is as expected.
std::string CheckStep(const Desktop& desktop, const StepScope& scope, const UserStep& step);

}  // namespace kvopt
