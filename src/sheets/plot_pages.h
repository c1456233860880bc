#pragma once

#include <memory>

#include "kvopt/axes/axis_page.h"
#include "kvopt/study/factor_constants.h"

namespace kvopt {

class BasePropertyPageHelper;
class ConstantsPage;
class Investigation;
class WizardPlotData;

/// Axes 1 to `numAxes` of a set of the plot, with the plot's own proposals.
AxisPage::Arguments AxesOfPlot(WizardPlotData& data, int set, int numAxes, int backPage);

/// The constants of the factors that lie on no axis of `axisPage`, which is also the way back and
/// must outlive the page that is made.
std::unique_ptr<ConstantsPage> MakeConstantsPage(AxisPage& axisPage, WizardPlotData& data, int set,
                                                 const Investigation* investigation,
                                                 FactorConstants::Constant* constants,
                                                 unsigned templateNumber,
                                                 BasePropertyPageHelper* helper, bool readOnly);

}  // namespace kvopt
