#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/host.h"
#include "kvopt/plotargs.h"

namespace kvopt::bench {

/// A study of so many process factors and responses. It has no fitted model, so that it offers
/// every factor to every plot, and its size is not bound by what can be fitted. Made once and kept.
ReferenceStudy& StudyOf(int factors, int responses = 10);

/// "Factor 1" and so on.
std::vector<std::string> FactorNames(int count);
/// "Response 1" and so on.
std::vector<std::string> ResponseNames(int count);

/// The arguments of a contour plot of the study. The ini file may have no name.
std::unique_ptr<ContourPlotData> PlotOf(ReferenceStudy& study, const std::string& iniFile = {});

}  // namespace kvopt::bench
