#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

#include "kvopt/export.h"
#include "kvopt/text/kv_std_string.h"
#include "kvopt/text/literal.h"

namespace kvopt {

/// One value fed to a format, kept until the directive says what it is to become. Made by Format().
class KVOPT_EXPORT FormatArgument {
public:
    enum class Kind { Integer, Real, Text };

    template <class T>
    FormatArgument(const T& value) {  // NOLINT(google-explicit-constructor): fed by Format()
        if constexpr (std::is_enum_v<T>) {
            SetInteger(static_cast<std::underlying_type_t<T>>(value));
        } else if constexpr (std::is_same_v<T, bool>) {
            SetInteger(static_cast<int>(value));
        } else if constexpr (std::is_integral_v<T>) {
            SetInteger(value);
        } else if constexpr (std::is_floating_point_v<T>) {
            kind_ = Kind::Real;
            real_ = static_cast<double>(value);
        } else if constexpr (std::is_convertible_v<const T&, std::wstring_view>) {
            text_ = KvStdString::ToUtf8(value);
        } else {
            text_ = std::string_view(value);
        }
    }

    Kind GetKind() const { return kind_; }
    /// A real number loses its fraction, as a cast does; a text is 0.
    long long Integer() const;
    /// As printf's unsigned directives take it: a negative integer wraps in its own width.
    unsigned long long Unsigned() const;
    double Real() const;
    /// Numbers as "%d" and "%g" print them.
    std::string Text() const;

private:
    template <class T>
    void SetInteger(T value) {
        kind_ = Kind::Integer;
        integer_ = static_cast<long long>(value);
        unsigned_ = static_cast<unsigned long long>(static_cast<std::make_unsigned_t<T>>(value));
    }

    Kind kind_ = Kind::Text;
    long long integer_ = 0;
    unsigned long long unsigned_ = 0;
    double real_ = 0.0;
    std::string text_;
};

namespace detail {
KVOPT_EXPORT std::string FormatArguments(const char* format,
                                         std::initializer_list<FormatArgument> arguments);
KVOPT_EXPORT std::wstring FormatArgumentsWide(const char* format,
                                              std::initializer_list<FormatArgument> arguments);
}  // namespace detail

/// The format filled with the arguments, always as the C locale prints them. Each argument is first
/// converted to what its directive says ("%d" of 3.7 prints 3, "%.3g" takes an int); one that
/// several directives name is converted by the first of them. Widths count bytes, as printf does.
template <int N, class... Arguments>
std::string Format(const FormatText<N>& format, const Arguments&... arguments) {
    static_assert(sizeof...(Arguments) == N, "as many arguments as the format declares");
    return detail::FormatArguments(format.Text(), {FormatArgument(arguments)...});
}

/// The same for the user's eye: widths count characters.
template <int N, class... Arguments>
std::wstring FormatWide(const FormatText<N>& format, const Arguments&... arguments) {
    static_assert(sizeof...(Arguments) == N, "as many arguments as the format declares");
    return detail::FormatArgumentsWide(format.Text(), {FormatArgument(arguments)...});
}

}  // namespace kvopt
