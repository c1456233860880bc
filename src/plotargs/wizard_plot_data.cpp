#include "kvopt/plotargs/wizard_plot_data.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "kvopt/plotargs/report_override_options.h"
#include "kvopt/stores/ini_file_factory.h"
#include "kvopt/stores/ini_file_section.h"
#include "kvopt/study/fit_info.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/response_model_utilities.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_std_string.h"
#include "kvopt/text/not_set.h"
#include "study/constants_index.h"

namespace kvopt {
namespace {

std::shared_ptr<AxisInfo> CloneAxis(const std::shared_ptr<AxisInfo>& axis) {
    return axis ? std::shared_ptr<AxisInfo>(axis->Clone()) : nullptr;
}

std::vector<std::shared_ptr<AxisInfo>> CloneAxes(
    const std::vector<std::shared_ptr<AxisInfo>>& axes) {
    std::vector<std::shared_ptr<AxisInfo>> clones;
    clones.reserve(axes.size());
    std::transform(axes.begin(), axes.end(), std::back_inserter(clones), CloneAxis);
    return clones;
}

// The model of one response, as far as axes ask it. An unknown response has none.
class ResponseFit {
public:
    ResponseFit(const Investigation& investigation, const char* response)
        : variables_(*investigation.GetVariables()),
          response_(investigation.GetResponseManager()->GetResponse(Name(response))),
          fit_(investigation.GetFitInfo(Name(response))) {}

    bool HasAxis(const AxisInfo& axis) const {
        const FactorClass* factor = variables_.GetFactor(axis.GetName());
        return factor && response_ && fit_ && fit_->IsFactorAvailable(factor, response_);
    }

private:
    static std::string Name(const char* response) { return response ? response : ""; }

    const Variables& variables_;
    const ResponseEx* response_;
    const FitInfo* fit_;
};

}  // namespace

WizardPlotData::WizardPlotData(Investigation* investigation, int numAxisSets, int maxNumAxis,
                               int maxConstants, const std::string& iniFile)
    : investigation_(investigation), iniFile_(iniFile) {
    if (!investigation || numAxisSets < 0 || maxNumAxis < 0 || maxConstants < 0) {
        throw InvalidArgument("WizardPlotData::WizardPlotData");
    }
    iniSection_ = IniFileFactory::Instance()->GetIniFile(iniFile, "");
    Init(numAxisSets, maxNumAxis, maxConstants);
}

WizardPlotData::WizardPlotData(const WizardPlotData& other)
    : investigation_(other.investigation_),
      iniFile_(other.iniFile_),
      maxNumAxis_(other.maxNumAxis_),
      numAxisSets_(other.numAxisSets_),
      maxConstants_(other.maxConstants_),
      defaultAxisNames_(other.defaultAxisNames_),
      axisTypeStrings_(other.axisTypeStrings_),
      axisDefaults_(CloneAxes(other.axisDefaults_)),
      numDefaults_(other.numDefaults_) {
    axisInfo_.reserve(other.axisInfo_.size());
    std::transform(other.axisInfo_.begin(), other.axisInfo_.end(), std::back_inserter(axisInfo_),
                   CloneAxes);
    AllocateConstants(other.constantCapacity_);
    FactorConstants::CopyConstantVector(constants_.get(), other.constants_.get());
}

WizardPlotData& WizardPlotData::operator=(const WizardPlotData& other) = default;
WizardPlotData::~WizardPlotData() = default;

std::wstring WizardPlotData::ExtraHeaderInformation() const {
    return extraHeaderInformation_;
}

std::size_t WizardPlotData::SetIndex(int set) const {
    const int index = set < 0 ? GetUsedAxisIx() : set;
    if (index < 0 || index >= static_cast<int>(axisInfo_.size())) {
        throw InvalidArgument("WizardPlotData::GetAxisInfo");
    }
    return static_cast<std::size_t>(index);
}

std::vector<std::shared_ptr<AxisInfo>>& WizardPlotData::GetAxisInfo(int set) {
    return axisInfo_[SetIndex(set)];
}

const std::vector<std::shared_ptr<AxisInfo>>& WizardPlotData::GetAxisInfo(int set) const {
    return axisInfo_[SetIndex(set)];
}

AxisInfo* WizardPlotData::FindAxis(int set, int position) const {
    const std::vector<std::shared_ptr<AxisInfo>>& axes = GetAxisInfo(set);
    return position >= 1 && position < static_cast<int>(axes.size())
               ? axes[static_cast<std::size_t>(position)].get()
               : nullptr;
}

int WizardPlotData::AvailableConstants(const std::vector<std::shared_ptr<AxisInfo>>& axes,
                                       int numAxes) const {
    const ResponseModelUtilities models(investigation_);
    const auto liesOnAxis = [&](const FactorClass& factor) {
        const int last = std::min(numAxes, static_cast<int>(axes.size()) - 1);
        for (int i = 1; i <= last; ++i) {
            const AxisInfo* axis = axes[static_cast<std::size_t>(i)].get();
            if (axis && axis->GetName() == factor.GetName()) {
                return true;
            }
        }
        return false;
    };
    const std::vector<FactorClass*> factors = investigation_->GetVariables()->GetAllFactors();
    return static_cast<int>(
        std::count_if(factors.begin(), factors.end(), [&](const FactorClass* factor) {
            return !factor->IsConstant() && models.IsFactorAvailable(factor, true, false) &&
                   !liesOnAxis(*factor);
        }));
}

int WizardPlotData::NumAxesLegal(const char* response, int set, int numAxes) const {
    const ResponseFit fit(*investigation_, response);
    int legal = 0;
    for (int i = 1; i <= numAxes; ++i) {
        const AxisInfo* axis = FindAxis(set, i);
        if (axis && axis->IsUsed() && fit.HasAxis(*axis)) {
            ++legal;
        }
    }
    return legal;
}

int WizardPlotData::RemoveIllegalAxes(const char* response, int set, int numAxes) {
    const ResponseFit fit(*investigation_, response);
    int removed = 0;
    for (int i = 1; i <= numAxes; ++i) {
        AxisInfo* axis = FindAxis(set, i);
        if (axis && axis->IsUsed() && !fit.HasAxis(*axis)) {
            axis->SetName(AxisInfo::GetNotUsedName());
            ++removed;
        }
    }
    return removed;
}

void WizardPlotData::OverRideOptions(const ReportOverRideOptions* options) {
    if (!options) {
        return;
    }
    for (int set = 1; set <= numAxisSets_; ++set) {
        for (const auto& [position, with] : options->GetAxes()) {
            AxisInfo* axis = FindAxis(set, position);
            if (!axis) {
                continue;
            }
            axis->SetIsQualitative(with.IsQualitative());
            if (with.GetMax() != kNotSetF) {
                axis->SetMax(with.GetMax());
            }
            if (with.GetMin() != kNotSetF) {
                axis->SetMin(with.GetMin());
            }
            if (!KvStdString::Trim(std::string_view(with.GetName())).empty()) {
                axis->SetName(with.GetName());
            }
        }
    }
    ConstantsIndex constants = IndexConstants();
    for (const auto& [name, with] : options->GetConstants()) {
        using FactorConstants::Constant;
        const bool qualitative = investigation_->GetVariables()->IsFactorQualitative(name);
        Constant* const known = constants.Find(name);
        if (!known) {
            constants.Add(qualitative ? Constant(name, with.QualValue(), with.SettingPos())
                                      : Constant(name, with.FloatValue(), with.SettingPos()));
            continue;
        }
        if (qualitative) {
            known->QualValue(with.QualValue());
        } else {
            known->FloatValue(with.FloatValue());
        }
        known->SettingPos() = with.SettingPos();
    }
}

void WizardPlotData::AllocateConstants(int capacity) {
    constantCapacity_ = capacity;
    constants_ =
        std::make_shared<FactorConstants::Constant[]>(static_cast<std::size_t>(capacity) + 1);
}

ConstantsIndex WizardPlotData::IndexConstants() const {
    return ConstantsIndex(constants_.get(), constantCapacity_);
}

}  // namespace kvopt
