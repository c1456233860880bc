#pragma once

/// \file
/// What tests of plot argument objects share: a study, an object of the plainest kind, small helps.

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "kvopt/plotargs.h"
#include "kvopt/stores.h"
#include "kvopt/text.h"
#include "support/fake_study.h"

namespace kvopt::test {

/// A study whose fits say which factors they use, and whose factors are only available to those who
/// ask as plots do: for factors of a model, fitted or not.
class PlotStudy : public FakeStudy {
public:
    PlotStudy() : models_(*this) {}

    const ModelQueries* GetModelQueries() const override { return &models_; }
    ConstraintsInfo* GetConstraints() const override { return constraints.get(); }
    const FitInfo* GetFitInfo(const std::string& response) const override {
        const auto found = fits.find(response);
        return found == fits.end() ? nullptr : &found->second;
    }

    /// The factors that the model of a response uses.
    class Fit : public FitInfo {
    public:
        bool IsFactorAvailable(const FactorClass* factor, const ResponseEx*) const override {
            return factors.count(factor->GetName()) != 0;
        }
        std::set<std::string> factors;
    };
    /// Notes for which factors it was asked.
    class Constraints : public ConstraintsInfo {
    public:
        bool HasConstraints(std::string_view factor) const override {
            asked.emplace_back(factor);
            return false;
        }
        mutable std::vector<std::string> asked;
    };
    /// A factor of a kind that axes are sorted by.
    class KindFactor : public FactorClass {
    public:
        KindFactor(const std::string& factorName, int factorKind)
            : FactorClass(factorName, 0.0, 1.0), kind(factorKind) {}
        int GetFactorKind() const override { return kind; }
        int kind;
    };

    std::map<std::string, Fit> fits;
    std::unique_ptr<Constraints> constraints;

private:
    class Models : public ModelQueries {
    public:
        explicit Models(const PlotStudy& study) : ModelQueries(&study), study_(study) {}
        bool IsFactorAvailable(const FactorClass* factor, bool inModel,
                               bool fittedOnly) const override {
            return inModel && !fittedOnly && Fake().IsFactorAvailable(factor, inModel, fittedOnly);
        }
        bool IsInAnyModel(int index) const override { return Fake().IsInAnyModel(index); }
        bool IsResponseAvailable(const std::string& response, bool fittedOnly) const override {
            return !fittedOnly && Fake().IsResponseAvailable(response, fittedOnly);
        }

    private:
        const ModelQueries& Fake() const { return *study_.FakeStudy::GetModelQueries(); }
        const PlotStudy& study_;
    };

    Models models_;
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
