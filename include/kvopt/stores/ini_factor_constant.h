#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/stores/ini_file_section.h"

namespace kvopt {

/// The remembered constant of each factor in the study's ini file: a value for a quantitative
/// factor, a setting for a qualitative one, kept apart. Refers to the section, does not own it.
/// Each call enters a section of its own with SetSection() and stays there.
class KVOPT_EXPORT IniFactorConstant {
public:
    explicit IniFactorConstant(IniFileSection& section);

    /// kNotSet when nothing is stored.
    double GetConstant(const char* factor) const;
    /// Empty when nothing is stored.
    std::string GetStrConstant(const char* factor) const;
    void SetConstant(const char* factor, double value);
    void SetStrConstant(const char* factor, const char* setting);

private:
    IniFileSection& section_;
};

}  // namespace kvopt
