#include "kvopt/study/settings.h"

namespace kvopt {

namespace {

GeneralSettings::Settings* installedSettings = nullptr;
ListOptions* installedListOptions = nullptr;
std::optional<bool> installedFixedSeed;

}  // namespace

GeneralSettings::Settings& GeneralSettings::Instance() {
    static Settings defaults;
    return installedSettings != nullptr ? *installedSettings : defaults;
}

void GeneralSettings::Install(Settings* settings) {
    installedSettings = settings;
}

bool GlobalOptions::FixedSeedForValidation(bool defaultValue) {
    return installedFixedSeed.value_or(defaultValue);
}

void GlobalOptions::SetFixedSeedForValidation(std::optional<bool> fixedSeed) {
    installedFixedSeed = fixedSeed;
}

ListOptions& ListOptions::Instance() {
    static ListOptions defaults;
    return installedListOptions != nullptr ? *installedListOptions : defaults;
}

void ListOptions::Install(ListOptions* options) {
    installedListOptions = options;
}

}  // namespace kvopt
