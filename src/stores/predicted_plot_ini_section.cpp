#include "kvopt/stores/predicted_plot_ini_section.h"

namespace kvopt {
namespace {

constexpr const char* kUseConfLevels = "UseConfLevels";

}  // namespace

PredictedPlotIniSection::PredictedPlotIniSection(IniFileSection& section)
    : PlotWizardIniSection(section, "PredictedPlot") {}
PredictedPlotIniSection::~PredictedPlotIniSection() = default;

bool PredictedPlotIniSection::GetUseConfLevels() const {
    return Section().ReadKeyOr(kUseConfLevels, true);
}
void PredictedPlotIniSection::SetUseConfLevels(bool value) {
    Section().WriteKey(kUseConfLevels, value);
}

}  // namespace kvopt
