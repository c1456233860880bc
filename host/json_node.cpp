#include "host/json_node.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <set>

#include "host/json_place.h"
#include "host/study_fault.h"
#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_string.h"
#include "kvopt/text/not_set.h"

namespace kvopt {
namespace {

using nlohmann::json;

constexpr std::size_t kLongestQuote = 60;
constexpr std::size_t kDeepest = 100;

std::string Describe(const json& value) {
    switch (value.type()) {
        case json::value_t::null:
            return "null";
        case json::value_t::boolean:
            return value.get<bool>() ? "true" : "false";
        case json::value_t::string:
            return "the text " + Quoted(value.get_ref<const std::string&>());
        case json::value_t::number_integer:
        case json::value_t::number_unsigned:
            return "the number " + value.dump();
        case json::value_t::number_float:
            return "the number " + KvString::FromDouble(value.get<double>());
        case json::value_t::array:
            return "a list of " + std::to_string(value.size());
        case json::value_t::object:
        case json::value_t::binary:
        case json::value_t::discarded:
            break;
    }
    return "an object";
}

std::string Folded(std::string_view text) {
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), [](unsigned char c) {
        return static_cast<char>(c < 0x80 ? std::tolower(c) : c);
    });
    return folded;
}

/// Fewest insertions, deletions and replacements that make one text of the other.
std::size_t EditDistance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    for (std::size_t t = 0; t <= to.size(); ++t) {
        row[t] = t;
    }
    for (std::size_t f = 1; f <= from.size(); ++f) {
        std::size_t diagonal = row[0];
        row[0] = f;
        for (std::size_t t = 1; t <= to.size(); ++t) {
            const std::size_t replaced = diagonal + (from[f - 1] == to[t - 1] ? 0U : 1U);
            diagonal = row[t];
            row[t] = std::min({row[t] + 1, row[t - 1] + 1, replaced});
        }
    }
    return row.back();
}

/// What is wrong, out of the parser's text: without the name of its exception, the position, which
/// is told in the file's own terms, and what was read last, which may be no UTF-8.
std::string Complaint(std::string_view what) {
    const auto dropThrough = [&what](std::string_view end) {
        const std::size_t at = what.find(end);
        if (at != std::string_view::npos) {
            what.remove_prefix(at + end.size());
        }
    };
    dropThrough("] ");
    constexpr std::string_view kPosition = "parse error at";
    if (what.substr(0, kPosition.size()) == kPosition) {
        dropThrough(": ");
    }
    return std::string(what.substr(0, what.find("; last read")));
}

/// Refuses what the document builder would take in silence: a key that stands twice in one object,
/// of which the first would be lost, and nesting far beyond any study.
class SyntaxCheck : public nlohmann::json_sax<json> {
public:
    SyntaxCheck(std::string_view text, const std::string& fileName)
        : text_(text), fileName_(fileName) {}

    bool null() override { return Value(); }
    bool boolean(bool /*value*/) override { return Value(); }
    bool number_integer(number_integer_t /*value*/) override { return Value(); }
    bool number_unsigned(number_unsigned_t /*value*/) override { return Value(); }
    bool number_float(number_float_t /*value*/, const string_t& /*text*/) override {
        return Value();
    }
    bool string(string_t& /*value*/) override { return Value(); }
    bool binary(binary_t& /*value*/) override { return Value(); }
    bool start_object(std::size_t /*elements*/) override { return Open(true); }
    bool start_array(std::size_t /*elements*/) override { return Open(false); }
    bool end_object() override { return Close(); }
    bool end_array() override { return Close(); }

    bool key(string_t& name) override {
        Level& level = levels_.back();
        level.step = PointerStep(name);
        if (!level.keys.insert(name).second) {
            throw FileFormatError(fileName_, PlaceInJson(text_, Pointer()),
                                  "each key of an object once",
                                  "the key " + Quoted(name) + " again");
        }
        return true;
    }

    bool parse_error(std::size_t position, const std::string& lastToken,
                     const json::exception& error) override {
        std::string found = Complaint(error.what());
        if (!lastToken.empty()) {
            found += ", last read " + Quoted(lastToken);
        }
        throw FileFormatError(fileName_, LineAndColumn(text_, position == 0 ? 0 : position - 1),
                              "a JSON document", found);
    }

private:
    struct Level {
        bool isObject = false;
        std::size_t index = 0;
        std::string step;
        std::set<std::string> keys;
    };

    /// To the element at hand, or to the one around it at the given depth.
    std::string Pointer(std::size_t depth = kDeepest) const {
        std::string pointer;
        for (std::size_t l = 0; l < std::min(depth, levels_.size()); ++l) {
            const Level& level = levels_[l];
            pointer += level.isObject ? level.step : PointerStep(std::to_string(level.index));
        }
        return pointer;
    }

    bool Value() {
        if (!levels_.empty()) {
            ++levels_.back().index;
        }
        return true;
    }

    bool Open(bool isObject) {
        if (levels_.size() == kDeepest) {
            throw FileFormatError(fileName_, PlaceInJson(text_, Pointer(1)),
                                  "objects and lists at most " + std::to_string(kDeepest) + " deep",
                                  "a deeper one");
        }
        levels_.push_back(Level{isObject, 0, {}, {}});
        return true;
    }

    bool Close() {
        levels_.pop_back();
        return Value();
    }

    std::string_view text_;
    const std::string& fileName_;
    std::vector<Level> levels_;
};

}  // namespace

std::string Quoted(std::string_view text) {
    std::string shown(text);
    std::size_t cut = std::min(shown.size(), kLongestQuote);
    while (cut > 0 && cut < shown.size() &&
           (static_cast<unsigned char>(shown[cut]) & 0xC0U) == 0x80U) {
        --cut;
    }
    const bool isCut = cut < shown.size();
    shown.resize(cut);
    return json(shown).dump(-1, ' ', false, json::error_handler_t::replace) + (isCut ? "..." : "");
}

std::string Hint(std::string_view wrong, const std::vector<std::string>& names) {
    if (wrong.empty()) {
        return {};
    }
    const std::string folded = Folded(wrong);
    const std::string* best = nullptr;
    // Half of a short text must not be guessed: "Q" is as far from "H" as from any other letter.
    std::size_t bestDistance = std::min<std::size_t>(3, wrong.size() / 2) + 1;
    for (const std::string& name : names) {
        // Texts whose lengths differ by more than the limit cannot be within it.
        const std::size_t lengths =
            name.size() > wrong.size() ? name.size() - wrong.size() : wrong.size() - name.size();
        if (lengths >= bestDistance) {
            continue;
        }
        const std::size_t distance = EditDistance(folded, Folded(name));
        if (distance < bestDistance) {
            bestDistance = distance;
            best = &name;
        }
    }
    return best == nullptr ? std::string() : "; did you mean " + Quoted(*best) + "?";
}

void JsonNode::Fail(const std::string& expected) const {
    throw StudyFault{pointer_, expected, Describe(*value_)};
}

void JsonNode::AllowKeys(std::initializer_list<std::string_view> keys) const {
    if (!value_->is_object()) {
        Fail("an object");
    }
    for (auto item = value_->begin(); item != value_->end(); ++item) {
        const std::string& name = item.key();
        if (std::find(keys.begin(), keys.end(), name) != keys.end()) {
            continue;
        }
        const std::vector<std::string> known(keys.begin(), keys.end());
        std::string expected;
        for (const std::string& key : known) {
            expected += (expected.empty() ? "only the keys " : ", ") + key;
        }
        throw StudyFault{pointer_ + PointerStep(name), expected,
                         "the key " + Quoted(name) + Hint(name, known)};
    }
}

std::optional<JsonNode> JsonNode::Find(std::string_view key) const {
    if (!value_->is_object()) {
        Fail("an object");
    }
    const auto found = value_->find(key);
    if (found == value_->end()) {
        return std::nullopt;
    }
    return JsonNode(*found, pointer_ + PointerStep(key));
}

JsonNode JsonNode::Member(std::string_view key) const {
    const std::optional<JsonNode> member = Find(key);
    if (!member) {
        throw StudyFault{pointer_, "the key " + Quoted(key), "an object without it"};
    }
    return *member;
}

std::vector<std::pair<std::string, JsonNode>> JsonNode::Members() const {
    if (!value_->is_object()) {
        Fail("an object");
    }
    std::vector<std::pair<std::string, JsonNode>> members;
    for (auto item = value_->begin(); item != value_->end(); ++item) {
        members.emplace_back(item.key(),
                             JsonNode(item.value(), pointer_ + PointerStep(item.key())));
    }
    return members;
}

std::vector<JsonNode> JsonNode::Items() const {
    if (!value_->is_array()) {
        Fail("a list");
    }
    std::vector<JsonNode> items;
    items.reserve(value_->size());
    for (std::size_t i = 0; i < value_->size(); ++i) {
        items.emplace_back((*value_)[i], pointer_ + PointerStep(std::to_string(i)));
    }
    return items;
}

std::string JsonNode::Text() const {
    if (!value_->is_string()) {
        Fail("a text");
    }
    return value_->get<std::string>();
}

std::vector<std::string> JsonNode::Texts() const {
    std::vector<std::string> texts;
    for (const JsonNode& item : Items()) {
        texts.push_back(item.Text());
    }
    return texts;
}

double JsonNode::Number() const {
    if (!value_->is_number()) {
        Fail("a number");
    }
    const auto number = value_->get<double>();
    if (number == kNotSet) {
        Fail("a number other than -99, which stands for nothing set");
    }
    return number;
}

int JsonNode::Integer() const {
    if (!value_->is_number_integer()) {
        Fail("a whole number");
    }
    const auto number = value_->get<double>();
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) {
        Fail("a whole number of 32 bits");
    }
    return value_->get<int>();
}

bool JsonNode::Flag() const {
    if (!value_->is_boolean()) {
        Fail("true or false");
    }
    return value_->get<bool>();
}

json ParseJson(std::string_view text, const std::string& fileName) {
    SyntaxCheck check(text, fileName);
    json::sax_parse(text, &check);
    return json::parse(text);
}

}  // namespace kvopt
