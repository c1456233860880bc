#include <optional>
#include <string>

#include "fuzz/targets.h"
#include "kvopt/scripted.h"
#include "kvopt/text/exceptions.h"

namespace kvopt::fuzz {

void Script(std::string_view input) {
    std::optional<UserScript> script;
    try {
        script = UserScript::FromText(input);
    } catch (const FileFormatError& error) {
        Require(!error.Place().empty() && !error.Expected().empty() && !error.Found().empty(),
                "an error without place, expectation or finding");
        return;
    }
    const std::string text = script->Text();
    try {
        const UserScript again = UserScript::FromText(text);
        Require(again.Steps().size() == script->Steps().size(), "a script loses or gains steps");
        Require(again.Text() == text, "a script changes when it is read");
    } catch (const FileFormatError&) {
        Require(false, "a script that was printed is refused");
    }
}

}  // namespace kvopt::fuzz
