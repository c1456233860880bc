#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/dialog_template.h"
#include "kvopt/platform/window.h"

namespace kvopt {

class CDialog;

/// What a control tells the page it stands on.
enum class Notification {
    Clicked,
    DoubleClicked,
    Changed,           ///< the text of an edit or of an editable combo; a worksheet's content
    SelectionChanged,  ///< combo and list
};

/// Base of the control models. A model holds the truth; views mirror it.
///
/// Two kinds of operation are kept apart. The program sets (SetText, SetCurSel, ...): only the
/// views are told, with the one exception of CEdit::SetText. The user acts (operations that begin
/// with "User"): refused with the result false on a hidden or disabled control or dialog;
/// otherwise the focus moves here, the model changes and the page's handler runs.
class KVOPT_EXPORT CControl : public CWnd {
public:
    CControl(CDialog& dialog, const ControlTemplate& what);

    int Number() const { return what_.number; }
    ControlKind Kind() const { return what_.kind; }
    const ControlTemplate& Template() const { return what_; }
    CDialog& Dialog() const { return dialog_; }

    /// The accessible name: the template's, or the label without its mnemonic.
    std::wstring AccessibleName() const;

    /// Moves the focus here by program; stands in the transcript.
    void SetFocus();

    /// True when the control and its dialog are visible and enabled.
    bool IsUsable() const;

    /// The user moved the focus here, by mouse or keyboard. What had it before lets go: an open
    /// cell editor commits.
    bool UserFocus();

    /// The focus goes elsewhere.
    virtual void OnLosesFocus();

protected:
    void Notify(Notification what);

private:
    CDialog& dialog_;
    ControlTemplate what_;
};

/// A text that stands beside other controls.
class KVOPT_EXPORT CStatic : public CControl {
public:
    using CControl::CControl;
};

/// A line of text.
class KVOPT_EXPORT CEdit : public CControl {
public:
    using CControl::CControl;

    /// Writes the text by program: always notifies the page as typing does, the same text
    /// included, also on a hidden or disabled edit. The views are told only when it differs.
    void SetText(std::wstring_view text) override;
    /// Writes the text when it differs, as the data exchange does.
    void ExchangeText(std::wstring_view text);

    /// The whole text after one keystroke. An edit that takes digits alone drops other new
    /// characters and tells its views to show what is left.
    bool UserEdit(std::wstring_view text);
    /// The whole text after a paste; nothing is filtered.
    bool UserPaste(std::wstring_view text);
};

/// Push button, check box or radio button.
class KVOPT_EXPORT CButton : public CControl {
public:
    using CControl::CControl;

    bool GetCheck() const { return checked_; }
    /// Checking a radio button takes the mark off the others of its group.
    void SetCheck(bool checked);

    /// A click: a check box flips, a radio button is checked, then the page's handler runs; also
    /// for a radio button that was checked already.
    bool UserClick();

private:
    bool checked_ = false;
};

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
    /// Inserts before `index`; -1 or the count is the end. Gives the new index.
    int InsertString(int index, std::wstring_view text);
    void DeleteString(int index);
    void ResetContent();
    /// Throws InvalidArgument when there is no such entry.
    const std::wstring& GetItemText(int index) const;
    std::intptr_t GetItemData(int index) const;
    void SetItemData(int index, std::intptr_t data);

    /// Compares the whole text, case and all, beginning after `start` and wrapping round; -1 when
    /// no entry matches.
    int FindStringExact(int start, std::wstring_view text) const;
    /// Compares the beginning without regard to case, beginning after `start`, wrapping round.
    int FindString(int start, std::wstring_view prefix) const;

    /// Views are not told of changes until redrawing is allowed again.
    void SetRedraw(bool redraw);

protected:
    void ItemsChanged();
    virtual void OnItemInserted(int index) = 0;
    virtual void OnItemDeleted(int index) = 0;
    virtual void OnReset() = 0;
    bool HasIndex(int index) const { return index >= 0 && index < GetCount(); }

private:
    std::vector<ListItem> items_;
    bool redraw_ = true;
    bool stale_ = false;
};

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

/// A list box of one or several marked entries.
class KVOPT_EXPORT CListBox : public CItemControl {
public:
    using CItemControl::CItemControl;

    bool IsMultiple() const { return Kind() == ControlKind::ListMulti; }
    /// Of a single-selection list; of a multiple one the entry with the caret.
    int GetCurSel() const { return current_; }
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

    /// The user's marks as a whole after one click or key.
    bool UserMark(const std::vector<int>& marked);
    /// A double click marks this entry alone, then runs the page's handler for it.
    bool UserDoubleClick(int index);

protected:
    void OnItemInserted(int index) override;
    void OnItemDeleted(int index) override;
    void OnReset() override;

private:
    std::vector<bool> marked_;
    int current_ = -1;
};

/// Up and down arrows that write a number into the edit beside them.
class KVOPT_EXPORT CSpinButtonCtrl : public CControl {
public:
    using CControl::CControl;

    /// The bounds may come in either order.
    void SetRange(int low, int high);
    int Low() const { return low_; }
    int High() const { return high_; }
    /// Clamps to the range and writes the buddy edit, which notifies as writing an edit does.
    void SetPos(int position);
    /// What the buddy shows, clamped to the range; the lower bound when it shows no number.
    int GetPos() const;

    /// One click on an arrow: +1 or -1.
    bool UserStep(int delta);

private:
    int low_ = 0;
    int high_ = 100;
};

}  // namespace kvopt
