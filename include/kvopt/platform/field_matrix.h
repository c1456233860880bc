#pragma once

#include <map>
#include <utility>

#include "kvopt/export.h"
#include "kvopt/platform/field_def.h"

namespace kvopt {

/// The field definitions of a worksheet, by column and row (zero-based; column 0 holds the row
/// numbers and row 0 the headings). A cell without one of its own takes its column's type.
class KVOPT_EXPORT FieldMatrix {
public:
    /// Null when the cell has none.
    const FieldDef* Find(int column, int row) const;
    FieldDef* Find(int column, int row);
    FieldDef& GetOrCreateField(int column, int row);

    /// Makes room for `count` rows before `row`.
    void AddRows(int before, int count);
    void SetColumnType(int column, FieldDef::FieldType type) { columnTypes_[column] = type; }
    FieldDef::FieldType TypeOf(int column, int row) const;

private:
    std::map<std::pair<int, int>, FieldDef> fields_;
    std::map<int, FieldDef::FieldType> columnTypes_;
};

}  // namespace kvopt
