#pragma once

#include <cstdint>

namespace kvopt {

/// A place in pixels of the window it is told with; x grows to the right, y downwards.
struct CPoint {
    int x = 0;
    int y = 0;
    bool operator==(const CPoint&) const = default;
};

/// A rectangle in pixels; right and bottom lie just outside it.
struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    /// Moves every side inwards by the given number of pixels.
    void DeflateRect(int dx, int dy) {
        left += dx;
        right -= dx;
        top += dy;
        bottom -= dy;
    }
    bool Contains(CPoint point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    bool operator==(const CRect&) const = default;
};

/// A colour as the desktop orders the bytes: 0x00BBGGRR, so that red is 0x0000FF.
using Colour = std::uint32_t;

}  // namespace kvopt
