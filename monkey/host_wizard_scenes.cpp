#include <initializer_list>
#include <memory>

#include "kvopt/axes.h"
#include "kvopt/constants.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs.h"
#include "kvopt/sheets.h"
#include "kvopt/study.h"
#include "monkey/accepted_pages.h"
#include "monkey/invariants.h"
#include "monkey/scenes.h"
#include "monkey/stage.h"

namespace kvopt::monkey {

namespace {

constexpr int kFirstPage = 6158;
constexpr unsigned kProcessAxes = 6160;
constexpr unsigned kProcessConstants = 6157;
constexpr unsigned kMixtureConstants = 6170;

/// A contour wizard that a host puts together itself, whose pages know a helper.
class HostWizard {
public:
    HostWizard(Stage& stage, ContourPlotData& plot, BasePropertyPageHelper* helper)
        : study_(&stage.Study()), plot_(plot), helper_(helper) {}

    int Run() {
        ContourPage first(study_, plot_, helper_, false);
        Contour2DAxisPage process(
            study_, WithGrid<Contour2DAxisPage::Arguments>(ContourPlotData::Process2D, 2),
            kProcessAxes, helper_, kNoHelp);
        MixtureAxisPage mixture(
            study_, WithGrid<Contour2DAxisPage::Arguments>(ContourPlotData::Mixture2D, 3), helper_,
            kNoHelp);
        auto outer = WithOuterAxes<Contour4DAxisPage::Arguments>(ContourPlotData::Process4D, 4);
        Contour4DAxisPage process4D(study_, outer, &plot_.GetContourTypeData()->GetOptions(),
                                    helper_, kNoHelp);
        Mixture4DAxisPage mixture4D(
            study_, WithOuterAxes<Mixture4DAxisPage::Arguments>(ContourPlotData::Mixture4D, 5),
            &plot_.GetContourTypeData()->GetOptions(), helper_, kNoHelp);
        ConstantsPage processConstants(study_, ConstantsBehind(process4D), kProcessConstants,
                                       helper_, false);
        ConstantsPage mixtureConstants(study_, ConstantsBehind(mixture4D), kMixtureConstants,
                                       helper_, false);
        KvPropertySheet sheet(L"Plot of a host", nullptr, 0);
        sheet.SetWizardMode();
        for (KvPropertyPage* page : std::initializer_list<KvPropertyPage*>{
                 &first, &process, &mixture, &process4D, &mixture4D, &processConstants,
                 &mixtureConstants}) {
            sheet.AddPage(page);
        }
        return sheet.DoModal();
    }

private:
    template <class Arguments>
    Arguments Axes(ContourPlotData::AxisType set, int numAxes) const {
        Arguments arguments;
        static_cast<AxisPage::Arguments&>(arguments) = {&plot_.GetAxisInfo(set), numAxes,
                                                        kFirstPage, &plot_.GetAxisDefaults(),
                                                        plot_.GetNumDefaults()};
        return arguments;
    }

    template <class Arguments>
    Arguments WithGrid(ContourPlotData::AxisType set, int numAxes) const {
        auto arguments = Axes<Arguments>(set, numAxes);
        arguments.constants = plot_.GetPlotConstants();
        return arguments;
    }

    template <class Arguments>
    Arguments WithOuterAxes(ContourPlotData::AxisType set, int numAxes) const {
        auto arguments = Axes<Arguments>(set, numAxes);
        arguments.inWizard = true;
        return arguments;
    }

    ConstantsPage::Arguments ConstantsBehind(AxisPage& axes) const {
        ConstantsPage::Arguments arguments;
        arguments.constants = plot_.GetPlotConstants();
        arguments.backPage = axes.TemplateNumber();
        arguments.axes = &plot_.GetAxisDefaults();
        auto chooser =
            std::make_unique<ContourConstantsChooser2>(study_->GetVariables(), &axes, study_);
        arguments.chooser = chooser.release();
        return arguments;
    }

    const Investigation* study_;
    ContourPlotData& plot_;
    BasePropertyPageHelper* helper_;
};

void RunHostWizard(Stage& stage, Invariants& invariants) {
    ContourPlotData plot(&stage.Study(), 0, stage.FileOf("study.ini"), false, false, false, false);
    BasePropertyPageHelper helper;
    AcceptedPages listener(invariants);
    listener.ConnectTo(&helper);
    invariants.Watch({&plot, &helper});
    if (HostWizard(stage, plot, &helper).Run() == kResultFinish) {
        invariants.CheckAxes();
    }
    invariants.CheckClosed();
    invariants.Watch({});
}

}  // namespace

std::vector<Scene> HostWizardScenes() {
    return {{"wizard of a host", RunHostWizard}};
}

}  // namespace kvopt::monkey
