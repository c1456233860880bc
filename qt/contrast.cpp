#include "qt/contrast.h"

#include <algorithm>
#include <cmath>

namespace kvopt {

namespace {

/// Relative luminance, as the guidelines define it.
double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(static_cast<double>(colour.redF())) +
           0.7152 * linear(static_cast<double>(colour.greenF())) +
           0.0722 * linear(static_cast<double>(colour.blueF()));
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor WithContrast(const QColor& colour, const QColor& ground, double contrast) {
    const QColor end =
        Contrast(Qt::white, ground) > Contrast(Qt::black, ground) ? Qt::white : Qt::black;
    constexpr int kStep = 5;
    for (int percent = 0; percent < 100; percent += kStep) {
        const QColor mixed = Mixed(colour, end, percent);
        if (Contrast(mixed, ground) >= contrast) {
            return mixed;
        }
    }
    return end;
}

QColor ToneGround(const QColor& ground, const QColor& base) {
    constexpr float kMiddle = 0.5F;
    constexpr float kLightest = 0.4F;
    const float own = base.lightnessF();
    if (own >= kMiddle) {
        return ground;
    }
    const float lightness = std::min(own + 1.0F - ground.lightnessF(), kLightest);
    return QColor::fromHslF(std::max(ground.hslHueF(), 0.0F), ground.hslSaturationF(), lightness);
}

QColor Mixed(const QColor& one, const QColor& other, int percent) {
    const auto part = [percent](int from, int to) { return from + (to - from) * percent / 100; };
    return {part(one.red(), other.red()), part(one.green(), other.green()),
            part(one.blue(), other.blue())};
}

QColor Tinted(const QColor& ground, const QColor& highlight) {
    constexpr int kTint = 22;
    return Mixed(ground, highlight, kTint);
}

}  // namespace kvopt
