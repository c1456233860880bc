#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>
#include <vector>

#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_string.h"
#include "stores/section_json.h"
#include "stores/section_json_words.h"

namespace kvopt::json {
namespace {

constexpr std::string_view kFormatMember = "kvopt";
constexpr std::string_view kFormat = "sections";
constexpr std::string_view kVersionMember = "version";
constexpr std::uint64_t kVersion = 1;
constexpr std::string_view kNameMember = "name";
constexpr std::string_view kNumberMember = "number";
constexpr std::string_view kKeysMember = "keys";
constexpr std::string_view kSectionsMember = "sections";
constexpr std::string_view kBytesMember = "bytes";

bool IsValueOf(KeyType type, const std::string& text) {
    int integer = 0;
    double real = 0.0;
    switch (type) {
        case KeyType::Bool:
            return text == "true" || text == "false";
        case KeyType::Int:
            return KvString::ToInt(text, integer);
        case KeyType::Double:
            return KvString::FromStore(text, real);
        case KeyType::Text:
        case KeyType::Untyped:
            break;
    }
    return true;
}

enum class Place { Document, Section, Keys, Key, Sections, Bytes };

// An element that was begun and not ended yet.
struct Frame {
    Place place = Place::Document;
    std::string member;
    std::size_t index = 0;
    // Of a section and of the document.
    std::unique_ptr<SectionNode> section;
    std::optional<std::string> name;
    int number = 1;
    bool hasFormat = false;
    bool hasVersion = false;
    // Of a key: name, type, value.
    std::vector<std::string> parts;
};

// Receives the parser's events. Sections are built apart and hung into the one around them when
// they end, so that their members may stand in any order.
class Reader {
public:
    using number_integer_t = nlohmann::json::number_integer_t;
    using number_unsigned_t = nlohmann::json::number_unsigned_t;
    using number_float_t = nlohmann::json::number_float_t;
    using string_t = nlohmann::json::string_t;
    using binary_t = nlohmann::json::binary_t;

    Reader(std::string_view text, std::string_view fileName) : text_(text), fileName_(fileName) {}

    std::unique_ptr<SectionNode> TakeRoot() { return std::move(root_); }

    // Ends what was begun.
    std::unique_ptr<SectionNode> TakeWhatIsThere() {
        while (!frames_.empty()) {
            Frame frame = std::move(frames_.back());
            frames_.pop_back();
            if (frame.place == Place::Section && frame.name && !IsTaken(frame)) {
                HangIn(frame);
            } else if (frame.place == Place::Document && frame.hasFormat && frame.hasVersion) {
                root_ = std::move(frame.section);
            }
        }
        return root_ != nullptr ? std::move(root_) : std::make_unique<SectionNode>("", 1, nullptr);
    }

    bool null() { Fail("null"); }
    bool boolean(bool value) { Fail(value ? "true" : "false"); }
    bool number_integer(number_integer_t value) { Fail(std::to_string(value)); }
    bool number_float(number_float_t /*value*/, const string_t& text) { Fail(text); }
    bool binary(binary_t& /*value*/) { Fail("binary data"); }

    bool number_unsigned(number_unsigned_t value) {
        Frame* const frame = Top();
        if (frame != nullptr && frame->place == Place::Document &&
            frame->member == kVersionMember && value == kVersion) {
            frame->hasVersion = true;
        } else if (frame != nullptr && frame->place == Place::Section &&
                   frame->member == kNumberMember && value >= 1 && value <= INT_MAX) {
            frame->number = static_cast<int>(value);
        } else {
            Fail(std::to_string(value));
        }
        return true;
    }

    bool string(string_t& value) {
        Frame* const frame = Top();
        if (frame != nullptr && frame->place == Place::Bytes) {
            frame->name = FromHex(value);
        } else {
            Take(value);
        }
        return true;
    }

    bool start_object(std::size_t /*size*/) {
        Frame next;
        const Frame* const frame = Top();
        if (frame == nullptr) {
            next.section = std::make_unique<SectionNode>("", 1, nullptr);
        } else if (frame->place == Place::Sections) {
            if (frames_.size() > 2 * kDeepestSection) {
                Fail("more than " + std::to_string(kDeepestSection) + " levels");
            }
            next.place = Place::Section;
            next.section = std::make_unique<SectionNode>("", 1, nullptr);
        } else if (frame->place == Place::Key ||
                   (frame->place == Place::Section && frame->member == kNameMember)) {
            next.place = Place::Bytes;
        } else {
            Fail("an object");
        }
        frames_.push_back(std::move(next));
        return true;
    }

    bool key(string_t& name) {
        Frame& frame = frames_.back();
        frame.member.clear();
        const bool isKnown =
            frame.place == Place::Document
                ? name == kFormatMember || name == kVersionMember || IsContent(name)
            : frame.place == Place::Section
                ? name == kNameMember || name == kNumberMember || IsContent(name)
                : name == kBytesMember;
        if (!isKnown) {
            Fail("\"" + name + "\"");
        }
        frame.member = name;
        return true;
    }

    bool end_object() {
        Frame frame = std::move(frames_.back());
        frame.member.clear();
        frames_.pop_back();
        switch (frame.place) {
            case Place::Document:
                if (!frame.hasFormat || !frame.hasVersion) {
                    frames_.push_back(std::move(frame));
                    Fail("none of them");
                }
                root_ = std::move(frame.section);
                break;
            case Place::Section:
                HangIn(frame);
                break;
            case Place::Bytes:
                if (!frame.name) {
                    frames_.push_back(std::move(frame));
                    Fail("none");
                }
                Take(*frame.name);
                break;
            case Place::Keys:
            case Place::Key:
            case Place::Sections:
                break;
        }
        return true;
    }

    bool start_array(std::size_t /*size*/) {
        Frame* const frame = Top();
        Frame next;
        if (frame != nullptr && frame->member == kKeysMember) {
            next.place = Place::Keys;
        } else if (frame != nullptr && frame->member == kSectionsMember) {
            next.place = Place::Sections;
        } else if (frame != nullptr && frame->place == Place::Keys) {
            next.place = Place::Key;
        } else {
            Fail("an array");
        }
        frames_.push_back(std::move(next));
        return true;
    }

    bool end_array() {
        if (frames_.back().place == Place::Key) {
            TakeKey();
            frames_.pop_back();
            ++frames_.back().index;
        } else {
            frames_.pop_back();
        }
        return true;
    }

    bool parse_error(std::size_t position, const std::string& /*token*/,
                     const nlohmann::json::exception& error) {
        const std::string_view before =
            text_.substr(0, std::min(position > 0 ? position - 1 : 0, text_.size()));
        const auto line = std::count(before.begin(), before.end(), '\n') + 1;
        const std::size_t lineStart = before.rfind('\n') + 1;
        const std::string place = "line " + std::to_string(line) + ", column " +
                                  std::to_string(before.size() - lineStart + 1);
        // The parser's text names what it waited for after "expected", where it knows.
        const std::string_view what = error.what();
        const std::size_t expected = what.rfind("expected ");
        const bool isKnown = expected != std::string_view::npos && !EndsUnexpected(what, expected);
        throw FileFormatError(
            fileName_, place,
            isKnown ? std::string(what.substr(expected + std::string_view("expected ").size()))
                    : std::string("JSON"),
            before.size() == text_.size() ? "the end of the file"
                                          : Quoted(text_.substr(before.size())));
    }

private:
    static bool EndsUnexpected(std::string_view what, std::size_t at) {
        return at >= 2 && what.substr(at - 2, 2) == "un";
    }

    static bool IsContent(std::string_view member) {
        return member == kKeysMember || member == kSectionsMember;
    }

    Frame* Top() { return frames_.empty() ? nullptr : &frames_.back(); }

    // A text where one may stand: the format, a section's name, a part of a key.
    void Take(std::string& value) {
        Frame* const frame = Top();
        if (frame != nullptr && frame->place == Place::Key && frame->parts.size() < 3) {
            frame->parts.push_back(std::move(value));
            ++frame->index;
        } else if (frame != nullptr && frame->place == Place::Section &&
                   frame->member == kNameMember) {
            frame->name = std::move(value);
        } else if (frame != nullptr && frame->place == Place::Document &&
                   frame->member == kFormatMember && value == kFormat) {
            frame->hasFormat = true;
        } else {
            Fail(Quoted(value));
        }
    }

    void TakeKey() {
        Frame& frame = frames_.back();
        if (frame.parts.size() < 3) {
            Fail(std::to_string(frame.parts.size()) + " of them");
        }
        frame.index = 1;
        const auto* const type =
            std::find_if(kTypes.begin(), kTypes.end(),
                         [&](const NamedType& t) { return t.name == frame.parts[1]; });
        if (type == kTypes.end()) {
            FailExpecting("\"bool\", \"int\", \"double\" or \"text\"", Quoted(frame.parts[1]));
        }
        frame.index = 2;
        if (!IsValueOf(type->type, frame.parts[2])) {
            FailExpecting("a value of the type \"" + std::string(type->name) + "\"",
                          Quoted(frame.parts[2]));
        }
        SectionNode& section = *frames_[frames_.size() - 3].section;
        frame.index = 0;
        if (section.FindKey(frame.parts[0]) != nullptr) {
            FailExpecting("a key that the section does not hold yet", Quoted(frame.parts[0]));
        }
        StoredKey& key = section.OpenKey(frame.parts[0]);
        key.type = type->type;
        key.text = std::move(frame.parts[2]);
    }

    // The section that the one of the frame, which is off the list already, goes into.
    SectionNode& Around() const { return *frames_[frames_.size() - 2].section; }

    bool IsTaken(const Frame& frame) const {
        return Around().FindChild(*frame.name, frame.number) != nullptr;
    }

    void HangIn(Frame& frame) {
        if (!frame.name) {
            FailExpecting("a section with a \"name\"", "one without");
        }
        if (IsTaken(frame)) {
            FailExpecting("a name and number that no section beside it has",
                          Quoted(*frame.name) + ", " + std::to_string(frame.number));
        }
        Around().AdoptChild(std::move(frame.section), std::move(*frame.name), frame.number);
        ++frames_.back().index;
    }

    std::string FromHex(const std::string& hex) {
        std::string bytes;
        for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
            const std::size_t high = kHexDigits.find(hex[i]);
            const std::size_t low = kHexDigits.find(hex[i + 1]);
            if (high == std::string_view::npos || low == std::string_view::npos) {
                break;
            }
            bytes += static_cast<char>(high * 16 + low);
        }
        if (bytes.size() * 2 != hex.size()) {
            Fail(Quoted(hex));
        }
        return bytes;
    }

    // Texts of the file in an error: short and without what a terminal or a box would not show.
    static std::string Printable(std::string_view text) {
        constexpr std::size_t kLongest = 60;
        std::string printable;
        for (const char c : text.substr(0, kLongest)) {
            printable += static_cast<unsigned char>(c) < 0x20 || c == '\x7F' ? '?' : c;
        }
        return printable + (text.size() > kLongest ? "..." : "");
    }

    static std::string Quoted(std::string_view text) { return "\"" + Printable(text) + "\""; }

    std::string Path() const {
        std::string path;
        for (const Frame& frame : frames_) {
            if (frame.place == Place::Keys || frame.place == Place::Key ||
                frame.place == Place::Sections) {
                path += '/' + std::to_string(frame.index);
            } else if (!frame.member.empty()) {
                path += '/' + frame.member;
            }
        }
        return path.empty() ? "the document" : path;
    }

    std::string Expected() const {
        if (frames_.empty()) {
            return "an object";
        }
        const Frame& frame = frames_.back();
        switch (frame.place) {
            case Place::Document:
                if (frame.member.empty()) {
                    return "\"kvopt\", \"version\", \"keys\" and \"sections\"";
                }
                break;
            case Place::Section:
                if (frame.member.empty()) {
                    return "\"name\", \"number\", \"keys\" and \"sections\"";
                }
                break;
            case Place::Keys:
                return "an array of name, type and value";
            case Place::Key:
                return "three texts: name, type and value";
            case Place::Sections:
                return "an object, at most " + std::to_string(kDeepestSection) + " levels deep";
            case Place::Bytes:
                return "\"bytes\" with pairs of the digits 0-9 and a-f";
        }
        if (frame.member == kFormatMember) {
            return "\"sections\"";
        }
        if (frame.member == kVersionMember) {
            return "version 1";
        }
        if (frame.member == kNameMember) {
            return "a text";
        }
        return frame.member == kNumberMember ? "a number from 1 up" : "an array";
    }

    [[noreturn]] void Fail(const std::string& found) const { FailExpecting(Expected(), found); }

    [[noreturn]] void FailExpecting(const std::string& expected, const std::string& found) const {
        throw FileFormatError(fileName_, Path(), expected, found);
    }

    std::string_view text_;
    std::string_view fileName_;
    std::vector<Frame> frames_;
    std::unique_ptr<SectionNode> root_;
};

}  // namespace

std::unique_ptr<SectionNode> Parse(std::string_view text, std::string_view fileName) {
    Reader reader(text, fileName);
    nlohmann::json::sax_parse(text.begin(), text.end(), &reader);
    return reader.TakeRoot();
}

std::unique_ptr<SectionNode> ParseWhatIsReadable(std::string_view text) {
    Reader reader(text, "");
    try {
        nlohmann::json::sax_parse(text.begin(), text.end(), &reader);
    } catch (const FileFormatError&) {
        return reader.TakeWhatIsThere();
    }
    return reader.TakeRoot();
}

}  // namespace kvopt::json
