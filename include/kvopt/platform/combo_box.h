#pragma once

#include <string>
#include <string_view>

#include "kvopt/export.h"
#include "kvopt/platform/item_control.h"

namespace kvopt {

/// A drop-down list, with or without free text.
class KVOPT_EXPORT CComboBox : public CItemControl {
public:
    using CItemControl::CItemControl;

    bool IsEditable() const { return Kind() == ControlKind::ComboEdit; }
    int GetCurSel() const { return selected_; }
    /// -1 or an index that does not exist selects nothing.
    void SetCurSel(int index);
    /// Selects the first entry found as FindString finds it and gives its index; leaves the
    /// selection alone and gives -1 when there is none.
    int SelectString(int start, std::wstring_view prefix);

    /// The selected entry's text (empty without one); of an editable one the text in its field.
    std::wstring GetText() const override;
    /// Selects the entry of exactly this text, or nothing; an editable one takes any text.
    void SetText(std::wstring_view text) override;

    /// Picks an entry. Picking the one that is selected already runs no handler.
    bool UserPick(int index);
    /// The whole text of the field after one keystroke; refused where the text is not free.
    bool UserEdit(std::wstring_view text);

protected:
    void OnItemInserted(int index) override;
    void OnItemDeleted(int index) override;
    void OnReset() override;

private:
    int selected_ = -1;
};

}  // namespace kvopt
