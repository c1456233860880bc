#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/scripted/user_step.h"

namespace kvopt {

/// What a user does in front of the pages, and what must then be seen, in order. A value: it knows
/// no desktop and is not used up by playing it.
class KVOPT_EXPORT UserScript {
public:
    UserScript() = default;

    /// Reads a script's text. `source` names it in messages. Throws FileFormatError with the line
    /// at fault, what was expected there and what was found.
    static UserScript FromText(std::string_view text, std::string source = "script");
    /// Reads a script file (UTF-8). Throws FileError when it cannot be read, else as FromText.
    static UserScript FromFile(const std::string& path);

    /// Adds a step at the end.
    void Add(UserStep step);
    /// Adds what another script holds.
    void Append(const UserScript& other);

    const std::vector<UserStep>& Steps() const { return steps_; }
    const std::string& Source() const { return source_; }
    /// The script in the language's own spelling, a line a step; reads back to the same steps.
    std::string Text() const;

private:
    std::string source_ = "script";
    std::vector<UserStep> steps_;
};

}  // namespace kvopt
