#pragma once

#include <string>
#include <string_view>

namespace kvopt {

/// "line 3, column 14" of a byte offset; both count from 1, columns in characters.
std::string LineAndColumn(std::string_view text, std::size_t offset);

/// Where the element of a JSON pointer ("/factors/0/low") stands in the text of a valid JSON
/// document: "/factors/0/low, line 3, column 14". The last element on the way is taken when the
/// pointer leads to nothing, so a missing key is told at its object.
std::string PlaceInJson(std::string_view text, const std::string& pointer);

/// A name as one step of a JSON pointer.
std::string PointerStep(std::string_view name);

}  // namespace kvopt
