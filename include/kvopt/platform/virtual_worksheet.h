#pragma once

#include <optional>
#include <string>

#include "kvopt/export.h"
#include "kvopt/platform/control.h"
#include "kvopt/platform/geometry.h"
#include "kvopt/platform/worksheet_interface.h"

namespace kvopt {

/// The window of a worksheet: the control model that stands where the template has its worksheet.
/// It shows a BaseWorksheetInterface, which it does not own, and turns what the user does into
/// calls of it. Cells are (column, row), data from 1.
class KVOPT_EXPORT VirtualWorksheet : public CControl {
public:
    VirtualWorksheet(CDialog& dialog, const ControlTemplate& what);
    ~VirtualWorksheet() override;

    /// Connects the worksheet control `number` of a dialog with its content. Throws InvalidArgument
    /// when the dialog has no such control.
    static VirtualWorksheet& CreateFromStatic(CDialog& dialog, int number,
                                              BaseWorksheetInterface& content);

    BaseWorksheetInterface* Content() const { return content_; }
    /// Reads everything afresh.
    void Reset();

    /// Select all, copy, paste. While a cell editor is open the keys are its own: not handled.
    bool OnCommand(int command) override;
    /// The focus goes elsewhere: an open editor commits.
    void OnLosesFocus() override;

    const CellRange& Selection() const { return selection_; }
    void SetSelection(const CellRange& range);

    /// The cell whose editor is open.
    std::optional<CPoint> EditedCell() const { return edited_; }
    /// What its editor holds.
    const std::string& EditorText() const { return editorText_; }
    /// Closes the editor and, when it holds another text than the cell, takes that over through
    /// UserChangedData.
    void CommitEdit();

    // What the user does.
    bool UserSelectCell(CPoint cell);
    /// Opens the editor of a number cell; refused where the cell offers no editing.
    bool UserBeginEdit(CPoint cell);
    /// The whole text of the open editor after one keystroke.
    bool UserEdit(const std::string& text);
    bool UserCommit();
    bool UserAbandon();
    /// Picks an entry (zero-based) of a drop-down cell. The one that stands there changes nothing.
    bool UserPick(CPoint cell, int entry);
    /// Mouse steps. `rect` is the cell's rectangle and `point` lies in the same pixels.
    bool UserMouseMove(CPoint point, CPoint cell, const CRect& rect);
    bool UserPress(CPoint point, CPoint cell);
    bool UserRelease(CPoint point, CPoint cell);
    bool UserContextMenu(CPoint point);
    /// A command key or a menu entry.
    bool UserCommand(int command);

private:
    bool IsData(CPoint cell) const;
    void CommitElsewhere(CPoint cell);
    void PasteInto(CPoint cell, const std::string& text);
    bool TakeOver(CPoint cell, const std::string& text);

    friend class BaseWorksheetInterface;
    BaseWorksheetInterface* content_ = nullptr;
    CellRange selection_;
    std::optional<CPoint> edited_;
    std::string editorText_;
};

}  // namespace kvopt
