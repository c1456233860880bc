#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/cell_renderer.h"

namespace kvopt {

class FactorClass;
class VWSConstantInterface;

/// Draws the slider of one factor in the constants grid. Owns neither.
class KVOPT_EXPORT ConstantsCellRenderer : public VWSCellRenderer {
public:
    ConstantsCellRenderer(const VWSConstantInterface& grid, const FactorClass& factor);

    void DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet, int column, int row,
                  const CRect& rect) const override;

private:
    const VWSConstantInterface& grid_;
    const FactorClass& factor_;
};

}  // namespace kvopt
