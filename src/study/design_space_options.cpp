#include "kvopt/study/design_space_options.h"

#include "kvopt/stores.h"
#include "kvopt/study/investigation.h"

namespace kvopt {

namespace {

constexpr const char* kSection = "DesignSpace";

/// Calls `field(key, value)` for each number that is stored under a key of its own.
template <class Options, class Field>
void ForEachField(Options& options, Field field) {
    field("AcceptableRangeSimulations", options.acceptableRangeSimulations);
    field("ResponseProfileSimulations", options.responseProfileSimulations);
    field("IncludeModelError", options.includeModelError);
    field("DPMOLimit", options.dpmoLimit);
    field("AutomaticUpdate", options.automaticUpdate);
    field("UseTotalProbability", options.useTotalProbability);
    field("ShowMinMaxLines", options.showMinMaxLines);
    field("LimitConfidence", options.limitConfidence);
    field("Resolution", options.resolution);
    field("IncludeFactorPrecision", options.includeFactorPrecision);
    field("CorrelationThreshold", options.correlationThreshold);
}

}  // namespace

DesignSpaceOptions::DesignSpaceOptions(const Investigation* investigation) {
    if (investigation == nullptr) {
        return;
    }
    const std::unique_ptr<const ConfigurationSection> section =
        investigation->GetInvestigationSettings(kSection, true);
    ForEachField(*this, [&section](const char* key, auto& value) { section->ReadKey(key, value); });
    CConfLev::ReadSection(section.get(), confidenceLevel);
    CConfLev::ReadSection(section.get(), "TolProp", toleranceProportion);
    CIntervalType::ReadSection(section.get(), intervalType);
}

void DesignSpaceOptions::Reset() {
    *this = DesignSpaceOptions();
}

void DesignSpaceOptions::SetWhatToUpdate(const DesignSpaceOptions& previous) {
    whatToUpdate = 0;
    if (acceptableRangeSimulations != previous.acceptableRangeSimulations ||
        resolution != previous.resolution || limitConfidence != previous.limitConfidence) {
        whatToUpdate |= UpdateRanges;
    }
    if (responseProfileSimulations != previous.responseProfileSimulations) {
        whatToUpdate |= UpdateProfiles;
    }
    if (includeModelError != previous.includeModelError ||
        includeFactorPrecision != previous.includeFactorPrecision ||
        dpmoLimit != previous.dpmoLimit || useTotalProbability != previous.useTotalProbability ||
        correlationThreshold != previous.correlationThreshold) {
        whatToUpdate |= UpdateRanges | UpdateProfiles | UpdateRisk;
    }
    if (confidenceLevel != previous.confidenceLevel ||
        toleranceProportion != previous.toleranceProportion ||
        intervalType != previous.intervalType) {
        whatToUpdate |= UpdateRisk;
    }
    if (showMinMaxLines != previous.showMinMaxLines ||
        automaticUpdate != previous.automaticUpdate) {
        whatToUpdate |= UpdateTable;
    }
}

void DesignSpaceOptions::SaveAsGlobalSettings(const Investigation* investigation) const {
    if (investigation == nullptr) {
        return;
    }
    const auto section = investigation->GetInvestigationSettings(kSection, false);
    ForEachField(*this, [&section](const char* key, auto value) { section->WriteKey(key, value); });
    SaveIntervalAsGlobalSettings(investigation);
}

void DesignSpaceOptions::SaveIntervalAsGlobalSettings(const Investigation* investigation) const {
    if (investigation == nullptr) {
        return;
    }
    const auto section = investigation->GetInvestigationSettings(kSection, false);
    CConfLev::WriteSection(section.get(), confidenceLevel);
    CConfLev::WriteSection(section.get(), "TolProp", toleranceProportion);
    CIntervalType::WriteSection(section.get(), intervalType);
}

}  // namespace kvopt
