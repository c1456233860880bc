#pragma once

#include <QImage>
#include <QRect>

class QWidget;

namespace kvopt::test {

/// Contrast ratio of two colours (Web Content Accessibility Guidelines 2.1), from 1 to 21.
double ContrastOf(QRgb one, QRgb other);

/// How far the colour that stands out most in a picture is from its ground, which is its most
/// frequent colour. 1 for a picture of one colour.
double StrongestContrast(const QImage& picture);

/// A picture of a part of a widget as the screen shows it, with what lies behind it.
QImage PictureOf(QWidget& widget, const QRect& part);

}  // namespace kvopt::test
