#include "qt/painter_canvas.h"

#include "qt/qt_text.h"

namespace kvopt {

namespace {

QRect ToQt(const CRect& rect) {
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}

/// 0x00BBGGRR.
QColor ToQt(Colour colour) {
    return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
            static_cast<int>((colour >> 16U) & 0xFFU)};
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter, const QColor& text, bool darkPalette)
    : painter_(painter), text_(text), darkPalette_(darkPalette) {}

/// Lines and texts of the renderers are made for a light ground. On a dark one the dark colours
/// among them are drawn light.
QColor PainterCanvas::Drawn(Colour colour) const {
    const QColor plain = ToQt(colour);
    if (!darkPalette_ || filled_ || plain.lightnessF() > 0.55F) {
        return plain;
    }
    return QColor::fromHslF(plain.hslHueF() < 0.0F ? 0.0F : plain.hslHueF(), plain.hslSaturationF(),
                            1.0F - plain.lightnessF() * 0.6F);
}

void PainterCanvas::FillRect(const CRect& rect, Colour colour) {
    const QColor ground = ToQt(colour);
    const bool isGround = rect.Width() > rect.Height();
    painter_.fillRect(ToQt(rect), isGround ? ground : Drawn(colour));
    filled_ = filled_ || isGround;
}

void PainterCanvas::FrameRect(const CRect& rect, Colour colour) {
    painter_.setPen(Drawn(colour));
    painter_.drawRect(ToQt(rect).adjusted(0, 0, -1, -1));
}

void PainterCanvas::Line(CPoint from, CPoint to, Colour colour) {
    painter_.setPen(Drawn(colour));
    painter_.drawLine(from.x, from.y, to.x, to.y);
}

void PainterCanvas::SetTextColour(Colour colour) {
    text_ = Drawn(colour);
}

void PainterCanvas::SetBackgroundColour(Colour /*colour*/) {
    // Texts are drawn on what is there.
}

void PainterCanvas::PrintText(const CRect& rect, std::string_view utf8, TextAlign align) {
    painter_.setPen(text_);
    const auto flags = Qt::AlignVCenter | Qt::TextSingleLine |
                       (align == TextAlign::Left ? Qt::AlignLeft : Qt::AlignRight);
    const QRect place = ToQt(rect);
    const QString shown =
        painter_.fontMetrics().elidedText(kvopt::ToQt(utf8), Qt::ElideRight, place.width());
    painter_.drawText(place, static_cast<int>(flags), shown);
}

}  // namespace kvopt
