#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kvopt {
class ContourPlotData;
class DesignSpaceOptions;
}  // namespace kvopt

namespace kvopt::monkey {

/// What pages edit, part by part: the name of each and its content as text. Two portraits of one
/// object have the same parts.
using Portrait = std::vector<std::pair<std::string, std::string>>;

/// Everything that the object holds, which is more than a saved plot has: the axes of all sets, the
/// resolutions, the lock of the levels, numbers to the last bit.
Portrait PortraitOf(const ContourPlotData& plot);
Portrait PortraitOf(const DesignSpaceOptions& options);

}  // namespace kvopt::monkey
