#pragma once

/// \file
/// The resolution field that the options pages of contour and design space plots have in common.

#include "kvopt/plotargs/contour_page_data.h"

namespace kvopt {

class CComboBox;
class PlainText;

/// Offers the resolutions of the options' mode and shows the present one, unless it is -1.
void ShowResolution(CComboBox& combo, const ContourPageData::Arguments& options);

/// Takes the resolution of the options' mode from the field. Gives what there is to say against it,
/// `tooHigh` when it is above 1024, and then takes nothing; null when it was taken.
const PlainText* TakeResolution(const CComboBox& combo, const PlainText& tooHigh,
                                ContourPageData::Arguments& options);

}  // namespace kvopt
