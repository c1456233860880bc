#pragma once

/// \file
/// Settings of the whole process. Each has a default that works and one function that installs
/// another; the caller keeps what it installs alive and installs null to go back to the default.

#include <cstdint>
#include <optional>

#include "kvopt/export.h"

namespace kvopt {

/// Settings of the application that plots and pages start from.
class KVOPT_EXPORT GeneralSettings {
public:
    struct Settings {
        int dsOutput = 0;                ///< default of the output of design space plots
        int backTransformedFactors = 0;  ///< not 0: factors are shown back-transformed
        int riskPresentation = 0;        ///< 0 percentage, 1 DPMO
    };

    GeneralSettings() = delete;

    static Settings& Instance();
    static void Install(Settings* settings);
};

/// Switches for runs that have to be repeatable.
class KVOPT_EXPORT GlobalOptions {
public:
    GlobalOptions() = delete;

    /// Whether anything left to chance or to the data is replaced by the fixed order;
    /// `defaultValue` when nothing was set.
    static bool FixedSeedForValidation(bool defaultValue);
    static void SetFixedSeedForValidation(std::optional<bool> fixedSeed);
};

/// How lists look. Colours are 0x00BBGGRR.
class KVOPT_EXPORT ListOptions {
public:
    std::uint32_t factorNameColour = 0x00F0F0F0;
    std::uint32_t readOnlyColour = 0x00E6E6E6;
    std::uint32_t lockedFormulationColour = 0x00D9EBF2;
    bool boldFactorNames = false;  ///< the names of factors stand in the bold font (font 2)

    static ListOptions& Instance();
    static void Install(ListOptions* options);
};

}  // namespace kvopt
