#pragma once

#include <memory>
#include <vector>

#include "constants/chooser_rules.h"

namespace kvopt {

class AxisInfo;
class AxisPage;

/// The axes 1 to `count` of a finished set, as far as it holds them. The set must outlive what is
/// given back.
AxesInQuestion AxesOf(const std::vector<std::shared_ptr<AxisInfo>>& axes, int count);

/// The axes that a page shows now. The page must outlive what is given back.
AxesInQuestion AxesOf(const AxisPage& page);

}  // namespace kvopt
