#include "qt/list_peer.h"

#include <QListWidget>
#include <QScrollBar>
#include <algorithm>

#include "kvopt/platform/list_box.h"
#include "qt/qt_text.h"

namespace kvopt {

ListPeer::ListPeer(QtDesktop& desktop, CListBox& model, QListWidget& list)
    : Peer(desktop, model, list), model_(model), list_(list) {
    list.setSelectionMode(model.IsMultiple() ? QAbstractItemView::ExtendedSelection
                                             : QAbstractItemView::SingleSelection);
    list.setMinimumHeight(list.fontMetrics().height() * 6);
    list.setMinimumWidth(list.fontMetrics().averageCharWidth() * 22);
    connect(&list, &QListWidget::itemSelectionChanged, this, [this] {
        User([&] {
            std::vector<int> marked;
            for (const QModelIndex& index : list_.selectionModel()->selectedIndexes()) {
                marked.push_back(index.row());
            }
            std::sort(marked.begin(), marked.end());
            model_.UserMark(marked);
        });
    });
    connect(&list, &QListWidget::itemDoubleClicked, this, [this](const QListWidgetItem* item) {
        const int row = list_.row(item);
        User([&] { model_.UserDoubleClick(row); });
    });
}

void ListPeer::Push(WindowChange change) {
    if (change == WindowChange::Items) {
        // What is in view stays in view, however entries move.
        const int scrolled = list_.verticalScrollBar()->value();
        list_.clear();
        for (int index = 0; index < model_.GetCount(); ++index) {
            list_.addItem(ToQt(model_.GetItemText(index)));
        }
        list_.verticalScrollBar()->setValue(scrolled);
    }
    if (change == WindowChange::Items || change == WindowChange::Selection) {
        for (int index = 0; index < model_.GetCount(); ++index) {
            list_.item(index)->setSelected(model_.GetSel(index));
        }
        if (model_.GetSelCount() > 0 && list_.currentRow() < 0) {
            list_.setCurrentRow(model_.GetSelItems().front(), QItemSelectionModel::NoUpdate);
        }
    }
}

}  // namespace kvopt
