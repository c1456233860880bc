#pragma once

#include <string_view>

#include "kvopt/export.h"
#include "kvopt/platform/geometry.h"

namespace kvopt {

enum class TextAlign { Left, Right };

/// What a cell is drawn on: the front end's painter, or a recorder in tests.
class KVOPT_EXPORT CellCanvas {
public:
    virtual ~CellCanvas();
    virtual void FillRect(const CRect& rect, Colour colour) = 0;
    virtual void FrameRect(const CRect& rect, Colour colour) = 0;
    virtual void Line(CPoint from, CPoint to, Colour colour) = 0;
    virtual void SetTextColour(Colour colour) = 0;
    virtual void SetBackgroundColour(Colour colour) = 0;
    /// Text within the rectangle, vertically centred, in the colours set before.
    virtual void PrintText(const CRect& rect, std::string_view utf8, TextAlign align) = 0;
};

}  // namespace kvopt
