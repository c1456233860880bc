#pragma once

/// \file
/// The two kinds of literal text. A text is marked where it is written: a plain text never meets
/// the formatter, and a format is checked by the compiler.

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "kvopt/export.h"

namespace kvopt {

/// No format of this library feeds more arguments than this.
inline constexpr int kMaxFormatArguments = 16;

/// What the directives of a format ask for: one conversion letter for each argument, '%' for a
/// numbered directive without a letter ("%1%").
struct FormatDirectives {
    int count = 0;
    std::array<char, static_cast<std::size_t>(kMaxFormatArguments)> conversions{};
};

/// Reads the directives of a format: printf's, "%1$d" and "%1%"; "%%" is a percent sign. Nothing
/// comes back for a text that does not parse: an unknown or cut-off directive, "*" or "n",
/// numbered and unnumbered ones mixed, a number left out, or a precision on an integer (which the
/// formatter would not obey).
constexpr std::optional<FormatDirectives> ParseDirectives(std::string_view text) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto isOneOf = [](char c, std::string_view set) {
        return set.find(c) != std::string_view::npos;
    };
    FormatDirectives result;
    bool anyNumbered = false;
    bool anyUnnumbered = false;
    std::size_t at = 0;
    const auto peek = [&] { return at < text.size() ? text[at] : '\0'; };
    const auto readNumber = [&] {
        int number = 0;
        while (isDigit(peek()) && number <= kMaxFormatArguments * 100) {
            number = number * 10 + (text[at++] - '0');
        }
        return number;
    };
    while (at < text.size()) {
        if (text[at++] != '%') {
            continue;
        }
        if (peek() == '%') {
            ++at;
            continue;
        }
        int number = 0;
        char conversion = '\0';
        const std::size_t start = at;
        if (isDigit(peek()) && peek() != '0') {
            number = readNumber();
            if (peek() == '%') {
                conversion = '%';
                ++at;
            } else if (peek() == '$') {
                ++at;
            } else {
                number = 0;
                at = start;
            }
        }
        if (conversion == '\0') {
            bool hasPrecision = false;
            while (isOneOf(peek(), "-+ #0") && at < text.size()) {
                ++at;
            }
            readNumber();
            if (peek() == '.') {
                hasPrecision = true;
                ++at;
                readNumber();
            }
            while (isOneOf(peek(), "hlL") && at < text.size()) {
                ++at;
            }
            if (at >= text.size() || !isOneOf(peek(), "diuoxXeEfFgGcs")) {
                return std::nullopt;
            }
            conversion = text[at++];
            if (hasPrecision && isOneOf(conversion, "diuoxXc")) {
                return std::nullopt;
            }
        }
        (number > 0 ? anyNumbered : anyUnnumbered) = true;
        const int position = number > 0 ? number : result.count + 1;
        if ((anyNumbered && anyUnnumbered) || position > kMaxFormatArguments) {
            return std::nullopt;
        }
        char& slot = result.conversions[static_cast<std::size_t>(position - 1)];
        if (slot == '\0') {
            slot = conversion;
        }
        if (position > result.count) {
            result.count = position;
        }
    }
    for (int i = 0; i < result.count; ++i) {
        if (result.conversions[static_cast<std::size_t>(i)] == '\0') {
            return std::nullopt;
        }
    }
    return result;
}

/// How many arguments a format wants; nothing for a text that does not parse as one.
constexpr std::optional<int> DirectiveCount(std::string_view text) {
    const std::optional<FormatDirectives> directives = ParseDirectives(text);
    return directives ? std::optional<int>(directives->count) : std::nullopt;
}

/// A text that is shown as it stands; a percent sign in it is a percent sign. Holds a pointer to a
/// UTF-8 literal.
class KVOPT_EXPORT PlainText {
public:
    explicit constexpr PlainText(const char* text) : text_(text) {}

    constexpr const char* Text() const { return text_; }
    std::wstring Wide() const;

private:
    const char* text_;
};

/// A text with directives for N arguments, filled by Format() and FormatWide(). A literal whose
/// directives do not parse or are not N does not compile.
template <int N>
class FormatText {
public:
    explicit consteval FormatText(const char* text) : text_(text) {
        if (DirectiveCount(text) != N) {
            throw "the directives of this format do not parse or are not as many as declared";
        }
    }

    constexpr const char* Text() const { return text_; }

private:
    const char* text_;
};

}  // namespace kvopt
