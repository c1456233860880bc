#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/axes/axis_page.h"
#include "kvopt/export.h"
#include "kvopt/study/factor_constants.h"

namespace kvopt {

class AcceleratorTable;
class VWSConstantInterface;

/// The "Axes and constants" page of a contour or surface plot (template 6160): two axes above, and
/// below them the grid of the factors that lie on no axis. It owns the grid; the constants of its
/// arguments must outlive it.
class KVOPT_EXPORT Contour2DAxisPage : public AxisPage {
public:
    struct Arguments : AxisPage::Arguments {
        FactorConstants::Constant* constants = nullptr;  ///< the array the grid edits; not owned
        bool finishOnly = false;  ///< no way back in the wizard; read by MixtureAxisPage alone
    };

    Contour2DAxisPage(const Investigation* investigation, const Arguments& arguments,
                      unsigned templateNumber, BasePropertyPageHelper* helper, unsigned helpTopic);
    ~Contour2DAxisPage() override;

    VWSConstantInterface& Grid() const { return *constantsGrid_; }

    /// Numbers, and with a true filler the formulation factors.
    void FillAxisCombo(int axis, CComboBox* box, const wchar_t* selected) override;
    /// Saves what was typed into the grid and makes it up anew when the factor is another one.
    void OnChangeAxis(int axis) override;

    bool OnInitDialog() override;
    bool OnSetActive() override;
    bool OnWizardFinish() override;
    bool OnApply() override;
    void OnOK() override;
    bool PreTranslateMessage(const KeyStroke& key) override;

private:
    std::vector<std::string> axisNames_;  ///< as the grid was last made up; axis n is element n-1
    std::unique_ptr<VWSConstantInterface> constantsGrid_;
    const AcceleratorTable* accelerators_;
};

}  // namespace kvopt
