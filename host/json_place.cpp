#include "host/json_place.h"

#include <cstddef>
#include <nlohmann/json.hpp>
#include <vector>

namespace kvopt {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::vector<std::string> PointerSteps(const std::string& pointer) {
    std::vector<std::string> steps;
    for (std::size_t at = 0; at < pointer.size(); ++at) {
        const char c = pointer[at];
        if (c == '/') {
            steps.emplace_back();
        } else if (c == '~' && at + 1 < pointer.size()) {
            steps.back() += pointer[++at] == '1' ? '/' : '~';
        } else {
            steps.back() += c;
        }
    }
    return steps;
}

/// Walks a text that is known to be valid JSON.
class Walker {
public:
    explicit Walker(std::string_view text) : text_(text) {
        if (text_.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
            at_ = kByteOrderMark.size();
        }
        SkipBlanks();
    }

    std::size_t At() const { return at_; }

    /// Into the member or item of the value at hand; false, and nowhere, when there is none.
    bool Enter(const std::string& step) {
        const std::size_t start = at_;
        const bool isObject = Peek() == '{';
        if (!isObject && Peek() != '[') {
            return false;
        }
        const char end = isObject ? '}' : ']';
        ++at_;
        SkipBlanks();
        for (std::size_t index = 0; Peek() != end; ++index) {
            const std::size_t itemStart = at_;
            bool isWanted = std::to_string(index) == step;
            if (isObject) {
                SkipString();
                isWanted = nlohmann::json::parse(text_.substr(itemStart, at_ - itemStart)) == step;
                SkipBlanks();
                ++at_;
                SkipBlanks();
            }
            if (isWanted) {
                return true;
            }
            SkipValue();
            SkipBlanks();
            if (Peek() == ',') {
                ++at_;
                SkipBlanks();
            }
        }
        at_ = start;
        return false;
    }

private:
    char Peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }

    void SkipBlanks() {
        while (at_ < text_.size() && std::string_view(" \t\r\n").find(text_[at_]) != text_.npos) {
            ++at_;
        }
    }

    void SkipString() {
        ++at_;
        while (at_ < text_.size() && text_[at_] != '"') {
            at_ += text_[at_] == '\\' ? 2 : 1;
        }
        ++at_;
    }

    /// Brackets are counted, so deep nesting needs no stack.
    void SkipValue() {
        int depth = 0;
        do {
            const char c = Peek();
            if (c == '"') {
                SkipString();
            } else if (c == '{' || c == '[') {
                ++depth;
                ++at_;
            } else if (c == '}' || c == ']') {
                --depth;
                ++at_;
            } else if (depth > 0 && (c == ',' || c == ':')) {
                ++at_;
            } else {
                at_ = std::min(text_.find_first_of(",]} \t\r\n", at_), text_.size());
            }
            SkipBlanksInside(depth);
        } while (depth > 0 && at_ < text_.size());
    }

    void SkipBlanksInside(int depth) {
        if (depth > 0) {
            SkipBlanks();
        }
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

}  // namespace

std::string LineAndColumn(std::string_view text, std::size_t offset) {
    int line = 1;
    int column = 1;
    std::size_t at =
        text.substr(0, kByteOrderMark.size()) == kByteOrderMark ? kByteOrderMark.size() : 0;
    for (; at < offset && at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if (byte == '\n') {
            ++line;
            column = 1;
        } else if ((byte & 0xC0U) != 0x80U) {
            ++column;
        }
    }
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

std::string PlaceInJson(std::string_view text, const std::string& pointer) {
    Walker walker(text);
    for (const std::string& step : PointerSteps(pointer)) {
        if (!walker.Enter(step)) {
            break;
        }
    }
    const std::string position = LineAndColumn(text, walker.At());
    return pointer.empty() ? position : pointer + ", " + position;
}

std::string PointerStep(std::string_view name) {
    std::string step = "/";
    for (const char c : name) {
        if (c == '~') {
            step += "~0";
        } else if (c == '/') {
            step += "~1";
        } else {
            step += c;
        }
    }
    return step;
}

}  // namespace kvopt
