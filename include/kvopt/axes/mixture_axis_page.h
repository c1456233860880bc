#pragma once

#include "kvopt/axes/contour_2d_axis_page.h"
#include "kvopt/export.h"

namespace kvopt {

/// The "Axes and constants" page of a mixture plot (template 6168): three formulation factors,
/// whose ranges together with the constants must leave a region to draw.
class KVOPT_EXPORT MixtureAxisPage : public Contour2DAxisPage {
public:
    MixtureAxisPage(const Investigation* investigation, const Arguments& arguments,
                    BasePropertyPageHelper* helper, unsigned helpTopic);
    ~MixtureAxisPage() override;

    /// Formulation factors alone.
    void FillAxisCombo(int axis, CComboBox* box, const wchar_t* selected) override;

    /// Whether the low settings and constants sum to less than the mixture total and the high
    /// settings and constants to more; tells the user otherwise. Settings that are no numbers count
    /// as kNotSet, so that AreAxesLegal must come first for a sensible answer.
    bool HasLegalMixtureSettings() const;

    bool OnSetActive() override;
    /// In a wizard the mixture must be legal to leave the page, forwards or backwards.
    bool OnKillActive() override;
    /// Does not finish the grid's open editor, and does not keep the grid's parent.
    bool OnApply() override;

private:
    bool finishOnly_;
};

}  // namespace kvopt
