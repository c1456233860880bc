#include "kvopt/sheets/contour_sheet.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/axes/contour_2d_axis_page.h"
#include "kvopt/axes/contour_4d_axis_page.h"
#include "kvopt/axes/mixture_4d_axis_page.h"
#include "kvopt/axes/mixture_axis_page.h"
#include "kvopt/constants/constants_page.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"
#include "kvopt/selection/multiple_response_page.h"
#include "kvopt/sheets/contour_property_sheet.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "sheets/contour_pages.h"
#include "sheets/contour_settings.h"
#include "sheets/contour_templates.h"
#include "sheets_texts.h"

namespace kvopt {

namespace {

constexpr unsigned kResponsesHelp = 65;
constexpr unsigned kDesignSpaceResponsesHelp = 104;

using Pages = std::vector<std::unique_ptr<KvPropertyPage>>;

std::wstring TitleOf(CWnd* parent) {
    return parent != nullptr ? parent->GetTopLevelParent()->GetText()
                             : texts::kPropertiesTitle.Wide();
}

/// An unknown type has no limit.
int MostResponses(const ContourPlotData& data) {
    return data.GetAxisType() == ContourPlotData::NoAxes
               ? -1
               : ContourPageData::miMaxResponses[data.GetContourTypeData()->GetPlotType()];
}

void AddAxisPages(const ContourPages& make, ContourPlotData::AxisType set, Pages& pages) {
    switch (set) {
        case ContourPlotData::NoAxes:
            return;
        case ContourPlotData::Process2D:
            pages.push_back(make.ProcessAxes());
            return;
        case ContourPlotData::Mixture2D:
            pages.push_back(make.MixtureAxes());
            return;
        case ContourPlotData::Process4D: {
            auto axes = make.Process4DAxes();
            auto constants = make.ProcessConstants(*axes);
            pages.push_back(std::move(axes));
            pages.push_back(std::move(constants));
            return;
        }
        case ContourPlotData::Mixture4D: {
            auto axes = make.Mixture4DAxes();
            auto constants = make.MixtureConstants(*axes);
            pages.push_back(std::move(axes));
            pages.push_back(std::move(constants));
            return;
        }
    }
}

}  // namespace

bool ShowContourSheet(CWnd* parent, ContourPlotData& data, Investigation* investigation,
                      FactorConstants::Constant* constants, BasePropertyPageHelper* helper,
                      bool writeSettings) {
    ContourPageData& pageData = *data.GetContourTypeData();
    if (constants == nullptr) {
        throw InvalidArgument("ShowContourSheet: there are no constants to edit");
    }
    if (writeSettings && !data.HasIniSection()) {
        throw InvalidArgument("ShowContourSheet: the plot has no ini file to write settings to");
    }
    Pages pages;
    if (!pageData.UseDummyData()) {
        pages.push_back(std::make_unique<MultipleResponsePage>(
            investigation, pageData, kResponsesTemplate, MostResponses(data), helper,
            pageData.ISDSProbability() ? kDesignSpaceResponsesHelp : kResponsesHelp));
    }
    AddAxisPages(ContourPages(data, investigation, constants, helper, ContourPages::Sheet),
                 data.GetAxisType(), pages);
    for (auto& page : ContourOptionsPages(investigation, pageData, pageData.ISDSProbability(),
                                          pageData.GetPlotType(), helper)) {
        pages.push_back(std::move(page));
    }

    ContourPropertySheet sheet(TitleOf(parent).c_str(), parent, 0);
    sheet.SetHasApply(helper != nullptr);
    for (const auto& page : pages) {
        sheet.AddPage(page.get());
    }
    const bool confirmed = sheet.DoModal() == kResultOk;
    if (sheet.IsCancelRequested()) {
        throw CancelException();
    }
    if (confirmed && writeSettings) {
        pageData.SaveSettings(investigation->GetIniFileName());
        investigation->SetSelectedResponses(pageData.GetSelectedResponses());
        WriteContourSettings(data);
    }
    return confirmed;
}

}  // namespace kvopt
