#include "bench/slider_drag.h"

#include "kvopt/scripted.h"

namespace kvopt::bench {
namespace {

constexpr int kSliderColumn = 3;
constexpr CPoint kCell{kSliderColumn, 1};

}  // namespace

SliderDrag::SliderDrag(VWSConstantInterface& grid)
    : grid_(grid), rect_(NominalCellRect(grid, kCell)) {
    const CellSlider slider = SliderOfCell(grid, kCell).value();
    places_[0] = CellPixelOfValue(grid, kCell, slider, 40);
    places_[1] = CellPixelOfValue(grid, kCell, slider, 60);
    thumb_ = CellPixelOfValue(grid, kCell, slider, 50);
    grid.MouseMove(thumb_, kCell, rect_);
    grid.LButtonDown(thumb_, kCell);
}

SliderDrag::~SliderDrag() {
    grid_.LButtonUp(thumb_, kCell);
    Desktop::Instance().StopTimer(&grid_);
}

void SliderDrag::Step() {
    grid_.MouseMove(places_[next_], kCell, rect_);
    next_ = 1 - next_;
}

std::string SliderDrag::Value() const {
    return grid_.GetCellText(kSliderColumn - 1, kCell.y);
}

}  // namespace kvopt::bench
