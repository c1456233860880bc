#include "sheets/contour_settings.h"

#include "kvopt/plotargs/contour_plot_data.h"

namespace kvopt {

bool WriteContourSettings(const ContourPlotData& data) {
    const ContourPlotData::AxisType set = data.GetAxisType();
    switch (set) {
        case ContourPlotData::NoAxes:
            break;
        case ContourPlotData::Process2D:
            data.WriteSettings(WizardPlotData::ContourAxis2D, set, 2, true);
            return true;
        case ContourPlotData::Mixture2D:
            data.WriteSettings(WizardPlotData::ContourAxisMixture, set, 3, true);
            return true;
        case ContourPlotData::Process4D:
        case ContourPlotData::Mixture4D:
            data.Write4DSettings(set);
            return true;
    }
    return false;
}

}  // namespace kvopt
