#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "kvopt/export.h"
#include "stores/section_node.h"

namespace kvopt::json {

/// The text of a tree: one line for each key, in the order in which keys and sections came to be.
/// Names and values are strings, never names of members.
KVOPT_EXPORT std::string Print(const SectionNode& root);

/// Reads what Print() wrote. Throws FileFormatError, with the line and column or the path of the
/// element, for anything else.
std::unique_ptr<SectionNode> Parse(std::string_view text, std::string_view fileName);

/// The same of a damaged text: what stands before the place that Parse() fails at. An empty tree
/// for a text that does not begin as Print() begins.
KVOPT_EXPORT std::unique_ptr<SectionNode> ParseWhatIsReadable(std::string_view text);

}  // namespace kvopt::json
