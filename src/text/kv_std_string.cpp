#include "kvopt/text/kv_std_string.h"

#include <cstddef>

#include "text/utf8.h"

namespace kvopt {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

template <class View>
View TrimView(View text, View blanks) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == View::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool IsHighSurrogate(char32_t code) {
    return code >= 0xD800 && code <= 0xDBFF;
}
bool IsLowSurrogate(char32_t code) {
    return code >= 0xDC00 && code <= 0xDFFF;
}

void AppendWide(std::wstring& wide, char32_t code) {
    if constexpr (sizeof(wchar_t) == 2) {
        if (code >= 0x10000) {
            wide += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
            wide += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
            return;
        }
    }
    wide += static_cast<wchar_t>(code);
}

}  // namespace

std::vector<std::string> KvStdString::Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    const auto add = [&](std::string_view part) {
        if (!part.empty()) {
            parts.emplace_back(part);
        }
    };
    if (!separator.empty()) {
        std::size_t end = 0;
        while ((end = text.find(separator)) != std::string_view::npos) {
            add(text.substr(0, end));
            text.remove_prefix(end + separator.size());
        }
    }
    add(text);
    return parts;
}

std::string KvStdString::FormatStringVector(const std::vector<std::string>& parts,
                                            std::string_view separator) {
    std::string joined;
    bool isFirst = true;
    for (const std::string& part : parts) {
        if (!isFirst) {
            joined += separator;
        }
        joined += part;
        isFirst = false;
    }
    return joined;
}

std::wstring KvStdString::ToWide(std::string_view utf8) {
    std::wstring wide;
    wide.reserve(utf8.size());
    while (!utf8.empty()) {
        const utf8::Character character = utf8::Decode(utf8);
        AppendWide(wide, character.length > 0 ? character.code : kReplacement);
        utf8.remove_prefix(character.length > 0 ? character.length : 1);
    }
    return wide;
}

std::string KvStdString::ToUtf8(std::wstring_view wide) {
    std::string utf8;
    utf8.reserve(wide.size());
    for (std::size_t i = 0; i < wide.size(); ++i) {
        auto code = static_cast<char32_t>(wide[i]);
        if constexpr (sizeof(wchar_t) == 2) {
            if (IsHighSurrogate(code) && i + 1 < wide.size() &&
                IsLowSurrogate(static_cast<char32_t>(wide[i + 1]))) {
                ++i;
                code =
                    0x10000 + ((code - 0xD800) << 10) + (static_cast<char32_t>(wide[i]) - 0xDC00);
            }
        }
        if (IsHighSurrogate(code) || IsLowSurrogate(code) || code > 0x10FFFF) {
            code = kReplacement;
        }
        utf8::Append(utf8, code);
    }
    return utf8;
}

std::string KvStdString::Trim(std::string_view text) {
    return std::string(TrimView<std::string_view>(text, " \t\n\v\f\r"));
}

std::wstring KvStdString::Trim(std::wstring_view text) {
    return std::wstring(TrimView<std::wstring_view>(text, L" \t\n\v\f\r"));
}

}  // namespace kvopt
