#pragma once

#include <optional>

#include "kvopt/export.h"
#include "kvopt/platform/cell_canvas.h"

namespace kvopt {

class BaseWorksheetInterface;

/// What the slider of a cell shows: its ends, its value, and the share of the cell's width that
/// stays free at each end (see VWSCellPainter).
struct CellSlider {
    float low = 0.0F;
    float high = 0.0F;
    float value = 0.0F;
    float margin = 0.0F;
};

/// Draws a worksheet's cells.
class KVOPT_EXPORT VWSRenderer {
public:
    virtual ~VWSRenderer();
    /// `rect` is the whole cell.
    virtual void DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet, int column,
                          int row, const CRect& rect) const = 0;
    /// The slider that this draws in a cell, for those who cannot see it; none in a plain cell.
    virtual std::optional<CellSlider> Slider(const BaseWorksheetInterface& worksheet, int column,
                                             int row) const;
};

}  // namespace kvopt
