#include "monkey/value_text.h"

#include <array>
#include <charconv>

namespace kvopt::monkey {

namespace {

template <class Value>
std::string Digits(Value value) {
    std::array<char, 40> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return {digits.data(), end};
}

}  // namespace

ValueText& ValueText::Add(const std::string& text) {
    text_ += '\'' + text + "' ";
    return *this;
}

ValueText& ValueText::Add(double value) {
    text_ += Digits(value) + ' ';
    return *this;
}

ValueText& ValueText::Add(float value) {
    text_ += Digits(value) + ' ';
    return *this;
}

ValueText& ValueText::Add(int value) {
    text_ += Digits(value) + ' ';
    return *this;
}

ValueText& ValueText::Add(const std::vector<std::string>& texts) {
    Add(static_cast<int>(texts.size()));
    for (const std::string& text : texts) {
        Add(text);
    }
    return *this;
}

}  // namespace kvopt::monkey
