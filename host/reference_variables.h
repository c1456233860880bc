#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/mixture.h"
#include "kvopt/host/study_data.h"
#include "kvopt/study/constraints_info.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/variables.h"

namespace kvopt {

class Investigation;

/// The factors and responses of a reference study.
class ReferenceVariables final : public Variables {
public:
    using Variables::GetFactor;

    /// `study` and `data` outlive the object.
    ReferenceVariables(const Investigation* study, const StudyData& data, const Mixture& mixture);
    ~ReferenceVariables() override;

    std::vector<FactorClass*> GetAllFactors() const override;
    std::vector<ResponseClass*> GetAllResponses() const override;
    const FactorClass* GetIndexFactor(int index) const override;
    FactorClass* GetFactor(const std::string& name) const override;
    std::string GetFactor(int index) const override;
    FactorClass* GetFactorFromAbbr(const std::string& abbreviation) const override;
    bool IstrueFiller() const override;
    FMatrix* GetConstraints() const override;
    double GetPseudoComponent(const FactorClass* factor, double value,
                              bool toPseudo) const override;
    double GetMixtureTotal() const override;
    double GetMixtureReferenceRegulated(const std::string& factor, const std::string& fixedFactor,
                                        double fixedValue, bool originalUnits) const override;

private:
    /// The zero-based index of a part of the mixture, or the number of factors.
    std::size_t FindPart(const std::string& name) const;

    const StudyData& data_;
    const Mixture& mixture_;
    std::vector<std::unique_ptr<FactorClass>> factors_;
    std::unordered_map<std::string, FactorClass*> byName_;
    std::unordered_map<std::string, FactorClass*> byAbbreviation_;
    std::vector<std::unique_ptr<ResponseClass>> responses_;
    std::unique_ptr<FMatrix> constraints_;
};

/// The extended set of responses.
class ReferenceResponses final : public ResponseManager {
public:
    ReferenceResponses(const StudyData& data, const Variables& variables);
    ~ReferenceResponses() override;

    const std::vector<ResponseEx*>& GetResponses() const override { return pointers_; }
    ResponseEx* GetResponse(const std::string& name) const override;

private:
    std::vector<std::unique_ptr<ResponseClass>> records_;  ///< of those that are no ordinary ones
    std::vector<std::unique_ptr<ResponseEx>> responses_;
    std::vector<ResponseEx*> pointers_;
    std::unordered_map<std::string, ResponseEx*> byName_;
};

class ReferenceConstraints final : public ConstraintsInfo {
public:
    explicit ReferenceConstraints(const StudyData& data) : data_(data) {}

    bool HasConstraints(std::string_view factor) const override;

private:
    const StudyData& data_;
};

}  // namespace kvopt
