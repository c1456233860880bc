#include "kvopt/platform/field_def.h"

namespace kvopt {

FieldDef& FieldDef::operator=(FieldType type) {
    type_ = type;
    return *this;
}

void FieldDef::AddComboSetting(std::string_view text) {
    settings_.emplace_back(text);
}

}  // namespace kvopt
