#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/renderer.h"

namespace kvopt {

/// The plain renderer: background in the field's colour, and the cell's text.
class KVOPT_EXPORT VWSCellRenderer : public VWSRenderer {
public:
    void DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet, int column, int row,
                  const CRect& rect) const override;
};

}  // namespace kvopt
