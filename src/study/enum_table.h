#pragma once

#include <string>
#include <string_view>

#include "kvopt/stores/configuration_section.h"

namespace kvopt {

/// A value of an enumeration with its stored text.
template <class Enum>
struct EnumText {
    Enum value;
    const char* text;
};

template <class Enum, std::size_t Count>
std::string TextOf(const EnumText<Enum> (&table)[Count], Enum value) {
    for (const auto& entry : table) {
        if (entry.value == value) {
            return entry.text;
        }
    }
    return {};
}

template <class Enum, std::size_t Count>
Enum ValueOf(const EnumText<Enum> (&table)[Count], std::string_view text, Enum unknown) {
    for (const auto& entry : table) {
        if (text == entry.text) {
            return entry.value;
        }
    }
    return unknown;
}

/// An int that is a value of the enumeration; otherwise false, and the value stays.
template <class Enum, std::size_t Count>
bool ReadNumber(const EnumText<Enum> (&table)[Count], const ConfigurationSection* section,
                const char* key, Enum& value) {
    int number = 0;
    if (section == nullptr || !section->ReadKey(key, number)) {
        return false;
    }
    for (const auto& entry : table) {
        if (static_cast<int>(entry.value) == number) {
            value = entry.value;
            return true;
        }
    }
    return false;
}

/// A text that is a value of the enumeration; otherwise false, and the value stays.
template <class Enum, std::size_t Count>
bool ReadText(const EnumText<Enum> (&table)[Count], const ConfigurationSection* section,
              const char* key, Enum& value) {
    std::string text;
    if (section == nullptr || !section->ReadKey(key, text)) {
        return false;
    }
    const Enum read = ValueOf(table, text, Enum::Unknown);
    value = read == Enum::Unknown ? value : read;
    return read != Enum::Unknown;
}

}  // namespace kvopt
