#pragma once

#include "kvopt/axes/axis_page.h"
#include "kvopt/export.h"
#include "kvopt/plotargs/contour_page_data.h"

namespace kvopt {

/// The "4D axes" page of a mixture plot (template 6169). Axes 1 to 3 are those of each plot and
/// hold formulation factors; along axes 4 and 5, the outer ones, the plot is repeated. An outer
/// axis holds a number with its range, a qualitative factor with its settings, or nothing. It works
/// as Contour4DAxisPage but for what is told here; in particular it is unchanged when it is shown.
class KVOPT_EXPORT Mixture4DAxisPage : public AxisPage {
public:
    struct Arguments : AxisPage::Arguments {
        bool inWizard = false;  ///< false in a property sheet
    };

    /// `contourOptions` may be null, is not owned, and is read and written by the page.
    Mixture4DAxisPage(const Investigation* investigation, const Arguments& arguments,
                      ContourPageData::Arguments* contourOptions, BasePropertyPageHelper* helper,
                      unsigned helpTopic);
    ~Mixture4DAxisPage() override;

    /// The inner axes take formulation factors, the outer ones process and qualitative factors, the
    /// block entry too.
    void FillAxisCombo(int axis, CComboBox* box, const wchar_t* selected) override;
    void OnChangeAxis(int axis) override;
    /// All three inner axes are needed; the third is asked for here.
    bool CheckLegalAxes() const override;
    void SetDefault(int axis) override;
    void TransferFromPage() override;

    /// With less than two process factors the fifth axis stays empty.
    bool OnInitDialog() override;
    /// In a wizard Next is on while a factor is left that can be held constant.
    bool OnSetActive() override;
    /// Goes on to the constants, whichever page comes next in the sheet.
    int OnWizardNext() override;

protected:
    void GetMessageMap(MessageMap& map) override;
    void ChangedDistribution();
    void OnCbDefaultConstants();

private:
    void Setup4DSettings();
    void ClickedB4dsettings(CComboBox* box, CEdit* edit);

    ContourPageData::Arguments* contourOptions_;
    bool inWizard_;
};

}  // namespace kvopt
