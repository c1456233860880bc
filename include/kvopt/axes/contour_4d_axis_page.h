#pragma once

#include "kvopt/axes/axis_page.h"
#include "kvopt/export.h"
#include "kvopt/plotargs/contour_page_data.h"

namespace kvopt {

/// The "4D axes" page of a contour or surface plot of process factors (template 6161). Axes 1 and 2
/// are those of each plot; along axes 3 and 4, the outer ones, the plot is repeated. An outer axis
/// holds a number with its range, a qualitative factor with its settings, or nothing.
///
/// In a probability plot the page also holds the switches for factor precision.
///
/// With a stored qualitative outer axis the page is changed as soon as it is shown: its settings
/// are written into their box after the base has marked the page unchanged.
class KVOPT_EXPORT Contour4DAxisPage : public AxisPage {
public:
    struct Arguments : AxisPage::Arguments {
        bool inWizard = false;  ///< false in a property sheet
    };

    /// `contourOptions` may be null, is not owned, and is read and written by the page.
    Contour4DAxisPage(const Investigation* investigation, Arguments& arguments,
                      ContourPageData::Arguments* contourOptions, BasePropertyPageHelper* helper,
                      unsigned helpTopic);
    ~Contour4DAxisPage() override;

    /// The inner axes take numbers, and with a true filler the formulation factors, but never the
    /// block entry. The outer ones take process and qualitative factors.
    void FillAxisCombo(int axis, CComboBox* box, const wchar_t* selected) override;
    void OnChangeAxis(int axis) override;
    /// Judges the settings of qualitative outer axes too, unless the rows are wrong.
    bool CheckLegalAxes() const override;
    /// A qualitative factor on an outer axis shows its first settings in place of a range.
    void SetDefault(int axis) override;
    /// Writes the settings of outer axes as they stand, more than three of them too, and the
    /// switches of a probability plot.
    void TransferFromPage() override;

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
