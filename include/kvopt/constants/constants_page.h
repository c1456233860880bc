#pragma once

#include <memory>
#include <vector>

#include "kvopt/constants/vws_constant_interface.h"
#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

class AcceleratorTable;

/// The page whose whole client area is the constants grid (templates 6157 and 6170).
class KVOPT_EXPORT ConstantsPage : public KvPropertyPage {
public:
    struct Arguments {
        FactorConstants::Constant* constants = nullptr;
        const std::vector<std::shared_ptr<AxisInfo>>* axisList =
            nullptr;                          ///< kept, read by nothing
        int axisCount = 0;                    ///< kept, read by nothing
        int backPage = 0;                     ///< template of the page before this one
        ConstantsChooser* chooser = nullptr;  ///< a new object; the grid owns it from then on
        const std::vector<std::shared_ptr<AxisInfo>>* axes = nullptr;
    };

    ConstantsPage(const Investigation* investigation, const Arguments& arguments,
                  unsigned templateNumber, BasePropertyPageHelper* helper, bool readOnly);
    ~ConstantsPage() override;

    VWSConstantInterface& Grid() const { return *grid_; }

    bool PreTranslateMessage(const KeyStroke& key) override;
    bool OnInitDialog() override;
    void OnOK() override;
    bool OnApply() override;
    bool OnSetActive() override;
    bool OnKillActive() override;
    int OnWizardBack() override;

protected:
    void GetMessageMap(MessageMap& map) override;

private:
    Arguments arguments_;
    std::unique_ptr<VWSConstantInterface> grid_;
    const AcceleratorTable* accelerators_;
};

}  // namespace kvopt
