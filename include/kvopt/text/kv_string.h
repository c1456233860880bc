#pragma once

#include <string>
#include <string_view>

#include "kvopt/export.h"
#include "kvopt/text/literal.h"

namespace kvopt {

/// Numbers from and to text, the same in every locale of the process.
///
/// Readers take the whole text or fail: blanks around the number are allowed, one leading sign of
/// either kind, a decimal point and an exponent; no inner blanks, no decimal comma, no "nan",
/// "inf" or hexadecimal number, and not the empty text. A number that is too large for the target
/// fails, one that is too small is 0. On failure the target keeps its value.
class KVOPT_EXPORT KvString {
public:
    KvString() = delete;

    static bool ToFloat(std::string_view text, float& value);
    static bool ToFloat(std::wstring_view text, float& value);
    static bool ToDouble(std::string_view text, double& value);
    static bool ToDouble(std::wstring_view text, double& value);
    static bool ToInt(std::string_view text, int& value);
    static bool ToInt(std::wstring_view text, int& value);

    /// The number in the given format, for example "%g".
    static std::string ToString(double value, const FormatText<1>& format);

    /// The text that edits and cells show: as "%g" of the C locale prints it, with six significant
    /// digits. It loses what lies beyond them, so stores use FromDouble().
    static std::string FormatG(double value);
    static std::wstring FormatGWide(double value);

    /// The shortest text that reads back to the same bits; "inf", "-inf" and "nan" for what is no
    /// finite number. For stores.
    static std::string FromDouble(double value);
    /// Reads what FromDouble() wrote, "inf" and "nan" included. The whole text or false.
    static bool FromStore(std::string_view text, double& value);
};

}  // namespace kvopt
