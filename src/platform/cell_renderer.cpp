#include "kvopt/platform/cell_renderer.h"

#include "kvopt/platform/worksheet_interface.h"

namespace kvopt {

namespace {

/// Pixels between a cell's border and its text.
constexpr int kTextMargin = 2;

}  // namespace

void VWSCellRenderer::DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet,
                               int column, int row, const CRect& rect) const {
    const FieldDef* field = worksheet.GetFieldDef(column, row);
    if (field != nullptr && field->FieldColour() != FieldDef::kNoColour) {
        canvas.SetBackgroundColour(field->FieldColour());
        canvas.FillRect(rect, field->FieldColour());
        // The palette's own text colour need not be readable on a colour of ours.
        canvas.SetTextColour(0x000000);
    }
    const std::string text = worksheet.GetCellText(column, row);
    if (!text.empty()) {
        CRect inner = rect;
        inner.DeflateRect(kTextMargin, 0);
        canvas.PrintText(inner, text, TextAlign::Left);
    }
}

}  // namespace kvopt
