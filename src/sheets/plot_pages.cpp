#include "sheets/plot_pages.h"

#include "axes/axis_filters.h"
#include "kvopt/constants/constants_page.h"
#include "kvopt/constants/contour_constants_chooser2.h"
#include "kvopt/plotargs/wizard_plot_data.h"
#include "kvopt/study/investigation.h"

namespace kvopt {

AxisPage::Arguments AxesOfPlot(WizardPlotData& data, int set, int numAxes, int backPage) {
    return {&data.GetAxisInfo(set), numAxes, backPage, &data.GetAxisDefaults(),
            data.GetNumDefaults()};
}

std::unique_ptr<ConstantsPage> MakeConstantsPage(AxisPage& axisPage, WizardPlotData& data, int set,
                                                 const Investigation* investigation,
                                                 FactorConstants::Constant* constants,
                                                 unsigned templateNumber,
                                                 BasePropertyPageHelper* helper, bool readOnly) {
    ConstantsPage::Arguments arguments;
    arguments.constants = constants;
    arguments.axisList = &data.GetAxisInfo(set);
    arguments.axisCount = axisPage.NAxis();
    arguments.backPage = axisPage.TemplateNumber();
    arguments.axes = &data.GetAxisDefaults();
    auto chooser = std::make_unique<ContourConstantsChooser2>(
        investigation->GetVariables(), &axisPage, AxisFilters::Of(investigation).Models());
    arguments.chooser = chooser.release();
    return std::make_unique<ConstantsPage>(investigation, arguments, templateNumber, helper,
                                           readOnly);
}

}  // namespace kvopt
