#include "sheets/contour_pages.h"

#include "kvopt/axes/contour_2d_axis_page.h"
#include "kvopt/axes/contour_4d_axis_page.h"
#include "kvopt/axes/mixture_4d_axis_page.h"
#include "kvopt/axes/mixture_axis_page.h"
#include "kvopt/constants/constants_page.h"
#include "kvopt/designspace/design_space_interval_page.h"
#include "kvopt/designspace/ds_contour_plot_options_page.h"
#include "kvopt/sheets/contour_plot_options_page.h"
#include "sheets/contour_templates.h"
#include "sheets/plot_pages.h"

namespace kvopt {

namespace {

constexpr unsigned kInnerAxisHelp = 1;
constexpr unsigned kOuterAxisHelp = 2;
constexpr unsigned kDesignSpaceAxisHelp = 98;
constexpr unsigned kContourOptionsHelp = 64;
constexpr unsigned kSurfaceOptionsHelp = 402;

}  // namespace

ContourPages::ContourPages(ContourPlotData& data, const Investigation* investigation,
                           FactorConstants::Constant* constants, BasePropertyPageHelper* helper,
                           Frame frame)
    : data_(data),
      pageData_(*data.GetContourTypeData()),
      investigation_(investigation),
      constants_(constants),
      helper_(helper),
      inWizard_(frame == Wizard) {}

unsigned ContourPages::AxisHelp(unsigned topic) const {
    return pageData_.ISDSProbability() ? kDesignSpaceAxisHelp : topic;
}

/// For a page that shows the constants in a grid below its axes.
template <class Arguments>
Arguments ContourPages::GridArguments(ContourPlotData::AxisType set, int numAxes) const {
    Arguments arguments;
    static_cast<AxisPage::Arguments&>(arguments) =
        AxesOfPlot(data_, set, numAxes, kContourTemplate);
    arguments.constants = constants_;
    arguments.finishOnly = inWizard_ && pageData_.UseDummyData();
    return arguments;
}

/// For a page that has outer axes.
template <class Arguments>
Arguments ContourPages::OuterArguments(ContourPlotData::AxisType set, int numAxes) const {
    Arguments arguments;
    static_cast<AxisPage::Arguments&>(arguments) =
        AxesOfPlot(data_, set, numAxes, kContourTemplate);
    arguments.inWizard = inWizard_;
    return arguments;
}

std::unique_ptr<Contour2DAxisPage> ContourPages::ProcessAxes() const {
    return std::make_unique<Contour2DAxisPage>(
        investigation_, GridArguments<Contour2DAxisPage::Arguments>(ContourPlotData::Process2D, 2),
        kProcessAxisTemplate, helper_, AxisHelp(kInnerAxisHelp));
}

std::unique_ptr<MixtureAxisPage> ContourPages::MixtureAxes() const {
    return std::make_unique<MixtureAxisPage>(
        investigation_, GridArguments<Contour2DAxisPage::Arguments>(ContourPlotData::Mixture2D, 3),
        helper_, AxisHelp(kInnerAxisHelp));
}

std::unique_ptr<Contour4DAxisPage> ContourPages::Process4DAxes() const {
    auto arguments = OuterArguments<Contour4DAxisPage::Arguments>(ContourPlotData::Process4D, 4);
    return std::make_unique<Contour4DAxisPage>(investigation_, arguments, &pageData_.GetOptions(),
                                               helper_, AxisHelp(kOuterAxisHelp));
}

std::unique_ptr<Mixture4DAxisPage> ContourPages::Mixture4DAxes() const {
    auto arguments = OuterArguments<Mixture4DAxisPage::Arguments>(ContourPlotData::Mixture4D, 5);
    return std::make_unique<Mixture4DAxisPage>(investigation_, arguments, &pageData_.GetOptions(),
                                               helper_, AxisHelp(kOuterAxisHelp));
}

std::unique_ptr<ConstantsPage> ContourPages::ProcessConstants(Contour4DAxisPage& axes) const {
    const bool readOnly = pageData_.ISDSProbability() && pageData_.FromDesignSpace();
    return MakeConstantsPage(axes, data_, ContourPlotData::Process4D, investigation_, constants_,
                             kProcessConstantsTemplate, helper_, readOnly);
}

std::unique_ptr<ConstantsPage> ContourPages::MixtureConstants(Mixture4DAxisPage& axes) const {
    // A sheet does not ask what kind of plot it is.
    const bool readOnly =
        pageData_.FromDesignSpace() && (pageData_.ISDSProbability() || !inWizard_);
    return MakeConstantsPage(axes, data_, ContourPlotData::Mixture4D, investigation_, constants_,
                             kMixtureConstantsTemplate, helper_, readOnly);
}

std::vector<std::unique_ptr<KvPropertyPage>> ContourOptionsPages(const Investigation* investigation,
                                                                 ContourPageData& data,
                                                                 bool designSpace,
                                                                 ContourPageData::Type type,
                                                                 BasePropertyPageHelper* helper) {
    std::vector<std::unique_ptr<KvPropertyPage>> pages;
    if (designSpace) {
        ContourPageData::Arguments& options = data.GetOptions();
        pages.push_back(std::make_unique<DSContourPlotOptionsPage>(investigation, data, helper));
        pages.push_back(std::make_unique<DesignSpaceIntervalPage>(
            investigation, options.confLev, options.tolProp, options.intervalType, helper, false));
    } else {
        const bool surface = type == ContourPageData::surface_3D;
        pages.push_back(std::make_unique<ContourPlotOptionsPage>(
            investigation, data, helper,
            surface ? kSurfaceOptionsTemplate : kContourOptionsTemplate,
            surface ? kSurfaceOptionsHelp : kContourOptionsHelp));
    }
    return pages;
}

}  // namespace kvopt
