#include "kvopt/sheets/contour_wizard.h"

#include <initializer_list>
#include <string>

#include "kvopt/axes/contour_2d_axis_page.h"
#include "kvopt/axes/contour_4d_axis_page.h"
#include "kvopt/axes/mixture_4d_axis_page.h"
#include "kvopt/axes/mixture_axis_page.h"
#include "kvopt/constants/constants_page.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"
#include "kvopt/sheets/contour_page.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "sheets/contour_pages.h"
#include "sheets/contour_settings.h"
#include "sheets_texts.h"

namespace kvopt {

namespace {

std::wstring WizardTitle(const ContourPageData& pageData, bool isDesirability) {
    if (isDesirability) {
        return texts::kDesirabilityWizardTitle.Wide();
    }
    return pageData.ISDSProbability() ? texts::kDesignSpaceWizardTitle.Wide()
                                      : texts::kContourWizardTitle.Wide();
}

}  // namespace

bool ShowContourWizard(CWnd* parent, ContourPlotData& data, const Investigation* investigation,
                       bool writeSettings, bool isDesirability) {
    const ContourPageData& pageData = *data.GetContourTypeData();
    if (writeSettings && !data.HasIniSection()) {
        throw InvalidArgument("ShowContourWizard: the plot has no ini file to write settings to");
    }
    const std::wstring title = WizardTitle(pageData, isDesirability);

    ContourPage contourPage(investigation, data, nullptr, isDesirability);
    contourPage.SetPageTitle(title.c_str());
    const ContourPages make(data, investigation, data.GetPlotConstants(), nullptr,
                            ContourPages::Wizard);
    const auto processAxes = make.ProcessAxes();
    const auto mixtureAxes = make.MixtureAxes();
    const auto process4DAxes = make.Process4DAxes();
    const auto mixture4DAxes = make.Mixture4DAxes();
    const auto processConstants = make.ProcessConstants(*process4DAxes);
    const auto mixtureConstants = make.MixtureConstants(*mixture4DAxes);

    KvPropertySheet sheet(title.c_str(), parent, 0);
    sheet.SetWizardMode();
    for (KvPropertyPage* page : std::initializer_list<KvPropertyPage*>{
             &contourPage, processAxes.get(), mixtureAxes.get(), process4DAxes.get(),
             mixture4DAxes.get(), processConstants.get(), mixtureConstants.get()}) {
        sheet.AddPage(page);
    }
    if (pageData.UseDummyData()) {
        // A design region is drawn for the mixture, whatever the responses.
        sheet.SetActivePage(mixtureAxes.get());
    }
    const bool finished = sheet.DoModal() == kResultFinish;
    if (finished && writeSettings && !WriteContourSettings(data)) {
        pageData.SaveSettings(investigation->GetIniFileName());
    }
    return finished;
}

}  // namespace kvopt
