#include "qt/cell_editors.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableView>
#include <utility>

#include "kvopt/platform/virtual_worksheet.h"
#include "qt/qt_text.h"
#include "qt/worksheet_model.h"
#include "resources/qt_texts.h"

namespace kvopt {

CellEditors::CellEditors(VirtualWorksheet& model, QTableView& table, WorksheetModel& cells,
                         User user)
    : model_(model), table_(table), cells_(cells), user_(std::move(user)) {
    // The editor goes where its cell goes.
    const auto place = [this] { PlaceEditor(); };
    connect(table.horizontalScrollBar(), &QScrollBar::valueChanged, this, place);
    connect(table.verticalScrollBar(), &QScrollBar::valueChanged, this, place);
    // The header tells of a column while it is still moving those behind it.
    connect(table.horizontalHeader(), &QHeaderView::sectionResized, this, place,
            Qt::QueuedConnection);
}

QComboBox* CellEditors::ComboOf(CPoint cell) const {
    return qobject_cast<QComboBox*>(table_.indexWidget(cells_.IndexOf(cell)));
}

void CellEditors::Show() {
    for (int row = 1; row <= cells_.rowCount(); ++row) {
        for (int column = 1; column <= cells_.columnCount(); ++column) {
            ShowCombo({column, row});
        }
    }
    const std::optional<CPoint> cell = model_.EditedCell();
    if (!cell) {
        CloseEditor();
    } else if (editor_ == nullptr) {
        OpenEditor(*cell);
    }
}

void CellEditors::ShowCombo(CPoint cell) {
    const BaseWorksheetInterface& content = *model_.Content();
    if (content.GetFieldType(cell.x, cell.y) != FieldDef::Combo) {
        if (ComboOf(cell) != nullptr) {
            table_.setIndexWidget(cells_.IndexOf(cell), nullptr);
        }
        return;
    }
    QComboBox* combo = ComboOf(cell);
    if (combo == nullptr) {
        combo = MakeCombo(cell);
    }
    QStringList entries;
    for (const std::string& entry : content.GetFieldDef(cell.x, cell.y)->ComboSettings()) {
        entries << ToQt(std::string_view(entry));
    }
    QStringList shown;
    for (int entry = 0; entry < combo->count(); ++entry) {
        shown << combo->itemText(entry);
    }
    const QSignalBlocker blocker(combo);
    if (shown != entries) {
        combo->clear();
        combo->addItems(entries);
    }
    const QString text = ToQt(std::string_view(content.GetCellText(cell.x, cell.y)));
    combo->setCurrentIndex(static_cast<int>(entries.indexOf(text)));
    combo->setAccessibleName(cells_.NameOf(cell));
}

QComboBox* CellEditors::MakeCombo(CPoint cell) {
    auto* combo = new QComboBox;
    // Tab leaves the table; F2 on the cell opens the list.
    combo->setFocusPolicy(Qt::ClickFocus);
    combo->installEventFilter(this);
    connect(combo, &QComboBox::activated, this, [this, cell](int entry) {
        user_([&] { model_.UserPick(cell, entry); });
        table_.setFocus(Qt::OtherFocusReason);
    });
    table_.setIndexWidget(cells_.IndexOf(cell), combo);
    return combo;
}

void CellEditors::OpenEditor(CPoint cell) {
    table_.scrollTo(cells_.IndexOf(cell));
    editor_ = new QLineEdit(ToQt(std::string_view(model_.EditorText())), table_.viewport());
    editor_->setAccessibleName(cells_.NameOf(cell));
    editor_->installEventFilter(this);
    connect(editor_, &QLineEdit::textEdited, this,
            [this](const QString& text) { user_([&] { model_.UserEdit(ToUtf8(text)); }); });
    PlaceEditor();
    editor_->show();
    editor_->setFocus(Qt::OtherFocusReason);
    editor_->selectAll();
}

void CellEditors::CloseEditor() {
    if (editor_ == nullptr) {
        return;
    }
    QLineEdit* closing = std::exchange(editor_, nullptr);
    closing->removeEventFilter(this);
    if (closing->hasFocus()) {
        table_.setFocus(Qt::OtherFocusReason);
    }
    closing->hide();
    closing->deleteLater();
}

void CellEditors::PlaceEditor() {
    if (editor_ == nullptr || cells_.Content() == nullptr) {
        return;
    }
    if (const std::optional<CPoint> cell = model_.EditedCell()) {
        editor_->setGeometry(table_.visualRect(cells_.IndexOf(*cell)));
    }
}

bool CellEditors::eventFilter(QObject* watched, QEvent* event) {
    if (watched != editor_) {
        // A wheel over the table scrolls it; it must not change a choice in passing.
        if (event->type() == QEvent::Wheel) {
            QCoreApplication::sendEvent(table_.viewport(), event);
            return true;
        }
        return false;
    }
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        // Another window, or the editor's own menu, takes nothing over.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            user_([this] { model_.UserCommit(); });
        }
        return false;
    }
    return event->type() == QEvent::KeyPress && FilterEditorKey(static_cast<QKeyEvent&>(*event));
}

bool CellEditors::FilterEditorKey(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // Never reaches the frame's button.
            user_([this] { model_.UserCommit(); });
            return true;
        case Qt::Key_Escape:
            user_([this] { model_.UserAbandon(); });
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            // Out of the table, not to what happens to follow the editor.
            user_([this] { model_.UserCommit(); });
            QCoreApplication::postEvent(&table_, key.clone());
            return true;
        default:
            return false;
    }
}

}  // namespace kvopt
