#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "kvopt/stores.h"
#include "kvopt/text.h"

namespace kvopt::test {

/// A folder of the test's own, removed with what is in it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        static int count = 0;
        path_ = std::filesystem::temp_directory_path() /
                ("kvopt-stores-" + std::to_string(::getpid()) + "-" + std::to_string(++count));
        std::filesystem::create_directories(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }

    std::string File(const std::string& name) const { return (path_ / name).string(); }
    std::string Path() const { return path_.string(); }
    /// The names in the folder, sorted.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::filesystem::path path_;
};

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
