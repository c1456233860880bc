#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/geometry.h"
#include "kvopt/platform/keys.h"
#include "kvopt/platform/worksheet_interface.h"
#include "kvopt/scripted/step_target.h"
#include "kvopt/scripted/user_step.h"

namespace kvopt {

class CButton;
class CComboBox;
class CControl;
class CListBox;
class CPropertySheet;
class CSpinButtonCtrl;
class CXTPPropertyGrid;
class CXTPPropertyGridItem;
class VirtualWorksheet;

/// The user's hands: how a front end performs what a StepPlayer asks. The player has found the
/// control and seen that it is visible and enabled. Each operation performs its gesture to the end,
/// with the steps that were posted meanwhile, and gives false when the control refused. A gesture
/// that opens another modal run returns when that run is over.
///
/// Texts replace what is there: a field that is not empty is cleared by one keystroke, then each
/// character of the text is a keystroke. Pixels count from the cell's upper left corner.
class KVOPT_EXPORT StepGestures {
public:
    virtual ~StepGestures();

    virtual bool Focus(CControl& control) = 0;
    virtual bool Click(CButton& button) = 0;
    /// `field` is a CEdit or an editable CComboBox.
    virtual bool Type(CControl& field, const std::wstring& text) = 0;
    /// The text lies on the clipboard; it replaces what the edit holds.
    virtual bool Paste(CControl& field, const std::wstring& text) = 0;
    virtual bool Pick(CComboBox& combo, int index) = 0;
    /// A click on each entry in turn, the first alone, the others added to it; without an entry
    /// each mark is taken away, from the top.
    virtual bool Mark(CListBox& list, const std::vector<int>& indices) = 0;
    virtual bool DoubleClick(CListBox& list, int index) = 0;
    /// One click on an arrow.
    virtual bool Spin(CSpinButtonCtrl& spin, bool up) = 0;

    virtual bool SelectTab(CPropertySheet& sheet, int index) = 0;
    virtual bool Press(const StepScope& scope, FrameButton button) = 0;
    /// A key stroke: to the active page first, then to the control with the focus, then to the
    /// frame. False when nobody takes it.
    virtual bool PressKey(const StepScope& scope, const KeyStroke& key) = 0;

    virtual bool SelectCells(VirtualWorksheet& worksheet, const CellRange& cells) = 0;
    /// Opens the cell's editor and types; `commit` ends with Return, else the editor stays open.
    virtual bool TypeIntoCell(VirtualWorksheet& worksheet, CPoint cell, const std::string& text,
                              bool commit) = 0;
    /// The text lies on the clipboard; it is pasted from the selected cells on.
    virtual bool PasteIntoCells(VirtualWorksheet& worksheet) = 0;
    virtual bool PickInCell(VirtualWorksheet& worksheet, CPoint cell, int entry) = 0;
    virtual bool MoveMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) = 0;
    virtual bool PressMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) = 0;
    virtual bool ReleaseMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) = 0;
    /// A right click. The menu that comes asks StepPlayer::ChooseFromMenu.
    virtual bool ContextMenu(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) = 0;

    // A row of a property grid that is shown. Hands without property grids refuse.
    /// A click on the row's caption.
    virtual bool SelectRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row);
    /// Turns a bool row over.
    virtual bool ToggleRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row);
    /// Opens or closes what stands below the row; it is the other way now.
    virtual bool ExpandRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row, bool expand);
    virtual bool PickInRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row, int choice);
    /// Opens the row's editor and types; `commit` ends with Return, else the editor stays open.
    virtual bool TypeIntoRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row,
                             const std::wstring& text, bool commit);

    virtual bool Wait(unsigned milliseconds) = 0;
    /// Keeps a picture of what is in front; a front end without pictures does nothing.
    virtual bool TakePicture(const std::string& name) = 0;
};

}  // namespace kvopt
