#pragma once

/// \file
/// A study of a few records, for tests that decide themselves which factors the models use, what
/// the optimizer answers and which responses there are.

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/plotargs.h"
#include "kvopt/stores.h"
#include "kvopt/study.h"
#include "kvopt/text.h"

namespace kvopt::test {

class PlotStudy : public Investigation {
public:
    PlotStudy() : vars_(*this), models_(*this), optimizer_(*this), manager_(*this) {}

    /// A factor whose kind is what axes are sorted by.
    class Factor : public FactorClass {
    public:
        using FactorClass::FactorClass;
        int GetFactorKind() const override { return kind; }
        int kind = 1;
    };

    Factor& Process(const std::string& name, double low, double high) {
        return Keep(std::make_unique<Factor>(name, low, high));
    }
    Factor& Mixture(const std::string& name, double low, double high) {
        return Keep(std::make_unique<Factor>(name, low, high, CEType::Formulation));
    }
    Factor& Qualitative(const std::string& name, const std::vector<std::string>& settings) {
        return Keep(std::make_unique<Factor>(name, settings));
    }
    void Response(const std::string& name) {
        responses_.push_back(std::make_unique<ResponseClass>(name));
        extended_.push_back(std::make_unique<ResponseEx>(responses_.back().get()));
        pointers_.push_back(extended_.back().get());
    }
    /// A response that Variables does not hold.
    void OnlyExtended(const std::string& name) {
        derived_.push_back(std::make_unique<ResponseClass>(name));
        extended_.push_back(std::make_unique<ResponseEx>(derived_.back().get()));
        pointers_.push_back(extended_.back().get());
    }
    void RemoveResponse(const std::string& name) {
        for (std::size_t i = 0; i < responses_.size(); ++i) {
            if (responses_[i]->GetName() == name) {
                const auto at = static_cast<std::ptrdiff_t>(i);
                extended_.erase(extended_.begin() + at);
                pointers_.erase(pointers_.begin() + at);
                responses_.erase(responses_.begin() + at);
                return;
            }
        }
    }
    void RemoveFactor(const std::string& name) {
        std::erase_if(factors_, [&](const auto& factor) { return factor->GetName() == name; });
    }

    Variables* GetVariables() const override { return &vars_; }
    ResponseManager* GetResponseManager() const override { return &manager_; }
    const ModelQueries* GetModelQueries() const override { return &models_; }
    const OptimizerQueries* GetOptimizerQueries() const override { return &optimizer_; }
    ConstraintsInfo* GetConstraints() const override { return constraints.get(); }
    const FitInfo* GetFitInfo(const std::string& response) const override {
        const auto found = fits.find(response);
        return found == fits.end() ? nullptr : &found->second;
    }
    std::string GetIniFileName() const override { return iniFile; }

    /// The factors that the model of a response uses.
    class Fit : public FitInfo {
    public:
        bool IsFactorAvailable(const FactorClass* factor, const ResponseEx*) const override {
            return factors.count(factor->GetName()) != 0;
        }
        std::set<std::string> factors;
    };
    class Constraints : public ConstraintsInfo {
    public:
        bool HasConstraints(std::string_view factor) const override {
            asked.emplace_back(factor);
            return false;
        }
        mutable std::vector<std::string> asked;
    };

    std::set<std::string> unavailable;  ///< factors that may not be plotted
    std::set<std::string> unused;       ///< factors that are in no model
    std::vector<float> optimum;         ///< start, when there is no favourite
    std::vector<float> contributions;
    std::map<std::string, Fit> fits;
    std::unique_ptr<Constraints> constraints;
    std::string iniFile = "study.ini";
    FMatrix constraintMatrix;
    bool hasConstraintMatrix = false;
    std::set<std::string> unavailableResponses;

private:
    class Vars : public Variables {
    public:
        explicit Vars(PlotStudy& study) : study_(study) {}
        std::vector<FactorClass*> GetAllFactors() const override {
            std::vector<FactorClass*> all;
            for (const auto& factor : study_.factors_) {
                all.push_back(factor.get());
            }
            return all;
        }
        std::vector<ResponseClass*> GetAllResponses() const override {
            std::vector<ResponseClass*> all;
            for (const auto& response : study_.responses_) {
                all.push_back(response.get());
            }
            return all;
        }
        FMatrix* GetConstraints() const override {
            return study_.hasConstraintMatrix ? &study_.constraintMatrix : nullptr;
        }

    private:
        PlotStudy& study_;
    };
    class Models : public ModelQueries {
    public:
        explicit Models(PlotStudy& study) : ModelQueries(&study), study_(study) {}
        bool IsFactorAvailable(const FactorClass* factor, bool inModel,
                               bool fittedOnly) const override {
            return inModel && !fittedOnly && study_.unavailable.count(factor->GetName()) == 0;
        }
        bool IsInAnyModel(int index) const override {
            const FactorClass* factor = study_.GetVariables()->GetIndexFactor(index);
            return factor && study_.unused.count(factor->GetName()) == 0;
        }
        bool IsResponseAvailable(const std::string& response, bool) const override {
            return study_.unavailableResponses.count(response) == 0;
        }

    private:
        PlotStudy& study_;
    };
    class Optimizer : public OptimizerQueries {
    public:
        explicit Optimizer(PlotStudy& study) : study_(study) {}
        std::vector<float> CalculateRequiredOnlyOptima(int) const override {
            return study_.optimum;
        }
        std::vector<float> CalculateFactorContribution(const std::vector<float>&) const override {
            return study_.contributions;
        }

    private:
        PlotStudy& study_;
    };
    class Manager : public ResponseManager {
    public:
        explicit Manager(PlotStudy& study) : study_(study) {}
        const std::vector<ResponseEx*>& GetResponses() const override { return study_.pointers_; }

    private:
        PlotStudy& study_;
    };

    Factor& Keep(std::unique_ptr<Factor> factor) {
        factors_.push_back(std::move(factor));
        factors_.back()->index = static_cast<int>(factors_.size());
        return *factors_.back();
    }

    std::vector<std::unique_ptr<Factor>> factors_;
    std::vector<std::unique_ptr<ResponseClass>> responses_;
    std::vector<std::unique_ptr<ResponseClass>> derived_;
    std::vector<std::unique_ptr<ResponseEx>> extended_;
    std::vector<ResponseEx*> pointers_;
    mutable Vars vars_;
    Models models_;
    Optimizer optimizer_;
    mutable Manager manager_;
};

/// A plot argument object of the plainest kind.
class AnyPlotData : public WizardPlotData {
public:
    using WizardPlotData::CreateAxisDefaults;
    using WizardPlotData::GetAxisTypeString;
    using WizardPlotData::GetDefaultAxisName;
    using WizardPlotData::WizardPlotData;

    explicit AnyPlotData(Investigation& study, int sets = 2, int axes = 5, int constants = 10,
                         const std::string& iniFile = "study.ini")
        : WizardPlotData(&study, sets, axes, constants, iniFile) {}

    int GetUsedAxisIx() const override { return used; }
    int used = 1;
};

/// Sets the repeatable order for the life of the object.
class FixedOrder {
public:
    FixedOrder() { GlobalOptions::SetFixedSeedForValidation(true); }
    ~FixedOrder() { GlobalOptions::SetFixedSeedForValidation(std::nullopt); }
    FixedOrder(const FixedOrder&) = delete;
    FixedOrder& operator=(const FixedOrder&) = delete;
};

inline void SetAxis(AxisInfo& axis, const std::string& name, float low, float high) {
    axis.SetName(name);
    axis.SetRange(low, high);
}

/// The names of a list of axes; "-" for an empty element.
inline std::vector<std::string> NamesOf(const std::vector<std::shared_ptr<AxisInfo>>& axes) {
    std::vector<std::string> names;
    for (const auto& axis : axes) {
        names.push_back(axis ? axis->GetName() : "-");
    }
    return names;
}

using Names = std::vector<std::string>;

}  // namespace kvopt::test
