#include "kvopt/scripted/slider_path.h"

#include <algorithm>
#include <cmath>

#include "kvopt/platform/cell_painter.h"
#include "kvopt/platform/worksheet_interface.h"

namespace kvopt {

namespace {

CPoint PixelInCell(const CRect& rect, double x) {
    const double last = rect.Width() - 1;
    return {static_cast<int>(std::lround(std::clamp(x, 0.0, std::max(last, 0.0)))),
            rect.Height() / 2};
}

}  // namespace

CRect NominalCellRect(const BaseWorksheetInterface& content, CPoint cell) {
    return {0, 0, content.ColumnWidth(cell.x), content.DefaultRowHeight()};
}

CPoint CellPixelAtShare(const BaseWorksheetInterface& content, CPoint cell, double percent) {
    const CRect rect = NominalCellRect(content, cell);
    return PixelInCell(rect, percent / 100.0 * rect.Width());
}

std::optional<CellSlider> SliderOfCell(const BaseWorksheetInterface& content, CPoint cell) {
    const VWSRenderer* renderer = content.GetCellRenderer(cell.x, cell.y);
    return renderer != nullptr ? renderer->Slider(content, cell.x, cell.y) : std::nullopt;
}

CPoint CellPixelOfValue(const BaseWorksheetInterface& content, CPoint cell,
                        const CellSlider& slider, double value) {
    const CRect rect = NominalCellRect(content, cell);
    CRect mouse = rect;
    mouse.DeflateRect(1, 1);
    const VWSCellPainter painter(nullptr, slider.low, slider.high, mouse, slider.margin);
    return PixelInCell(rect, static_cast<double>(painter.ToPixel(static_cast<float>(value))));
}

}  // namespace kvopt
