#include <string>

#include "fuzz/targets.h"
#include "kvopt/text/exceptions.h"
#include "src/stores/ini_text.h"

namespace kvopt::fuzz {
namespace {

std::string Printed(const ini::Document& document) {
    return ini::Print(*document.root, document.tail);
}

// A text that was written by the printer is read, and printed as it stands.
void RequireStable(const std::string& text) {
    Require(Printed(ini::Parse(text, "x.ini")) == text, "an ini text changes when it is read");
}

}  // namespace

void IniFile(std::string_view input) {
    const std::string readable = Printed(ini::ParseWhatIsReadable(input));
    RequireStable(readable);
    try {
        Require(Printed(ini::Parse(input, "x.ini")) == readable,
                "a good ini text is not recovered whole");
    } catch (const FileFormatError& error) {
        Require(!error.Place().empty() && !error.Expected().empty() && !error.Found().empty(),
                "an error without place, expectation or finding");
    }
}

}  // namespace kvopt::fuzz
