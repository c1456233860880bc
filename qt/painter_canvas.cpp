#include "qt/painter_canvas.h"

#include <algorithm>
#include <cmath>

#include "qt/qt_text.h"

namespace kvopt {

namespace {

// Contrast ratios that the Web Content Accessibility Guidelines 2.1 ask for: of text (1.4.3, with
// the lower limit of large text, so that the renderers' blue stays blue), and of marks (half of
// what 1.4.11 asks for, since a mark's place says as much as its colour).
constexpr double kTextContrast = 3.0;
constexpr double kMarkContrast = 1.5;

QRect ToQt(const CRect& rect) {
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}

/// 0x00BBGGRR.
QColor ToQt(Colour colour) {
    return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
            static_cast<int>((colour >> 16U) & 0xFFU)};
}

/// Relative luminance, as those guidelines define it.
double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(static_cast<double>(colour.redF())) +
           0.7152 * linear(static_cast<double>(colour.greenF())) +
           0.0722 * linear(static_cast<double>(colour.blueF()));
}

double Contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter, const CRect& cell, const QPalette& palette)
    : painter_(painter),
      cell_(cell),
      ground_(palette.color(QPalette::Base)),
      text_(palette.color(QPalette::Text)) {}

QColor PainterCanvas::Visible(const QColor& colour, double contrast) const {
    if (Contrast(colour, ground_) >= contrast) {
        return colour;
    }
    return Contrast(Qt::white, ground_) > Contrast(Qt::black, ground_) ? Qt::white : Qt::black;
}

void PainterCanvas::FillRect(const CRect& rect, Colour colour) {
    const bool isGround = rect == cell_;
    if (isGround) {
        ground_ = ToQt(colour);
    }
    painter_.fillRect(ToQt(rect), isGround ? ground_ : Visible(ToQt(colour), kMarkContrast));
}

void PainterCanvas::FrameRect(const CRect& rect, Colour colour) {
    painter_.setPen(Visible(ToQt(colour), kMarkContrast));
    painter_.drawRect(ToQt(rect).adjusted(0, 0, -1, -1));
}

void PainterCanvas::Line(CPoint from, CPoint to, Colour colour) {
    painter_.setPen(Visible(ToQt(colour), kMarkContrast));
    painter_.drawLine(from.x, from.y, to.x, to.y);
}

void PainterCanvas::SetTextColour(Colour colour) {
    text_ = ToQt(colour);
}

void PainterCanvas::SetBackgroundColour(Colour colour) {
    ground_ = ToQt(colour);
}

void PainterCanvas::PrintText(const CRect& rect, std::string_view utf8, TextAlign align) {
    painter_.setPen(Visible(text_, kTextContrast));
    const auto flags = Qt::AlignVCenter | Qt::TextSingleLine |
                       (align == TextAlign::Left ? Qt::AlignLeft : Qt::AlignRight);
    const QRect place = ToQt(rect);
    const QString shown =
        painter_.fontMetrics().elidedText(kvopt::ToQt(utf8), Qt::ElideRight, place.width());
    painter_.drawText(place, static_cast<int>(flags), shown);
}

}  // namespace kvopt
