#include "stores/ini_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

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
        if (static_cast<unsigned char>(c) >= 0x80) {
            const std::string_view rest = raw.substr(i);
            const std::size_t length = utf8::Decode(rest).length;
            const bool isMark =
                escapeMarks && rest.substr(0, kByteOrderMark.size()) == kByteOrderMark;
            if (length > 0 && !isMark) {
                i += length;
                continue;
            }
        }
        // Without its first byte the rest of a mark is no UTF-8, and is escaped in its turn.
        text.append(raw, copied, i - copied);
        AppendEscape(text, c);
        ++i;
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

    Document Parse(bool passOverDamage) {
        root_ = std::make_unique<SectionNode>("", 1, nullptr);
        section_ = root_.get();
        std::size_t at = text_.substr(0, kByteOrderMark.size()) == kByteOrderMark ? 3 : 0;
        above_ = at;
        while (at < text_.size()) {
            ++lineNumber_;
            const std::size_t end = text_.find('\n', at);
            const std::size_t next = end == std::string_view::npos ? text_.size() : end + 1;
            if (const std::optional<Damage> damage = ReadLine(at, next)) {
                if (!passOverDamage) {
                    throw FileFormatError(
                        fileName_, "line " + std::to_string(lineNumber_), damage->expected,
                        damage->isQuoted ? Quote(damage->found) : std::string(damage->found));
                }
                PassOver(at, next);
            }
            at = next;
        }
        return {std::move(root_), text_.substr(above_)};
    }

private:
    // Why a line cannot be read. A damaged text can hold many such lines, so they are told and not
    // thrown, and the text for a person is made only when one is thrown.
    struct Damage {
        std::string_view expected;
        std::string_view found;
        // What was found is a part of the line.
        bool isQuoted = true;
    };

    // Of a line with its end, what is read from it.
    static std::string_view ContentOf(std::string_view line) {
        if (!line.empty() && line.back() == '\n') {
            line.remove_suffix(1);
        }
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        return line;
    }

    void PassOver(std::size_t begin, std::size_t end) {
        if (Trim(ContentOf(text_.substr(begin, end - begin))).substr(0, 1) == "[") {
            section_ = nullptr;
        }
        above_ = end;
    }

    std::optional<Damage> ReadLine(std::size_t begin, std::size_t end) {
        const std::string_view line = text_.substr(begin, end - begin);
        std::string_view content = ContentOf(line);
        if (content.find('\0') != std::string_view::npos) {
            return Damage{"text", "a NUL character", false};
        }
        content = Trim(content);
        if (content.empty() || content.front() == ';' || content.front() == '#') {
            return std::nullopt;
        }
        const std::string_view linesAbove = text_.substr(above_, begin - above_);
        above_ = end;
        if (content.front() == '[') {
            if (std::optional<Damage> damage = ReadHeader(content)) {
                return damage;
            }
            if (section_->hasHeader) {
                // A section that stands twice is joined; the lines above its second header stay.
                section_->linesBelow += linesAbove;
            } else {
                section_->line = line;
                section_->linesAbove = linesAbove;
                section_->hasHeader = true;
                section_->place = lineNumber_;
            }
            return std::nullopt;
        }
        const std::size_t equals = content.find('=');
        if (equals == std::string_view::npos) {
            return Damage{"a section, a key with \"=\" or a comment", content};
        }
        if (section_ == nullptr) {
            return std::nullopt;
        }
        StoredKey& key = section_->OpenKey(UnescapeName(Trim(content.substr(0, equals))));
        if (!key.line.empty()) {
            // Of a key that stands twice the later counts; the earlier line stays in the file.
            key.earlierLines += key.linesAbove;
            key.earlierLines += key.line;
        }
        key.type = KeyType::Untyped;
        key.text = Unescape(Trim(content.substr(equals + 1)));
        key.line = line;
        key.linesAbove = linesAbove;
        return std::nullopt;
    }

    // The sections are made when the whole header was read.
    std::optional<Damage> ReadHeader(std::string_view rest) {
        steps_.clear();
        while (!rest.empty()) {
            if (steps_.size() == kDeepestSection) {
                static_assert(kDeepestSection == 100);
                return Damage{"at most 100 names", "more", false};
            }
            const std::size_t close = rest.find(']');
            if (rest.front() != '[' || close == std::string_view::npos) {
                return Damage{"\"[\", a name and \"]\"", rest};
            }
            std::string_view name = rest.substr(1, close - 1);
            int number = 1;
            const std::size_t mark = name.find(';');
            if (mark != std::string_view::npos) {
                if (!KvString::ToInt(name.substr(mark + 1), number) || number < 1) {
                    return Damage{"a number from 1 up after \";\"", name.substr(mark + 1)};
                }
                name = name.substr(0, mark);
            }
            steps_.emplace_back(name, number);
            rest = Trim(rest.substr(close + 1));
        }
        section_ = root_.get();
        for (const auto& [name, number] : steps_) {
            section_ = &section_->OpenChild(UnescapeName(Trim(name)), number);
        }
        return std::nullopt;
    }

    static std::string Quote(std::string_view text) {
        constexpr std::size_t kLongest = 60;
        std::string quoted = "\"";
        AppendEscaped(quoted, text.substr(0, kLongest), kPlainInErrors, false);
        return quoted + (text.size() > kLongest ? "...\"" : "\"");
    }

    std::string_view text_;
    std::string_view fileName_;
    std::unique_ptr<SectionNode> root_;
    // Null below a header that cannot be read.
    SectionNode* section_ = nullptr;
    std::vector<std::pair<std::string_view, int>> steps_;
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

// A section that has a header to print, and where.
struct Placed {
    const SectionNode* section;
    int place;
};

// The places that the sections at and below one had in the file; 0 where none had any.
struct Extent {
    int first = 0;
    int last = 0;

    void Add(int place) {
        if (place != 0) {
            first = first == 0 ? place : std::min(first, place);
            last = std::max(last, place);
        }
    }
};

// A section that stood in the file keeps its place there, which need not be beside the one around
// it. A new one stands before what lies inside it, after what lies beside it in the same section,
// or else at the place given.
Extent Place(const SectionNode& section, int otherwise, std::vector<Placed>& sections) {
    const std::size_t index = sections.size();
    const bool isPrinted = section.Parent() != nullptr &&
                           (section.hasHeader || section.isNew || !section.Keys().empty());
    if (isPrinted) {
        sections.push_back({&section, section.place});
    }
    Extent extent;
    extent.Add(section.place);
    for (const std::unique_ptr<SectionNode>& child : section.Children()) {
        const int beside = extent.last == 0 ? otherwise : extent.last;
        const Extent inside = Place(*child, beside, sections);
        extent.Add(inside.first);
        extent.Add(inside.last);
    }
    if (isPrinted && section.place == 0) {
        sections[index].place = extent.first != 0 ? extent.first : otherwise;
    }
    return extent;
}

void AppendHeader(std::string& text, const SectionNode& section) {
    if (section.Parent() == nullptr) {
        return;
    }
    AppendHeader(text, *section.Parent());
    text += '[';
    AppendName(text, section.Name());
    if (section.Number() != 1) {
        text += ';';
        text += std::to_string(section.Number());
    }
    text += ']';
}

void PrintKeys(std::string& text, const SectionNode& section) {
    AppendLines(text, section.linesBelow);
    for (const StoredKey& key : section.Keys()) {
        AppendLines(text, key.earlierLines);
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
}

void PrintSection(std::string& text, const SectionNode& section) {
    AppendLines(text, section.linesAbove);
    if (section.line.empty()) {
        text += text.empty() ? "" : "\n";
        AppendHeader(text, section);
        text += '\n';
    } else {
        AppendLines(text, section.line);
    }
    PrintKeys(text, section);
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
    return Parser(text, fileName).Parse(false);
}

Document ParseWhatIsReadable(std::string_view text) {
    return Parser(text, "").Parse(true);
}

std::string Print(const SectionNode& root, std::string_view tail) {
    constexpr int kAtTheEnd = std::numeric_limits<int>::max();
    std::vector<Placed> sections;
    Place(root, kAtTheEnd, sections);
    std::stable_sort(sections.begin(), sections.end(),
                     [](const Placed& a, const Placed& b) { return a.place < b.place; });
    std::string text;
    PrintKeys(text, root);
    for (const Placed& placed : sections) {
        PrintSection(text, *placed.section);
    }
    AppendLines(text, tail);
    if (text.compare(0, kByteOrderMark.size(), kByteOrderMark) == 0) {
        // A mark that belongs to a name would be taken for that of the file.
        text.insert(0, kByteOrderMark);
    }
    return text;
}

}  // namespace kvopt::ini
