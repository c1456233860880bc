#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "kvopt/export.h"
#include "kvopt/platform/combo_box.h"

namespace kvopt {

/// A drop-down list whose entries stand for numbers. Every drop-down list of a dialog is one.
class KVOPT_EXPORT KvComboBox : public CComboBox {
public:
    using CComboBox::CComboBox;

    /// Adds an entry at the end with its number and gives the new index (zero-based).
    virtual int AddItem(std::wstring_view text, std::intptr_t data);
    /// Selects the first entry with this number and gives its index; selects nothing and gives -1
    /// when there is none.
    virtual int SelectItem(std::intptr_t data);
    /// The number of the selected entry; nothing without a selection.
    virtual std::optional<std::intptr_t> GetSelectedItem() const;
};

}  // namespace kvopt
