#pragma once

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kvopt {

/// An element of a JSON document that knows its own pointer. Every reading operation that does not
/// find what it asks for throws a StudyFault.
class JsonNode {
public:
    /// `value` must outlive the node.
    JsonNode(const nlohmann::json& value, std::string pointer)
        : value_(&value), pointer_(std::move(pointer)) {}

    const std::string& Pointer() const { return pointer_; }
    bool IsText() const { return value_->is_string(); }
    bool IsNumber() const { return value_->is_number(); }
    bool IsInteger() const { return value_->is_number_integer(); }
    bool IsFlag() const { return value_->is_boolean(); }
    bool IsNull() const { return value_->is_null(); }
    bool IsObject() const { return value_->is_object(); }

    /// An object that holds no key but these; a key close to one of them is named as a hint.
    void AllowKeys(std::initializer_list<std::string_view> keys) const;
    JsonNode Member(std::string_view key) const;
    std::optional<JsonNode> Find(std::string_view key) const;
    std::vector<std::pair<std::string, JsonNode>> Members() const;
    std::vector<JsonNode> Items() const;

    std::string Text() const;
    std::vector<std::string> Texts() const;
    /// Finite, and not the number that stands for "nothing set".
    double Number() const;
    int Integer() const;
    bool Flag() const;

    [[noreturn]] void Fail(const std::string& expected) const;

private:
    const nlohmann::json* value_;
    std::string pointer_;
};

/// Parses a document in which no object holds a key twice. `fileName` stands in the error.
nlohmann::json ParseJson(std::string_view text, const std::string& fileName);

/// A text in double quotes, cut when it is long, with control characters as escapes.
std::string Quoted(std::string_view text);

/// "; did you mean "settings"?" when one of the names is close to the wrong one, else empty.
std::string Hint(std::string_view wrong, const std::vector<std::string>& names);

}  // namespace kvopt
