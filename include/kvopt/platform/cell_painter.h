#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/cell_canvas.h"

namespace kvopt {

/// Maps between pixels and values of a slider that fills a cell, and draws it. The mapping is
/// linear: `margin` (a share of the cell's width) stays free at each end, low lies at the left end
/// of the rest and high at the right. Without a canvas it only maps.
class KVOPT_EXPORT VWSCellPainter {
public:
    VWSCellPainter(CellCanvas* canvas, float low, float high, const CRect& rect, float margin);

    /// The value at a pixel; extrapolates beyond both ends.
    float ToValue(float x) const;
    /// The pixel of a value.
    float ToPixel(float value) const;
    /// True from low to high, both included.
    bool IsLegalValue(float value) const;
    /// True when `pointerValue` is within `tolerance`, a share of the range, of the thumb at
    /// `cellValue`; false when that is outside the limits, or a limit is -99.
    bool IsAtPoint(float cellValue, float pointerValue, float tolerance) const;

    void DrawChannel() const;
    void DrawThumb(float value) const;
    void DrawLimit(float value, Colour colour) const;

private:
    float FreeLeft() const;
    float FreeWidth() const;
    int Column(float value) const;

    CellCanvas* canvas_;
    float low_;
    float high_;
    CRect rect_;
    float margin_;
};

}  // namespace kvopt
