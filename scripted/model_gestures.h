#pragma once

#include <string>
#include <vector>

#include "kvopt/scripted/step_gestures.h"

namespace kvopt {

class VirtualClock;

/// Hands without windows: each gesture is the models' own "User" operations.
class ModelGestures : public StepGestures {
public:
    /// The clock is not owned.
    explicit ModelGestures(VirtualClock& clock) : clock_(clock) {}

    bool Focus(CControl& control) override;
    bool Click(CButton& button) override;
    bool Type(CControl& field, const std::wstring& text) override;
    bool Paste(CControl& field, const std::wstring& text) override;
    bool Pick(CComboBox& combo, int index) override;
    bool Mark(CListBox& list, const std::vector<int>& indices) override;
    bool DoubleClick(CListBox& list, int index) override;
    bool Spin(CSpinButtonCtrl& spin, bool up) override;
    bool SelectTab(CPropertySheet& sheet, int index) override;
    bool Press(const StepScope& scope, FrameButton button) override;
    bool PressKey(const StepScope& scope, const KeyStroke& key) override;
    bool SelectCells(VirtualWorksheet& worksheet, const CellRange& cells) override;
    bool TypeIntoCell(VirtualWorksheet& worksheet, CPoint cell, const std::string& text,
                      bool commit) override;
    bool PasteIntoCells(VirtualWorksheet& worksheet) override;
    bool PickInCell(VirtualWorksheet& worksheet, CPoint cell, int entry) override;
    bool MoveMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) override;
    bool PressMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) override;
    bool ReleaseMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) override;
    bool ContextMenu(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) override;
    bool SelectRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row) override;
    bool ToggleRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row) override;
    bool ExpandRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row, bool expand) override;
    bool PickInRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row, int choice) override;
    bool TypeIntoRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row, const std::wstring& text,
                     bool commit) override;
    bool Wait(unsigned milliseconds) override;
    bool TakePicture(const std::string& name) override;

private:
    bool PressOnSheet(CPropertySheet& sheet, FrameButton button);
    bool KeyToWorksheet(VirtualWorksheet& worksheet, const KeyStroke& key);
    bool KeyToGrid(CXTPPropertyGrid& grid, const KeyStroke& key);
    bool KeyToFrame(const StepScope& scope, const KeyStroke& key);

    VirtualClock& clock_;
};

}  // namespace kvopt
