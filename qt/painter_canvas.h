#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>

#include "kvopt/platform/cell_canvas.h"

namespace kvopt {

/// A cell canvas over a painter. A cell begins in the palette's own colours. Renderers name colours
/// that were chosen for a light ground: in a dark palette grounds are darkened, and a text or a
/// mark that cannot be made out on the ground it meets is drawn lighter or darker.
class PainterCanvas : public CellCanvas {
public:
    /// `cell` is the whole cell, and is filled; `marked` tints its ground with the highlight
    /// colour.
    PainterCanvas(QPainter& painter, const CRect& cell, const QPalette& palette, bool marked);

    void FillRect(const CRect& rect, Colour colour) override;
    void FrameRect(const CRect& rect, Colour colour) override;
    void Line(CPoint from, CPoint to, Colour colour) override;
    void SetTextColour(Colour colour) override;
    void SetBackgroundColour(Colour colour) override;
    void PrintText(const CRect& rect, std::string_view utf8, TextAlign align) override;

private:
    void FillGround(const QColor& colour);
    QColor Mark(Colour colour) const;

    QPainter& painter_;
    CRect cell_;
    QColor base_;
    QColor tint_;
    QColor ground_;
    QColor ordinary_;
    QColor text_;
};

}  // namespace kvopt
