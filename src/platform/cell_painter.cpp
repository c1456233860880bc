#include "kvopt/platform/cell_painter.h"

#include <cmath>

#include "kvopt/text/not_set.h"

namespace kvopt {

namespace {

constexpr Colour kChannelColour = 0x808080;
constexpr Colour kThumbColour = 0x404040;
/// Pixels on either side of a thumb's middle.
constexpr int kThumbHalfWidth = 4;

}  // namespace

VWSCellPainter::VWSCellPainter(CellCanvas* canvas, float low, float high, const CRect& rect,
                               float margin)
    : canvas_(canvas), low_(low), high_(high), rect_(rect), margin_(margin) {}

float VWSCellPainter::FreeLeft() const {
    return static_cast<float>(rect_.left) + margin_ * static_cast<float>(rect_.Width());
}

float VWSCellPainter::FreeWidth() const {
    return static_cast<float>(rect_.Width()) * (1.0F - 2.0F * margin_);
}

float VWSCellPainter::ToValue(float x) const {
    const float width = FreeWidth();
    return width > 0.0F ? low_ + (x - FreeLeft()) / width * (high_ - low_) : low_;
}

float VWSCellPainter::ToPixel(float value) const {
    const float range = high_ - low_;
    return range != 0.0F ? FreeLeft() + (value - low_) / range * FreeWidth() : FreeLeft();
}

bool VWSCellPainter::IsLegalValue(float value) const {
    return value >= low_ && value <= high_;
}

bool VWSCellPainter::IsAtPoint(float cellValue, float pointerValue, float tolerance) const {
    return low_ != kNotSetF && high_ != kNotSetF && IsLegalValue(cellValue) &&
           std::fabs(pointerValue - cellValue) <= tolerance * (high_ - low_);
}

int VWSCellPainter::Column(float value) const {
    return static_cast<int>(std::lround(ToPixel(value)));
}

void VWSCellPainter::DrawChannel() const {
    if (canvas_ != nullptr) {
        const int middle = rect_.top + rect_.Height() / 2;
        canvas_->Line({Column(low_), middle}, {Column(high_), middle}, kChannelColour);
    }
}

void VWSCellPainter::DrawThumb(float value) const {
    if (canvas_ != nullptr) {
        const int middle = Column(value);
        const int gap = rect_.Height() / 6;
        canvas_->FillRect({middle - kThumbHalfWidth, rect_.top + gap, middle + kThumbHalfWidth + 1,
                           rect_.bottom - gap},
                          kThumbColour);
    }
}

void VWSCellPainter::DrawLimit(float value, Colour colour) const {
    if (canvas_ != nullptr) {
        const int gap = rect_.Height() / 4;
        canvas_->Line({Column(value), rect_.top + gap}, {Column(value), rect_.bottom - gap},
                      colour);
    }
}

}  // namespace kvopt
