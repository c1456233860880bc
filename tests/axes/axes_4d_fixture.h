#pragma once

/// \file
/// The two pages with outer axes, of process factors and of a mixture, on one study.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "axes/axes_study.h"
#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/axes/contour_4d_axis_page.h"
#include "kvopt/axes/mixture_4d_axis_page.h"
#include "kvopt/stores.h"

namespace kvopt::test {

using Texts = std::vector<std::string>;

enum class Plot { Process, Mixture };

inline void PrintTo(Plot plot, std::ostream* out) {
    *out << (plot == Plot::Process ? "process" : "mixture");
}

/// Makes the steps of a page visible that only its base has in public.
template <class Base>
class Page4D : public Base {
public:
    template <class... Arguments>
    explicit Page4D(int& changes, Arguments&&... arguments)
        : Base(std::forward<Arguments>(arguments)...), changes_(changes) {}

    void Changed() override {
        ++changes_;
        Base::Changed();
    }

private:
    int& changes_;
};

/// The factors are A, B, C and D of a mixture, the numbers Temp, Time, Speed and Mass, and Colour
/// and Tint with the settings red, green, blue and grey. Temp and Time, or A, B and C, lie on the
/// inner axes, nothing on the outer ones. The models use ten factors.
class Axes4DTest : public testing::Test {
protected:
    Axes4DTest()
        : registry_(
              Registry::Install(std::make_shared<Registry>(std::unique_ptr<IniFileSection>()))) {
        for (const char* name : {"A", "B", "C", "D"}) {
            study.Part(name);
        }
        for (const char* name : {"Temp", "Time", "Speed", "Mass"}) {
            study.Number(name, 0, 100);
        }
        study.Names("Colour");
        study.Names("Tint");
        study.usedFactors = 10;
        for (const char* name : {"A", "B", "C", "D", "Temp", "Time", "Speed", "Mass"}) {
            auto axis = std::make_shared<AxisInfoImpl>();
            axis->SetName(name);
            axis->SetRange(10, 90);
            defaults.push_back(axis);
        }
    }
    ~Axes4DTest() override {
        page.reset();
        Registry::Install(registry_);
    }

    /// Puts factors on the outer axes.
    void Store(const std::string& onFirst, const std::string& onSecond,
               const std::string& firstSettings = "", const std::string& secondSettings = "") {
        outer_[0] = {onFirst, firstSettings};
        outer_[1] = {onSecond, secondSettings};
    }

    /// A page without a window.
    AxisPage& Make(Plot plot, BasePropertyPageHelper* helper = nullptr) {
        const bool isMixture = plot == Plot::Mixture;
        first = isMixture ? 4 : 3;
        axes = isMixture ? MakeAxes({{"A", 0, 1}, {"B", 0, 1}, {"C", 0, 1}})
                         : MakeAxes({{"Temp", 1, 2}, {"Time", 3, 4}});
        for (const StoredAxis& stored : outer_) {
            auto axis = std::make_shared<AxisInfoImpl>();
            axis->SetName(stored.name);
            axis->SetRange(5, 6);
            axis->SetSettings(stored.settings);
            axes.push_back(axis);
        }
        page =
            isMixture ? MakePage<Mixture4DAxisPage>(helper) : MakePage<Contour4DAxisPage>(helper);
        return *page;
    }
    /// One with a window; what happened as it opened is forgotten.
    AxisPage& Show(Plot plot, BasePropertyPageHelper* helper = nullptr) {
        Make(plot, helper).Create();
        page->Unchanged();
        changes = 0;
        return *page;
    }
    AxisPage& Show(Plot plot, const std::string& onFirst, const std::string& onSecond) {
        Store(onFirst, onSecond);
        return Show(plot);
    }

    /// Runs the page as the second of a wizard or a sheet.
    void Run(bool wizard, std::function<void(KvPropertySheet&)> user) {
        struct Before : KvPropertyPage {
            Before() : KvPropertyPage(6152, 0, nullptr, kNoHelp) {}
        };
        KvPropertySheet sheet(L"Contour Plot", nullptr, 0);
        Before before;
        sheet.AddPage(&before);
        sheet.AddPage(page.get());
        if (wizard) {
            sheet.SetWizardMode();
        }
        sheet.SetActivePage(page.get());
        desktop.user = [&](CPropertySheet&) { user(sheet); };
        sheet.DoModal();
        page.reset();
    }

    RowProbe Row(int axis) const { return {*page, axis}; }
    /// Of the first outer axis (0) or the second (1).
    RowProbe Outer(int which) const { return Row(first + which); }
    CEdit& Settings(int which) const { return *page->Item<CEdit>(6050 + which); }
    CButton& SettingsButton(int which) const { return *page->Item<CButton>(6003 + which); }
    std::string SettingsText(int which) const { return Utf8(Settings(which)); }
    AxisInfo& Stored(int which) const { return *axes[static_cast<std::size_t>(first + which)]; }
    CControl& Control(int number) const { return *page->GetDlgItem(number); }
    CButton& Button(int number) const { return *page->Item<CButton>(number); }
    KvComboBox& Distribution() const { return *page->Item<KvComboBox>(6305); }
    std::string Hint() const { return Utf8(Control(6139)); }
    static std::string Utf8(const CWnd& window) { return KvStdString::ToUtf8(window.GetText()); }

    /// "range", "settings", or which of the controls do not agree.
    std::string Shown(int which) const {
        const RowProbe row = Outer(which);
        const bool low = row.low.IsVisible();
        const bool settings = Settings(which).IsVisible();
        if (row.high.IsVisible() != low || row.button.IsVisible() != low ||
            SettingsButton(which).IsVisible() != settings || low == settings) {
            return "mixed";
        }
        return settings ? "settings" : "range";
    }

    AxesStudy study;
    AxisVector axes;
    AxisVector defaults{nullptr};
    ContourPageData::Arguments options;
    ContourPageData::Arguments* givenOptions = &options;
    bool inWizard = true;
    SheetDesktop desktop;
    std::unique_ptr<AxisPage> page;
    int first = 0;  ///< the number of the first outer axis
    int changes = 0;

private:
    struct StoredAxis {
        std::string name = kNone;
        std::string settings;
    };

    template <class Base>
    std::unique_ptr<AxisPage> MakePage(BasePropertyPageHelper* helper) {
        typename Base::Arguments arguments;
        arguments.axes = &axes;
        arguments.numAxes = static_cast<int>(axes.size()) - 1;
        arguments.backPage = 6158;
        arguments.defaults = &defaults;
        arguments.numDefaults = static_cast<int>(defaults.size()) - 1;
        arguments.inWizard = inWizard;
        return std::make_unique<Page4D<Base>>(changes, &study, arguments, givenOptions, helper, 1U);
    }

    StoredAxis outer_[2];
    std::shared_ptr<Registry> registry_;
};

/// What both pages do alike.
class BothAxes4D : public Axes4DTest, public testing::WithParamInterface<Plot> {};

}  // namespace kvopt::test
