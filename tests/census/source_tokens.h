#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kvopt::test {

/// A piece of C++ source: comments, blanks and preprocessor lines are gone.
struct Token {
    enum class Kind { Word, Number, Literal, Sign };
    Kind kind = Kind::Sign;
    /// A literal's characters as the compiler reads them, neighbouring literals joined.
    std::string text;
    int line = 0;
};

/// The tokens of a source. Knows simple escapes and no raw literals: it throws for what it does not
/// know, so that nothing passes unread.
std::vector<Token> TokensOf(std::string_view source, const std::string& name);

std::string ReadText(const std::filesystem::path& file);

/// Every file with one of the extensions below a folder of the project, sorted.
std::vector<std::filesystem::path> FilesBelow(const std::string& folder,
                                              const std::vector<std::string>& extensions);

/// The path as a person names it: from the project's folder on.
std::string ShortName(const std::filesystem::path& file);

/// The index of the sign that closes the bracket at `open`.
std::size_t ClosingOf(const std::vector<Token>& tokens, std::size_t open);

}  // namespace kvopt::test
