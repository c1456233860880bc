#pragma once

#include <QColor>
#include <QPainter>

#include "kvopt/platform/cell_canvas.h"

namespace kvopt {

/// A cell canvas over a painter. Texts start in the given colour until a renderer sets another.
class PainterCanvas : public CellCanvas {
public:
    PainterCanvas(QPainter& painter, const QColor& text, bool darkPalette);

    void FillRect(const CRect& rect, Colour colour) override;
    void FrameRect(const CRect& rect, Colour colour) override;
    void Line(CPoint from, CPoint to, Colour colour) override;
    void SetTextColour(Colour colour) override;
    void SetBackgroundColour(Colour colour) override;
    void PrintText(const CRect& rect, std::string_view utf8, TextAlign align) override;

private:
    QColor Drawn(Colour colour) const;

    QPainter& painter_;
    QColor text_;
    bool darkPalette_;
    bool filled_ = false;
};

}  // namespace kvopt
