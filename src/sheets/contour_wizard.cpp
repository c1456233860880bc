#include "kvopt/sheets/contour_wizard.h"

#include "kvopt/axes/contour_2d_axis_page.h"
#include "kvopt/axes/mixture_axis_page.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"
#include "kvopt/sheets/contour_page.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "sheets/contour_settings.h"
#include "sheets/contour_templates.h"
#include "sheets_texts.h"

namespace kvopt {

namespace {

constexpr unsigned kAxisHelp = 1;
constexpr unsigned kDesignSpaceAxisHelp = 98;

std::wstring WizardTitle(const ContourPageData& pageData, bool isDesirability) {
    if (isDesirability) {
        return texts::kDesirabilityWizardTitle.Wide();
    }
    return pageData.ISDSProbability() ? texts::kDesignSpaceWizardTitle.Wide()
                                      : texts::kContourWizardTitle.Wide();
}

Contour2DAxisPage::Arguments AxisArguments(ContourPlotData& data, ContourPlotData::AxisType set,
                                           int numAxes) {
    Contour2DAxisPage::Arguments arguments;
    arguments.axes = &data.GetAxisInfo(set);
    arguments.numAxes = numAxes;
    arguments.backPage = static_cast<int>(kContourTemplate);
    arguments.defaults = &data.GetAxisDefaults();
    arguments.numDefaults = data.GetNumDefaults();
    arguments.constants = data.GetPlotConstants();
    arguments.finishOnly = data.GetContourTypeData()->UseDummyData();
    return arguments;
}

}  // namespace

bool ShowContourWizard(CWnd* parent, ContourPlotData& data, const Investigation* investigation,
                       bool writeSettings, bool isDesirability) {
    const ContourPageData& pageData = *data.GetContourTypeData();
    if (writeSettings && !data.HasIniSection()) {
        throw InvalidArgument("ShowContourWizard: the plot has no ini file to write settings to");
    }
    const std::wstring title = WizardTitle(pageData, isDesirability);
    const unsigned axisHelp = pageData.ISDSProbability() ? kDesignSpaceAxisHelp : kAxisHelp;

    ContourPage contourPage(investigation, data, nullptr, isDesirability);
    contourPage.SetPageTitle(title.c_str());
    Contour2DAxisPage processPage(investigation, AxisArguments(data, ContourPlotData::Process2D, 2),
                                  kProcessAxisTemplate, nullptr, axisHelp);
    MixtureAxisPage mixturePage(investigation, AxisArguments(data, ContourPlotData::Mixture2D, 3),
                                nullptr, axisHelp);

    KvPropertySheet sheet(title.c_str(), parent, 0);
    sheet.SetWizardMode();
    sheet.AddPage(&contourPage);
    sheet.AddPage(&processPage);
    sheet.AddPage(&mixturePage);
    if (pageData.UseDummyData()) {
        // A design region is drawn for the mixture, whatever the responses.
        sheet.SetActivePage(&mixturePage);
    }
    const bool finished = sheet.DoModal() == kResultFinish;
    if (finished && writeSettings) {
        WriteContourSettings(data, *investigation);
    }
    return finished;
}

}  // namespace kvopt
