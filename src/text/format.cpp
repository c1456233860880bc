#include "kvopt/text/format.h"

#include <boost/format.hpp>
#include <cmath>
#include <limits>
#include <locale>

#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {
namespace {

std::string ToTarget(const std::string& text, char /*target*/) {
    return text;
}
std::wstring ToTarget(const std::string& text, wchar_t /*target*/) {
    return KvStdString::ToWide(text);
}

// Boost.Format prints an argument by its own type and heeds only the flags of a directive, so the
// type that the letter asks for is made here.
template <class Char>
void Feed(boost::basic_format<Char>& format, const FormatArgument& argument, char conversion) {
    const bool isText = argument.GetKind() == FormatArgument::Kind::Text;
    switch (conversion) {
        case 'd':
        case 'i':
            if (!isText) {
                format % argument.Integer();
                return;
            }
            break;
        case 'u':
        case 'o':
        case 'x':
        case 'X':
            if (!isText) {
                format % argument.Unsigned();
                return;
            }
            break;
        case 'e':
        case 'E':
        case 'f':
        case 'F':
        case 'g':
        case 'G':
            if (!isText) {
                format % argument.Real();
                return;
            }
            break;
        case 'c':
            if (!isText) {
                std::string character;
                character += static_cast<char>(argument.Integer());
                format % ToTarget(character, Char());
                return;
            }
            break;
        default:
            break;
    }
    format % ToTarget(argument.Text(), Char());
}

template <class Char>
std::basic_string<Char> Fill(const char* format, std::initializer_list<FormatArgument> arguments) {
    const std::optional<FormatDirectives> directives = ParseDirectives(format);
    if (!directives || static_cast<std::size_t>(directives->count) != arguments.size()) {
        throw InvalidArgument(std::string("Format: ") + format);
    }
    boost::basic_format<Char> filled(ToTarget(format, Char()), std::locale::classic());
    std::size_t position = 0;
    for (const FormatArgument& argument : arguments) {
        Feed(filled, argument, directives->conversions[position++]);
    }
    return filled.str();
}

}  // namespace

long long FormatArgument::Integer() const {
    if (kind_ != Kind::Real) {
        return integer_;
    }
    // A cast of what the target cannot hold is undefined, so the ends are taken.
    constexpr double kLimit = 9223372036854775808.0;
    if (std::isnan(real_)) {
        return 0;
    }
    if (real_ >= kLimit) {
        return std::numeric_limits<long long>::max();
    }
    return real_ <= -kLimit ? std::numeric_limits<long long>::min() : static_cast<long long>(real_);
}

unsigned long long FormatArgument::Unsigned() const {
    return kind_ == Kind::Integer ? unsigned_ : static_cast<unsigned long long>(Integer());
}

double FormatArgument::Real() const {
    return kind_ == Kind::Integer ? static_cast<double>(integer_) : real_;
}

std::string FormatArgument::Text() const {
    switch (kind_) {
        case Kind::Integer:
            return std::to_string(integer_);
        case Kind::Real:
            return KvString::FormatG(real_);
        case Kind::Text:
            break;
    }
    return text_;
}

namespace detail {

std::string FormatArguments(const char* format, std::initializer_list<FormatArgument> arguments) {
    return Fill<char>(format, arguments);
}

std::wstring FormatArgumentsWide(const char* format,
                                 std::initializer_list<FormatArgument> arguments) {
    return Fill<wchar_t>(format, arguments);
}

}  // namespace detail
}  // namespace kvopt
