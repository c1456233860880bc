#pragma once

#include "kvopt/export.h"
#include "kvopt/study/enum_helpers.h"

namespace kvopt {

class Investigation;

/// The options of design space plots and of setpoint simulations: a record.
class KVOPT_EXPORT DesignSpaceOptions {
public:
    /// Bits of `whatToUpdate`.
    enum Update : int {
        UpdateRanges = 1,    ///< acceptable factor ranges
        UpdateProfiles = 2,  ///< response profiles
        UpdateRisk = 4,      ///< risks and intervals
        UpdateTable = 8,     ///< what is shown of them
        UpdateAll = 15,
    };

    DesignSpaceOptions() = default;
    /// As saved in the study's settings; the defaults for what is not there, and without a study.
    explicit DesignSpaceOptions(const Investigation* investigation);

    int acceptableRangeSimulations = 10000;
    int responseProfileSimulations = 10000;
    int whatToUpdate = 0;
    bool includeModelError = true;
    int dpmoLimit = 10000;  ///< 1 DPMO is 0.0001 %
    bool automaticUpdate = true;
    bool useTotalProbability = true;
    bool showMinMaxLines = true;
    int limitConfidence = 95;  ///< 95 or 99
    int resolution = 16;
    bool includeFactorPrecision = true;
    CConfLev::ConfLev confidenceLevel = CConfLev::Level95;
    CConfLev::ConfLev toleranceProportion = CConfLev::Level95;
    CIntervalType::IntervalType intervalType = CIntervalType::Confidence;
    double correlationThreshold = 0.3;

    /// Back to the defaults.
    void Reset();
    /// Sets `whatToUpdate` to the bits of what differs from `previous`.
    void SetWhatToUpdate(const DesignSpaceOptions& previous);
    /// Remembers everything but `whatToUpdate` in the study's settings, for the plots to come. Does
    /// nothing without a study.
    void SaveAsGlobalSettings(const Investigation* investigation) const;
    /// Remembers confidence level, tolerance proportion and interval type alone.
    void SaveIntervalAsGlobalSettings(const Investigation* investigation) const;

    bool operator==(const DesignSpaceOptions&) const = default;
};

}  // namespace kvopt
