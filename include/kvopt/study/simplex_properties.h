#pragma once

#include "kvopt/export.h"

namespace kvopt {

class Investigation;

/// The optimizer's settings. The instance holds which columns its lists show; the other settings
/// are kept in the study's settings section "Optimizer" behind the static operations, which answer
/// the default without an investigation or without a stored value.
class KVOPT_EXPORT SimplexProperties {
public:
    bool showRiskColumnAlternative = true;
    bool showCpkColumnAlternative = true;
    bool showCpColumnAlternative = false;
    bool showKPrimeColumnAlternative = false;
    bool showRiskColumnSetpoint = true;
    bool showCpkColumnSetpoint = true;
    bool showCpColumnSetpoint = false;
    bool showKPrimeColumnSetpoint = false;

    SimplexProperties() = default;
    /// The columns as they are stored in the study's settings.
    explicit SimplexProperties(const Investigation* investigation);

    static bool GetIncludeWeightInLogD(const Investigation* investigation);
    static void SetIncludeWeightInLogD(const Investigation* investigation, bool include);
    static bool GetUseBOBYQA(const Investigation* investigation);
    static void SetUseBOBYQA(const Investigation* investigation, bool use);
    static bool GetWeightFactorContributionsTargetDistance(const Investigation* investigation);
    static void SetWeightFactorContributionsTargetDistance(const Investigation* investigation,
                                                           bool weight);
    /// In percent.
    static float GetFactorContributionsRange(const Investigation* investigation);
    static void SetFactorContributionsRange(const Investigation* investigation, float percent);
    /// Whether to analyse; fills the two outputs in any case.
    static bool GetAnalyzeSensitivity(const Investigation* investigation, bool& includeModelError,
                                      int& iterations);
    /// In percent.
    static int GetFactorRangeDefault();
};

}  // namespace kvopt
