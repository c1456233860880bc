// How a WizardPlotData is remembered: the study's ini file and the saved plot, writer and reader.

#include <algorithm>

#include "kvopt/plotargs/wizard_plot_data.h"
#include "kvopt/stores/ini_factor_constant.h"
#include "kvopt/stores/ini_file_section.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/response_model_utilities.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/exceptions.h"
#include "kvopt/text/not_set.h"
#include "study/constants_index.h"

namespace kvopt {
namespace {

using FactorConstants::Constant;

// The ini file: a quantitative constant is a key in one section, under the factor's name; a
// qualitative one is a key of that same text in the section of its factor.
constexpr const char* kMin = "Min3D";
constexpr const char* kMax = "Max3D";
constexpr const char* kQualitativeSettings = "QualitativeSettings";
constexpr const char* kConst = "Const3D";

// The saved plot.
constexpr const char* kConstants = "Constants";
constexpr const char* kConstant = "Constant";
constexpr const char* kName = "Name";
constexpr const char* kSetting = "Setting";
constexpr const char* kValue = "Value";

std::string AxisName(int position) {
    return "Axis_" + std::to_string(position);
}

bool IsQuantitative(const Constant& constant) {
    return constant.kind == FactorConstants::kQuantitativeKind;
}

}  // namespace

std::string WizardPlotData::GetAxisTypeString(PlotAxisType type) const {
    const auto index = static_cast<std::size_t>(type);
    return index < axisTypeStrings_.size() ? axisTypeStrings_[index] : std::string();
}

std::string WizardPlotData::GetDefaultAxisName(int position) const {
    const auto index = static_cast<std::size_t>(position) - 1;
    return index < defaultAxisNames_.size() ? defaultAxisNames_[index] : std::string();
}

std::shared_ptr<IniFileSection> WizardPlotData::IniForReading() const {
    return iniSection_ ? iniSection_ : std::make_shared<IniFileSection>();
}

IniFileSection& WizardPlotData::IniForWriting(const char* operation) const {
    if (!iniSection_) {
        throw InvalidArgument(operation);
    }
    return *iniSection_;
}

void WizardPlotData::WriteAxis(IniFileSection& ini, PlotAxisType type, int keyPosition,
                               const AxisInfo& axis) const {
    const std::string& name = axis.GetName();
    ini.SetSection(GetAxisTypeString(type).c_str());
    ini.WriteKey(GetDefaultAxisName(keyPosition).c_str(), name);
    if (name.empty()) {
        return;
    }
    ini.SetSection(name.c_str());
    if (investigation_->GetVariables()->IsFactorQualitative(name)) {
        ini.WriteKey(kQualitativeSettings, axis.GetSettings());
    } else {
        ini.WriteKey(kMin, static_cast<double>(axis.GetMin()));
        ini.WriteKey(kMax, static_cast<double>(axis.GetMax()));
    }
}

bool WizardPlotData::IsStored(const FactorClass& factor) const {
    const ResponseModelUtilities models(investigation_);
    return factor.IsMixture() ||
           (models.IsInAnyModel(factor.index) && models.IsFactorAvailable(&factor, true, false));
}

Constant WizardPlotData::DefaultConstant(const FactorClass& factor) const {
    if (factor.IsQualitative()) {
        return {factor.GetName(), factor.GetSetting(1), FactorConstants::NO_SETTING};
    }
    const double value = factor.IsMixture()
                             ? FactorConstants::GetQuantitativeFloatValue(
                                   *investigation_->GetVariables(), &factor, FactorConstants::REF)
                             : factor.GetCenterpoint(true, kNotSet, kNotSet);
    return {factor.GetName(), value, FactorConstants::NO_SETTING};
}

void WizardPlotData::WriteSettings(PlotAxisType type, int set, int numAxes) const {
    SetIndex(set);  // refuses a set that is not there before anything is written
    IniFileSection& ini = IniForWriting("WizardPlotData::WriteSettings");
    for (int i = 1; i <= numAxes; ++i) {
        if (const AxisInfo* axis = FindAxis(set, i)) {
            WriteAxis(ini, type, i, *axis);
        }
    }
    IniFactorConstant remembered(ini);
    const ConstantsIndex constants = IndexConstants();
    for (const FactorClass* factor : investigation_->GetVariables()->GetAllFactors()) {
        if (!IsStored(*factor)) {
            continue;
        }
        const std::string& name = factor->GetName();
        const Constant* known = constants.Find(name);
        const Constant constant = known ? *known : DefaultConstant(*factor);
        if (IsQuantitative(constant)) {
            ini.SetSection(kConst);
            ini.WriteKey(name.c_str(), constant.FloatValue());
            remembered.SetConstant(name.c_str(), constant.FloatValue());
        } else {
            ini.SetSection(name.c_str());
            ini.WriteKey(kConst, constant.QualValue());
            remembered.SetStrConstant(name.c_str(), constant.QualValue().c_str());
        }
    }
}

void WizardPlotData::ReadRange(IniFileSection& ini, AxisInfo& axis, const FactorClass& factor) {
    const double low = ini.ReadKeyOr(kMin, kNotSet);
    const double high = ini.ReadKeyOr(kMax, kNotSet);
    axis.SetName(factor.GetName());
    axis.SetRange(static_cast<float>(low == kNotSet ? factor.GetLow(true) : low),
                  static_cast<float>(high == kNotSet ? factor.GetHigh(true) : high));
}

std::string WizardPlotData::ReadQualitativeSettings(IniFileSection& ini) {
    return ini.ReadKeyOr(kQualitativeSettings, std::string());
}

void WizardPlotData::WriteSection(ConfigurationSection* section, PlotAxisType type, int set,
                                  int numAxes) const {
    if (!section) {
        throw InvalidArgument("WizardPlotData::WriteSection");
    }
    SetIndex(set);
    const auto child = section->GetSection(GetAxisTypeString(type).c_str());
    for (int i = 1; i <= numAxes; ++i) {
        if (const AxisInfo* axis = FindAxis(set, i)) {
            axis->WriteSection(child->GetSection(AxisName(i).c_str()).get());
        }
    }
    child->GetSection(kConstants)->Clear();
    const auto constants = child->GetSection(kConstants);
    const ConstantsIndex index = IndexConstants();
    int place = 0;
    for (const FactorClass* factor : investigation_->GetVariables()->GetAllFactors()) {
        ++place;
        if (!IsStored(*factor)) {
            continue;
        }
        const auto entry = constants->GetIndexedSection(kConstant, place);
        entry->WriteKey(kName, factor->GetName());
        const Constant* known = index.Find(factor->GetName());
        const Constant constant = known ? *known : DefaultConstant(*factor);
        if (!IsQuantitative(constant)) {
            entry->WriteKey(kValue, constant.QualValue());
            continue;
        }
        if (known) {
            entry->WriteKey(kSetting, FactorConstants::SettingName(constant.SettingPos(), nullptr));
        }
        entry->WriteKey(kValue, constant.FloatValue());
    }
}

bool WizardPlotData::ReadSection(const ConfigurationSection* section, PlotAxisType type, int set,
                                 int numAxes) {
    SetIndex(set);
    const std::string typeName = GetAxisTypeString(type);
    if (!section || !section->HasSection(typeName.c_str(), true)) {
        return false;
    }
    const auto child = section->GetSection(typeName.c_str());
    return ReadAxes(*child, set, numAxes) && ReadConstants(*child);
}

bool WizardPlotData::ReadAxes(const ConfigurationSection& section, int set, int numAxes) {
    const ResponseModelUtilities models(investigation_);
    for (int i = 1; i <= numAxes; ++i) {
        AxisInfo* axis = FindAxis(set, i);
        if (!axis) {
            continue;
        }
        if (const auto child = section.GetSection(AxisName(i).c_str())) {
            axis->ReadSection(child.get());
        }
        const std::string& name = axis->GetName();
        if (axis->IsUsed() && (!investigation_->GetVariables()->IsFactor(name) ||
                               !models.IsFactorAvailable(name, true, false))) {
            return false;
        }
    }
    for (int i = std::max(numAxes, 0) + 1; i <= maxNumAxis_; ++i) {
        if (AxisInfo* axis = FindAxis(set, i)) {
            axis->SetName(AxisInfo::GetNotUsedName());
        }
    }
    return true;
}

bool WizardPlotData::ReadConstants(const ConfigurationSection& section) {
    const Variables& variables = *investigation_->GetVariables();
    const auto constants = section.GetSection(kConstants);
    const int count = constants ? constants->CountSections(kConstant) : 0;
    ConstantsIndex index = IndexConstants();
    // What an entry lacks it takes from the entries before it.
    std::string setting;
    std::string text;
    double value = kNotSet;
    for (int i = 1; i <= count; ++i) {
        const auto entry = constants->GetIndexedSection(kConstant, i);
        std::string name;
        if (!entry || !entry->ReadKey(kName, name)) {
            continue;
        }
        const FactorClass* factor = variables.GetFactor(name);
        if (!factor || !IsStored(*factor)) {
            continue;
        }
        Constant* const known = index.Find(name);
        if (factor->IsQualitative()) {
            entry->ReadKey(kValue, text);
            if (!known) {
                // The setting's target and not the value just read: a new qualitative constant
                // gets the position text of the last quantitative entry, or nothing.
                index.Add({name, setting, FactorConstants::CUSTOM});
            } else if (variables.LegalSetting(name, text)) {
                known->QualValue(text);
            }
            continue;
        }
        entry->ReadKey(kSetting, setting);
        const FactorConstants::SettingType position =
            FactorConstants::CenterType(setting.c_str(), nullptr);
        entry->ReadKey(kValue, value);
        if (!known) {
            index.Add({name, value, position});
        } else {
            known->FloatValue(value);
            known->SettingPos() = position;
        }
    }
    return true;
}

}  // namespace kvopt
