#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

#include "kvopt/platform/geometry.h"

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QTableView;

namespace kvopt {

class VirtualWorksheet;
class WorksheetModel;

/// The widgets in the cells of a worksheet's table: a combo box in each cell with a list, and the
/// line edit of the one cell that is being edited. Does not own what it is given.
class CellEditors : public QObject {
public:
    /// Runs something the user did.
    using User = std::function<void(const std::function<void()>&)>;

    CellEditors(VirtualWorksheet& model, QTableView& table, WorksheetModel& cells, User user);

    /// Shows the lists and the editor that the worksheet has now.
    void Show();
    QComboBox* ComboOf(CPoint cell) const;
    QLineEdit* Editor() const { return editor_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowCombo(CPoint cell);
    QComboBox* MakeCombo(CPoint cell);
    void OpenEditor(CPoint cell);
    void CloseEditor();
    void PlaceEditor();
    bool FilterEditorKey(const QKeyEvent& key);

    VirtualWorksheet& model_;
    QTableView& table_;
    WorksheetModel& cells_;
    User user_;
    QPointer<QLineEdit> editor_;
};

}  // namespace kvopt
