#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

/// Small operations on whole texts: splitting and joining lists, UTF-8 to wide and back.
class KVOPT_EXPORT KvStdString {
public:
    KvStdString() = delete;

    /// The parts of `text` between the separators, empty parts left out, nothing trimmed. An empty
    /// separator gives the whole text as one part.
    static std::vector<std::string> Split(std::string_view text, std::string_view separator);

    /// The parts with the separator between them; the reverse of Split() for parts that are not
    /// empty and do not hold the separator.
    static std::string FormatStringVector(const std::vector<std::string>& parts,
                                          std::string_view separator);

    /// UTF-8 to wide, for display: what is no valid UTF-8 shows as U+FFFD, one for each byte that
    /// begins no character. A name with such bytes is therefore not found again by its wide text.
    static std::wstring ToWide(std::string_view utf8);

    /// Wide to UTF-8. A lone surrogate or a value beyond Unicode becomes U+FFFD.
    static std::string ToUtf8(std::wstring_view wide);

    /// Without the blanks (space, tab, line feed, vertical tab, form feed, carriage return) at both
    /// ends.
    static std::string Trim(std::string_view text);
    static std::wstring Trim(std::wstring_view text);
};

}  // namespace kvopt
