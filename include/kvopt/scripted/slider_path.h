#pragma once

#include <optional>

#include "kvopt/export.h"
#include "kvopt/platform/cell_renderer.h"
#include "kvopt/platform/geometry.h"

namespace kvopt {

class BaseWorksheetInterface;

/// Pixels of a worksheet cell for mouse steps. They are taken in a nominal rectangle, as wide as
/// the content says and standing at (0, 0), so that every front end that gives its column just that
/// width moves the mouse to the same place of the cell and stores the same number.

/// The nominal rectangle of a cell.
KVOPT_EXPORT CRect NominalCellRect(const BaseWorksheetInterface& content, CPoint cell);
/// The middle row of pixels, at a share of the width in percent; 0 and below is the leftmost
/// pixel, 100 and above the rightmost.
KVOPT_EXPORT CPoint CellPixelAtShare(const BaseWorksheetInterface& content, CPoint cell,
                                     double percent);
/// The slider that a cell shows; none in a plain cell.
KVOPT_EXPORT std::optional<CellSlider> SliderOfCell(const BaseWorksheetInterface& content,
                                                    CPoint cell);
/// The pixel nearest to where a slider's thumb stands for a value, within the cell. The mouse maps
/// in the cell's rectangle less one pixel at each side.
KVOPT_EXPORT CPoint CellPixelOfValue(const BaseWorksheetInterface& content, CPoint cell,
                                     const CellSlider& slider, double value);

}  // namespace kvopt
