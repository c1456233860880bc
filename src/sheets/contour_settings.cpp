#include "sheets/contour_settings.h"

#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"
#include "kvopt/study/investigation.h"

namespace kvopt {

void WriteContourSettings(const ContourPlotData& data, const Investigation& investigation) {
    const ContourPageData& pageData = *data.GetContourTypeData();
    const bool process = pageData.GetAxisType() == ContourPageData::process;
    switch (pageData.GetPlotType()) {
        case ContourPageData::contour_2D:
        case ContourPageData::surface_3D:
            if (process) {
                data.WriteSettings(WizardPlotData::ContourAxis2D, ContourPlotData::Process2D, 2,
                                   true);
            } else {
                data.WriteSettings(WizardPlotData::ContourAxisMixture, ContourPlotData::Mixture2D,
                                   3, true);
            }
            return;
        case ContourPageData::contour_4D:
        case ContourPageData::surface_4D:
        case ContourPageData::ds_probability:
            data.Write4DSettings(process ? ContourPlotData::Process4D : ContourPlotData::Mixture4D);
            return;
    }
    pageData.SaveSettings(investigation.GetIniFileName());
}

}  // namespace kvopt
