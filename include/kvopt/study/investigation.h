#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/study/favourite_setpoint.h"
#include "kvopt/study/select_response_base.h"

namespace kvopt {

class BaseLabelTitles;
class ConfigurationSection;
class ConstraintsInfo;
class DesignSpacePredictor;
class FitInfo;
class KivexOptions;
class ModelQueries;
class ModelSpec;
class OptimizerQueries;
class ResponseManager;
class Variables;

/// The study, as the host keeps it. It outlives every argument object and page that is given it.
///
/// A host derives from it and has to give its variables and its responses. Every other operation
/// has a default: a study without models, constraints or blocks, whose options and settings live
/// in the ini file that it names. Everything pointed to belongs to the study.
class KVOPT_EXPORT Investigation {
public:
    Investigation();
    virtual ~Investigation();
    Investigation(const Investigation&) = delete;
    Investigation& operator=(const Investigation&) = delete;

    /// Never null.
    virtual Variables* GetVariables() const = 0;
    /// Never null.
    virtual ResponseManager* GetResponseManager() const = 0;

    /// Null for a response that is not fitted.
    virtual const FitInfo* GetFitInfo(const std::string& response) const;
    /// The fits there are, in the order of the responses; holds no null pointer.
    virtual std::vector<const FitInfo*> GetAllFitInfos() const;
    /// Null when the study has no constraints.
    virtual ConstraintsInfo* GetConstraints() const;
    /// What the models know; null counts as knowing nothing.
    virtual const ModelQueries* GetModelQueries() const;
    /// What the optimizer knows; null without one.
    virtual const OptimizerQueries* GetOptimizerQueries() const;

    /// The name of the study's ini file; empty for none.
    virtual std::string GetIniFileName() const;
    /// A section of the study's own settings, owned by the caller; created when it is written to.
    /// By default the section of this name in the ini file, or one in memory that lives as long as
    /// the study when there is no file. Never null.
    virtual std::unique_ptr<ConfigurationSection> GetInvestigationSettings(const char* name,
                                                                           bool readOnly) const;

    /// Never null.
    virtual DesignSpacePredictor* GetDesignSpacePredictor() const;
    /// Never null.
    virtual KivexOptions* GetOptions() const;
    /// Never null.
    virtual ModelSpec* GetModelSpec();
    virtual const ModelSpec* GetModelSpec() const;
    /// The labels that the plots of this study offer. Never null.
    virtual std::shared_ptr<BaseLabelTitles> GetLabelTitles() const;

    /// Whether the study has a block entry.
    virtual bool IsBlocked() const;
    /// Whether nothing of the study may be changed.
    virtual bool IsLocked() const;

    /// Remembers the selection of the last plot.
    virtual void SetSelectedResponses(const std::vector<std::string>& responses);
    /// Fills `responses` with that selection, as far as it is available in the set.
    virtual void GetSelectedResponses(std::vector<std::string>& responses,
                                      SelectResponseBase::ResponseType type) const;
    /// Fills `responses` with the responses of the set that may be plotted: Ordinary those of
    /// Variables, any other those of the ResponseManager.
    virtual void GetAllAvailableResponses(std::vector<std::string>& responses,
                                          SelectResponseBase::ResponseType type,
                                          bool fittedOnly) const;
    /// The first of the remembered selection, or of all available; empty when there is none.
    virtual std::string GetFirstSelectedResponse(SelectResponseBase::ResponseType type) const;
    /// Removes in place what is no response of the study, or may not be plotted.
    virtual void RemoveNonValidResponses(std::vector<std::string>& responses) const;

    /// The study in front; null when there is none. The host says which.
    static Investigation* GetActiveInvestigation();
    static void SetActiveInvestigation(Investigation* investigation);

    FavouriteSetpoint favouriteSetpoint;

private:
    struct Defaults;
    std::unique_ptr<Defaults> defaults_;
};

}  // namespace kvopt
