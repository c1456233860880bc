#include "kvopt/study/investigation.h"

#include <algorithm>
#include <unordered_set>

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

constexpr const char* kOptionsSection = "Options";

Investigation* activeInvestigation = nullptr;

}  // namespace

/// The services of a host that has none of its own. Those that read the study's settings are made
/// when they are first wanted: the host is not yet there while its base is built.
struct Investigation::Defaults {
    explicit Defaults(Investigation* investigation)
        : owner(investigation), models(investigation), modelSpec(investigation) {}

    Investigation* owner;
    ModelQueries models;
    std::unique_ptr<DesignSpacePredictor> designSpace;
    ModelSpec modelSpec;
    std::unique_ptr<KivexOptions> options;
    std::shared_ptr<StandardLabelTitles> labelTitles = std::make_shared<StandardLabelTitles>();
    ConfigurationStore settings;
    std::vector<std::string> selected;
};

Investigation::Investigation()
    : favouriteSetpoint(this), defaults_(std::make_unique<Defaults>(this)) {}

Investigation::~Investigation() {
    if (activeInvestigation == this) {
        activeInvestigation = nullptr;
    }
}

const FitInfo* Investigation::GetFitInfo(const std::string& /*response*/) const {
    return nullptr;
}

std::vector<const FitInfo*> Investigation::GetAllFitInfos() const {
    std::vector<const FitInfo*> fits;
    for (const ResponseEx* response : *GetResponseManager()) {
        if (const FitInfo* fit = GetFitInfo(response->GetName())) {
            fits.push_back(fit);
        }
    }
    return fits;
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
    if (defaults_->designSpace == nullptr) {
        defaults_->designSpace = std::make_unique<DesignSpacePredictor>(defaults_->owner);
    }
    return defaults_->designSpace.get();
}

KivexOptions* Investigation::GetOptions() const {
    if (defaults_->options == nullptr) {
        defaults_->options = std::make_unique<KivexOptions>();
        const std::unique_ptr<const ConfigurationSection> section =
            IniFileFactory::Instance()->GetIniFile(GetIniFileName(), kOptionsSection);
        if (section != nullptr) {
            defaults_->options->LoadOptions(*section);
        }
    }
    return defaults_->options.get();
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
    const std::unordered_set<std::string> known(available.begin(), available.end());
    responses.clear();
    for (const std::string& name : defaults_->selected) {
        if (known.count(name) != 0) {
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
