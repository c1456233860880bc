#include "kvopt/host/reference_study.h"

#include <optional>
#include <utility>

#include "host/mixture.h"
#include "host/model_matrix.h"
#include "host/reference_models.h"
#include "host/reference_optimizer.h"
#include "host/reference_variables.h"
#include "host/seeded_section.h"
#include "host/study_check.h"
#include "host/study_fault.h"
#include "kvopt/stores/configuration_store.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {
namespace {

StudyData Checked(StudyData data) {
    FillAbbreviations(data);
    try {
        CheckStudy(data);
    } catch (const StudyFault& fault) {
        throw InvalidArgument("ReferenceStudy: " + fault.pointer + ": expected " + fault.expected +
                              ", found " + fault.found);
    }
    return data;
}

/// The favourite as the optimizer's start: one number for each factor.
std::vector<float> StartOf(const StudyData& data) {
    std::vector<float> start;
    if (data.favouriteSetpoint.empty()) {
        return start;
    }
    for (const StudyFactor& factor : data.factors) {
        const auto found = data.favouriteSetpoint.find(factor.name);
        if (found == data.favouriteSetpoint.end()) {
            start.push_back(kNotSetF);
        } else if (const auto* setting = std::get_if<std::string>(&found->second)) {
            start.push_back(static_cast<float>(SettingIndex(factor, *setting)));
        } else {
            start.push_back(static_cast<float>(std::get<double>(found->second)));
        }
    }
    return start;
}

/// What the limits of a response ask of a setpoint.
DSResponseSettings CriterionOf(const StudyResponse& response) {
    enum Criterion : std::uint32_t { Minimum = 0, Target = 1, Maximum = 2, Predicted = 3 };
    const bool hasLow = response.lowLimit != kNotSet;
    const bool hasHigh = response.highLimit != kNotSet;
    DSResponseSettings settings;
    if (hasLow) {
        settings.criterion = hasHigh ? Target : Maximum;
    } else {
        settings.criterion = hasHigh ? Minimum : Predicted;
    }
    return settings;
}

/// Takes what is saved as settings of a study into a store.
class SettingsRecorder final : public Investigation {
public:
    SettingsRecorder(Variables& variables, ResponseManager& responses, ConfigurationStore& store)
        : variables_(variables), responses_(responses), store_(store) {}

    Variables* GetVariables() const override { return &variables_; }
    ResponseManager* GetResponseManager() const override { return &responses_; }
    std::unique_ptr<ConfigurationSection> GetInvestigationSettings(
        const char* name, bool /*readOnly*/) const override {
        return store_.Root()->GetSection(name);
    }

private:
    Variables& variables_;
    ResponseManager& responses_;
    ConfigurationStore& store_;
};

}  // namespace

struct ReferenceStudy::Parts {
    Parts(const ReferenceStudy* study, StudyData studyData, std::string iniFile)
        : data(Checked(std::move(studyData))),
          mixture(data),
          variables(study, data, mixture),
          responses(data, variables),
          models(study, data),
          optimizer(study, data, mixture, models),
          constraints(data),
          iniFileName(std::move(iniFile)) {
        const SettingsRecorder recorder(variables, responses, seeds);
        if (data.designSpace) {
            data.designSpace->SaveAsGlobalSettings(&recorder);
        }
        for (const auto& [name, keys] : data.settings) {
            const auto section = recorder.GetInvestigationSettings(name.c_str(), false);
            for (const auto& [key, value] : keys) {
                std::visit([&section, name = key.c_str()](
                               const auto& setting) { section->WriteKey(name, setting); },
                           value);
            }
        }
    }

    const StudyData data;
    const Mixture mixture;
    ReferenceVariables variables;
    ReferenceResponses responses;
    const ReferenceModels models;
    const ReferenceOptimizer optimizer;
    ReferenceConstraints constraints;
    std::string iniFileName;
    ConfigurationStore seeds;  ///< the settings that the study begins with
    bool hasCriteria = false;
};

ReferenceStudy::ReferenceStudy(StudyData data, std::string iniFileName)
    : parts_(std::make_unique<Parts>(this, std::move(data), std::move(iniFileName))) {
    Investigation::SetSelectedResponses(parts_->data.selectedResponses);
    favouriteSetpoint.SetStart(StartOf(parts_->data));
}

ReferenceStudy::~ReferenceStudy() = default;

const StudyData& ReferenceStudy::Data() const {
    return parts_->data;
}

const ModelFit* ReferenceStudy::Fit(const std::string& response) const {
    return parts_->models.Fit(response);
}

void ReferenceStudy::SetIniFileName(std::string fileName) {
    parts_->iniFileName = std::move(fileName);
}

Variables* ReferenceStudy::GetVariables() const {
    return &parts_->variables;
}

ResponseManager* ReferenceStudy::GetResponseManager() const {
    return &parts_->responses;
}

const FitInfo* ReferenceStudy::GetFitInfo(const std::string& response) const {
    return parts_->models.Info(response);
}

std::vector<const FitInfo*> ReferenceStudy::GetAllFitInfos() const {
    return parts_->models.Infos();
}

ConstraintsInfo* ReferenceStudy::GetConstraints() const {
    return parts_->data.constraints.empty() ? nullptr : &parts_->constraints;
}

const ModelQueries* ReferenceStudy::GetModelQueries() const {
    return &parts_->models;
}

const OptimizerQueries* ReferenceStudy::GetOptimizerQueries() const {
    return &parts_->optimizer;
}

std::string ReferenceStudy::GetIniFileName() const {
    return parts_->iniFileName;
}

std::unique_ptr<ConfigurationSection> ReferenceStudy::GetInvestigationSettings(
    const char* name, bool readOnly) const {
    const ConfigurationStore& seeds = parts_->seeds;
    return std::make_unique<SeededSection>(Investigation::GetInvestigationSettings(name, readOnly),
                                           seeds.Root()->GetSection(name));
}

DesignSpacePredictor* ReferenceStudy::GetDesignSpacePredictor() const {
    DesignSpacePredictor* predictor = Investigation::GetDesignSpacePredictor();
    if (!parts_->hasCriteria) {
        parts_->hasCriteria = true;
        for (const StudyResponse& response : parts_->data.responses) {
            predictor->GetResponseSettings().push_back(CriterionOf(response));
        }
    }
    return predictor;
}

bool ReferenceStudy::IsLocked() const {
    return parts_->data.locked;
}

}  // namespace kvopt
