#include "qt/painter_canvas.h"

#include "qt/contrast.h"
#include "qt/qt_text.h"

namespace kvopt {

namespace {

// Contrast ratios that the Web Content Accessibility Guidelines 2.1 ask for: of text (1.4.3) and of
// marks that mean something (1.4.11).
constexpr double kTextContrast = 4.5;
constexpr double kMarkContrast = 3.0;
constexpr Colour kBlack = 0x000000;

QRect ToQt(const CRect& rect) {
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}

/// 0x00BBGGRR.
QColor ToQt(Colour colour) {
    return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
            static_cast<int>((colour >> 16U) & 0xFFU)};
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter, const CRect& cell, const QPalette& palette,
                             bool marked)
    : painter_(painter),
      cell_(cell),
      base_(palette.color(QPalette::Base)),
      tint_(marked ? palette.color(QPalette::Highlight) : QColor()),
      ordinary_(palette.color(QPalette::Text)),
      text_(ordinary_) {
    FillGround(base_);
}

void PainterCanvas::FillGround(const QColor& colour) {
    ground_ = tint_.isValid() ? Tinted(colour, tint_) : colour;
    painter_.fillRect(ToQt(cell_), ground_);
}

void PainterCanvas::FillRect(const CRect& rect, Colour colour) {
    if (rect == cell_) {
        FillGround(ToneGround(ToQt(colour), base_));
    } else {
        painter_.fillRect(ToQt(rect), Mark(colour));
    }
}

void PainterCanvas::FrameRect(const CRect& rect, Colour colour) {
    painter_.setPen(Mark(colour));
    painter_.drawRect(ToQt(rect).adjusted(0, 0, -1, -1));
}

void PainterCanvas::Line(CPoint from, CPoint to, Colour colour) {
    painter_.setPen(Mark(colour));
    painter_.drawLine(from.x, from.y, to.x, to.y);
}

QColor PainterCanvas::Mark(Colour colour) const {
    return WithContrast(ToQt(colour), ground_, kMarkContrast);
}

void PainterCanvas::SetTextColour(Colour colour) {
    // Black is what texts are ordinarily written in, which in a dark look is something else.
    text_ = colour == kBlack ? ordinary_ : ToQt(colour);
}

void PainterCanvas::SetBackgroundColour(Colour /*colour*/) {
    // Texts have no ground of their own: they stand on what the cell was filled with.
}

void PainterCanvas::PrintText(const CRect& rect, std::string_view utf8, TextAlign align) {
    painter_.setPen(WithContrast(text_, ground_, kTextContrast));
    const auto flags = Qt::AlignVCenter | Qt::TextSingleLine |
                       (align == TextAlign::Left ? Qt::AlignLeft : Qt::AlignRight);
    const QRect place = ToQt(rect);
    const QString shown =
        painter_.fontMetrics().elidedText(kvopt::ToQt(utf8), Qt::ElideRight, place.width());
    painter_.drawText(place, static_cast<int>(flags), shown);
}

}  // namespace kvopt
