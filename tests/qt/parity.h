#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kvopt::test {

/// Plays a script on a road in the desktop without windows and in windows. Expects no fault of
/// either and the same transcript of both, and gives that. What the road wants to be the same it
/// notes.
std::vector<std::string> PlayInBoth(const std::string& script, const std::function<void()>& road);

}  // namespace kvopt::test
