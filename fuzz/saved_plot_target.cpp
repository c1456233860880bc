#include <optional>
#include <string>

#include "fuzz/targets.h"
#include "kvopt/text/exceptions.h"
#include "src/stores/section_json.h"

namespace kvopt::fuzz {
namespace {

std::optional<ConfigurationStore> Parsed(std::string_view text) {
    try {
        return ConfigurationStore::Parse(text, "x.json");
    } catch (const FileFormatError& error) {
        Require(!error.Place().empty() && !error.Expected().empty() && !error.Found().empty(),
                "an error without place, expectation or finding");
        return std::nullopt;
    }
}

}  // namespace

void SavedPlot(std::string_view input) {
    const std::string readable = json::Print(*json::ParseWhatIsReadable(input));
    const std::optional<ConfigurationStore> recovered = Parsed(readable);
    Require(recovered && recovered->Text() == readable, "what was recovered is no saved plot");
    const std::optional<ConfigurationStore> store = Parsed(input);
    if (!store) {
        return;
    }
    Require(store->Text() == readable, "a good saved plot is not recovered whole");
    ReadEverything(*store->Root());
}

}  // namespace kvopt::fuzz
