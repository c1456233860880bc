#include "text/utf8.h"

namespace kvopt::utf8 {

Character Decode(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    const auto byteAt = [&](std::size_t i) {
        return static_cast<char32_t>(static_cast<unsigned char>(text[i]));
    };
    const char32_t first = byteAt(0);
    if (first < 0x80) {
        return {first, 1};
    }
    std::size_t length = 0;
    char32_t code = 0;
    char32_t smallest = 0;
    if (first >= 0xC2 && first <= 0xDF) {
        length = 2;
        code = first & 0x1F;
        smallest = 0x80;
    } else if ((first & 0xF0) == 0xE0) {
        length = 3;
        code = first & 0x0F;
        smallest = 0x800;
    } else if (first >= 0xF0 && first <= 0xF4) {
        length = 4;
        code = first & 0x07;
        smallest = 0x10000;
    } else {
        return {};
    }
    if (text.size() < length) {
        return {};
    }
    for (std::size_t i = 1; i < length; ++i) {
        const char32_t next = byteAt(i);
        if ((next & 0xC0) != 0x80) {
            return {};
        }
        code = (code << 6) | (next & 0x3F);
    }
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < smallest || code > 0x10FFFF || isSurrogate) {
        return {};
    }
    return {code, length};
}

void Append(std::string& text, char32_t code) {
    const auto put = [&](char32_t byte) {
        text += static_cast<char>(static_cast<unsigned char>(byte));
    };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | (code >> 6));
        put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        put(0xE0 | (code >> 12));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | (code >> 18));
        put(0x80 | ((code >> 12) & 0x3F));
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    }
}

bool IsValid(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = Decode(text).length;
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

}  // namespace kvopt::utf8
