#include "qt/property_grid_editors.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <utility>

#include "kvopt/platform/property_grid.h"
#include "qt/property_grid_model.h"
#include "qt/property_grid_view.h"
#include "qt/qt_text.h"

namespace kvopt {

PropertyGridEditors::PropertyGridEditors(CXTPPropertyGrid& grid, PropertyTree& tree,
                                         PropertyGridModel& rows, User user)
    : grid_(grid), tree_(tree), rows_(rows), user_(std::move(user)) {
    // The widgets go where their row goes.
    const auto place = [this] { Place(); };
    connect(tree.verticalScrollBar(), &QScrollBar::valueChanged, this, place);
    connect(tree.header(), &QHeaderView::sectionResized, this, place, Qt::QueuedConnection);
    connect(&tree, &QTreeView::expanded, this, place, Qt::QueuedConnection);
    connect(&tree, &QTreeView::collapsed, this, place, Qt::QueuedConnection);
}

void PropertyGridEditors::Show() {
    ShowList();
    if (grid_.EditedItem() == nullptr) {
        CloseEditor();
    } else if (editor_ == nullptr) {
        OpenEditor();
    }
    Place();
}

void PropertyGridEditors::ShowList() {
    const CXTPPropertyGridItem* item = grid_.GetSelectedItem();
    const bool isPicked = item != nullptr && !item->GetReadOnly() && !item->Choices().empty();
    if (list_ != nullptr && (!isPicked || item != listed_)) {
        CloseList();
    }
    if (!isPicked) {
        return;
    }
    if (list_ == nullptr) {
        listed_ = item;
        list_ = new QComboBox(tree_.viewport());
        list_->setFrame(false);
        // Tab leaves the grid; F2 and Return drop the list down.
        list_->setFocusPolicy(Qt::ClickFocus);
        list_->setAccessibleName(ToQt(item->GetCaption()));
        list_->installEventFilter(this);
        connect(list_, &QComboBox::activated, this, [this](int choice) {
            user_([&] { grid_.UserPick(grid_.GetSelectedItem(), choice); });
            tree_.setFocus(Qt::OtherFocusReason);
        });
        FillList(*item);
        list_->show();
    } else {
        FillList(*item);
    }
}

void PropertyGridEditors::FillList(const CXTPPropertyGridItem& item) const {
    const QSignalBlocker blocker(list_);
    const std::vector<PropertyGridChoice> choices = item.Choices();
    auto* entries = qobject_cast<QStandardItemModel*>(list_->model());
    QStringList texts;
    for (const PropertyGridChoice& choice : choices) {
        texts << ToQt(choice.text);
    }
    QStringList shown;
    for (int entry = 0; entry < list_->count(); ++entry) {
        shown << list_->itemText(entry);
    }
    if (shown != texts) {
        list_->clear();
        list_->addItems(texts);
    }
    for (std::size_t entry = 0; entry < choices.size(); ++entry) {
        entries->item(static_cast<int>(entry))->setEnabled(choices[entry].enabled);
    }
    list_->setCurrentIndex(item.CurrentChoice());
}

void PropertyGridEditors::Dismiss(QWidget& closing) {
    closing.removeEventFilter(this);
    if (closing.hasFocus()) {
        tree_.setFocus(Qt::OtherFocusReason);
    }
    closing.hide();
    closing.deleteLater();
}

void PropertyGridEditors::CloseList() {
    if (list_ != nullptr) {
        QComboBox* closing = list_;
        list_ = nullptr;
        listed_ = nullptr;
        closing->hidePopup();
        Dismiss(*closing);
    }
}

bool PropertyGridEditors::Open(CXTPPropertyGridItem& item, const QString& typed) {
    if (list_ != nullptr && &item == grid_.GetSelectedItem()) {
        list_->setFocus(Qt::OtherFocusReason);
        list_->showPopup();
        return true;
    }
    bool opened = false;
    user_([&] { opened = grid_.UserBeginEdit(&item); });
    if (opened && !typed.isEmpty() && editor_ != nullptr) {
        editor_->setText(typed);
        user_([&] { grid_.UserEdit(typed.toStdWString()); });
    }
    return opened;
}

void PropertyGridEditors::OpenEditor() {
    const CXTPPropertyGridItem& item = *grid_.EditedItem();
    tree_.scrollTo(rows_.IndexOf(&item));
    editor_ = new QLineEdit(ToQt(grid_.EditorText()), tree_.viewport());
    editor_->setAccessibleName(ToQt(item.GetCaption()));
    editor_->setFrame(false);
    editor_->installEventFilter(this);
    connect(editor_, &QLineEdit::textEdited, this,
            [this](const QString& text) { user_([&] { grid_.UserEdit(text.toStdWString()); }); });
    Place();
    editor_->show();
    editor_->setFocus(Qt::OtherFocusReason);
    editor_->selectAll();
}

void PropertyGridEditors::CloseEditor() {
    if (editor_ != nullptr) {
        QLineEdit* closing = editor_;
        editor_ = nullptr;
        Dismiss(*closing);
    }
}

void PropertyGridEditors::Place() {
    const auto put = [this](QWidget* widget, const CXTPPropertyGridItem* item) {
        if (widget != nullptr && item != nullptr) {
            const QModelIndex cell = rows_.IndexOf(item, PropertyGridModel::kValueColumn);
            // The row's line below stays to be seen.
            widget->setGeometry(tree_.visualRect(cell).adjusted(0, 0, 0, -1));
        }
    };
    // A grid that has died shows nothing, and has no selected row to ask for.
    if (rows_.IsAlive()) {
        put(list_, grid_.GetSelectedItem());
        put(editor_, grid_.EditedItem());
    }
}

bool PropertyGridEditors::eventFilter(QObject* watched, QEvent* event) {
    // By kind first: a widget whose destructor runs is still watched, but is neither any more.
    if (qobject_cast<QComboBox*>(watched) != nullptr) {
        // A wheel over the grid scrolls it; it must not change a choice in passing.
        if (watched == list_ && event->type() == QEvent::Wheel) {
            QCoreApplication::sendEvent(tree_.viewport(), event);
            return true;
        }
        return false;
    }
    if (qobject_cast<QLineEdit*>(watched) == nullptr || watched != editor_) {
        return false;
    }
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        // Another window, or the editor's own menu, takes nothing over.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            user_([this] { grid_.UserCommit(); });
        }
        return false;
    }
    return event->type() == QEvent::KeyPress && FilterEditorKey(static_cast<QKeyEvent&>(*event));
}

bool PropertyGridEditors::FilterEditorKey(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // Never reaches the frame's button.
            user_([this] { grid_.UserCommit(); });
            return true;
        case Qt::Key_Escape:
            user_([this] { grid_.UserAbandon(); });
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            // Out of the grid, not to what happens to follow the editor.
            user_([this] { grid_.UserCommit(); });
            QCoreApplication::postEvent(&tree_, key.clone());
            return true;
        default:
            return false;
    }
}

}  // namespace kvopt
