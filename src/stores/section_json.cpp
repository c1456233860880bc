#include "stores/section_json.h"

#include <algorithm>

#include "stores/section_json_words.h"
#include "text/utf8.h"

namespace kvopt::json {
namespace {

std::string_view NameOf(KeyType type) {
    const auto* const found = std::find_if(kTypes.begin(), kTypes.end(),
                                           [&](const NamedType& t) { return t.type == type; });
    return found == kTypes.end() ? kTypes.back().name : found->name;
}

void AppendString(std::string& text, std::string_view value) {
    if (!utf8::IsValid(value)) {
        text += "{\"bytes\": \"";
        for (const char c : value) {
            const auto byte = static_cast<unsigned char>(c);
            text += kHexDigits[byte >> 4U];
            text += kHexDigits[byte & 0xFU];
        }
        text += "\"}";
        return;
    }
    text += '"';
    for (const char c : value) {
        switch (c) {
            case '"':
                text += "\\\"";
                break;
            case '\\':
                text += "\\\\";
                break;
            case '\n':
                text += "\\n";
                break;
            case '\r':
                text += "\\r";
                break;
            case '\t':
                text += "\\t";
                break;
            default:
                if (static_cast<unsigned char>(c) < 0x20 || c == '\x7F') {
                    text += "\\u00";
                    text += kHexDigits[static_cast<unsigned char>(c) >> 4U];
                    text += kHexDigits[static_cast<unsigned char>(c) & 0xFU];
                } else {
                    text += c;
                }
        }
    }
    text += '"';
}

void AppendKeys(std::string& text, const SectionNode& section, const std::string& indent) {
    bool isFirst = true;
    for (const StoredKey& key : section.Keys()) {
        text += isFirst ? "\n" : ",\n";
        text += indent;
        text += '[';
        AppendString(text, key.name);
        text += ", \"";
        text += NameOf(key.type);
        text += "\", ";
        AppendString(text, key.text);
        text += ']';
        isFirst = false;
    }
}

void AppendContent(std::string& text, const SectionNode& section, std::string& indent) {
    if (!section.Keys().empty()) {
        text += ",\n" + indent + "\"keys\": [";
        AppendKeys(text, section, indent + ' ');
        text += ']';
    }
    if (section.Children().empty()) {
        return;
    }
    text += ",\n" + indent + "\"sections\": [";
    indent += ' ';
    bool isFirst = true;
    for (const std::unique_ptr<SectionNode>& child : section.Children()) {
        text += isFirst ? "\n" : ",\n";
        text += indent;
        text += "{\"name\": ";
        AppendString(text, child->Name());
        if (child->Number() != 1) {
            text += ", \"number\": ";
            text += std::to_string(child->Number());
        }
        indent += ' ';
        AppendContent(text, *child, indent);
        indent.pop_back();
        text += '}';
        isFirst = false;
    }
    indent.pop_back();
    text += ']';
}

}  // namespace

std::string Print(const SectionNode& root) {
    std::string text = "{\n \"kvopt\": \"sections\",\n \"version\": 1";
    std::string indent = " ";
    AppendContent(text, root, indent);
    text += "\n}\n";
    return text;
}

}  // namespace kvopt::json
