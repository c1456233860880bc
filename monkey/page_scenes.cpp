#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/designspace.h"
#include "kvopt/options.h"
#include "kvopt/platform.h"
#include "kvopt/selection.h"
#include "kvopt/statpages.h"
#include "kvopt/study.h"
#include "monkey/accepted_pages.h"
#include "monkey/invariants.h"
#include "monkey/scenes.h"
#include "monkey/stage.h"
#include "monkey/value_text.h"

namespace kvopt::monkey {

namespace {

/// A sheet of one page, as a host makes it, with a helper that somebody listens to. `edited` gives
/// what the page edits.
template <class MakePage>
void RunPage(Invariants& invariants, std::function<Portrait()> edited, MakePage makePage) {
    BasePropertyPageHelper helper;
    AcceptedPages listener(invariants);
    listener.ConnectTo(&helper);
    const auto page = makePage(&helper);
    KvPropertySheet sheet(L"Page", nullptr, 0);
    sheet.SetHasApply(true);
    sheet.AddPage(page.get());
    invariants.Watch({nullptr, &helper, std::move(edited)});
    sheet.DoModal();
    invariants.CheckClosed();
    invariants.Watch({});
}

/// What the level pages edit.
struct Levels {
    CConfLev::ConfLev level = CConfLev::Level95;
    CConfLev::ConfLev tolerance = CConfLev::Level99;
    CIntervalType::IntervalType type = CIntervalType::Confidence;
    bool use = true;
};

std::function<Portrait()> EditedOf(const Levels& levels) {
    return [&levels] {
        return Portrait{
            {"levels", TextOf(static_cast<int>(levels.level), static_cast<int>(levels.tolerance),
                              static_cast<int>(levels.type), levels.use)}};
    };
}

void RunDesignSpace(Stage& stage, Invariants& invariants) {
    DesignSpaceOptions options(&stage.Study());
    RunPage(
        invariants, [&] { return PortraitOf(options); },
        [&](BasePropertyPageHelper* helper) {
            return std::make_unique<DesignSpacePage>(&stage.Study(), options, helper);
        });
}

void RunInterval(Stage& stage, Invariants& invariants) {
    DesignSpaceOptions options(&stage.Study());
    RunPage(
        invariants, [&] { return PortraitOf(options); },
        [&](BasePropertyPageHelper* helper) {
            return std::make_unique<DesignSpaceIntervalPage>(&stage.Study(), options, helper, true);
        });
}

void RunConfidenceLevel(Stage& /*stage*/, Invariants& invariants) {
    Levels levels;
    RunPage(invariants, EditedOf(levels), [&](BasePropertyPageHelper* helper) {
        return std::make_unique<ConfidenceLevelPage>(levels.level, levels.tolerance, helper,
                                                     &levels.use, &levels.type, false);
    });
}

void RunPredictionLevel(Stage& /*stage*/, Invariants& invariants) {
    Levels levels;
    RunPage(invariants, EditedOf(levels), [&](BasePropertyPageHelper* helper) {
        return std::make_unique<PredictionLevelPage>(levels.level, levels.tolerance, levels.type,
                                                     helper, &levels.use);
    });
}

void RunPredictionPlotLevel(Stage& stage, Invariants& invariants) {
    Levels levels;
    RunPage(invariants, EditedOf(levels), [&](BasePropertyPageHelper* helper) {
        return std::make_unique<PredictionPlotLevelPage>(
            &stage.Study(), levels.level, levels.tolerance, levels.type, helper, &levels.use, true);
    });
}

void RunSelectResponse(Stage& stage, Invariants& invariants) {
    SelectResponseBase base;
    RunPage(
        invariants,
        [&] {
            return Portrait{{"response", base.GetResponse()}};
        },
        [&](BasePropertyPageHelper* helper) {
            return std::make_unique<SelectResponsePage>(&stage.Study(), &base, helper, false, true);
        });
}

void RunSelectVariable(Stage& stage, Invariants& invariants) {
    std::string variable;
    RunPage(
        invariants,
        [&] {
            return Portrait{{"variable", variable}};
        },
        [&](BasePropertyPageHelper* helper) {
            return std::make_unique<SelectVariablePage>(&stage.Study(), variable, helper);
        });
}

void RunSelectItems(Stage& stage, Invariants& invariants) {
    std::vector<std::string> available = stage.Names();
    std::vector<std::string> selected{available.back()};
    available.pop_back();
    invariants.Watch({nullptr, nullptr, [&] {
                          return Portrait{{"available items", TextOf(available)},
                                          {"selected items", TextOf(selected)}};
                      }});
    SelectItemDialog(available, selected, "names", 3, nullptr).DoModal();
    invariants.Watch({});
}

/// A page of a host whose grid has a row of each kind.
template <class Base>
class RowsPage : public Base {
public:
    explicit RowsPage(BasePropertyPageHelper* helper) : Base(helper, kNoHelp) {
        this->SetTitle(L"What to draw", 1);
    }
    Portrait Edited() const {
        return {{"rows", TextOf(isSmooth_, count_, limit_, share_, style_)}};
    }

protected:
    void Init() override {
        this->Grid()->ResetContent();
        auto& lines = this->Grid()->AddCategory(L"Lines\nHow lines look.");
        lines
            .AddChildItem(std::make_unique<CXTPPropertyGridItemBool>(L"Smooth\nRound the corners.",
                                                                     L"Yes", L"No"))
            .BindToBool(&isSmooth_);
        auto& count =
            lines.AddChildItem(std::make_unique<CXTPPropertyGridItemNumber>(L"Count", 0, &count_));
        count.AddChildItem(std::make_unique<CXTPPropertyGridItemNumber>(L"Limit", 0, &limit_));
        lines.AddChildItem(
            std::make_unique<CXTPPropertyGridItemDouble>(L"Share", 0.0, nullptr, &share_));
        auto& style = lines.AddChildItem(std::make_unique<CXTPPropertyGridItemEnum>(L"Style"));
        style.AddConstraint(L"Thin", 1);
        style.AddConstraint(L"Thick", 2);
        style.BindToEnum(&style_);
        lines.Expand();
    }
    void GetMessageMap(MessageMap& map) override {
        Base::GetMessageMap(map);
        Base::RouteReset(map, [this] {
            Init();
            this->Changed();
        });
    }

private:
    bool isSmooth_ = true;
    int count_ = 3;
    int limit_ = 7;
    double share_ = 0.5;
    int style_ = 1;
};

template <class Base>
void RunRows(Stage& /*stage*/, Invariants& invariants) {
    RowsPage<Base>* shown = nullptr;
    RunPage(
        invariants, [&] { return shown->Edited(); },
        [&](BasePropertyPageHelper* helper) {
            auto page = std::make_unique<RowsPage<Base>>(helper);
            shown = page.get();
            return page;
        });
}

}  // namespace

std::vector<Scene> PageScenes() {
    return {{"design space page", RunDesignSpace},
            {"interval page", RunInterval},
            {"confidence level page", RunConfidenceLevel},
            {"prediction level page", RunPredictionLevel},
            {"prediction plot level page", RunPredictionPlotLevel},
            {"select response page", RunSelectResponse},
            {"select variable page", RunSelectVariable},
            {"select item dialog", RunSelectItems},
            {"grid page", RunRows<OptionsPageBase>},
            {"other grid page", RunRows<KvXtpOptionsPageBase>}};
}

std::vector<Scene> AllScenes() {
    std::vector<Scene> all = PlotScenes();
    for (auto more : {PageScenes(), HostWizardScenes()}) {
        all.insert(all.end(), more.begin(), more.end());
    }
    return all;
}

}  // namespace kvopt::monkey
