#include "kvopt/stores/contour_plot_ini_section.h"

namespace kvopt {
namespace {

constexpr const char* kUseColor = "UseColor";
constexpr const char* kUseConstraints = "UseConstraints";
constexpr const char* kNumSimulations = "NumSimulations";
constexpr const char* kDistributionOnFactors = "DistributionOnFactors";
constexpr const char* kAnalyticalProbability = "AnalyticalProbability";

// The keys of plots that do not come from the design space have an "R" before them, as in a saved
// plot.
const char* AxisFactorsKey(bool fromDesignSpace) {
    return fromDesignSpace ? "ErrorOnAxisFactors" : "RErrorOnAxisFactors";
}

const char* ConstantFactorsKey(bool fromDesignSpace) {
    return fromDesignSpace ? "ErrorOnConstantFactors" : "RErrorOnConstantFactors";
}

}  // namespace

ContourPlotIniSection::ContourPlotIniSection(IniFileSection& section, bool designSpace)
    : PlotWizardIniSection(section, designSpace ? "DesignSpacePlot" : "ContourPlot") {}
ContourPlotIniSection::~ContourPlotIniSection() = default;

bool ContourPlotIniSection::UseColor() const {
    return Section().ReadKeyOr(kUseColor, true);
}
void ContourPlotIniSection::SetUseColor(bool value) {
    Section().WriteKey(kUseColor, value);
}

bool ContourPlotIniSection::UseConstraints() const {
    return Section().ReadKeyOr(kUseConstraints, false);
}
void ContourPlotIniSection::SetUseConstraints(bool value) {
    Section().WriteKey(kUseConstraints, value);
}

int ContourPlotIniSection::NumSimulations() const {
    constexpr int kDefault = 10000;
    return Section().ReadKeyOr(kNumSimulations, kDefault);
}
void ContourPlotIniSection::NumSimulations(int value) {
    Section().WriteKey(kNumSimulations, value);
}

bool ContourPlotIniSection::ErrorOnAxisFactors(bool fromDesignSpace) const {
    return Section().ReadKeyOr(AxisFactorsKey(fromDesignSpace), true);
}
void ContourPlotIniSection::ErrorOnAxisFactors(bool fromDesignSpace, bool value) {
    Section().WriteKey(AxisFactorsKey(fromDesignSpace), value);
}

bool ContourPlotIniSection::ErrorOnConstantFactors(bool fromDesignSpace) const {
    return Section().ReadKeyOr(ConstantFactorsKey(fromDesignSpace), true);
}
void ContourPlotIniSection::ErrorOnConstantFactors(bool fromDesignSpace, bool value) {
    Section().WriteKey(ConstantFactorsKey(fromDesignSpace), value);
}

int ContourPlotIniSection::DistributionOnFactors() const {
    return Section().ReadKeyOr(kDistributionOnFactors, 1);
}
void ContourPlotIniSection::DistributionOnFactors(int value) {
    Section().WriteKey(kDistributionOnFactors, value);
}

bool ContourPlotIniSection::AnalyticalProbability() const {
    return Section().ReadKeyOr(kAnalyticalProbability, true);
}
void ContourPlotIniSection::AnalyticalProbability(bool value) {
    Section().WriteKey(kAnalyticalProbability, value);
}

}  // namespace kvopt
