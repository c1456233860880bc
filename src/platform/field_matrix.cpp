#include "kvopt/platform/field_matrix.h"

namespace kvopt {

const FieldDef* FieldMatrix::Find(int column, int row) const {
    const auto found = fields_.find({column, row});
    return found == fields_.end() ? nullptr : &found->second;
}

FieldDef* FieldMatrix::Find(int column, int row) {
    const auto found = fields_.find({column, row});
    return found == fields_.end() ? nullptr : &found->second;
}

FieldDef& FieldMatrix::GetOrCreateField(int column, int row) {
    const auto [place, isNew] = fields_.try_emplace({column, row});
    if (isNew) {
        const auto type = columnTypes_.find(column);
        place->second = type == columnTypes_.end() ? FieldDef::Plain : type->second;
    }
    return place->second;
}

void FieldMatrix::AddRows(int before, int count) {
    std::map<std::pair<int, int>, FieldDef> moved;
    for (auto& [cell, field] : fields_) {
        const int row = cell.second < before ? cell.second : cell.second + count;
        moved.emplace(std::pair(cell.first, row), std::move(field));
    }
    fields_ = std::move(moved);
}

FieldDef::FieldType FieldMatrix::TypeOf(int column, int row) const {
    if (const FieldDef* field = Find(column, row)) {
        return field->Type();
    }
    const auto type = columnTypes_.find(column);
    return type == columnTypes_.end() ? FieldDef::Plain : type->second;
}

}  // namespace kvopt
