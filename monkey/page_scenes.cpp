#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/designspace.h"
#include "kvopt/platform.h"
#include "kvopt/selection.h"
#include "kvopt/statpages.h"
#include "kvopt/study.h"
#include "monkey/finding.h"
#include "monkey/invariants.h"
#include "monkey/scenes.h"
#include "monkey/stage.h"

namespace kvopt::monkey {

namespace {

/// A sheet of one page, as a host makes it, with a helper that somebody listens to.
template <class MakePage>
void RunPage(Invariants& invariants, MakePage makePage) {
    BasePropertyPageHelper helper;
    PropertyPageListener listener;
    listener.ConnectTo(&helper);
    const auto page = makePage(&helper);
    KvPropertySheet sheet(L"Page", nullptr, 0);
    sheet.SetHasApply(true);
    sheet.AddPage(page.get());
    invariants.Watch(nullptr, &helper);
    sheet.DoModal();
    invariants.Watch(nullptr, nullptr);
    if (helper.UpdateCount() != 0) {
        throw Finding("an update stays open behind the sheet");
    }
}

void RunDesignSpace(Stage& stage, Invariants& invariants) {
    DesignSpaceOptions options(&stage.Study());
    RunPage(invariants, [&](BasePropertyPageHelper* helper) {
        return std::make_unique<DesignSpacePage>(&stage.Study(), options, helper);
    });
}

void RunConfidenceLevel(Stage& /*stage*/, Invariants& invariants) {
    CConfLev::ConfLev level = CConfLev::Level95;
    CConfLev::ConfLev tolerance = CConfLev::Level99;
    CIntervalType::IntervalType type{};
    bool useLevel = true;
    RunPage(invariants, [&](BasePropertyPageHelper* helper) {
        return std::make_unique<ConfidenceLevelPage>(level, tolerance, helper, &useLevel, &type,
                                                     false);
    });
}

void RunPredictionLevel(Stage& /*stage*/, Invariants& invariants) {
    CConfLev::ConfLev level = CConfLev::Level95;
    CConfLev::ConfLev tolerance = CConfLev::Level99;
    CIntervalType::IntervalType type{};
    bool useLevel = true;
    RunPage(invariants, [&](BasePropertyPageHelper* helper) {
        return std::make_unique<PredictionLevelPage>(level, tolerance, type, helper, &useLevel);
    });
}

void RunSelectResponse(Stage& stage, Invariants& invariants) {
    SelectResponseBase base;
    RunPage(invariants, [&](BasePropertyPageHelper* helper) {
        return std::make_unique<SelectResponsePage>(&stage.Study(), &base, helper, false, true);
    });
}

void RunSelectVariable(Stage& stage, Invariants& invariants) {
    std::string variable;
    RunPage(invariants, [&](BasePropertyPageHelper* helper) {
        return std::make_unique<SelectVariablePage>(&stage.Study(), variable, helper);
    });
}

void RunSelectItems(Stage& stage, Invariants& /*invariants*/) {
    std::vector<std::string> available = stage.Names();
    std::vector<std::string> selected{available.back()};
    available.pop_back();
    SelectItemDialog(available, selected, "names", 3, nullptr).DoModal();
}

}  // namespace

std::vector<Scene> PageScenes() {
    return {{"design space page", RunDesignSpace},
            {"confidence level page", RunConfidenceLevel},
            {"prediction level page", RunPredictionLevel},
            {"select response page", RunSelectResponse},
            {"select variable page", RunSelectVariable},
            {"select item dialog", RunSelectItems}};
}

std::vector<Scene> AllScenes() {
    std::vector<Scene> all = PlotScenes();
    for (Scene& scene : PageScenes()) {
        all.push_back(std::move(scene));
    }
    return all;
}

}  // namespace kvopt::monkey
