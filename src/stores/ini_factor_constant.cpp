#include "kvopt/stores/ini_factor_constant.h"

#include "kvopt/text/not_set.h"

namespace kvopt {
namespace {

constexpr const char* kConstants = "FactorConstants";
constexpr const char* kSettings = "FactorSettings";

}  // namespace

IniFactorConstant::IniFactorConstant(IniFileSection& section) : section_(section) {}

double IniFactorConstant::GetConstant(const char* factor) const {
    section_.SetSection(kConstants);
    return section_.ReadKeyOr(factor, kNotSet);
}

std::string IniFactorConstant::GetStrConstant(const char* factor) const {
    section_.SetSection(kSettings);
    return section_.ReadKeyOr(factor, std::string());
}

void IniFactorConstant::SetConstant(const char* factor, double value) {
    section_.SetSection(kConstants);
    section_.WriteKey(factor, value);
}

void IniFactorConstant::SetStrConstant(const char* factor, const char* setting) {
    section_.SetSection(kSettings);
    section_.WriteKey(factor, setting);
}

}  // namespace kvopt
