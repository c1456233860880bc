#pragma once

#include <string>
#include <vector>

namespace kvopt {

class CListBox;

/// Puts these names (UTF-8) into the list in place of what it holds.
void FillList(CListBox& list, const std::vector<std::string>& names);
/// The names in the list from the top, in UTF-8.
std::vector<std::string> NamesOf(const CListBox& list);

}  // namespace kvopt
