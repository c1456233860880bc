#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/item_control.h"

namespace kvopt {

/// A list box of one or several marked entries.
class KVOPT_EXPORT CListBox : public CItemControl {
public:
    using CItemControl::CItemControl;

    bool IsMultiple() const { return Kind() == ControlKind::ListMulti; }
    /// Of a single-selection list; of a multiple one the entry with the caret.
    int GetCurSel() const { return current_; }
    /// Selects, or moves the caret of a multiple list; -1 or an index that does not exist is none.
    void SetCurSel(int index);
    bool GetSel(int index) const;
    /// Marks or unmarks; index -1 stands for all. On a single-selection list marking moves the
    /// selection.
    void SetSel(int index, bool marked = true);
    int GetSelCount() const;
    /// The marked entries, ascending.
    std::vector<int> GetSelItems() const;
    /// The list's texts from the top.
    std::vector<std::wstring> Texts() const;

    /// The user's marks as a whole after one click or key. The same marks run no handler.
    bool UserMark(const std::vector<int>& marked);
    /// A double click marks this entry alone (as a click does, so a change of selection is told
    /// first), then runs the page's handler for it.
    bool UserDoubleClick(int index);

protected:
    void OnItemInserted(int index) override;
    void OnItemDeleted(int index) override;
    void OnReset() override;

private:
    void MarkAlone(const std::vector<int>& marked);

    std::vector<bool> marked_;
    int current_ = -1;
};

}  // namespace kvopt
