#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/host/model_fit.h"
#include "kvopt/host/study_data.h"
#include "kvopt/study.h"

namespace kvopt {

/// A study in memory that answers every service of Investigation from its record: the reference
/// host, for applications without a study model of their own, for demonstrations and for tests.
///
/// - Models are fitted when the study is made, by least squares (see ModelFit).
/// - A factor is available when a model uses it or when it is a part of the mixture; the filler,
///   which makes up the rest, is available to no plot. A study without any model offers everything.
/// - A favourite setpoint in the record is the default start; the contributions of the factors are
///   worked out from the models around it. There is no optimizer behind the study.
/// - Settings and design space options start from those of the record. What is written goes to the
///   ini file, or lasts as long as the study when there is none.
///
/// The record does not change any more; the study is neither copied nor moved, since plots point to
/// it. It must not be the active investigation any longer when it dies.
class KVOPT_EXPORT ReferenceStudy : public Investigation {
public:
    /// Throws InvalidArgument, which says what is wrong and where, when the record makes no study.
    /// Without the name of an ini file nothing is remembered beyond the life of the study.
    explicit ReferenceStudy(StudyData data, std::string iniFileName = {});
    ~ReferenceStudy() override;

    const StudyData& Data() const;
    /// The fit of a response, null for one without a fitted model.
    const ModelFit* Fit(const std::string& response) const;
    void SetIniFileName(std::string fileName);

    Variables* GetVariables() const override;
    ResponseManager* GetResponseManager() const override;
    const FitInfo* GetFitInfo(const std::string& response) const override;
    std::vector<const FitInfo*> GetAllFitInfos() const override;
    ConstraintsInfo* GetConstraints() const override;
    const ModelQueries* GetModelQueries() const override;
    const OptimizerQueries* GetOptimizerQueries() const override;
    std::string GetIniFileName() const override;
    std::unique_ptr<ConfigurationSection> GetInvestigationSettings(const char* name,
                                                                   bool readOnly) const override;
    DesignSpacePredictor* GetDesignSpacePredictor() const override;
    bool IsLocked() const override;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace kvopt
