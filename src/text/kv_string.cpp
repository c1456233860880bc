#include "kvopt/text/kv_string.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

#include "kvopt/text/format.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// The number proper: blanks and a plus sign removed. False when what is left does not begin like a
// number, which keeps "inf", "nan" and doubled signs from the conversion below.
bool NumberPart(std::string_view text, bool allowPoint, std::string_view& number) {
    constexpr std::string_view kBlanks = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return false;
    }
    number = text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
    std::string_view digits = number;
    if (digits.front() == '+') {
        digits.remove_prefix(1);
        number = digits;
    } else if (digits.front() == '-') {
        digits.remove_prefix(1);
    }
    return !digits.empty() && (IsDigit(digits.front()) || (allowPoint && digits.front() == '.'));
}

// Whether a number that does not fit its type is too small rather than too large: the conversion
// gives one error for both.
bool IsTooSmall(std::string_view number) {
    long long exponent = 0;
    const std::size_t mark = number.find_first_of("eE");
    if (mark != std::string_view::npos) {
        std::string_view digits = number.substr(mark + 1);
        const bool isNegative = !digits.empty() && digits.front() == '-';
        for (const char c : digits) {
            if (IsDigit(c) && exponent < 1'000'000'000'000) {
                exponent = exponent * 10 + (c - '0');
            }
        }
        exponent = isNegative ? -exponent : exponent;
    }
    const std::string_view mantissa = number.substr(0, mark);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t digit = mantissa.find_first_of("123456789");
    const auto place = static_cast<long long>(point) - static_cast<long long>(digit);
    return place + exponent < 0;
}

template <class Number>
bool ReadReal(std::string_view text, Number& value) {
    std::string_view number;
    if (!NumberPart(text, true, number)) {
        return false;
    }
    Number read{};
    const char* const end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, read);
    if (stop != end || error == std::errc::invalid_argument) {
        return false;
    }
    if (error == std::errc::result_out_of_range) {
        if (!IsTooSmall(number)) {
            return false;
        }
        read = number.front() == '-' ? Number(-0.0) : Number(0.0);
    }
    value = read;
    return true;
}

// A number is ASCII; any other character becomes one that no number holds.
std::string Narrow(std::wstring_view text) {
    std::string narrow;
    narrow.reserve(text.size());
    for (const wchar_t c : text) {
        narrow += c > 0 && c < 0x80 ? static_cast<char>(c) : '?';
    }
    return narrow;
}

}  // namespace

bool KvString::ToFloat(std::string_view text, float& value) {
    return ReadReal(text, value);
}
bool KvString::ToFloat(std::wstring_view text, float& value) {
    return ReadReal(Narrow(text), value);
}
bool KvString::ToDouble(std::string_view text, double& value) {
    return ReadReal(text, value);
}
bool KvString::ToDouble(std::wstring_view text, double& value) {
    return ReadReal(Narrow(text), value);
}

bool KvString::ToInt(std::string_view text, int& value) {
    std::string_view number;
    if (!NumberPart(text, false, number)) {
        return false;
    }
    int read = 0;
    const char* const end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, read);
    if (stop != end || error != std::errc()) {
        return false;
    }
    value = read;
    return true;
}

bool KvString::ToInt(std::wstring_view text, int& value) {
    return ToInt(Narrow(text), value);
}

std::string KvString::ToString(double value, const FormatText<1>& format) {
    return Format(format, value);
}

std::string KvString::FormatG(double value) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::general, 6);
    return std::string(buffer.data(), error == std::errc() ? end : buffer.data());
}

std::wstring KvString::FormatGWide(double value) {
    return KvStdString::ToWide(FormatG(value));
}

std::string KvString::FromDouble(double value) {
    if (std::isnan(value)) {
        return "nan";
    }
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return std::string(buffer.data(), error == std::errc() ? end : buffer.data());
}

bool KvString::FromStore(std::string_view text, double& value) {
    double read = 0.0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, read);
    if (stop != end || error != std::errc()) {
        return false;
    }
    value = read;
    return true;
}

}  // namespace kvopt
