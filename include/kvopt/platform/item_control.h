#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/control.h"

namespace kvopt {

/// The entries of a list, zero-based, each with a number of the program's own.
struct ListItem {
    std::wstring text;
    std::intptr_t data = 0;
};

/// What combo and list boxes have in common. Indices are zero-based; -1 is none.
class KVOPT_EXPORT CItemControl : public CControl {
public:
    using CControl::CControl;

    int GetCount() const { return static_cast<int>(items_.size()); }
    /// Adds at the end and gives the new index.
    int AddString(std::wstring_view text);
    /// Inserts before `index`; -1 or the count is the end, any other place that does not exist
    /// throws InvalidArgument. Gives the new index. What is selected stays selected.
    int InsertString(int index, std::wstring_view text);
    /// Throws InvalidArgument when there is no such entry, as the operations below do.
    void DeleteString(int index);
    void ResetContent();
    const std::wstring& GetItemText(int index) const;
    std::intptr_t GetItemData(int index) const;
    void SetItemData(int index, std::intptr_t data);

    /// Compares the whole text, case and all, beginning after `start` and wrapping round; -1 when
    /// no entry matches, and for the empty text.
    int FindStringExact(int start, std::wstring_view text) const;
    /// The same, but compares the beginnings of the entries, without regard to case.
    int FindString(int start, std::wstring_view prefix) const;

    /// Views are not told of changes until redrawing is allowed again.
    void SetRedraw(bool redraw);

protected:
    void ItemsChanged();
    void SelectionChanged();
    virtual void OnItemInserted(int index) = 0;
    virtual void OnItemDeleted(int index) = 0;
    virtual void OnReset() = 0;
    bool HasIndex(int index) const { return index >= 0 && index < GetCount(); }

private:
    std::vector<ListItem> items_;
    bool redraw_ = true;
    bool stale_ = false;
};

}  // namespace kvopt
