#pragma once

#include <optional>

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
    /// None for a factor without limits. The value is -99 when the cell holds no number.
    std::optional<CellSlider> Slider(const BaseWorksheetInterface& worksheet, int column,
                                     int row) const override;

private:
    const VWSConstantInterface& grid_;
    const FactorClass& factor_;
};

}  // namespace kvopt
