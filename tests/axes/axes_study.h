#pragma once

/// \file
/// A study of a few records for the tests of axes: they say which factors the models know, which
/// settings the study recommends and what a mixture sums to, and count what was asked.

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/study.h"

namespace kvopt::test {

/// One question whether a factor may be plotted.
struct FactorQuestion {
    std::string factor;
    bool inModel;
    bool fittedOnly;
    bool operator==(const FactorQuestion&) const = default;
};

class AxesStudy : public Investigation {
public:
    AxesStudy() : variables_(*this), manager_(*this), models_(*this) {}

    FactorClass& Add(const std::string& name, CEType::EType type,
                     CEUse::EUse use = CEUse::Controlled) {
        auto factor = type == CEType::Qualitative
                          ? std::make_unique<FactorClass>(
                                name, std::vector<std::string>{"red", "green", "blue", "grey"})
                          : std::make_unique<FactorClass>(name, 0.0, 1.0, type);
        factor->factorValue.use = use;
        factor->index = static_cast<int>(factors_.size()) + 1;
        factors_.push_back(std::move(factor));
        return *factors_.back();
    }
    FactorClass& Number(const std::string& name, double low, double high) {
        FactorClass& factor = Add(name, CEType::Quantitative);
        factor.low = low;
        factor.high = high;
        return factor;
    }
    FactorClass& Part(const std::string& name, double low = 0.0, double high = 1.0) {
        FactorClass& factor = Add(name, CEType::Formulation);
        factor.low = low;
        factor.high = high;
        return factor;
    }
    FactorClass& Names(const std::string& name) { return Add(name, CEType::Qualitative); }

    void Response(const std::string& name) {
        responses_.push_back(std::make_unique<ResponseClass>(name));
        Extended(responses_.back().get(), ResponseEx::Regular);
    }
    /// In the response manager alone.
    void ExtraResponse(const std::string& name, ResponseEx::EResponseType type) {
        extras_.push_back(std::make_unique<ResponseClass>(name));
        Extended(extras_.back().get(), type);
    }

    bool trueFiller = false;
    double mixtureTotal = 1.0;
    std::set<std::string> unavailable;         ///< factors and responses
    std::set<std::string> unusualSettings;     ///< "factor=setting" that is not recommended
    std::map<std::string, double> references;  ///< parts of the reference mixture
    double pseudoScale = 1.0;                  ///< what a pseudo-component stands for
    int usedFactors = 3;                       ///< what the models say they use
    mutable std::vector<FactorQuestion> questions;
    mutable std::vector<std::pair<CEVar, int>> usedQuestions;
    mutable std::vector<std::string> legalQuestions;
    mutable std::vector<std::string> mixtureQuestions;

    Variables* GetVariables() const override { return &variables_; }
    ResponseManager* GetResponseManager() const override { return &manager_; }
    const ModelQueries* GetModelQueries() const override { return &models_; }

private:
    class Vars : public Variables {
    public:
        explicit Vars(AxesStudy& study) : study_(study) {}
        std::vector<FactorClass*> GetAllFactors() const override {
            return Pointers(study_.factors_);
        }
        std::vector<ResponseClass*> GetAllResponses() const override {
            return Pointers(study_.responses_);
        }
        bool IstrueFiller() const override { return study_.trueFiller; }
        bool LegalSetting(const std::string& factor, const std::string& setting) const override {
            study_.legalQuestions.push_back(factor + "=" + setting);
            return study_.unusualSettings.count(factor + "=" + setting) == 0;
        }
        double GetMixtureTotal() const override { return study_.mixtureTotal; }
        double GetPseudoComponent(const FactorClass* factor, double value,
                                  bool toPseudo) const override {
            study_.mixtureQuestions.push_back("pseudo " + factor->GetName() +
                                              (toPseudo ? " to" : " from"));
            return value * study_.pseudoScale;
        }
        double GetMixtureReferenceRegulated(const std::string& factor,
                                            const std::string& fixedFactor, double fixedValue,
                                            bool pseudo) const override {
            study_.mixtureQuestions.push_back("reference " + factor + " '" + fixedFactor + "' " +
                                              (fixedValue == kNotSet ? "not set" : "set") +
                                              (pseudo ? " pseudo" : " plain"));
            const auto found = study_.references.find(factor);
            return found == study_.references.end() ? kNotSet : found->second;
        }

    private:
        template <class T>
        static std::vector<T*> Pointers(const std::vector<std::unique_ptr<T>>& owned) {
            std::vector<T*> result;
            for (const auto& one : owned) {
                result.push_back(one.get());
            }
            return result;
        }
        AxesStudy& study_;
    };

    class Manager : public ResponseManager {
    public:
        explicit Manager(AxesStudy& study) : study_(study) {}
        const std::vector<ResponseEx*>& GetResponses() const override { return study_.extended_; }

    private:
        AxesStudy& study_;
    };

    class Models : public ModelQueries {
    public:
        explicit Models(AxesStudy& study) : ModelQueries(&study), study_(study) {}
        bool HasModel() const override { return true; }
        int GetUsedCount(CEVar which, int limit) const override {
            study_.usedQuestions.emplace_back(which, limit);
            return std::min(limit, study_.usedFactors);
        }
        bool IsFactorAvailable(const FactorClass* factor, bool inModel,
                               bool fittedOnly) const override {
            study_.questions.push_back({factor->GetName(), inModel, fittedOnly});
            return study_.unavailable.count(factor->GetName()) == 0;
        }
        bool IsResponseAvailable(const std::string& response, bool) const override {
            return study_.unavailable.count(response) == 0;
        }

    private:
        AxesStudy& study_;
    };

    void Extended(ResponseClass* response, ResponseEx::EResponseType type) {
        owned_.push_back(std::make_unique<ResponseEx>(response));
        owned_.back()->type = type;
        extended_.push_back(owned_.back().get());
    }

    std::vector<std::unique_ptr<FactorClass>> factors_;
    std::vector<std::unique_ptr<ResponseClass>> responses_;
    std::vector<std::unique_ptr<ResponseClass>> extras_;
    std::vector<std::unique_ptr<ResponseEx>> owned_;
    std::vector<ResponseEx*> extended_;
    mutable Vars variables_;
    mutable Manager manager_;
    Models models_;
};

using AxisVector = std::vector<std::shared_ptr<AxisInfo>>;

/// One axis as the tests write it.
struct AxisValue {
    std::string name;
    float low = kNotSetF;
    float high = kNotSetF;
};

/// Axes with the empty element 0.
inline AxisVector MakeAxes(const std::vector<AxisValue>& values) {
    AxisVector axes{nullptr};
    for (const AxisValue& value : values) {
        auto axis = std::make_shared<AxisInfoImpl>();
        axis->SetName(value.name);
        axis->SetRange(value.low, value.high);
        axes.push_back(axis);
    }
    return axes;
}

}  // namespace kvopt::test
