#pragma once

#include <memory>

#include "kvopt/platform/cell_range.h"
#include "kvopt/platform/geometry.h"
#include "qt/peer.h"

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QMouseEvent;
class QTableView;

namespace kvopt {

class BaseWorksheetInterface;
class CellEditors;
class VirtualWorksheet;
class WorksheetModel;

/// The worksheet as a table. Number cells open an editor (double click, F2, or typing), cells with
/// a list show a combo box, slider cells take the mouse; by keyboard a slider's value is edited in
/// the value cell beside it. Mouse steps are told in pixels of the cell, so that a slider gives the
/// same values wherever the table has been scrolled.
class WorksheetPeer : public Peer {
public:
    WorksheetPeer(QtDesktop& desktop, VirtualWorksheet& model, QTableView& table);
    ~WorksheetPeer() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    QTableView& Table() const { return table_; }
    VirtualWorksheet& Worksheet() const { return model_; }
    /// The rectangle of a worksheet cell in the pixels of the table's viewport.
    CRect CellRect(CPoint cell) const;
    /// The combo box of a cell with a list, null for any other.
    QComboBox* ComboOf(CPoint cell) const;
    /// The editor that is open, null without one.
    QLineEdit* Editor() const;
    /// What the content answered to the last step of the mouse.
    bool MouseWasTaken() const { return mouseTaken_; }

protected:
    void Push(WindowChange change) override;

private:
    /// A place of the pointer as the content is told it.
    struct Pointer {
        CPoint cell;   ///< (0, 0) beside all cells
        CPoint pixel;  ///< of the cell; of the viewport beside all cells
        CRect rect;
    };

    const BaseWorksheetInterface* Content() const;
    Pointer PointerAt(QPoint place) const;
    bool HasSlider(CPoint cell) const;

    bool FilterViewport(QEvent* event);
    bool FilterKey(const QKeyEvent& key);
    void MoveMouse(const QMouseEvent& event);
    void PressMouse(const QMouseEvent& event);
    void ReleaseMouse(const QMouseEvent& event);
    void LeaveMouse();
    void OpenMenu(CPoint cell, QPoint place);
    bool OpenEditor(CPoint cell, const QString& typed);
    QString TipAt(CPoint cell) const;

    void ShowColumns();
    void ShowRows();
    void ShowSelection();
    void TakeSelection();
    void MarkTo(CPoint cell);

    VirtualWorksheet& model_;
    QTableView& table_;
    WorksheetModel& cells_;
    std::unique_ptr<CellEditors> editors_;
    std::vector<int> widthsShown_;
    CPoint anchor_;  ///< where the mouse began to mark cells; (0, 0) while it does not
    bool mouseTaken_ = false;
};

}  // namespace kvopt
