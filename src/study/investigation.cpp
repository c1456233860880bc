#include "kvopt/study/investigation.h"

#include <algorithm>

#include "kvopt/stores.h"
#include "kvopt/study/design_space_predictor.h"
#include "kvopt/study/kivex_options.h"
#include "kvopt/study/label_types.h"
#include "kvopt/study/model_queries.h"
#include "kvopt/study/model_spec.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/response_model_utilities.h"
#include "kvopt/study/variables.h"

namespace kvopt {

namespace {

Investigation* activeInvestigation = nullptr;

bool Holds(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

struct Investigation::Defaults {
    explicit Defaults(Investigation* investigation)
        : models(investigation), designSpace(investigation), modelSpec(investigation) {}

    ModelQueries models;
    DesignSpacePredictor designSpace;
    ModelSpec modelSpec;
    KivexOptions options;
    std::shared_ptr<StandardLabelTitles> labelTitles = std::make_shared<StandardLabelTitles>();
    ConfigurationStore settings;
    std::vector<std::string> selected;
};

Investigation::Investigation()
    : favouriteSetpoint(this), defaults_(std::make_unique<Defaults>(this)) {}

Investigation::~Investigation() = default;

const FitInfo* Investigation::GetFitInfo(const std::string& /*response*/) const {
    return nullptr;
}

std::vector<const FitInfo*> Investigation::GetAllFitInfos() const {
    return {};
}

ConstraintsInfo* Investigation::GetConstraints() const {
    return nullptr;
}

const ModelQueries* Investigation::GetModelQueries() const {
    return &defaults_->models;
}

const OptimizerQueries* Investigation::GetOptimizerQueries() const {
    return nullptr;
}

std::string Investigation::GetIniFileName() const {
    return {};
}

std::unique_ptr<ConfigurationSection> Investigation::GetInvestigationSettings(
    const char* name, bool /*readOnly*/) const {
    if (auto section = IniFileFactory::Instance()->GetIniFile(GetIniFileName(), name)) {
        return section;
    }
    return defaults_->settings.Root()->GetSection(name);
}

DesignSpacePredictor* Investigation::GetDesignSpacePredictor() const {
    return &defaults_->designSpace;
}

KivexOptions* Investigation::GetOptions() const {
    return &defaults_->options;
}

ModelSpec* Investigation::GetModelSpec() {
    return &defaults_->modelSpec;
}

const ModelSpec* Investigation::GetModelSpec() const {
    return &defaults_->modelSpec;
}

std::shared_ptr<BaseLabelTitles> Investigation::GetLabelTitles() const {
    return defaults_->labelTitles;
}

bool Investigation::IsBlocked() const {
    return GetVariables()->IsFactor(kBlockFactorName);
}

bool Investigation::IsLocked() const {
    return false;
}

void Investigation::SetSelectedResponses(const std::vector<std::string>& responses) {
    defaults_->selected = responses;
}

void Investigation::GetSelectedResponses(std::vector<std::string>& responses,
                                         SelectResponseBase::ResponseType type) const {
    std::vector<std::string> available;
    GetAllAvailableResponses(available, type, false);
    responses.clear();
    for (const std::string& name : defaults_->selected) {
        if (Holds(available, name)) {
            responses.push_back(name);
        }
    }
}

void Investigation::GetAllAvailableResponses(std::vector<std::string>& responses,
                                             SelectResponseBase::ResponseType type,
                                             bool fittedOnly) const {
    const ResponseModelUtilities models(this);
    responses.clear();
    const auto keep = [&](const std::string& name) {
        if (models.IsResponseAvailable(name, fittedOnly)) {
            responses.push_back(name);
        }
    };
    if (type == SelectResponseBase::Ordinary) {
        for (const ResponseClass* response : GetVariables()->GetAllResponses()) {
            keep(response->name);
        }
        return;
    }
    for (const ResponseEx* response : *GetResponseManager()) {
        keep(response->GetName());
    }
}

std::string Investigation::GetFirstSelectedResponse(SelectResponseBase::ResponseType type) const {
    std::vector<std::string> names;
    GetSelectedResponses(names, type);
    if (names.empty()) {
        GetAllAvailableResponses(names, type, false);
    }
    return names.empty() ? std::string() : names.front();
}

void Investigation::RemoveNonValidResponses(std::vector<std::string>& responses) const {
    const ResponseModelUtilities models(this);
    responses.erase(std::remove_if(responses.begin(), responses.end(),
                                   [&models](const std::string& name) {
                                       return !models.IsResponseAvailable(name, false);
                                   }),
                    responses.end());
}

Investigation* Investigation::GetActiveInvestigation() {
    return activeInvestigation;
}

void Investigation::SetActiveInvestigation(Investigation* investigation) {
    activeInvestigation = investigation;
}

}  // namespace kvopt
