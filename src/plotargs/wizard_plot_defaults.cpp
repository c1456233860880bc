// How a new WizardPlotData gets its axes, its default axes and its constants.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <set>
#include <unordered_map>

#include "kvopt/plotargs/wizard_plot_data.h"
#include "kvopt/stores/ini_factor_constant.h"
#include "kvopt/stores/ini_file_section.h"
#include "kvopt/study/constraints_info.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/optimizer_queries.h"
#include "kvopt/study/response_model_utilities.h"
#include "kvopt/study/settings.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/kv_std_string.h"
#include "kvopt/text/not_set.h"
#include "study/constants_index.h"

namespace kvopt {
namespace {

// What the default axes are ordered by.
struct SortRecord {
    float contribution = kNotSetF;
    bool constrained = false;  ///< kept with the record; the order does not depend on it
    bool first = false;
};

constexpr int kFirstFactorKind = 2;
constexpr int kNamedAxes = 3;

bool ComesBefore(const SortRecord& a, const SortRecord& b) {
    if (a.contribution == kNotSetF) {
        return false;
    }
    if (b.contribution == kNotSetF) {
        return true;
    }
    return a.first != b.first ? a.first : a.contribution > b.contribution;
}

std::string SettingsInUse(const FactorClass& factor) {
    std::vector<std::string> names;
    for (const int setting : factor.GetIncludedSettings()) {
        names.push_back(factor.GetSetting(setting));
    }
    return KvStdString::FormatStringVector(names, ";");
}

std::shared_ptr<AxisInfo> DefaultAxis(const FactorClass& factor) {
    auto axis = std::make_shared<AxisInfoImpl>();
    axis->SetName(factor.GetName());
    axis->SetUnit(factor.GetUnits());
    axis->SetIsQualitative(factor.IsQualitative());
    if (factor.IsQualitative()) {
        axis->SetSettings(SettingsInUse(factor));
    } else {
        axis->SetRange(static_cast<float>(factor.GetLow(true)),
                       static_cast<float>(factor.GetHigh(true)));
    }
    return axis;
}

std::vector<float> DefaultStart(const Investigation& investigation) {
    return investigation.favouriteSetpoint.GetDefaultStart(
        &SimplexSetup::CalculateRequiredOnlyOptima);
}

// A start value stands for the setting whose number it is nearest to.
std::string NearestSetting(const FactorClass& factor, float start) {
    const double number = static_cast<double>(start) + 0.5;
    const bool isNumber = number >= 0.0 && number < std::numeric_limits<int>::max();
    return isNumber ? factor.GetSetting(static_cast<int>(number)) : std::string();
}

}  // namespace

void WizardPlotData::Init(int numAxisSets, int maxNumAxis, int maxConstants) {
    if (!axisInfo_.empty()) {
        axisInfo_.clear();
        axisDefaults_.clear();
    }
    numAxisSets_ = numAxisSets;
    maxNumAxis_ = maxNumAxis;
    maxConstants_ = maxConstants;
    axisInfo_.resize(static_cast<std::size_t>(numAxisSets) + 1);
    for (std::size_t set = 1; set < axisInfo_.size(); ++set) {
        axisInfo_[set].resize(static_cast<std::size_t>(maxNumAxis) + 1);
        for (std::size_t position = 1; position < axisInfo_[set].size(); ++position) {
            axisInfo_[set][position] = std::make_shared<AxisInfoImpl>();
        }
    }
    InitAxisDefaults();
    AllocateConstants(std::max(maxConstants, numDefaults_));
    InitConstInfo();
}

void WizardPlotData::CreateAxisDefaults(int count) {
    axisDefaults_.clear();
    axisDefaults_.resize(static_cast<std::size_t>(count) + 1);
    numDefaults_ = count;
}

void WizardPlotData::InitAxisDefaults() {
    const std::vector<FactorClass*> factors = investigation_->GetVariables()->GetAllFactors();
    CreateAxisDefaults(static_cast<int>(factors.size()));
    std::transform(factors.begin(), factors.end(), axisDefaults_.begin() + 1,
                   [](const FactorClass* factor) { return DefaultAxis(*factor); });

    axisTypeStrings_ = {"ContourAxis", "ContourAxis2D", "ContourAxisMixture", "ContourAxis4D",
                        "YPredictedAxis"};
    for (const char* name : {"1stAxis", "2ndAxis", "3rdAxis"}) {
        defaultAxisNames_.emplace_back(name);
    }
    for (int position = kNamedAxes + 1; position <= maxNumAxis_; ++position) {
        defaultAxisNames_.push_back(std::to_string(position) + "thAxis");
    }

    OrderDefaultsByContribution();
    if (!GlobalOptions::FixedSeedForValidation(false)) {
        DropUnavailableDefaults();
    }
}

void WizardPlotData::OrderDefaultsByContribution() {
    const std::vector<float> start = DefaultStart(*investigation_);
    if (start.empty()) {
        return;
    }
    const std::vector<float> contributions =
        SimplexSetup::CalculateFactorContribution(*investigation_, start);
    if (contributions.empty()) {
        return;
    }
    const std::vector<FactorClass*> factors = investigation_->GetVariables()->GetAllFactors();
    const ConstraintsInfo* constraints = investigation_->GetConstraints();
    std::vector<SortRecord> records(std::min(factors.size(), contributions.size()));
    for (std::size_t i = 0; i < records.size(); ++i) {
        records[i].contribution = std::isnan(contributions[i]) ? kNotSetF : contributions[i];
        records[i].constrained = constraints && constraints->HasConstraints(factors[i]->GetName());
        records[i].first = factors[i]->GetFactorKind() == kFirstFactorKind;
    }

    std::vector<std::size_t> order(records.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (GlobalOptions::FixedSeedForValidation(false)) {
        const ResponseModelUtilities models(investigation_);
        const auto available = [&](std::size_t i) {
            return models.IsFactorAvailable(factors[i], true, false);
        };
        std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
            return a != b && !available(b) && available(a);
        });
    } else {
        std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
            return ComesBefore(records[a], records[b]);
        });
    }

    std::vector<std::shared_ptr<AxisInfo>> ordered(1);
    for (const std::size_t i : order) {
        ordered.push_back(axisDefaults_[i + 1]);
    }
    axisDefaults_ = std::move(ordered);
}

void WizardPlotData::DropUnavailableDefaults() {
    const ResponseModelUtilities models(investigation_);
    std::set<std::string> available;
    std::set<std::string> availableMixture;
    std::unordered_map<std::string, int> dropped;
    for (const FactorClass* factor : investigation_->GetVariables()->GetAllFactors()) {
        if (models.IsFactorAvailable(factor, true, false)) {
            available.insert(factor->GetName());
            if (factor->IsMixture()) {
                availableMixture.insert(factor->GetName());
            }
            continue;
        }
        ++dropped[factor->GetName()];
    }
    // The first default of the name for each such factor.
    std::erase_if(axisDefaults_, [&](const std::shared_ptr<AxisInfo>& axis) {
        const auto found = axis ? dropped.find(axis->GetName()) : dropped.end();
        return found != dropped.end() && found->second-- > 0;
    });
    const std::vector<std::shared_ptr<AxisInfo>> source = axisDefaults_;
    AxisInfoVector::PreferAvailableFactors(axisDefaults_, source, available, availableMixture);
}

void WizardPlotData::InitConstInfo() {
    const std::vector<float> start = DefaultStart(*investigation_);
    const std::shared_ptr<IniFileSection> ini = IniForReading();
    const IniFactorConstant remembered(*ini);
    ConstantsIndex constants = IndexConstants();
    const ResponseModelUtilities models(investigation_);
    const std::vector<FactorClass*> factors = investigation_->GetVariables()->GetAllFactors();
    for (std::size_t i = 0; i < factors.size(); ++i) {
        const FactorClass& factor = *factors[i];
        if (!models.IsFactorAvailable(&factor, true, false)) {
            continue;
        }
        const float value = i < start.size() ? start[i] : kNotSetF;
        if (factor.IsQualitative()) {
            InitQualitativeConstant(factor, value, remembered, constants);
        } else {
            InitQuantitativeConstant(factor, value, remembered, constants);
        }
    }
}

void WizardPlotData::InitQuantitativeConstant(const FactorClass& factor, float start,
                                              const IniFactorConstant& remembered,
                                              ConstantsIndex& constants) const {
    const std::string& name = factor.GetName();
    double value =
        start != kNotSetF ? static_cast<double>(start) : remembered.GetConstant(name.c_str());
    if (value == kNotSet) {
        value = DefaultConstant(factor).FloatValue();
    }
    if (value == kNotSet) {
        return;
    }
    if (FactorConstants::Constant* known = constants.Find(name)) {
        known->FloatValue(value);
        return;
    }
    constants.Add({name, value,
                   FactorConstants::WhichSetting(*investigation_->GetVariables(), &factor, value)});
}

void WizardPlotData::InitQualitativeConstant(const FactorClass& factor, float start,
                                             const IniFactorConstant& remembered,
                                             ConstantsIndex& constants) {
    const std::string& name = factor.GetName();
    std::string setting = NearestSetting(factor, start);
    if (setting.empty()) {
        setting = remembered.GetStrConstant(name.c_str());
    }
    const int number = setting.empty() ? 0 : factor.factorValue.GetSettingIndex(setting);
    const std::vector<int> included = factor.GetIncludedSettings();
    if (number <= 0 || std::find(included.begin(), included.end(), number) == included.end()) {
        return;
    }
    if (FactorConstants::Constant* known = constants.Find(name)) {
        known->QualValue(setting);
        return;
    }
    constants.Add({name, setting, FactorConstants::CUSTOM});
}

}  // namespace kvopt
