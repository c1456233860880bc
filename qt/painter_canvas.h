#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>

#include "kvopt/platform/cell_canvas.h"

namespace kvopt {

/// A cell canvas over a painter. A cell begins in the palette's own colours. Renderers name colours
/// that were chosen for a light ground: one that cannot be made out on the ground it meets, in a
/// dark palette say, is drawn black or white, whichever shows better.
class PainterCanvas : public CellCanvas {
public:
    /// `cell` is the whole cell.
    PainterCanvas(QPainter& painter, const CRect& cell, const QPalette& palette);

    void FillRect(const CRect& rect, Colour colour) override;
    void FrameRect(const CRect& rect, Colour colour) override;
    void Line(CPoint from, CPoint to, Colour colour) override;
    void SetTextColour(Colour colour) override;
    void SetBackgroundColour(Colour colour) override;
    void PrintText(const CRect& rect, std::string_view utf8, TextAlign align) override;

private:
    QColor Visible(const QColor& colour, double contrast) const;

    QPainter& painter_;
    CRect cell_;
    QColor ground_;
    QColor text_;
};

}  // namespace kvopt
