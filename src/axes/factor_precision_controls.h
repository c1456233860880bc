#pragma once

#include <functional>
#include <optional>

#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/study/ds_factor_settings.h"

namespace kvopt {

class CDialog;
class MessageMap;
class Variables;

/// The switches for factor precision on an axis page: shown in a probability plot alone, and usable
/// where a factor of the study has a precision. A value that a page makes on the spot; it is told a
/// page with a window.
class FactorPrecisionControls {
public:
    /// `options` may be null.
    FactorPrecisionControls(CDialog& page, const Variables* variables,
                            ContourPageData::Arguments* options)
        : page_(page), variables_(*variables), options_(options) {}

    /// `distribution` runs when another one is picked, `precision` for a click on a switch.
    static void AddHandlers(MessageMap& map, const std::function<void()>& distribution,
                            const std::function<void()>& precision);

    void FillDistributions(bool withNormal) const;
    /// Shows the options, or hides the controls where there is nothing to choose. A distribution
    /// that the list lacks shows as `otherwise`, or as none.
    void Show(std::optional<DSFactorSettings::Distribution> otherwise) const;
    /// Reminds of the precisions when they are to count, until the user has seen enough of it.
    void Remind() const;
    void Transfer() const;

private:
    bool IsOffered() const;
    void ShowSwitches() const;

    CDialog& page_;
    const Variables& variables_;
    ContourPageData::Arguments* options_;
};

}  // namespace kvopt
