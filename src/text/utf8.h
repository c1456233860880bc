#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kvopt::utf8 {

/// A character read from the front of a text: its code point and how many bytes it takes; a length
/// of 0 when the text does not begin with a valid character (overlong forms, surrogates and values
/// beyond U+10FFFF are not valid).
struct Character {
    char32_t code = 0;
    std::size_t length = 0;
};

Character Decode(std::string_view text);
void Append(std::string& text, char32_t code);
bool IsValid(std::string_view text);

}  // namespace kvopt::utf8
