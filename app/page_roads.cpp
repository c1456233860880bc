#include "page_roads.h"

#include <kvopt/designspace.h>
#include <kvopt/host.h>
#include <kvopt/platform.h>
#include <kvopt/plotargs.h>
#include <kvopt/selection.h>
#include <kvopt/statpages.h>
#include <kvopt/study.h>
#include <kvopt/text.h>

namespace {

/// A sheet with this page alone, titled as the page; true when the user pressed OK.
bool RunAlone(kvopt::KvPropertyPage& page, kvopt::CWnd* parent) {
    kvopt::KvPropertySheet sheet(page.PageTitle().c_str(), parent, 0);
    sheet.AddPage(&page);
    return sheet.DoModal() == kvopt::kResultOk;
}

RoadResult Entered(const std::string& group, std::vector<PlotLine> lines) {
    RoadResult result;
    result.finished = true;
    result.entered = {{group, std::move(lines)}};
    return result;
}

/// What the level pages edit, as the study has it for its design spaces.
struct Interval {
    explicit Interval(const kvopt::DesignSpaceOptions& options)
        : level(options.confidenceLevel),
          tolerance(options.toleranceProportion),
          type(options.intervalType) {}

    RoadResult Result() const {
        return Entered(
            "Interval",
            {{"Interval type", kvopt::KvStdString::ToUtf8(kvopt::CIntervalType::GetStringEx(type))},
             {"Confidence level", kvopt::CConfLev::GetString(use ? level : kvopt::CConfLev::None)},
             {"Tolerance proportion", kvopt::CConfLev::GetString(tolerance)}});
    }

    kvopt::CConfLev::ConfLev level;
    kvopt::CConfLev::ConfLev tolerance;
    kvopt::CIntervalType::IntervalType type;
    bool use = true;
};

}  // namespace

RoadResult ShowSelectResponsePage(const RoadStart& start) {
    kvopt::SelectResponseBase owner(kvopt::SelectResponseBase::Extended);
    std::vector<std::string> selected;
    start.study.GetSelectedResponses(selected, kvopt::SelectResponseBase::Extended);
    owner.SetResponse(selected.empty() ? std::string() : selected.front());
    kvopt::SelectResponsePage page(&start.study, &owner, nullptr, true, true);
    if (!RunAlone(page, start.parent)) {
        return {};
    }
    const std::string response = owner.GetResponse();
    return Entered("Selection", {{"Response", response.empty() ? "none" : response}});
}

RoadResult ShowSelectVariablePage(const RoadStart& start) {
    std::string variable;
    kvopt::SelectVariablePage page(&start.study, variable, nullptr);
    if (!RunAlone(page, start.parent)) {
        return {};
    }
    return Entered("Selection", {{"Variable", variable}});
}

RoadResult ShowDesignSpacePage(const RoadStart& start) {
    kvopt::DesignSpaceOptions options(&start.study);
    kvopt::DesignSpacePage page(&start.study, options, nullptr);
    if (!RunAlone(page, start.parent)) {
        return {};
    }
    return Entered(
        "Setpoint",
        {{"Acceptable range simulations", std::to_string(options.acceptableRangeSimulations)},
         {"Response profile simulations", std::to_string(options.responseProfileSimulations)},
         {"Risk limit", std::to_string(options.dpmoLimit) + " DPMO"},
         {"Total probability of failure", YesNo(options.useTotalProbability)},
         {"Include model error", YesNo(options.includeModelError)},
         {"Automatic update", YesNo(options.automaticUpdate)},
         {"Limits at", std::to_string(options.limitConfidence) + "%"},
         {"Possible Min/Max lines", YesNo(options.showMinMaxLines)}});
}

RoadResult ShowConfidenceLevelPage(const RoadStart& start) {
    Interval interval{kvopt::DesignSpaceOptions(&start.study)};
    kvopt::ConfidenceLevelPage page(interval.level, interval.tolerance, nullptr, &interval.use,
                                    &interval.type, true);
    return RunAlone(page, start.parent) ? interval.Result() : RoadResult();
}

RoadResult ShowPredictionLevelPage(const RoadStart& start) {
    Interval interval{kvopt::DesignSpaceOptions(&start.study)};
    kvopt::PredictionLevelPage page(interval.level, interval.tolerance, interval.type, nullptr,
                                    &interval.use);
    return RunAlone(page, start.parent) ? interval.Result() : RoadResult();
}
