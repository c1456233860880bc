#include "kvopt/platform/transcript.h"

#include "kvopt/text/kv_std_string.h"

namespace kvopt {

void Transcript::Add(std::string_view line) {
    std::string one;
    for (const char c : line) {
        if (c == '\n') {
            one += "\\n";
        } else {
            one += c;
        }
    }
    lines_.push_back(std::move(one));
}

std::string Transcript::Quote(std::wstring_view text) {
    std::string quoted = "\"";
    for (const char c : KvStdString::ToUtf8(text)) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
        }
        if (c == '\n') {
            quoted += "\\n";
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

std::string Transcript::Text() const {
    std::string text;
    for (const std::string& line : lines_) {
        text += line;
        text += '\n';
    }
    return text;
}

}  // namespace kvopt
