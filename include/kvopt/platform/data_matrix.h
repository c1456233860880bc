#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

/// The texts of a worksheet (UTF-8), by column and row (zero-based).
class KVOPT_EXPORT VWSIDataMatrix {
public:
    void SetSize(int columns, int rows);
    int Columns() const { return columns_; }
    int Rows() const { return static_cast<int>(cells_.size()) / (columns_ > 0 ? columns_ : 1); }
    void AddRows(int before, int count);

    /// Null outside the matrix and for a cell that was never written.
    const std::string* GetData(int column, int row) const;
    /// Throws InvalidArgument outside the matrix.
    void SetData(int column, int row, std::string_view text);

private:
    struct Cell {
        std::string text;
        bool written = false;
    };
    int columns_ = 0;
    std::vector<Cell> cells_;
};

}  // namespace kvopt
