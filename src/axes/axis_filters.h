#pragma once

#include <memory>

#include "kvopt/axes/use_factor.h"

namespace kvopt {

class Investigation;
class Variables;

/// The filters of the axis lists, chosen in one place for pages and helpers alike. Without an
/// investigation the filters answer by type and use alone.
class AxisFilters {
public:
    /// Asks the models of the investigation, unless it has a response from outside the study:
    /// such a study offers its factors whatever the models hold.
    static AxisFilters Of(const Investigation* investigation);

    AxisFilters(const Variables* variables, const Investigation* models)
        : variables_(variables), models_(models) {}

    const Investigation* Models() const { return models_; }
    /// How many factors a plot can have on axes and as constants: those that the models use, or all
    /// of the study where the models are not asked.
    int FactorCount() const;

    std::unique_ptr<UseFactor> NonQualitative() const;
    /// Of the inner axes of a process plot.
    std::unique_ptr<UseFactor> Process() const;
    std::unique_ptr<UseFactor> Mixture() const;
    /// Of the outer axes of a plot with four dimensions, and the axes of a process prediction.
    std::unique_ptr<UseFactor> NonMixture() const;
    /// Of a process plot with two inner axes and outer ones; `axis` counts from 1.
    std::unique_ptr<UseFactor> Process4D(int axis) const;
    /// Of a mixture plot with three inner axes and outer ones; `axis` counts from 1.
    std::unique_ptr<UseFactor> Mixture4D(int axis) const;

private:
    const Variables* variables_;
    const Investigation* models_;
};

}  // namespace kvopt
