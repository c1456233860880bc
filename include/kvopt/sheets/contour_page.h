#pragma once

#include "kvopt/export.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"
#include "kvopt/selection/multiple_response_page.h"

namespace kvopt {

/// The first page of the contour wizard (template 6158): plot type, process or mixture, use of
/// constraints, and the responses. It edits the argument object in place and does not own it.
class KVOPT_EXPORT ContourPage : public MultipleResponsePage {
public:
    /// `noResponseLimit` lets every plot type take any number of responses, and hides surfaces.
    ContourPage(const Investigation* investigation, ContourPlotData& data,
                BasePropertyPageHelper* helper, bool noResponseLimit);
    ~ContourPage() override;

    bool OnInitDialog() override;
    bool OnSetActive() override;
    bool OnKillActive() override;
    bool OnApply() override;
    int OnWizardNext() override;
    void DoDataExchange(CDataExchange& exchange) override;

    /// Of the checked radio button.
    ContourPageData::Type GetType() const;
    ContourPageData::AxisType GetAxisType() const;

    // Handlers of the controls.
    void OnRbContour();
    void OnRbProcess();
    void OnRbMixture();
    void OnBPlotoptions();

protected:
    void GetMessageMap(MessageMap& map) override;
    void OnDestroyWindow() override;

    void TransferToPage();
    void TransferFromPage();
    /// Which of process and mixture may be chosen for the checked plot type.
    void EnableFactorAxisType();

private:
    /// What the models use, by kind of factor.
    struct FactorCounts {
        int mixture;
        int qualitative;
        int process;  ///< without the qualitative ones
        bool filler;
    };
    FactorCounts CountFactors() const;
    void SelectLimitedResponses();
    void EnablePlotTypes(const FactorCounts& counts);
    void OfferAxisTypes(const FactorCounts& counts);
    void ShowType(const FactorCounts& counts);
    void ClearExtraAxes();
    CButton* TypeButton(ContourPageData::Type type) const;
    unsigned HelpTopicOf(int type) const;

    ContourPageData& pageData_;
    ContourPlotData& plotData_;
    ContourPageData::Type selectedType_;
    bool scaleEqual_;
    bool scaleEqualChanged_ = false;  ///< the user changed it in the options dialog
    bool isDSProbability_;
    bool surfaceOff_;
    bool noResponseLimit_;
    CButton* processButton_ = nullptr;
    CButton* mixtureButton_ = nullptr;
    CButton* constraintsCheck_ = nullptr;
};

}  // namespace kvopt
