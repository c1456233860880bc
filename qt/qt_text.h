#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kvopt {

inline QString ToQt(std::wstring_view text) {
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string ToUtf8(const QString& text) {
    return text.toStdString();
}

}  // namespace kvopt
