#include "kvopt/scripted/user_script.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>

#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_std_string.h"
#include "scripted/script_parser.h"

namespace kvopt {

namespace {

std::string Place(int line, std::size_t column) {
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    return line;
}

}  // namespace

UserScript UserScript::FromText(std::string_view text, std::string source) {
    UserScript script;
    script.source_ = std::move(source);
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
        text.remove_prefix(kByteOrderMark.size());
    }
    for (int number = 1; !text.empty(); ++number) {
        const std::string_view line = TakeLine(text);
        if (KvStdString::ToUtf8(KvStdString::ToWide(line)) != line) {
            throw FileFormatError(script.source_, Place(number, 1), "UTF-8", "other bytes");
        }
        try {
            if (std::optional<UserStep> step = ScriptParser(line).Parse()) {
                step->line = number;
                script.steps_.push_back(std::move(*step));
            }
        } catch (const ScriptFault& fault) {
            throw FileFormatError(script.source_, Place(number, fault.column), fault.expected,
                                  fault.found);
        }
    }
    return script;
}

UserScript UserScript::FromFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    // A folder opens, and fails at the first byte.
    if (!file || (file.peek(), file.bad())) {
        throw FileError(path, "the file cannot be read");
    }
    std::ostringstream text;
    text << file.rdbuf();
    return FromText(text.str(), path);
}

void UserScript::Add(UserStep step) {
    steps_.push_back(std::move(step));
}

void UserScript::Append(const UserScript& other) {
    steps_.insert(steps_.end(), other.steps_.begin(), other.steps_.end());
}

std::string UserScript::Text() const {
    std::string text;
    for (const UserStep& step : steps_) {
        text += step.Text() + '\n';
    }
    return text;
}

}  // namespace kvopt
