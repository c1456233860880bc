#include "kvopt/platform/data_matrix.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "kvopt/text/exceptions.h"

namespace kvopt {

namespace {

std::size_t IndexOf(int columns, int column, int row) {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
           static_cast<std::size_t>(column);
}

}  // namespace

void VWSIDataMatrix::SetSize(int columns, int rows) {
    if (columns < 0 || rows < 0) {
        throw InvalidArgument("VWSIDataMatrix::SetSize: a size below 0");
    }
    std::vector<Cell> cells(IndexOf(columns, 0, rows));
    for (int row = 0; row < std::min(rows, Rows()); ++row) {
        for (int column = 0; column < std::min(columns, columns_); ++column) {
            cells[IndexOf(columns, column, row)] =
                std::move(cells_[IndexOf(columns_, column, row)]);
        }
    }
    columns_ = columns;
    cells_ = std::move(cells);
}

void VWSIDataMatrix::AddRows(int before, int count) {
    if (before < 0 || before > Rows() || count < 0) {
        throw InvalidArgument("VWSIDataMatrix::AddRows: there is no row " + std::to_string(before) +
                              " among " + std::to_string(Rows()));
    }
    const auto place = static_cast<std::ptrdiff_t>(IndexOf(columns_, 0, before));
    cells_.insert(cells_.begin() + place, IndexOf(columns_, 0, count), Cell());
}

const std::string* VWSIDataMatrix::GetData(int column, int row) const {
    if (column < 0 || column >= columns_ || row < 0 || row >= Rows()) {
        return nullptr;
    }
    const Cell& cell = cells_[IndexOf(columns_, column, row)];
    return cell.written ? &cell.text : nullptr;
}

void VWSIDataMatrix::SetData(int column, int row, std::string_view text) {
    if (column < 0 || column >= columns_ || row < 0 || row >= Rows()) {
        throw InvalidArgument("VWSIDataMatrix::SetData: there is no cell (" +
                              std::to_string(column) + ", " + std::to_string(row) + ")");
    }
    cells_[IndexOf(columns_, column, row)] = {std::string(text), true};
}

}  // namespace kvopt
