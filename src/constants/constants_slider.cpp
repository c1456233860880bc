// The slider: hovering over its thumb, dragging it, letting go.

#include "constants/constants_slider.h"

#include "kvopt/constants/vws_constant_interface.h"
#include "kvopt/platform.h"
#include "kvopt/study.h"
#include "kvopt/text.h"

namespace kvopt {

namespace {
constexpr int kValueColumn = 2;
constexpr int kSliderColumn = 3;
}  // namespace

bool VWSConstantInterface::LButtonDown(const CPoint& /*point*/, const CPoint& cell) {
    if (cell.x == kSliderColumn) {
        mSliderCell = mOverThumb ? cell : CPoint{};
        mDragging = mOverThumb;
    }
    return false;
}

bool VWSConstantInterface::LButtonUp(const CPoint& /*point*/, const CPoint& cell) {
    if (cell.x != kSliderColumn || !mDragging) {
        return false;
    }
    const std::string text = GetCellText(kValueColumn, cell.y);
    if (text != mLastSliderValue) {
        if (mParentPage != nullptr) {
            mParentPage->Changed();
        } else {
            PushSliderCell(cell.x - 1, cell.y);
        }
    }
    mSliderCell = CPoint{};
    mDragging = false;
    return true;
}

bool VWSConstantInterface::MouseMove(const CPoint& point, const CPoint& cell, const CRect& rect) {
    const bool onSlider = cell.x == kSliderColumn && cell.y >= 1 && cell.y <= RowCount();
    if (!onSlider && !mDragging) {
        mOverThumb = false;
        return false;
    }
    // A drag that leaves the column ends through row 1, whichever row was dragged.
    const int row = onSlider ? cell.y : 1;
    const FactorClass* factor = FactorOfRow(row);
    if (factor == nullptr ||
        !ResponseModelUtilities(mInvestigation).IsFactorAvailable(factor, true, false)) {
        return false;
    }
    const auto low = static_cast<float>(factor->GetLow(true));
    const auto high = static_cast<float>(factor->GetHigh(true));
    // Drawing hands the painter the whole cell, hit-testing the cell less its frame.
    CRect inner = rect;
    inner.DeflateRect(1, 1);
    const VWSCellPainter painter(nullptr, low, high, inner, kSliderMargin);
    const float value = painter.ToValue(static_cast<float>(point.x));

    Cursor cursor = Cursor::Arrow;
    if (mDragging && cell == mSliderCell) {
        double shown = static_cast<double>(value);
        if (!painter.IsLegalValue(value)) {
            shown = shown > factor->GetHigh(true) ? factor->GetHigh(true) : factor->GetLow(true);
        }
        const std::string text = shown == kNotSet ? std::string() : KvString::FormatG(shown);
        UpdateValue(kValueColumn, row, text.c_str());
        Desktop::Instance().StopTimer(this);
        Desktop::Instance().StartTimer(this, kSliderPauseMilliseconds, [this] {
            Desktop::Instance().StopTimer(this);
            if (!mReadOnly && mUpdatePlotWhileSliding) {
                UpdateFromSlider();
            }
        });
        cursor = Cursor::SizeHorizontal;
        if (Worksheet() != nullptr) {
            Worksheet()->Reset();
        }
    } else if (IsSliderClosed(*factor)) {
        mOverThumb = false;
    } else {
        float cellValue = kNotSetF;
        KvString::ToFloat(GetCellText(kValueColumn, row), cellValue);
        mOverThumb = painter.IsAtPoint(cellValue, value, kThumbTolerance);
        cursor = mOverThumb ? Cursor::SizeHorizontal : Cursor::Arrow;
    }
    Desktop::Instance().SetCursor(cursor);
    if (!onSlider) {
        LButtonUp(point, {kSliderColumn, 1});
    }
    return true;
}

bool VWSConstantInterface::IsSliderClosed(const FactorClass& factor) const {
    return factor.IsQualitative() || mReadOnly || IsLockedFormulation(factor) ||
           mRenderers.find(&factor) == mRenderers.end();
}

void VWSConstantInterface::UpdateFromSlider() {
    if (mParentPage != nullptr) {
        mParentPage->Changed();
        return;
    }
    if (mSliderCell == CPoint{}) {
        return;
    }
    mLastSliderValue = GetCellText(mSliderCell.x - 1, mSliderCell.y);
    PushSliderCell(mSliderCell.x - 1, mSliderCell.y);
}

void VWSConstantInterface::PushSliderCell(int column, int row) {
    const std::string text = GetCellText(column, row);
    UserChangedData(column, row, text.c_str());
    CheckInterfaceValues(row, column, text.c_str());
}

}  // namespace kvopt
