#include "qt/property_grid_peer.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>

#include "kvopt/platform/property_grid.h"
#include "qt/property_grid_delegate.h"
#include "qt/property_grid_editors.h"
#include "qt/property_grid_model.h"
#include "qt/property_grid_view.h"
#include "qt/qt_text.h"

namespace kvopt {

PropertyGridPeer::PropertyGridPeer(QtDesktop& desktop, CXTPPropertyGrid& model,
                                   PropertyGridView& view)
    : Peer(desktop, model, view),
      model_(model),
      view_(view),
      rows_(*new PropertyGridModel(model, &view)) {
    PropertyTree& tree = view.Tree();
    tree.setModel(&rows_);
    tree.setItemDelegate(new PropertyGridDelegate(rows_, &tree));
    tree.installEventFilter(this);
    editors_ = std::make_unique<PropertyGridEditors>(
        model, tree, rows_, [this](const std::function<void()>& action) { User(action); });
    Connect();
}

PropertyGridPeer::~PropertyGridPeer() = default;

void PropertyGridPeer::Connect() {
    PropertyTree& tree = Tree();
    connect(tree.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { TakeSelection(); });
    connect(&tree, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { TakeExpansion(index, true); });
    connect(&tree, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { TakeExpansion(index, false); });
    connect(&tree, &QTreeView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == PropertyGridModel::kValueColumn) {
            OpenCurrent({});
        }
    });
    connect(tree.verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this](int top) { User([&] { model_.UserScroll(top); }); });
}

PropertyTree& PropertyGridPeer::Tree() const {
    return view_.Tree();
}

QComboBox* PropertyGridPeer::List() const {
    return editors_->List();
}

QLineEdit* PropertyGridPeer::Editor() const {
    return editors_->Editor();
}

QRect PropertyGridPeer::CaptionPlace(const CXTPPropertyGridItem& item) const {
    const QModelIndex index = rows_.IndexOf(&item);
    Tree().scrollTo(index);
    return Tree().visualRect(index);
}

QRect PropertyGridPeer::ValuePlace(const CXTPPropertyGridItem& item) const {
    const QModelIndex index = rows_.IndexOf(&item, PropertyGridModel::kValueColumn);
    Tree().scrollTo(index);
    return Tree().visualRect(index);
}

QPoint PropertyGridPeer::MarkPlace(const CXTPPropertyGridItem& item) const {
    const QRect caption = CaptionPlace(item);
    return {caption.left() - Tree().indentation() / 2, caption.center().y()};
}

void PropertyGridPeer::Push(WindowChange change) {
    switch (change) {
        case WindowChange::Range:
            Tree().SetDivider(model_.GetViewDivider());
            break;
        case WindowChange::Items:
            ShowRows();
            break;
        case WindowChange::Cells:
            rows_.RefreshCells();
            ShowSelection();
            break;
        case WindowChange::Selection:
            ShowSelection();
            break;
        case WindowChange::Pane:
            view_.Pane().setVisible(model_.IsHelpVisible());
            break;
        case WindowChange::TopRow:
            Tree().SetTopRow(model_.GetTopIndex());
            break;
        default:
            break;
    }
    Tree().setAccessibleName(ToQt(model_.AccessibleName()));
}

void PropertyGridPeer::ShowRows() {
    const int top = model_.GetTopIndex();
    if (rows_.RefreshRows()) {
        for (const QModelIndex& index : rows_.All()) {
            if (rows_.ItemAt(index)->IsCategory()) {
                Tree().setFirstColumnSpanned(index.row(), index.parent(), true);
            }
        }
    } else {
        rows_.RefreshCells();
    }
    ShowExpansion();
    Tree().SetTopRow(top);
    ShowSelection();
}

void PropertyGridPeer::ShowExpansion() {
    for (const QModelIndex& index : rows_.All()) {
        Tree().setExpanded(index, rows_.ItemAt(index)->IsExpanded());
    }
}

void PropertyGridPeer::ShowSelection() {
    const CXTPPropertyGridItem* item = model_.GetSelectedItem();
    QItemSelectionModel& selection = *Tree().selectionModel();
    const QModelIndex index = rows_.IndexOf(item);
    if (!index.isValid()) {
        selection.clearSelection();
    } else if (!selection.isSelected(index)) {
        // What the program selects is not scrolled to: the rows stay where they are.
        const bool scrolls = Tree().hasAutoScroll();
        Tree().setAutoScroll(false);
        selection.setCurrentIndex(index,
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        Tree().setAutoScroll(scrolls);
    }
    view_.Describe(item != nullptr ? ToQt(item->GetCaption()) : QString(),
                   item != nullptr ? ToQt(item->GetDescription()) : QString());
    editors_->Show();
}

void PropertyGridPeer::TakeSelection() {
    const QModelIndexList marked = Tree().selectionModel()->selectedRows();
    if (!marked.isEmpty()) {
        User([&] { model_.UserSelect(rows_.ItemAt(marked.front())); });
    }
}

void PropertyGridPeer::TakeExpansion(const QModelIndex& index, bool expanded) {
    CXTPPropertyGridItem* item = rows_.ItemAt(index);
    if (item == nullptr || item->IsExpanded() == expanded) {
        return;
    }
    const QPointer<PropertyGridPeer> alive(this);
    User([&] { model_.UserExpand(item, expanded); });
    if (alive != nullptr && Model() != nullptr) {
        OnWindowChanged(model_, WindowChange::Items);
    }
}

bool PropertyGridPeer::OpenCurrent(const QString& typed) {
    CXTPPropertyGridItem* item = rows_.ItemAt(Tree().currentIndex());
    if (item == nullptr) {
        return false;
    }
    if (item->IsCategory()) {
        Tree().setExpanded(Tree().currentIndex(), !item->IsExpanded());
        return true;
    }
    if (item != model_.GetSelectedItem()) {
        User([&] { model_.UserSelect(item); });
    }
    return item == model_.GetSelectedItem() && editors_->Open(*item, typed);
}

bool PropertyGridPeer::eventFilter(QObject* watched, QEvent* event) {
    if (Model() == nullptr) {
        return false;
    }
    if (watched == &view_ && event->type() == QEvent::Show) {
        // Rows have no place, and nothing can be scrolled, before there is room for them.
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (Model() != nullptr) {
                    OnWindowChanged(model_, WindowChange::TopRow);
                    OnWindowChanged(model_, WindowChange::Cells);
                }
            },
            Qt::QueuedConnection);
    }
    if (watched == &Tree()) {
        if (event->type() == QEvent::KeyPress) {
            return FilterKey(static_cast<QKeyEvent&>(*event));
        }
        if (event->type() == QEvent::FocusIn) {
            FollowFocus(static_cast<QFocusEvent&>(*event));
        }
        return false;
    }
    return Peer::eventFilter(watched, event);
}

bool PropertyGridPeer::FilterKey(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
        // Never reaches the frame's button.
        OpenCurrent({});
        return true;
    }
    const QString typed = key.text();
    const bool types = !typed.isEmpty() && typed.front().isPrint() && !typed.front().isSpace() &&
                       (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    const bool opens = key.key() == Qt::Key_F2 || key.key() == Qt::Key_Space ||
                       (key.key() == Qt::Key_Down && (key.modifiers() & Qt::AltModifier) != 0);
    const CXTPPropertyGridItem* item = rows_.ItemAt(Tree().currentIndex());
    if (item == nullptr || !(opens || (types && item->TakesText()))) {
        return false;
    }
    return OpenCurrent(types ? typed : QString());
}

}  // namespace kvopt
