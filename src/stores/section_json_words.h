#pragma once

#include <array>
#include <string_view>

#include "stores/section_node.h"

/// \file
/// The words of a saved plot that its writer and its reader share.

namespace kvopt::json {

inline constexpr std::string_view kHexDigits = "0123456789abcdef";

struct NamedType {
    KeyType type;
    std::string_view name;
};
inline constexpr std::array<NamedType, 4> kTypes{{{KeyType::Bool, "bool"},
                                                  {KeyType::Int, "int"},
                                                  {KeyType::Double, "double"},
                                                  {KeyType::Text, "text"}}};

}  // namespace kvopt::json
