#pragma once

#include <QPoint>

#include "kvopt/scripted/step_gestures.h"

class QWidget;

namespace kvopt {

class ModalWindow;
class PropertyGridPeer;
class QtDesktop;
class QtPlayer;
class WorksheetPeer;

/// The user's hands on real widgets: mouse buttons and keys, sent to the widget that a person would
/// aim at. A widget that is hidden, disabled or behind another window refuses.
class QtGestures : public StepGestures {
public:
    QtGestures(QtDesktop& desktop, QtPlayer& player);

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
    ModalWindow* Front() const;
    /// The control's widget when a person could use it now, else null.
    QWidget* Reach(const CControl& control) const;
    WorksheetPeer* ReachWorksheet(const VirtualWorksheet& worksheet) const;
    PropertyGridPeer* ReachGrid(const CXTPPropertyGrid& grid) const;
    bool GoToCell(WorksheetPeer& peer, CPoint cell);
    static void ShowCell(const WorksheetPeer& peer, CPoint cell);
    bool Mouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel, int type,
               Qt::MouseButton button);

    QtDesktop& desktop_;
    QtPlayer& player_;
    Qt::MouseButtons held_ = Qt::NoButton;
};

}  // namespace kvopt
