#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kvopt {

/// A word of a script line: bare, or in quotes with its escapes resolved.
struct ScriptWord {
    std::string text;
    bool quoted = false;
    std::size_t column = 1;  ///< in bytes, from 1

    /// True for the bare word `text`; a quoted one is never a keyword.
    bool Is(std::string_view keyword) const { return !quoted && text == keyword; }
};

/// What is wrong with a line, before it is known which file it stands in.
struct ScriptFault {
    std::size_t column = 1;
    std::string expected;
    std::string found;
};

/// The words of one line, up to a "#" outside quotes. Throws ScriptFault.
std::vector<ScriptWord> SplitScriptLine(std::string_view line);

/// A text in quotes, as SplitScriptLine reads it back.
std::string QuoteForScript(std::string_view text);
/// Texts in quotes with commas between them; "none" without one.
std::string QuoteForScript(const std::vector<std::string>& texts);

}  // namespace kvopt
