#pragma once

/// \file
/// General settings of a test's own, so that both presentations of a risk can be tried.

#include "kvopt/study.h"

namespace kvopt::test {

class RiskSettings {
public:
    RiskSettings() { GeneralSettings::Install(&settings_); }
    ~RiskSettings() { GeneralSettings::Install(nullptr); }
    RiskSettings(const RiskSettings&) = delete;
    RiskSettings& operator=(const RiskSettings&) = delete;

    void ShowPercent() { settings_.riskPresentation = 0; }
    void ShowDpmo() { settings_.riskPresentation = 1; }
    void Show(int presentation) { settings_.riskPresentation = presentation; }

private:
    GeneralSettings::Settings settings_;
};

}  // namespace kvopt::test
