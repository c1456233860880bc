#include "kvopt/study/simplex_properties.h"

#include <memory>

#include "kvopt/stores.h"
#include "kvopt/study/investigation.h"

namespace kvopt {

namespace {

constexpr const char* kSection = "Optimizer";
constexpr int kDefaultFactorRange = 10;
constexpr int kDefaultIterations = 10000;

template <class Value>
Value Read(const Investigation* investigation, const char* key, Value fallback) {
    if (investigation == nullptr) {
        return fallback;
    }
    const std::unique_ptr<const ConfigurationSection> section =
        investigation->GetInvestigationSettings(kSection, true);
    return section->ReadKeyOr(key, fallback);
}

template <class Value>
void Write(const Investigation* investigation, const char* key, Value value) {
    if (investigation != nullptr) {
        investigation->GetInvestigationSettings(kSection, false)->WriteKey(key, value);
    }
}

}  // namespace

SimplexProperties::SimplexProperties(const Investigation* investigation) {
    const auto read = [investigation](const char* key, bool& value) {
        value = Read(investigation, key, value);
    };
    read("ShowDPMOASColumn", showRiskColumnAlternative);
    read("ShowCpkASColumn", showCpkColumnAlternative);
    read("ShowCpASColumn", showCpColumnAlternative);
    read("ShowKPrimASColumn", showKPrimeColumnAlternative);
    read("ShowDPMOSSColumn", showRiskColumnSetpoint);
    read("ShowCpkSSColumn", showCpkColumnSetpoint);
    read("ShowCpSSColumn", showCpColumnSetpoint);
    read("ShowKPrimSSColumn", showKPrimeColumnSetpoint);
}

bool SimplexProperties::GetIncludeWeightInLogD(const Investigation* investigation) {
    return Read(investigation, "IncludeWeightInLogD", true);
}

void SimplexProperties::SetIncludeWeightInLogD(const Investigation* investigation, bool include) {
    Write(investigation, "IncludeWeightInLogD", include);
}

bool SimplexProperties::GetUseBOBYQA(const Investigation* investigation) {
    return Read(investigation, "UseBOBYQA", false);
}

void SimplexProperties::SetUseBOBYQA(const Investigation* investigation, bool use) {
    Write(investigation, "UseBOBYQA", use);
}

bool SimplexProperties::GetWeightFactorContributionsTargetDistance(
    const Investigation* investigation) {
    return Read(investigation, "WeightFactorContributionsTargetDistance", false);
}

void SimplexProperties::SetWeightFactorContributionsTargetDistance(
    const Investigation* investigation, bool weight) {
    Write(investigation, "WeightFactorContributionsTargetDistance", weight);
}

float SimplexProperties::GetFactorContributionsRange(const Investigation* investigation) {
    return static_cast<float>(Read(investigation, "FactorContributionsRange",
                                   static_cast<double>(GetFactorRangeDefault())));
}

void SimplexProperties::SetFactorContributionsRange(const Investigation* investigation,
                                                    float percent) {
    Write(investigation, "FactorContributionsRange", static_cast<double>(percent));
}

bool SimplexProperties::GetAnalyzeSensitivity(const Investigation* investigation,
                                              bool& includeModelError, int& iterations) {
    includeModelError = Read(investigation, "IncludeModelError", true);
    iterations = Read(investigation, "SensitivityIterations", kDefaultIterations);
    return Read(investigation, "AnalyzeSensitivity", true);
}

int SimplexProperties::GetFactorRangeDefault() {
    return kDefaultFactorRange;
}

}  // namespace kvopt
