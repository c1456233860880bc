#include "qt/list_peer.h"

#include <QListWidget>
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
        // Entry by entry, so that what is in view stays in view.
        while (list_.count() > model_.GetCount()) {
            delete list_.takeItem(list_.count() - 1);
        }
        for (int index = 0; index < model_.GetCount(); ++index) {
            const QString text = ToQt(model_.GetItemText(index));
            if (index == list_.count()) {
                list_.addItem(text);
            } else if (list_.item(index)->text() != text) {
                list_.item(index)->setText(text);
            }
        }
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
