#include "kvopt/stores/plot_wizard_ini_section.h"

namespace kvopt {
namespace {

constexpr const char* kPlotType = "PlotType";
constexpr const char* kAxisType = "AxisType";
// The responses stand in a section of their own inside the view's, so that they can be cleared as
// one.
constexpr const char* kResponses = "SelectedResponses";
constexpr const char* kCount = "Count";

std::string ResponseKey(unsigned number) {
    return "Response" + std::to_string(number);
}

}  // namespace

PlotWizardIniSection::PlotWizardIniSection(IniFileSection& section)
    : PlotWizardIniSection(section, "PlotWizard") {}
PlotWizardIniSection::PlotWizardIniSection(IniFileSection& section, const char* name)
    : section_(section), name_(name) {}
PlotWizardIniSection::~PlotWizardIniSection() = default;

IniFileSection& PlotWizardIniSection::Section() const {
    section_.SetSection(name_.c_str());
    return section_;
}

std::string PlotWizardIniSection::GetPlotType() const {
    return Section().ReadKeyOr(kPlotType, std::string());
}

void PlotWizardIniSection::SetPlotType(const char* type) {
    Section().WriteKey(kPlotType, type);
}

std::string PlotWizardIniSection::GetAxisType() const {
    return Section().ReadKeyOr(kAxisType, std::string());
}

void PlotWizardIniSection::SetAxisType(const char* type) {
    Section().WriteKey(kAxisType, type);
}

void PlotWizardIniSection::ClearSelectedResponses() {
    Section().GetSection(kResponses)->Clear();
}

void PlotWizardIniSection::AddSelectedResponse(const char* response) {
    const int count = GetNumSelectedResponses() + 1;
    const std::unique_ptr<ConfigurationSection> responses = Section().GetSection(kResponses);
    responses->WriteKey(kCount, count);
    responses->WriteKey(ResponseKey(static_cast<unsigned>(count)).c_str(), response);
}

int PlotWizardIniSection::GetNumSelectedResponses() const {
    const IniFileSection& section = Section();
    const std::unique_ptr<const ConfigurationSection> responses = section.GetSection(kResponses);
    return responses != nullptr ? responses->ReadKeyOr(kCount, 0) : 0;
}

std::string PlotWizardIniSection::GetSelectedResponse(unsigned number) const {
    const IniFileSection& section = Section();
    const std::unique_ptr<const ConfigurationSection> responses = section.GetSection(kResponses);
    return responses != nullptr ? responses->ReadKeyOr(ResponseKey(number).c_str(), std::string())
                                : std::string();
}

}  // namespace kvopt
