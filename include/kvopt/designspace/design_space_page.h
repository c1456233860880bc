#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

class DesignSpaceOptions;
class Investigation;
class PlainText;

/// Simulations, risk limit and update of the setpoint (template 6209). It edits the options in
/// place, owns neither them nor the study, and remembers them in the study's settings on each
/// apply. The risk limit is shown in the unit of the general settings and kept in DPMO.
///
/// Dirty as soon as it is shown, and applied whether dirty or not. A refused apply leaves the
/// options as they were, but for `whatToUpdate`, which is 0 from the start of each apply.
class KVOPT_EXPORT DesignSpacePage : public KvPropertyPage {
public:
    DesignSpacePage(const Investigation* investigation, DesignSpaceOptions& options,
                    BasePropertyPageHelper* helper);

    bool OnInitDialog() override;
    bool OnApply() override;

    /// Writes the given options to the controls.
    void UpdateFields(DesignSpaceOptions& options);
    /// Writes the defaults to the controls; the edited options stay until the page is applied.
    void OnBnClickedBtnDsReset();

protected:
    void GetMessageMap(MessageMap& map) override;

private:
    bool TakeSimulations(DesignSpaceOptions& options);
    bool TakeLimit(DesignSpaceOptions& options);
    bool TakeInteger(int control, int low, int high, const PlainText& message, int& value);
    bool Refuse(int control, const PlainText& message);

    DesignSpaceOptions& options_;
    const Investigation* investigation_;
};

}  // namespace kvopt
