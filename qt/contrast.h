#pragma once

#include <QColor>

namespace kvopt {

/// Contrast ratio of two opaque colours, from 1 to 21 (Web Content Accessibility Guidelines 2.1).
double Contrast(const QColor& one, const QColor& other);

/// `colour`, moved towards white or black just so far that it stands out from `ground` by the
/// contrast that is asked for; as it is when it does already.
QColor WithContrast(const QColor& colour, const QColor& ground, double contrast);

/// A ground that was chosen for a light look, as it is in a look whose own ground is `base`: of the
/// same hue and, where `base` is dark, about as far from it as it was from white.
QColor ToneGround(const QColor& ground, const QColor& base);

/// `percent` of the way from one colour to the other.
QColor Mixed(const QColor& one, const QColor& other, int percent);

/// The ground of what is marked: tinted with the highlight colour, so that texts and colours on it
/// stay as readable as they were.
QColor Tinted(const QColor& ground, const QColor& highlight);

}  // namespace kvopt
