#include "tests/monkey/faulty_scenes.h"

#include <memory>
#include <stdexcept>
#include <string>

#include "kvopt/axes.h"
#include "kvopt/designspace.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs.h"
#include "kvopt/selection.h"
#include "kvopt/study.h"
#include "monkey/accepted_pages.h"
#include "monkey/invariants.h"
#include "monkey/stage.h"

namespace kvopt::monkey {

namespace {

/// What else a page does than its base.
struct Fault {
    void (*onApply)(CPropertyPage& page, DesignSpaceOptions& options) = nullptr;
    void (*onChange)(KvPropertyPage& page) = nullptr;
    bool ignoresCancel = false;
};

class FaultyPage : public DesignSpacePage {
public:
    FaultyPage(const Investigation* study, DesignSpaceOptions& options,
               BasePropertyPageHelper* helper, const Fault& fault)
        : DesignSpacePage(study, options, helper), options_(options), fault_(fault) {}

    void Changed() override {
        if (fault_.onChange != nullptr) {
            fault_.onChange(*this);
        }
        DesignSpacePage::Changed();
    }
    bool OnApply() override {
        if (fault_.onApply != nullptr) {
            fault_.onApply(*this, options_);
        }
        return DesignSpacePage::OnApply();
    }

private:
    DesignSpaceOptions& options_;
    Fault fault_;
};

class FaultySheet : public KvPropertySheet {
public:
    explicit FaultySheet(bool ignoresCancel)
        : KvPropertySheet(L"Page", nullptr, 0), ignoresCancel_(ignoresCancel) {}
    void OnCancel() override {
        if (!ignoresCancel_) {
            KvPropertySheet::OnCancel();
        }
    }

private:
    bool ignoresCancel_;
};

Scene PageScene(const Fault& fault) {
    return {"faulty page", [fault](Stage& stage, Invariants& invariants) {
                DesignSpaceOptions options(&stage.Study());
                BasePropertyPageHelper helper;
                AcceptedPages listener(invariants);
                listener.ConnectTo(&helper);
                FaultyPage page(&stage.Study(), options, &helper, fault);
                FaultySheet sheet(fault.ignoresCancel);
                sheet.SetHasApply(true);
                sheet.AddPage(&page);
                invariants.Watch({nullptr, &helper, [&] { return PortraitOf(options); }});
                sheet.DoModal();
            }};
}

/// A wizard of one axis page with a fault of its own.
template <class Page>
Scene AxisScene() {
    return {"faulty axes", [](Stage& stage, Invariants& invariants) {
                ContourPlotData plot(&stage.Study(), 0, stage.FileOf("study.ini"), false, false,
                                     false, false);
                Contour2DAxisPage::Arguments arguments;
                static_cast<AxisPage::Arguments&>(arguments) = {
                    &plot.GetAxisInfo(ContourPlotData::Process2D), 2, 0, &plot.GetAxisDefaults(),
                    plot.GetNumDefaults()};
                arguments.constants = plot.GetPlotConstants();
                Page page(plot, arguments);
                KvPropertySheet sheet(L"Axes", nullptr, 0);
                sheet.SetWizardMode();
                sheet.AddPage(&page);
                invariants.Watch({&plot});
                sheet.DoModal();
            }};
}

class AxisPageOf : public Contour2DAxisPage {
public:
    AxisPageOf(ContourPlotData& plot, const Arguments& arguments)
        : Contour2DAxisPage(plot.GetInvestigation(), arguments, 6160, nullptr, kNoHelp),
          plot_(plot) {}

protected:
    ContourPlotData& plot_;
};

class BlindAxisPage : public AxisPageOf {
public:
    using AxisPageOf::AxisPageOf;
    bool CheckLegalAxes() const override { return true; }
};

class FillingAxisPage : public AxisPageOf {
public:
    using AxisPageOf::AxisPageOf;
    bool OnWizardFinish() override {
        const bool isAccepted = AxisPageOf::OnWizardFinish();
        const auto factors = plot_.GetInvestigation()->GetVariables()->GetAllFactors();
        for (std::size_t at = 0; at < factors.size(); ++at) {
            plot_.GetPlotConstants()[at] = {factors[at]->GetName(), 1.0, FactorConstants::CUSTOM};
        }
        plot_.GetPlotConstants()[factors.size()] = {"one more", 1.0, FactorConstants::CUSTOM};
        return isAccepted;
    }
};

class LosingPage : public MultipleResponsePage {
public:
    using MultipleResponsePage::MultipleResponsePage;
    void Changed() override {
        Item<CListBox>(6076)->DeleteString(0);
        MultipleResponsePage::Changed();
    }
};

}  // namespace

Scene StoresBeforeItRefuses() {
    Fault fault;
    fault.onApply = [](CPropertyPage& /*page*/, DesignSpaceOptions& options) {
        options.dpmoLimit = 123;
    };
    return PageScene(fault);
}

Scene CountsAChangeTwice() {
    Fault fault;
    fault.onChange = [](KvPropertyPage& page) {
        if (!page.IsChanged()) {
            page.GetPropertyPageHelper()->AddUpdate();
        }
    };
    return PageScene(fault);
}

Scene LosesAnItem() {
    return {"faulty lists", [](Stage& stage, Invariants& invariants) {
                SelectResponses responses(&stage.Study(), true);
                LosingPage page(&stage.Study(), responses, 6172, -1, nullptr, kNoHelp);
                KvPropertySheet sheet(L"Page", nullptr, 0);
                sheet.AddPage(&page);
                invariants.Watch({});
                sheet.DoModal();
            }};
}

Scene RaisesABoxWithoutAText() {
    Fault fault;
    fault.onApply = [](CPropertyPage& page, DesignSpaceOptions& /*options*/) {
        ShowMessage(&page, L"", BoxStyle::Information);
    };
    return PageScene(fault);
}

Scene RaisesABoxThatNobodyAnswers() {
    Fault fault;
    fault.onApply = [](CPropertyPage& /*page*/, DesignSpaceOptions& /*options*/) {
        Desktop::Instance().Note("box 64 \"Page\" \"Nobody sees this.\"");
    };
    return PageScene(fault);
}

Scene RaisesBoxesWithoutEnd() {
    Fault fault;
    fault.onApply = [](CPropertyPage& page, DesignSpaceOptions& /*options*/) {
        while (ShowMessage(&page, L"Again?", BoxStyle::Information) == BoxAnswer::Ok) {
        }
    };
    return PageScene(fault);
}

Scene StaysOpenBehindCancel() {
    Fault fault;
    fault.ignoresCancel = true;
    return PageScene(fault);
}

Scene ThrowsOnAChange() {
    Fault fault;
    fault.onChange = [](KvPropertyPage& /*page*/) { throw std::logic_error("the page fell over"); };
    return PageScene(fault);
}

Scene AcceptsAFactorTwice() {
    return AxisScene<BlindAxisPage>();
}

Scene FillsTheConstants() {
    return AxisScene<FillingAxisPage>();
}

}  // namespace kvopt::monkey
