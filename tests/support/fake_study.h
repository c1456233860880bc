#pragma once

/// \file
/// A study of a few records for tests: factors and responses are added by a call each, and sets of
/// names say what its models know. Everything not set answers as a host without overrides does.

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/study.h"

namespace kvopt::test {

class FakeStudy : public Investigation {
public:
    FakeStudy() : variables_(*this), manager_(*this), models_(*this), optimizer_(*this) {}

    FactorClass& Add(std::unique_ptr<FactorClass> factor) {
        factor->index = static_cast<int>(factors_.size()) + 1;
        factors_.push_back(std::move(factor));
        return *factors_.back();
    }
    FactorClass& Number(const std::string& name, double low = 0.0, double high = 1.0,
                        CEType::EType type = CEType::Quantitative) {
        return Add(std::make_unique<FactorClass>(name, low, high, type));
    }
    FactorClass& Part(const std::string& name, double low = 0.0, double high = 1.0) {
        return Number(name, low, high, CEType::Formulation);
    }
    FactorClass& Filler(const std::string& name, double low = 0.0, double high = 1.0) {
        return Number(name, low, high, CEType::Filler);
    }
    FactorClass& Names(const std::string& name, std::vector<std::string> settings) {
        return Add(std::make_unique<FactorClass>(name, std::move(settings)));
    }
    FactorClass& Levels(const std::string& name, std::vector<std::string> levels,
                        CEType::EType type = CEType::Multilevel) {
        return Add(std::make_unique<FactorClass>(name, std::move(levels), type));
    }
    FactorClass& Block(int blocks) {
        std::vector<std::string> settings;
        for (int block = 1; block <= blocks; ++block) {
            settings.push_back(std::to_string(block));
        }
        return Names(kBlockFactorName, std::move(settings));
    }

    /// A response of the ordinary and of the extended set.
    ResponseEx& Response(const std::string& name) {
        responses_.push_back(std::make_unique<ResponseClass>(name));
        return Extend(responses_.back().get(), ResponseEx::Regular);
    }
    /// A response of the extended set alone.
    ResponseEx& ExtraResponse(const std::string& name,
                              ResponseEx::EResponseType type = ResponseEx::Derived) {
        extras_.push_back(std::make_unique<ResponseClass>(name));
        return Extend(extras_.back().get(), type);
    }

    /// The analyst deletes a factor, or a response; nothing for an unknown name.
    void RemoveFactor(const std::string& name) {
        std::erase_if(factors_, [&](const auto& factor) { return factor->GetName() == name; });
    }
    void RemoveResponse(const std::string& name) {
        const auto isNamed = [&](const auto& record) { return record->GetName() == name; };
        std::erase_if(pointers_, isNamed);
        std::erase_if(extended_, isNamed);
        std::erase_if(responses_, isNamed);
        std::erase_if(extras_, isNamed);
    }

    /// Factors and responses that may not be plotted.
    std::set<std::string> unavailable;
    /// Factors that no model uses.
    std::set<std::string> inNoModel;
    bool hasModel = false;
    CFitMethod::FitMethod fitMethod = CFitMethod::NotFitted;
    std::vector<std::string> terms;  ///< of the complete model
    int confidenceDataType = 0;
    bool canCalculatePower = false;
    std::string iniFileName;
    bool locked = false;
    std::vector<float> contributions;  ///< one for each factor; empty for no answer
    std::vector<float> optimum;        ///< one for each factor; empty for no answer
    std::set<std::string> fitted;      ///< responses with a fit
    std::unique_ptr<FMatrix> constraintMatrix;

    Variables* GetVariables() const override { return &variables_; }
    ResponseManager* GetResponseManager() const override { return &manager_; }
    const ModelQueries* GetModelQueries() const override { return &models_; }
    const OptimizerQueries* GetOptimizerQueries() const override { return &optimizer_; }
    const FitInfo* GetFitInfo(const std::string& response) const override {
        return fitted.count(response) != 0 ? &fit_ : nullptr;
    }
    std::string GetIniFileName() const override { return iniFileName; }
    bool IsLocked() const override { return locked; }

private:
    class FakeVariables : public Variables {
    public:
        explicit FakeVariables(const FakeStudy& study) : study_(study) {}
        std::vector<FactorClass*> GetAllFactors() const override {
            return Pointers(study_.factors_);
        }
        std::vector<ResponseClass*> GetAllResponses() const override {
            return Pointers(study_.responses_);
        }

        FMatrix* GetConstraints() const override { return study_.constraintMatrix.get(); }

    private:
        template <class Record>
        static std::vector<Record*> Pointers(const std::vector<std::unique_ptr<Record>>& records) {
            std::vector<Record*> pointers;
            for (const auto& record : records) {
                pointers.push_back(record.get());
            }
            return pointers;
        }
        const FakeStudy& study_;
    };

    class FakeManager : public ResponseManager {
    public:
        explicit FakeManager(const FakeStudy& study) : study_(study) {}
        const std::vector<ResponseEx*>& GetResponses() const override { return study_.pointers_; }

    private:
        const FakeStudy& study_;
    };

    class FakeModels : public ModelQueries {
    public:
        explicit FakeModels(const FakeStudy& study) : ModelQueries(&study), study_(study) {}
        bool HasModel() const override { return study_.hasModel; }
        CFitMethod::FitMethod GetFitMethod(bool) const override { return study_.fitMethod; }
        bool IsFactorAvailable(const FactorClass* factor, bool inModel,
                               bool fittedOnly) const override {
            return ModelQueries::IsFactorAvailable(factor, inModel, fittedOnly) &&
                   study_.unavailable.count(factor->GetName()) == 0;
        }
        bool IsResponseAvailable(const std::string& response, bool fittedOnly) const override {
            return ModelQueries::IsResponseAvailable(response, fittedOnly) &&
                   study_.unavailable.count(response) == 0;
        }
        bool IsInAnyModel(int factorIndex) const override {
            return std::any_of(study_.factors_.begin(), study_.factors_.end(),
                               [&](const std::unique_ptr<FactorClass>& factor) {
                                   return factor->index == factorIndex &&
                                          study_.inNoModel.count(factor->GetName()) == 0;
                               });
        }
        std::shared_ptr<TermInfo> CreateCompleteModel() const override {
            return std::make_shared<TermInfo>(study_.terms);
        }
        int GetConfidenceDataType(int) const override { return study_.confidenceDataType; }
        bool CanCalculatePower() const override { return study_.canCalculatePower; }

    private:
        const FakeStudy& study_;
    };

    class FakeOptimizer : public OptimizerQueries {
    public:
        explicit FakeOptimizer(const FakeStudy& study) : study_(study) {}
        std::vector<float> CalculateFactorContribution(const std::vector<float>&) const override {
            return study_.contributions;
        }
        std::vector<float> CalculateRequiredOnlyOptima(int) const override {
            return study_.optimum;
        }

    private:
        const FakeStudy& study_;
    };

    ResponseEx& Extend(ResponseClass* response, ResponseEx::EResponseType type) {
        extended_.push_back(std::make_unique<ResponseEx>(response));
        extended_.back()->type = type;
        pointers_.push_back(extended_.back().get());
        return *extended_.back();
    }

    std::vector<std::unique_ptr<FactorClass>> factors_;
    std::vector<std::unique_ptr<ResponseClass>> responses_;
    std::vector<std::unique_ptr<ResponseClass>> extras_;
    std::vector<std::unique_ptr<ResponseEx>> extended_;
    std::vector<ResponseEx*> pointers_;
    mutable FakeVariables variables_;
    mutable FakeManager manager_;
    FakeModels models_;
    FakeOptimizer optimizer_;
    FitInfo fit_;
};

}  // namespace kvopt::test
