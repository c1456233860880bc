#include "stores/ini_text.h"

#include <array>
#include <cstddef>
#include <utility>

#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_string.h"
#include "text/utf8.h"

namespace kvopt::ini {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t";
// Which bytes are copied as they stand wherever they are in a text.
class PlainBytes {
public:
    explicit constexpr PlainBytes(std::string_view escaped) {
        for (std::size_t byte = 0x21; byte < 0x7F; ++byte) {
            isPlain_[byte] = escaped.find(static_cast<char>(byte)) == std::string_view::npos;
        }
    }

    constexpr bool Has(char c) const { return isPlain_[static_cast<unsigned char>(c)]; }

private:
    std::array<bool, 256> isPlain_{};
};

constexpr PlainBytes kPlainInNames("%=;#[]\"\\");
constexpr PlainBytes kPlainInValues("%");
constexpr PlainBytes kPlainInErrors("");

void AppendEscape(std::string& text, char byte) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    text += '%';
    text += kDigits[value >> 4U];
    text += kDigits[value & 0xFU];
}

// Copies what needs no escape in runs. A space is plain but at the ends, and so is a character
// beyond ASCII but for a byte order mark in a name.
void AppendEscaped(std::string& text, std::string_view raw, const PlainBytes& plain,
                   bool escapeMarks) {
    const std::size_t size = raw.size();
    std::size_t copied = 0;
    std::size_t i = 0;
    while (i < size) {
        const char c = raw[i];
        if (plain.Has(c) || (c == ' ' && i > 0 && i + 1 < size)) {
            ++i;
            continue;
        }
        std::size_t length = 1;
        if (static_cast<unsigned char>(c) >= 0x80) {
            const std::string_view rest = raw.substr(i);
            const utf8::Character character = utf8::Decode(rest);
            const bool isMark =
                escapeMarks && rest.substr(0, kByteOrderMark.size()) == kByteOrderMark;
            if (character.length > 0 && !isMark) {
                i += character.length;
                continue;
            }
            length = isMark ? kByteOrderMark.size() : 1;
        }
        text.append(raw, copied, i - copied);
        for (const char byte : raw.substr(i, length)) {
            AppendEscape(text, byte);
        }
        i += length;
        copied = i;
    }
    text.append(raw, copied, size - copied);
}

int HexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string UnescapeName(std::string_view text) {
    return text == "%" ? std::string() : Unescape(text);
}

class Parser {
public:
    Parser(std::string_view text, std::string_view fileName) : text_(text), fileName_(fileName) {}

    Document Parse() {
        root_ = std::make_unique<SectionNode>("", 1, nullptr);
        section_ = root_.get();
        std::size_t at = text_.substr(0, kByteOrderMark.size()) == kByteOrderMark ? 3 : 0;
        above_ = at;
        while (at < text_.size()) {
            ++lineNumber_;
            const std::size_t end = text_.find('\n', at);
            const std::size_t next = end == std::string_view::npos ? text_.size() : end + 1;
            ReadLine(at, next);
            at = next;
        }
        return {std::move(root_), text_.substr(above_)};
    }

private:
    // A line with its end; the end is left off what is read from it.
    void ReadLine(std::size_t begin, std::size_t end) {
        const std::string_view line = text_.substr(begin, end - begin);
        std::string_view content = line;
        if (!content.empty() && content.back() == '\n') {
            content.remove_suffix(1);
        }
        if (!content.empty() && content.back() == '\r') {
            content.remove_suffix(1);
        }
        if (content.find('\0') != std::string_view::npos) {
            Fail("text", "a NUL character");
        }
        content = Trim(content);
        if (content.empty() || content.front() == ';' || content.front() == '#') {
            return;
        }
        const std::string_view linesAbove = text_.substr(above_, begin - above_);
        above_ = end;
        if (content.front() == '[') {
            ReadHeader(content);
            if (section_->hasHeader) {
                // A section that stands twice is joined; the lines above its second header stay.
                section_->linesBelow += linesAbove;
            } else {
                section_->line = line;
                section_->linesAbove = linesAbove;
                section_->hasHeader = true;
            }
            return;
        }
        const std::size_t equals = content.find('=');
        if (equals == std::string_view::npos) {
            Fail("a section, a key with \"=\" or a comment", Quote(content));
        }
        StoredKey& key = section_->OpenKey(UnescapeName(Trim(content.substr(0, equals))));
        if (!key.line.empty()) {
            // Of a key that stands twice the later counts; the earlier line stays in the file.
            section_->linesBelow += key.linesAbove;
            section_->linesBelow += key.line;
        }
        key.type = KeyType::Untyped;
        key.text = Unescape(Trim(content.substr(equals + 1)));
        key.line = line;
        key.linesAbove = linesAbove;
    }

    void ReadHeader(std::string_view rest) {
        section_ = root_.get();
        std::size_t depth = 0;
        while (!rest.empty()) {
            if (++depth > kDeepestSection) {
                Fail("at most " + std::to_string(kDeepestSection) + " names", "more");
            }
            const std::size_t close = rest.find(']');
            if (rest.front() != '[' || close == std::string_view::npos) {
                Fail("\"[\", a name and \"]\"", Quote(rest));
            }
            std::string_view name = rest.substr(1, close - 1);
            int number = 1;
            const std::size_t mark = name.find(';');
            if (mark != std::string_view::npos) {
                if (!KvString::ToInt(name.substr(mark + 1), number) || number < 1) {
                    Fail("a number from 1 up after \";\"", Quote(name.substr(mark + 1)));
                }
                name = name.substr(0, mark);
            }
            section_ = &section_->OpenChild(UnescapeName(Trim(name)), number);
            rest = Trim(rest.substr(close + 1));
        }
    }

    static std::string Quote(std::string_view text) {
        constexpr std::size_t kLongest = 60;
        std::string quoted = "\"";
        AppendEscaped(quoted, text.substr(0, kLongest), kPlainInErrors, false);
        return quoted + (text.size() > kLongest ? "...\"" : "\"");
    }

    [[noreturn]] void Fail(std::string_view expected, std::string_view found) const {
        throw FileFormatError(fileName_, "line " + std::to_string(lineNumber_), expected, found);
    }

    std::string_view text_;
    std::string_view fileName_;
    std::unique_ptr<SectionNode> root_;
    SectionNode* section_ = nullptr;
    int lineNumber_ = 0;
    // Where the comment and blank lines begin that stand above the next key or header.
    std::size_t above_ = 0;
};

// A line that was read may be the last of its file, without an end.
void AppendLines(std::string& text, std::string_view lines) {
    text += lines;
    if (!text.empty() && text.back() != '\n') {
        text += '\n';
    }
}

// `header` is the section's own; it is put back before the return.
void PrintSection(std::string& text, const SectionNode& section, std::string& header) {
    const bool isRoot = section.Parent() == nullptr;
    if (!isRoot && (section.hasHeader || section.isNew || !section.Keys().empty())) {
        AppendLines(text, section.linesAbove);
        if (section.line.empty()) {
            text += text.empty() ? "" : "\n";
            text += header;
            text += '\n';
        } else {
            AppendLines(text, section.line);
        }
    }
    AppendLines(text, section.linesBelow);
    for (const StoredKey& key : section.Keys()) {
        AppendLines(text, key.linesAbove);
        if (!key.line.empty()) {
            AppendLines(text, key.line);
            continue;
        }
        AppendName(text, key.name);
        text += '=';
        AppendValue(text, key.text);
        text += '\n';
    }
    for (const std::unique_ptr<SectionNode>& child : section.Children()) {
        const std::size_t length = header.size();
        header += '[';
        AppendName(header, child->Name());
        if (child->Number() != 1) {
            header += ';';
            header += std::to_string(child->Number());
        }
        header += ']';
        PrintSection(text, *child, header);
        header.resize(length);
    }
}

}  // namespace

void AppendName(std::string& text, std::string_view name) {
    if (name.empty()) {
        text += '%';
    } else {
        AppendEscaped(text, name, kPlainInNames, true);
    }
}

void AppendValue(std::string& text, std::string_view value) {
    AppendEscaped(text, value, kPlainInValues, false);
}

std::string Unescape(std::string_view text) {
    std::size_t mark = text.find('%');
    if (mark == std::string_view::npos) {
        return std::string(text);
    }
    std::string raw;
    raw.reserve(text.size());
    std::size_t at = 0;
    while (mark != std::string_view::npos) {
        raw += text.substr(at, mark - at);
        const int high = mark + 2 < text.size() ? HexDigit(text[mark + 1]) : -1;
        const int low = high >= 0 ? HexDigit(text[mark + 2]) : -1;
        if (low >= 0) {
            raw += static_cast<char>(high * 16 + low);
            at = mark + 3;
        } else {
            raw += '%';
            at = mark + 1;
        }
        mark = text.find('%', at);
    }
    raw += text.substr(at);
    return raw;
}

Document Parse(std::string_view text, std::string_view fileName) {
    return Parser(text, fileName).Parse();
}

std::string Print(const SectionNode& root, std::string_view tail) {
    std::string text;
    std::string header;
    PrintSection(text, root, header);
    AppendLines(text, tail);
    return text;
}

}  // namespace kvopt::ini
