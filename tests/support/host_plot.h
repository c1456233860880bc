#pragma once

#include "kvopt/axes.h"
#include "kvopt/plotargs.h"
#include "kvopt/study.h"

namespace kvopt::test {

/// Chooses the axes of a plot of the type as a host does that asks nobody. The study may have too
/// few factors for them: then axes stay unused.
inline void ChooseAxes(const Investigation* study, ContourPageData::Type type, bool isMixture,
                       ContourPlotData& plot) {
    switch (type) {
        case ContourPageData::contour_2D:
        case ContourPageData::surface_3D:
            if (isMixture) {
                Mixture2DAxisHelper(study, &plot).Setup();
                plot.GetContourTypeData()->SetPlotType(type);
            } else {
                ContourAxisHelper(study, &plot, type, ContourPlotData::Process2D).Setup();
            }
            return;
        case ContourPageData::contour_4D:
        case ContourPageData::surface_4D:
            if (isMixture) {
                Mixture4DAxisHelper(study, &plot, type).Setup();
            } else {
                Contour4DAxisHelper(study, &plot, type).Setup();
            }
            return;
        case ContourPageData::ds_probability:
            ProbabilityContourAxisHelper(study, &plot, isMixture).Setup();
            return;
    }
}

/// The constants that a plot gets when its wizard is finished.
inline void AddConstants(const Investigation* study, ContourPlotData& plot) {
    const Variables* variables = study->GetVariables();
    for (const FactorClass* factor : variables->GetAllFactors()) {
        if (!FactorConstants::IsMember(plot.GetPlotConstants(), factor->GetName())) {
            FactorConstants::AddConstant(plot.GetPlotConstants(), variables, factor,
                                         FactorConstants::LOW);
        }
    }
}

}  // namespace kvopt::test
