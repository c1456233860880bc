#include "census/source_tokens.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace kvopt::test {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsWordStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool IsWordPart(char c) {
    return IsWordStart(c) || IsDigit(c);
}

class Scanner {
public:
    Scanner(std::string_view source, const std::string& name) : source_(source), name_(name) {}

    std::vector<Token> Run() {
        while (at_ < source_.size()) {
            Step();
        }
        return std::move(tokens_);
    }

private:
    [[noreturn]] void Fail(const std::string& what) const {
        throw std::runtime_error(name_ + ":" + std::to_string(line_) + ": " + what);
    }

    char Peek(std::size_t ahead = 0) const {
        return at_ + ahead < source_.size() ? source_[at_ + ahead] : '\0';
    }

    void Next() {
        line_ += Peek() == '\n' ? 1 : 0;
        ++at_;
    }

    void Step() {
        const char c = Peek();
        if (c == '/' && Peek(1) == '/') {
            SkipLine();
        } else if (c == '/' && Peek(1) == '*') {
            SkipComment();
        } else if (c == '#' && tokensOnLine_ != line_) {
            SkipDirective();
        } else if (c == '"') {
            TakeLiteral();
        } else if (c == '\'') {
            TakeCharacter();
        } else if (IsDigit(c)) {
            Take(Token::Kind::Number, [this] { return IsWordPart(Peek()) || IsInnerOfNumber(); });
        } else if (IsWordStart(c)) {
            TakeWord();
        } else if (c == ' ' || c == '\n' || c == '\t' || c == '\r') {
            Next();
        } else {
            Add(Token::Kind::Sign, std::string(1, c));
            Next();
        }
    }

    bool IsInnerOfNumber() const {
        return Peek() == '.' || (Peek() == '\'' && IsWordPart(Peek(1)));
    }

    void SkipLine() {
        while (at_ < source_.size() && Peek() != '\n') {
            Next();
        }
    }

    void SkipDirective() {
        while (at_ < source_.size() && Peek() != '\n') {
            if (Peek() == '\\' && Peek(1) == '\n') {
                Next();
            }
            Next();
        }
    }

    void SkipComment() {
        while (at_ < source_.size() && !(Peek() == '*' && Peek(1) == '/')) {
            Next();
        }
        at_ += 2;
    }

    template <class Goes>
    void Take(Token::Kind kind, const Goes& goes) {
        const std::size_t start = at_;
        while (at_ < source_.size() && goes()) {
            Next();
        }
        Add(kind, std::string(source_.substr(start, at_ - start)));
    }

    void TakeWord() {
        const std::size_t start = at_;
        while (IsWordPart(Peek())) {
            Next();
        }
        const std::string word(source_.substr(start, at_ - start));
        if (Peek() == '"') {
            if (word != "L" && word != "u8") {
                Fail("a literal with the prefix " + word);
            }
            TakeLiteral();
        } else if (Peek() == '\'' && word == "L") {
            TakeCharacter();
        } else {
            Add(Token::Kind::Word, word);
        }
    }

    std::string Inside(char quote) {
        std::string text;
        Next();
        while (Peek() != quote) {
            if (at_ >= source_.size() || Peek() == '\n') {
                Fail("a literal that does not end");
            }
            if (Peek() == '\\') {
                Next();
                text += Unescaped(Peek());
            } else {
                text += Peek();
            }
            Next();
        }
        Next();
        return text;
    }

    char Unescaped(char c) const {
        const std::string_view letters = "ntrvf0\\\"'";
        const std::string_view meant("\n\t\r\v\f\0\\\"'", 9);
        const std::size_t place = letters.find(c);
        // Universal and hexadecimal escapes count as one character that is no letter.
        return place == std::string_view::npos ? '?' : meant[place];
    }

    void TakeLiteral() {
        const std::string text = Inside('"');
        const bool joins = !tokens_.empty() && tokens_.back().kind == Token::Kind::Literal;
        if (joins) {
            tokens_.back().text += text;
        } else {
            Add(Token::Kind::Literal, text);
        }
    }

    void TakeCharacter() { Add(Token::Kind::Number, Inside('\'')); }

    void Add(Token::Kind kind, std::string text) {
        tokens_.push_back({kind, std::move(text), line_});
        tokensOnLine_ = line_;
    }

    std::string_view source_;
    std::string name_;
    std::size_t at_ = 0;
    int line_ = 1;
    int tokensOnLine_ = 0;
    std::vector<Token> tokens_;
};

}  // namespace

std::vector<Token> TokensOf(std::string_view source, const std::string& name) {
    return Scanner(source, name).Run();
}

std::string ReadText(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error(file.string() + " cannot be read");
    }
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::vector<std::filesystem::path> FilesBelow(const std::string& folder,
                                              const std::vector<std::string>& extensions) {
    std::vector<std::filesystem::path> files;
    const auto root = std::filesystem::path(KVOPT_SOURCE_DIR) / folder;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const bool wanted = std::find(extensions.begin(), extensions.end(),
                                      entry.path().extension().string()) != extensions.end();
        if (entry.is_regular_file() && wanted) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string ShortName(const std::filesystem::path& file) {
    return std::filesystem::relative(file, KVOPT_SOURCE_DIR).generic_string();
}

std::size_t ClosingOf(const std::vector<Token>& tokens, std::size_t open) {
    const std::string opens = tokens.at(open).text;
    const std::string closes = opens == "(" ? ")" : opens == "{" ? "}" : "]";
    int depth = 0;
    for (std::size_t at = open; at < tokens.size(); ++at) {
        const bool isSign = tokens[at].kind == Token::Kind::Sign;
        depth += isSign && tokens[at].text == opens ? 1 : 0;
        depth -= isSign && tokens[at].text == closes ? 1 : 0;
        if (depth == 0) {
            return at;
        }
    }
    throw std::runtime_error("a bracket that does not close in line " +
                             std::to_string(tokens[open].line));
}

}  // namespace kvopt::test
