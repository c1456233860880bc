#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/geometry.h"

namespace kvopt {

/// How one worksheet cell is edited and shown. The text of the cell is not kept here.
class KVOPT_EXPORT FieldDef {
public:
    enum FieldType {
        Plain = 0,   ///< offers no editing
        Locked = 1,  ///< a value that may not be changed
        Combo = 2,   ///< a drop-down of settings
        Number = 4,  ///< an editable number
    };
    static constexpr Colour kNoColour = 0xFFFFFFFFU;

    FieldDef& operator=(FieldType type);
    FieldType Type() const { return type_; }
    bool IsEditable() const { return type_ == Combo || type_ == Number; }

    /// Entries of the drop-down, in order, UTF-8.
    void AddComboSetting(std::string_view text);
    void ClearComboSettings() { settings_.clear(); }
    const std::vector<std::string>& ComboSettings() const { return settings_; }

    /// The cell's background; kNoColour for the palette's own.
    Colour FieldColour() const { return colour_; }
    void SetFieldColour(Colour colour) { colour_ = colour; }

private:
    FieldType type_ = Plain;
    std::vector<std::string> settings_;
    Colour colour_ = kNoColour;
};

}  // namespace kvopt
