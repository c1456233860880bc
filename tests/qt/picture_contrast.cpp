#include "tests/qt/picture_contrast.h"

#include <QPixmap>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <map>

namespace kvopt::test {

namespace {

double Luminance(QRgb colour) {
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

}  // namespace

double ContrastOf(QRgb one, QRgb other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

double StrongestContrast(const QImage& picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto ground = std::max_element(counts.begin(), counts.end(), [](auto one, auto other) {
        return one.second < other.second;
    });
    double strongest = 1.0;
    for (const auto& [colour, count] : counts) {
        strongest = std::max(strongest, ContrastOf(colour, ground->first));
    }
    return strongest;
}

QImage PictureOf(QWidget& widget, const QRect& part) {
    const QRect place(widget.mapTo(widget.window(), part.topLeft()), part.size());
    return widget.window()->grab(place).toImage();
}

}  // namespace kvopt::test
