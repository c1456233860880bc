#include "kvopt/study/factor_constants.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "kvopt/study/variables.h"
#include "kvopt/text.h"

namespace kvopt::FactorConstants {

namespace {

constexpr std::array<const char*, 5> kPositionNames{"LOW", "REF", "HIGH", "CUSTOM", "NO_SETTING"};
constexpr double kSamePosition = 1e-6;

const char* const* NamesOr(const char* const* names) {
    return names != nullptr ? names : kPositionNames.data();
}

/// The shortest text that reads back to the same float: a center that was computed shows no digits
/// beyond those that pages read.
std::string ShortText(double value) {
    std::array<char, 32> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<float>(value));
    return {buffer.data(), result.ptr};
}

}  // namespace

Constant::Constant(const std::string& name, double value, SettingType position)
    : kind(kQuantitativeKind), name_(name), value_(value), position_(position) {}

Constant::Constant(const std::string& name, const std::string& setting, SettingType position)
    : kind(kQualitativeKind), name_(name), setting_(setting), position_(position) {}

int NumConstants(const Constant* constants) {
    int count = 0;
    while (constants != nullptr && constants[count].IsDefined()) {
        ++count;
    }
    return count;
}

bool IsMember(const Constant* constants, const std::string& name) {
    return Lookup(constants, name) >= 0;
}

int Lookup(const Constant* constants, const std::string& name) {
    const int count = NumConstants(constants);
    for (int index = 0; index < count; ++index) {
        if (constants[index].Name() == name) {
            return index;
        }
    }
    return -1;
}

int Add(Constant* constants, const Constant& constant) {
    if (constants == nullptr || !constant.IsDefined()) {
        return -1;
    }
    const int index = NumConstants(constants);
    // In this order, since the new entry may be one that stood behind the end.
    constants[index] = constant;
    constants[index + 1] = Constant();
    return index;
}

int Add(Constant* constants, const Constant& constant, int capacity) {
    return NumConstants(constants) < capacity ? Add(constants, constant) : -1;
}

int AddConstant(Constant* constants, const Variables* variables, const FactorClass* factor,
                SettingType position) {
    if (variables == nullptr || factor == nullptr) {
        return -1;
    }
    if (factor->IsQualitative()) {
        std::string text;
        CenterValue(*variables, factor, position, text);
        return Add(constants, Constant(factor->name, text, position));
    }
    return Add(
        constants,
        Constant(factor->name, GetQuantitativeFloatValue(*variables, factor, position), position));
}

void CopyConstantVector(Constant* to, const Constant* from) {
    if (to == nullptr) {
        return;
    }
    const int count = NumConstants(from);
    for (int index = 0; index < count; ++index) {
        to[index] = from[index];
    }
    to[count] = Constant();
}

SettingType WhichSetting(const Variables& variables, const FactorClass* factor, double value) {
    if (value == kNotSet) {
        return NO_SETTING;
    }
    if (factor == nullptr) {
        return CUSTOM;
    }
    const double low = factor->GetLow(true);
    const double high = factor->GetHigh(true);
    const double allowed =
        low != kNotSet && high != kNotSet ? std::fabs(high - low) * kSamePosition : 0.0;
    for (const SettingType position : {REF, LOW, HIGH}) {
        const double there = GetQuantitativeFloatValue(variables, factor, position);
        if (there != kNotSet && std::fabs(value - there) <= allowed) {
            return position;
        }
    }
    return CUSTOM;
}

SettingType WhichSetting(const Variables& variables, const FactorClass* factor, const char* text) {
    if (text == nullptr || *text == '\0') {
        return NO_SETTING;
    }
    if (factor != nullptr && factor->IsQualitative()) {
        for (const SettingType position : {REF, LOW, HIGH}) {
            std::string there;
            CenterValue(variables, factor, position, there);
            if (there == text) {
                return position;
            }
        }
        return CUSTOM;
    }
    double value = kNotSet;
    return KvString::ToDouble(std::string_view(text), value)
               ? WhichSetting(variables, factor, value)
               : NO_SETTING;
}

double GetQuantitativeFloatValue(const Variables& variables, const FactorClass* factor,
                                 SettingType position) {
    if (factor == nullptr || factor->IsQualitative()) {
        return kNotSet;
    }
    switch (position) {
        case LOW:
            return factor->GetLow(true);
        case HIGH:
            return factor->GetHigh(true);
        case REF:
            return factor->IsMixture() || factor->factorValue.type == CEType::Filler
                       ? variables.GetMixtureReferenceRegulated(factor->name, "", kNotSet, true)
                       : factor->GetCenterpoint(true, kNotSet, kNotSet);
        case CUSTOM:
        case NO_SETTING:
            break;
    }
    return kNotSet;
}

void CenterValue(const Variables& variables, const FactorClass* factor, SettingType position,
                 std::string& text) {
    text.clear();
    if (factor == nullptr) {
        return;
    }
    if (!factor->IsQualitative()) {
        const double value = GetQuantitativeFloatValue(variables, factor, position);
        if (value != kNotSet) {
            text = ShortText(value);
        }
        return;
    }
    const std::vector<int> included = factor->GetIncludedSettings();
    if (included.empty()) {
        return;
    }
    switch (position) {
        case LOW:
            text = factor->GetSetting(included.front());
            return;
        case REF:
            text = factor->GetSetting(included[(included.size() - 1) / 2]);
            return;
        case HIGH:
            text = factor->GetSetting(included.back());
            return;
        case CUSTOM:
        case NO_SETTING:
            return;
    }
}

const char* SettingName(SettingType position, const char* const* names) {
    const bool known = position >= LOW && position <= NO_SETTING;
    return NamesOr(names)[known ? position : NO_SETTING];
}

SettingType CenterType(const char* text, const char* const* names) {
    if (text == nullptr) {
        return NO_SETTING;
    }
    for (const SettingType position : {LOW, REF, HIGH, CUSTOM}) {
        if (std::string_view(text) == NamesOr(names)[position]) {
            return position;
        }
    }
    return NO_SETTING;
}

}  // namespace kvopt::FactorConstants
