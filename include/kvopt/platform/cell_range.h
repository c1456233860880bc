#pragma once

namespace kvopt {

/// A rectangle of selected cells, both ends included; column and row 0 are headings.
struct CellRange {
    int firstColumn = 0;
    int firstRow = 0;
    int lastColumn = -1;
    int lastRow = -1;
    bool operator==(const CellRange&) const = default;
    bool IsEmpty() const { return lastColumn < firstColumn || lastRow < firstRow; }
};

}  // namespace kvopt
