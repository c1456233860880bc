#pragma once

#include <memory>

#include "qt/peer.h"

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QModelIndex;

namespace kvopt {

class CXTPPropertyGrid;
class CXTPPropertyGridItem;
class PropertyGridEditors;
class PropertyGridModel;
class PropertyGridView;
class PropertyTree;

/// A property grid as a tree. Arrow keys move from row to row and open and close what is below one;
/// F2, Return, or a click on its value let the user change it, as does typing where it is a text.
class PropertyGridPeer : public Peer {
public:
    PropertyGridPeer(QtDesktop& desktop, CXTPPropertyGrid& model, PropertyGridView& view);
    ~PropertyGridPeer() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    CXTPPropertyGrid& Grid() const { return model_; }
    PropertyTree& Tree() const;
    /// Where a row's caption and value are in the tree's viewport, scrolled there; empty when the
    /// row is not shown.
    QRect CaptionPlace(const CXTPPropertyGridItem& item) const;
    QRect ValuePlace(const CXTPPropertyGridItem& item) const;
    /// The mark that opens and closes what is below a row.
    QPoint MarkPlace(const CXTPPropertyGridItem& item) const;
    /// The list of the selected row, null when it has none.
    QComboBox* List() const;
    /// The editor that is open, null without one.
    QLineEdit* Editor() const;

protected:
    void Push(WindowChange change) override;

private:
    void Connect();
    bool FilterKey(const QKeyEvent& key);
    bool OpenCurrent(const QString& typed);
    void TakeSelection();
    void TakeExpansion(const QModelIndex& index, bool expanded);
    void ShowRows();
    void ShowExpansion();
    void ShowSelection();

    CXTPPropertyGrid& model_;
    PropertyGridView& view_;
    PropertyGridModel& rows_;
    std::unique_ptr<PropertyGridEditors> editors_;
};

}  // namespace kvopt
