#pragma once

#include <QPersistentModelIndex>
#include <QPointer>

#include "kvopt/platform/geometry.h"
#include "qt/peer.h"

class QComboBox;
class QLineEdit;
class QMouseEvent;
class QTableView;

namespace kvopt {

class VirtualWorksheet;
class WorksheetDelegate;
class WorksheetModel;

/// The worksheet as a table. Number cells open an editor (double click, F2, or typing), cells with
/// a list show a combo box, slider cells take the mouse; by keyboard a slider's value is edited in
/// the value cell beside it.
class WorksheetPeer : public Peer {
public:
    WorksheetPeer(QtDesktop& desktop, VirtualWorksheet& model, QTableView& table);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The rectangle of a worksheet cell in the pixels of the table's viewport.
    CRect CellRect(CPoint cell) const;
    /// The combo box of a cell with a list, null for any other.
    QComboBox* ComboOf(CPoint cell) const;
    /// The editor that is open, null without one.
    QLineEdit* Editor() const { return editor_; }
    QTableView& Table() const { return table_; }
    VirtualWorksheet& Worksheet() const { return model_; }

    /// The peer of a worksheet's table, null for a widget that is none.
    static WorksheetPeer* Of(QWidget* table);

protected:
    void Push(WindowChange change) override;

private:
    bool FilterViewport(QEvent* event);
    bool FilterTableKey(QEvent* event);
    bool FilterEditor(QEvent* event);
    CPoint CellAt(QPoint pixel) const;
    void ShowColumns();
    void ShowCombos();
    void ShowEditor();
    void ShowSelection();
    void TakeSelection();

    VirtualWorksheet& model_;
    QTableView& table_;
    QWidget* viewport_;  ///< known apart: events still come while the table is being destroyed
    WorksheetModel& cells_;
    WorksheetDelegate& delegate_;
    QPointer<QLineEdit> editor_;
    bool widthsShown_ = false;
};

}  // namespace kvopt
