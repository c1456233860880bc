#pragma once

/// \file
/// An axis page with a few factors, which counts its virtual steps.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "axes/axes_study.h"
#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/axes/axis_page.h"

namespace kvopt::test {

using Texts = std::vector<std::string>;

/// Temp2 stands before Temp, so that a search by prefix meets the wrong one first.
class AxisPageTest : public testing::Test {
protected:
    AxisPageTest() {
        study.Number("Temp2", 0, 100);
        study.Number("Temp", 0, 100);
        study.Number("Time", 0, 60);
        study.Names("Colour");
        study.Number("Speed", 0, 9);
        defaults = MakeAxes({{"Time", 10, 50},
                             {"Temp", 20, 80},
                             {"Colour", kNotSetF, kNotSetF},
                             {"Temp2", 30, 70}});
        defaults.insert(defaults.begin() + 2, nullptr);
    }

    AxisPage::Arguments Arguments() {
        return {&axes, static_cast<int>(axes.size()) - 1, 6158, &defaults,
                static_cast<int>(defaults.size()) - 1};
    }

    /// Counts the virtual steps and offers what a test wants on the lists.
    class Page : public AxisPage {
    public:
        Page(AxisPageTest& test, BasePropertyPageHelper* helper = nullptr)
            : AxisPage(&test.study, test.Arguments(), 6152, helper, 1) {}

        void FillAxisCombo(int axis, CComboBox* box, const wchar_t* selected) override {
            fills.push_back(axis);
            selectedWasNull = selectedWasNull && selected == nullptr;
            if (offers.empty()) {
                AxisPage::FillAxisCombo(axis, box, selected);
                return;
            }
            box->ResetContent();
            for (const std::string& name : offers) {
                box->AddString(KvStdString::ToWide(name));
            }
            box->SetCurSel(0);
        }
        void OnChangeAxis(int axis) override {
            steps.push_back("change " + std::to_string(axis));
            AxisPage::OnChangeAxis(axis);
        }
        void SetDefault(int axis) override {
            steps.push_back("default " + std::to_string(axis));
            AxisPage::SetDefault(axis);
        }
        void TransferFromPage() override {
            steps.push_back("transfer");
            AxisPage::TransferFromPage();
        }
        void OnOK() override {
            steps.push_back("ok");
            AxisPage::OnOK();
        }
        void Changed() override {
            ++changes;
            AxisPage::Changed();
        }

        Texts offers;
        Texts steps;
        std::vector<int> fills;
        bool selectedWasNull = true;
        int changes = 0;
    };

    /// A page of its own, with a window.
    std::unique_ptr<Page> Shown() {
        auto page = std::make_unique<Page>(*this);
        page->Create();
        page->steps.clear();
        page->changes = 0;
        return page;
    }

    AxesStudy study;
    AxisVector axes = MakeAxes({{"Time", 1, 2}, {"Temp", 3, 4}});
    AxisVector defaults;
    SheetDesktop desktop;
};

}  // namespace kvopt::test
