#pragma once

#include <string>
#include <vector>

namespace kvopt::monkey {

/// Gathers values as a text in which two of the same kinds differ when the values do.
class ValueText {
public:
    ValueText& Add(const std::string& text);
    ValueText& Add(double value);
    ValueText& Add(float value);
    ValueText& Add(int value);
    ValueText& Add(bool value) { return Add(value ? 1 : 0); }
    ValueText& Add(const std::vector<std::string>& texts);
    const std::string& Text() const { return text_; }

private:
    std::string text_;
};

/// The text of several values.
template <class... Values>
std::string TextOf(const Values&... values) {
    ValueText text;
    (text.Add(values), ...);
    return text.Text();
}

}  // namespace kvopt::monkey
