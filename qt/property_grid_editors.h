#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

class QComboBox;
class QKeyEvent;
class QLineEdit;

namespace kvopt {

class CXTPPropertyGrid;
class CXTPPropertyGridItem;
class PropertyGridModel;
class PropertyTree;

/// The widgets in the value column of a property grid: a drop-down list in the selected row when
/// its value is picked, and the line edit of the row whose text is being edited. Does not own what
/// it is given.
class PropertyGridEditors : public QObject {
public:
    /// Runs something the user did.
    using User = std::function<void(const std::function<void()>&)>;

    PropertyGridEditors(CXTPPropertyGrid& grid, PropertyTree& tree, PropertyGridModel& rows,
                        User user);

    /// Shows the list and the editor that the grid has now.
    void Show();
    /// The user wants to change a row that is selected: drops its list down, or opens its editor;
    /// `typed` replaces what that holds. False when the row is not to be changed.
    bool Open(CXTPPropertyGridItem& item, const QString& typed);

    /// The list of the selected row, null when it has none.
    QComboBox* List() const { return list_; }
    /// Null while no editor is open.
    QLineEdit* Editor() const { return editor_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowList();
    void CloseList();
    void FillList(const CXTPPropertyGridItem& item) const;
    void OpenEditor();
    void CloseEditor();
    void Place();
    bool FilterEditorKey(const QKeyEvent& key);
    void Dismiss(QWidget& closing);

    CXTPPropertyGrid& grid_;
    PropertyTree& tree_;
    PropertyGridModel& rows_;
    User user_;
    QPointer<QComboBox> list_;
    QPointer<QLineEdit> editor_;
    const CXTPPropertyGridItem* listed_ = nullptr;  ///< whose list it is; may be dead
};

}  // namespace kvopt
