#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

/// What happened in front of the user, a line an event, in order. Line breaks inside an event are
/// written as "\n", so that a line stays a line.
class KVOPT_EXPORT Transcript {
public:
    void Add(std::string_view line);
    /// A text between double quotes, as lines of a transcript have it: "\\" before quotes and
    /// backslashes, "\\n" for a line break. UTF-8.
    static std::string Quote(std::wstring_view text);
    const std::vector<std::string>& Lines() const { return lines_; }
    std::string Text() const;
    void Clear() { lines_.clear(); }

private:
    std::vector<std::string> lines_;
};

}  // namespace kvopt
