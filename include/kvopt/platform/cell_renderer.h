#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/cell_canvas.h"

namespace kvopt {

class BaseWorksheetInterface;

/// Draws a worksheet's cells.
class KVOPT_EXPORT VWSRenderer {
public:
    virtual ~VWSRenderer();
    /// `rect` is the whole cell.
    virtual void DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet, int column,
                          int row, const CRect& rect) const = 0;
};

/// The plain renderer: background in the field's colour, and the cell's text.
class KVOPT_EXPORT VWSCellRenderer : public VWSRenderer {
public:
    void DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet, int column, int row,
                  const CRect& rect) const override;
};

}  // namespace kvopt
