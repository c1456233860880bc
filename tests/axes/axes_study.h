#pragma once

/// \file
/// The fake study of the tests of axes: they say which settings it recommends and what a mixture
/// sums to, and see what was asked.

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/study.h"
#include "support/fake_study.h"

namespace kvopt::test {

/// What an axis without a factor shows.
inline const std::string kNone = AxisInfo::GetNotUsedName();

/// One question whether a factor may be plotted.
struct FactorQuestion {
    std::string factor;
    bool inModel;
    bool fittedOnly;
    bool operator==(const FactorQuestion&) const = default;
};

class AxesStudy : public FakeStudy {
public:
    AxesStudy() : variables_(*this), models_(*this) {}

    /// A factor of any kind and use, a qualitative one with four settings.
    FactorClass& Add(const std::string& name, CEType::EType type,
                     CEUse::EUse use = CEUse::Controlled) {
        FactorClass& factor =
            type == CEType::Qualitative ? Names(name) : Number(name, 0.0, 1.0, type);
        factor.factorValue.use = use;
        return factor;
    }
    FactorClass& Names(const std::string& name) {
        return FakeStudy::Names(name, {"red", "green", "blue", "grey"});
    }

    bool trueFiller = false;
    double mixtureTotal = 1.0;
    std::set<std::string> unusualSettings;     ///< "factor=setting" that is not recommended
    std::map<std::string, double> references;  ///< parts of the reference mixture
    double pseudoScale = 1.0;                  ///< what a pseudo-component stands for
    int usedFactors = 3;                       ///< what the models say they use
    mutable std::vector<FactorQuestion> questions;
    mutable std::vector<std::pair<CEVar, int>> usedQuestions;
    mutable std::vector<std::string> legalQuestions;
    mutable std::vector<std::string> mixtureQuestions;

    Variables* GetVariables() const override { return &variables_; }
    const ModelQueries* GetModelQueries() const override { return &models_; }

private:
    class Vars : public Variables {
    public:
        explicit Vars(AxesStudy& study) : study_(study) {}
        std::vector<FactorClass*> GetAllFactors() const override {
            return study_.FakeStudy::GetVariables()->GetAllFactors();
        }
        std::vector<ResponseClass*> GetAllResponses() const override {
            return study_.FakeStudy::GetVariables()->GetAllResponses();
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
        AxesStudy& study_;
    };

    class Models : public ModelQueries {
    public:
        explicit Models(AxesStudy& study) : ModelQueries(&study), study_(study) {}
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

    mutable Vars variables_;
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
