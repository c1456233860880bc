#include "kvopt/constants/constants_cell_renderer.h"

#include "constants/constants_slider.h"
#include "constants_texts.h"
#include "kvopt/constants/vws_constant_interface.h"
#include "kvopt/platform/cell_painter.h"
#include "kvopt/study.h"
#include "kvopt/text.h"

namespace kvopt {

namespace {
constexpr Colour kRed = 0x0000FF;
constexpr Colour kBlue = 0xFF0000;
constexpr Colour kBlack = 0x000000;
constexpr Colour kWhite = 0xFFFFFF;
}  // namespace

ConstantsCellRenderer::ConstantsCellRenderer(const VWSConstantInterface& grid,
                                             const FactorClass& factor)
    : grid_(grid), factor_(factor) {}

void ConstantsCellRenderer::DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet,
                                     int column, int row, const CRect& rect) const {
    VWSCellRenderer::DrawCell(canvas, worksheet, column, row, rect);
    const std::optional<CellSlider> slider = Slider(worksheet, column, row);
    if (!slider) {
        return;
    }
    const auto [low, high, value, margin] = *slider;
    const VWSCellPainter painter(&canvas, low, high, rect, margin);
    CRect textRect = rect;
    textRect.DeflateRect(1, 1);

    if (value >= low && value <= high) {
        painter.DrawChannel();
        painter.DrawLimit(low, kRed);
        painter.DrawLimit(high, kRed);
        painter.DrawThumb(value);
        return;
    }
    painter.DrawLimit(low, kRed);
    painter.DrawLimit(high, kRed);
    const FieldDef* field = worksheet.GetFieldDef(column, row);
    const bool coloured = field != nullptr && field->FieldColour() != FieldDef::kNoColour;
    canvas.SetTextColour(kBlue);
    canvas.SetBackgroundColour(coloured ? field->FieldColour() : kWhite);
    if (value < low) {
        canvas.PrintText(textRect, texts::kConstantsBelowRange.Text(), TextAlign::Left);
    } else {
        canvas.PrintText(textRect, texts::kConstantsAboveRange.Text(), TextAlign::Right);
    }
    canvas.SetTextColour(kBlack);
}

std::optional<CellSlider> ConstantsCellRenderer::Slider(const BaseWorksheetInterface& /*worksheet*/,
                                                        int /*column*/, int row) const {
    CellSlider slider{static_cast<float>(factor_.GetLow(true)),
                      static_cast<float>(factor_.GetHigh(true)), kNotSetF, kSliderMargin};
    if (slider.low == kNotSetF || slider.high == kNotSetF) {
        return std::nullopt;
    }
    KvString::ToFloat(grid_.GetCellText(2, row), slider.value);
    return slider;
}

}  // namespace kvopt
