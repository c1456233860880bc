#pragma once

#include <memory>
#include <vector>

#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"
#include "kvopt/study/factor_constants.h"

namespace kvopt {

class BasePropertyPageHelper;
class ConstantsPage;
class Contour2DAxisPage;
class Contour4DAxisPage;
class Investigation;
class KvPropertyPage;
class Mixture4DAxisPage;
class MixtureAxisPage;

/// Makes the axis and constants pages of a contour plot for the wizard and the sheet. What it is
/// given must outlive the pages.
class ContourPages {
public:
    enum Frame { Wizard, Sheet };

    ContourPages(ContourPlotData& data, const Investigation* investigation,
                 FactorConstants::Constant* constants, BasePropertyPageHelper* helper, Frame frame);

    std::unique_ptr<Contour2DAxisPage> ProcessAxes() const;
    std::unique_ptr<MixtureAxisPage> MixtureAxes() const;
    std::unique_ptr<Contour4DAxisPage> Process4DAxes() const;
    std::unique_ptr<Mixture4DAxisPage> Mixture4DAxes() const;
    /// Pages behind one of four dimensions, which must outlive them.
    std::unique_ptr<ConstantsPage> ProcessConstants(Contour4DAxisPage& axes) const;
    std::unique_ptr<ConstantsPage> MixtureConstants(Mixture4DAxisPage& axes) const;

private:
    template <class Arguments>
    Arguments GridArguments(ContourPlotData::AxisType set, int numAxes) const;
    template <class Arguments>
    Arguments OuterArguments(ContourPlotData::AxisType set, int numAxes) const;
    unsigned AxisHelp(unsigned topic) const;

    ContourPlotData& data_;
    ContourPageData& pageData_;
    const Investigation* investigation_;
    FactorConstants::Constant* constants_;
    BasePropertyPageHelper* helper_;
    bool inWizard_;
};

/// The options of a design space or, of any other plot, those of its type.
std::vector<std::unique_ptr<KvPropertyPage>> ContourOptionsPages(const Investigation* investigation,
                                                                 ContourPageData& data,
                                                                 bool designSpace,
                                                                 ContourPageData::Type type,
                                                                 BasePropertyPageHelper* helper);

}  // namespace kvopt
