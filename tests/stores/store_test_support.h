#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/stores.h"
#include "kvopt/text.h"
#include "tests/support/temporary_folder.h"

namespace kvopt::test {

/// How much of something a test does: as told by a variable of the environment, or else little
/// enough for every day.
inline int AmountOf(const char* variable, int usual) {
    const char* const text = std::getenv(variable);
    int amount = usual;
    if (text != nullptr) {
        KvString::ToInt(text, amount);
    }
    return amount;
}

inline std::string Slurp(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void Spill(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

/// Collects what the stores tell the host while it lives.
class TroubleRecorder {
public:
    TroubleRecorder()
        : former_(SetStoreTroubleHandler(
              [this](const StoreTrouble& trouble) { troubles.push_back(trouble); })) {}
    TroubleRecorder(const TroubleRecorder&) = delete;
    TroubleRecorder& operator=(const TroubleRecorder&) = delete;
    ~TroubleRecorder() { SetStoreTroubleHandler(std::move(former_)); }

    std::vector<StoreTrouble> troubles;

private:
    StoreTroubleHandler former_;
};

/// Texts that some store somewhere has lost: each has to come back exactly as section, as key and
/// as value.
struct NastyText {
    const char* label;
    std::string text;
};

inline std::vector<NastyText> NastyTexts() {
    return {
        {"Plain", "Temperature"},
        {"Empty", ""},
        {"OneBlank", " "},
        {"BlankBefore", " Speed"},
        {"BlankAfter", "Speed "},
        {"BlanksBoth", "  Speed  "},
        {"BlankInside", "Flow rate"},
        {"TabBefore", "\tSpeed"},
        {"TabAfter", "Speed\t"},
        {"TabInside", "a\tb"},
        {"Equals", "a=b"},
        {"EqualsOnly", "="},
        {"Semicolon", "Low;High"},
        {"SemicolonFirst", ";comment"},
        {"NumberMark", "Constant;2"},
        {"Hash", "#1"},
        {"HashInside", "a # b"},
        {"OpenBracket", "[a"},
        {"CloseBracket", "a]b"},
        {"Brackets", "[a][b]"},
        {"Quoted", "\"quoted\""},
        {"QuoteFirst", "\"a"},
        {"Apostrophe", "'a'"},
        {"Percent", "%"},
        {"PercentEscape", "%20"},
        {"PercentDouble", "%%"},
        {"PercentUnit", "10 % of half"},
        {"Slash", "m/s"},
        {"SlashFirst", "/a"},
        {"Dot", "pH 7.5"},
        {"DotFirst", ".hidden"},
        {"Backslash", "a\\b"},
        {"BackslashLast", "a\\"},
        {"BackslashN", "a\\nb"},
        {"LineFeed", "a\nb"},
        {"LineFeedLast", "a\n"},
        {"CarriageReturn", "a\rb"},
        {"CrLf", "a\r\nb"},
        {"Header", "a\n[b]\nc=d"},
        {"Control", std::string("\x01\x1b\x1f")},
        {"Delete", std::string("a\x7f") + "b"},
        {"BlankAfterLineFeed", "\n "},
        {"Latin", "Grad °C Öl"},
        {"Greek", "µ σ Δ"},
        {"Chinese", "温度"},
        {"Emoji", "\xF0\x9F\x98\x80"},
        {"Combining", "e\xCC\x81"},
        {"RightToLeft", "حرارة"},
        {"LineSeparator",
         "a\xE2\x80\xA8"
         "b"},
        {"NoBreakSpace",
         "\xC2\xA0"
         "a\xC2\xA0"},
        {"ByteOrderMark",
         "\xEF\xBB\xBF"
         "a"},
        {"InvalidByte",
         "a\xFF"
         "b"},
        {"CutCharacter", "a\xE2\x82"},
        {"Overlong", "\xC0\x80"},
        {"Surrogate", "\xED\xA0\x80"},
        {"BeyondUnicode", "\xF4\x90\x80\x80"},
        {"LooksLikeNumber", "007"},
        {"LooksLikeBool", "true"},
        {"LooksLikeReal", "1,5"},
        {"Brace", "{\"bytes\": \"00\"}"},
        {"UnusedAxis", "Not used"},
        {"Block", "$BlockV"},
        {"Long", std::string(5000, 'x') + "=" + std::string(5000, ' ')},
    };
}

}  // namespace kvopt::test
