#pragma once

#include <string>
#include <vector>

namespace kvopt::bench {

/// Runs a dialog made with Qt alone, of the widgets that the wizard's first page and its frame
/// have: the responses, of which the first is selected.
void RunBareFirstPage(const std::vector<std::string>& responses);
/// The same of the axis page: the first two factors lie on the axes, the others in the grid.
void RunBareAxisPage(const std::vector<std::string>& factors);

}  // namespace kvopt::bench
