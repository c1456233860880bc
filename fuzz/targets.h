#pragma once

/// \file
/// The readers that take texts from outside, each as one function of any bytes. An input is either
/// read or refused with one of the library's exceptions; what was read comes back the same when it
/// is written and read again. Anything else is a finding and leaves the function as Finding.

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

#include "kvopt/stores.h"

namespace kvopt::fuzz {

class Finding : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// Throws Finding unless it holds.
inline void Require(bool holds, const char* what) {
    if (!holds) {
        throw Finding(what);
    }
}

void IniFile(std::string_view input);
void SavedPlot(std::string_view input);
void StudyFile(std::string_view input);
void Script(std::string_view input);
void Numbers(std::string_view input);

/// Reads the section with every ReadSection that there is.
void ReadEverything(const ConfigurationSection& section);

struct Target {
    /// The name of the corpus and of the dictionary too.
    const char* name;
    void (*run)(std::string_view input);
};

inline constexpr std::array kTargets = {
    Target{"ini_file", IniFile}, Target{"saved_plot", SavedPlot}, Target{"study_file", StudyFile},
    Target{"script", Script},    Target{"numbers", Numbers},
};

}  // namespace kvopt::fuzz
