#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/control.h"
#include "kvopt/platform/property_grid_item.h"

namespace kvopt {

/// Codes of what a property grid tells its page.
enum PropertyGridNotification : int {
    kGridValueChanged = 3,  ///< the user gave a row another value
};

/// A list of captions and values under headings that open and close, with a pane below that
/// describes the selected row. It owns its rows. Rows that a view or a page holds are gone after
/// ResetContent.
class KVOPT_EXPORT CXTPPropertyGrid : public CControl {
public:
    using NotifyHandler = std::function<void(int code, CXTPPropertyGridItem* item)>;

    CXTPPropertyGrid(CDialog& dialog, const ControlTemplate& what);
    ~CXTPPropertyGrid() override;

    /// Adds a heading behind the others; see CXTPPropertyGridItem for the literal.
    CXTPPropertyGridItem& AddCategory(std::wstring_view literal);
    const std::vector<std::unique_ptr<CXTPPropertyGridItem>>& Categories() const {
        return categories_;
    }
    /// Takes all rows away. An open editor is abandoned, the first row is the top row again.
    void ResetContent();

    /// All rows from the top, whether they are shown or not.
    std::vector<CXTPPropertyGridItem*> Rows() const;
    /// Those that can be seen, by scrolling at most.
    std::vector<CXTPPropertyGridItem*> ShownRows() const;
    /// The first row from the top that has the number; null without one, and for 0.
    CXTPPropertyGridItem* FindItem(int id) const;
    /// The same by caption.
    CXTPPropertyGridItem* FindItem(std::wstring_view caption) const;

    /// The row at the upper edge, zero-based among those that are shown.
    int GetTopIndex() const;
    /// A place that does not exist becomes the nearest that does.
    void SetTopIndex(int index);

    /// The row that the pane describes; null for none. A row that is not shown any more gives this
    /// up to the nearest row above it that is, at a category's to none.
    CXTPPropertyGridItem* GetSelectedItem() const { return selected_; }
    /// A row that is not shown, or not in the grid, selects nothing.
    void SetSelectedItem(CXTPPropertyGridItem* item);

    /// Shows or hides the pane that describes the selected row. It starts shown.
    void ShowHelp(bool show);
    bool IsHelpVisible() const { return helpVisible_; }
    /// Share of the width that captions take, between 0 and 1.
    void SetViewDivider(double share);
    double GetViewDivider() const { return divider_; }

    /// Who hears what the user does, after it was done. The rows may be gone afterwards.
    void SetNotifyHandler(NotifyHandler handler) { handler_ = std::move(handler); }

    /// The row whose editor is open; null for none.
    CXTPPropertyGridItem* EditedItem() const { return edited_; }
    /// What its editor holds.
    const std::wstring& EditorText() const { return editorText_; }
    /// Closes the editor and, when it holds another text than the row shows, hands it to SetValue.
    void CommitEdit();
    /// The focus goes elsewhere: an open editor commits.
    void OnLosesFocus() override;

    // What the user does with a row: refused when the row is not shown or not in the grid, and,
    // where a value is to change, when it is read-only.
    bool UserSelect(CXTPPropertyGridItem* item);
    /// Opens or closes what stands below a row; refused where nothing does.
    bool UserExpand(CXTPPropertyGridItem* item, bool expand);
    /// Turns a bool row over.
    bool UserToggle(CXTPPropertyGridItem* item);
    /// Picks a choice, zero-based. Refused when it is disabled; the present one changes nothing.
    bool UserPick(CXTPPropertyGridItem* item, int choice);
    /// Opens the editor of a row that takes text; it begins with the row's value.
    bool UserBeginEdit(CXTPPropertyGridItem* item);
    /// The whole text of the open editor after one keystroke.
    bool UserEdit(std::wstring_view text);
    bool UserCommit();
    bool UserAbandon();
    /// The user scrolled: `top` is the row at the upper edge now. Moves no focus.
    bool UserScroll(int top);

private:
    friend class CXTPPropertyGridItem;
    void OnRowsChanged();
    void OnCellsChanged();
    bool Holds(const CXTPPropertyGridItem* item) const;
    bool ActOn(CXTPPropertyGridItem* item, const std::function<bool()>& action);
    void LetUserChange(CXTPPropertyGridItem& item, const std::function<void()>& change);
    void CloseEditor();
    int Clamped(int top) const;

    std::vector<std::unique_ptr<CXTPPropertyGridItem>> categories_;
    CXTPPropertyGridItem* selected_ = nullptr;
    CXTPPropertyGridItem* edited_ = nullptr;
    std::wstring editorText_;
    int top_ = 0;
    double divider_ = 0.5;
    bool helpVisible_ = true;
    NotifyHandler handler_;
};

}  // namespace kvopt
