#include "qt/worksheet_peer.h"

#include <QComboBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTableView>
#include <QToolTip>
#include <algorithm>

#include "kvopt/platform/virtual_worksheet.h"
#include "qt/qt_text.h"
#include "qt/worksheet_delegate.h"
#include "qt/worksheet_model.h"

namespace kvopt {

namespace {

constexpr int kNameColumn = 1;

CPoint ToPoint(QPoint point) {
    return {point.x(), point.y()};
}

}  // namespace

WorksheetPeer::WorksheetPeer(QtDesktop& desktop, VirtualWorksheet& model, QTableView& table)
    : Peer(desktop, model, table),
      model_(model),
      table_(table),
      viewport_(table.viewport()),
      cells_(*new WorksheetModel(model, &table)),
      delegate_(*new WorksheetDelegate(model, &table)) {
    table.setModel(&cells_);
    table.setItemDelegate(&delegate_);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setTabKeyNavigation(false);
    table.verticalHeader()->hide();
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setHighlightSections(false);
    table.setMouseTracking(true);
    table.viewport()->setMouseTracking(true);
    table.viewport()->installEventFilter(this);
    table.setMinimumHeight(table.fontMetrics().height() * 8);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { TakeSelection(); });
}

WorksheetPeer* WorksheetPeer::Of(QWidget* table) {
    for (QObject* child : table->children()) {
        if (auto* peer = dynamic_cast<WorksheetPeer*>(child)) {
            return peer;
        }
    }
    return nullptr;
}

CPoint WorksheetPeer::CellAt(QPoint pixel) const {
    const QModelIndex index = table_.indexAt(pixel);
    return index.isValid() ? CPoint{index.column() + 1, index.row() + 1} : CPoint{};
}

CRect WorksheetPeer::CellRect(CPoint cell) const {
    const QRect rect = table_.visualRect(cells_.index(cell.y - 1, cell.x - 1));
    return {rect.left(), rect.top(), rect.right() + 1, rect.bottom() + 1};
}

QComboBox* WorksheetPeer::ComboOf(CPoint cell) const {
    return qobject_cast<QComboBox*>(table_.indexWidget(cells_.index(cell.y - 1, cell.x - 1)));
}

void WorksheetPeer::Push(WindowChange change) {
    if (change == WindowChange::Cells) {
        cells_.Refresh();
        ShowColumns();
        ShowCombos();
        ShowEditor();
        ShowSelection();
        table_.viewport()->update();
    } else if (change == WindowChange::Selection) {
        ShowSelection();
    }
}

void WorksheetPeer::ShowColumns() {
    const BaseWorksheetInterface* content = model_.Content();
    if (content == nullptr) {
        return;
    }
    const int rowHeight = std::max(content->DefaultRowHeight(), table_.fontMetrics().height() + 10);
    table_.verticalHeader()->setDefaultSectionSize(rowHeight);
    if (widthsShown_) {
        return;
    }
    widthsShown_ = true;
    QHeaderView& header = *table_.horizontalHeader();
    for (int column = 1; column <= content->ColumnCount(); ++column) {
        // The names take what is left; a slider is exactly as wide as the content says, since
        // values are told in its pixels.
        header.setSectionResizeMode(
            column - 1, column == kNameColumn ? QHeaderView::Stretch : QHeaderView::Interactive);
        if (column != kNameColumn) {
            // The grid line takes one pixel of the section.
            const int line = table_.showGrid() ? 1 : 0;
            header.resizeSection(column - 1, content->ColumnWidth(column) + line);
        }
    }
}

void WorksheetPeer::ShowCombos() {
    const BaseWorksheetInterface* content = model_.Content();
    for (int row = 1; row <= cells_.rowCount(); ++row) {
        for (int column = 1; column <= cells_.columnCount(); ++column) {
            const QModelIndex index = cells_.index(row - 1, column - 1);
            if (content->GetFieldType(column, row) != FieldDef::Combo) {
                if (table_.indexWidget(index) != nullptr) {
                    table_.setIndexWidget(index, nullptr);
                }
                continue;
            }
            QComboBox* combo = ComboOf({column, row});
            if (combo == nullptr) {
                combo = new QComboBox;
                table_.setIndexWidget(index, combo);
                const CPoint cell{column, row};
                connect(combo, &QComboBox::activated, this,
                        [this, cell](int entry) { User([&] { model_.UserPick(cell, entry); }); });
            }
            const QSignalBlocker blocker(combo);
            QStringList entries;
            for (const std::string& entry : content->GetFieldDef(column, row)->ComboSettings()) {
                entries << ToQt(std::string_view(entry));
            }
            QStringList shown;
            for (int entry = 0; entry < combo->count(); ++entry) {
                shown << combo->itemText(entry);
            }
            if (shown != entries) {
                combo->clear();
                combo->addItems(entries);
            }
            combo->setCurrentIndex(
                static_cast<int>(entries.indexOf(ToQt(content->GetCellText(column, row)))));
            combo->setAccessibleName(ToQt(content->GetCellText(kNameColumn, row)));
        }
    }
}

void WorksheetPeer::ShowEditor() {
    const std::optional<CPoint> cell = model_.EditedCell();
    if (!cell) {
        if (editor_ != nullptr) {
            QLineEdit* closing = editor_;
            editor_ = nullptr;
            closing->removeEventFilter(this);
            const bool hadFocus = closing->hasFocus();
            closing->hide();
            closing->deleteLater();
            if (hadFocus) {
                table_.setFocus(Qt::OtherFocusReason);
            }
        }
        return;
    }
    if (editor_ != nullptr) {
        return;
    }
    editor_ = new QLineEdit(ToQt(model_.EditorText()), table_.viewport());
    editor_->setAccessibleName(ToQt(model_.Content()->GetCellText(kNameColumn, cell->y)));
    editor_->setGeometry(table_.visualRect(cells_.index(cell->y - 1, cell->x - 1)));
    editor_->installEventFilter(this);
    connect(editor_, &QLineEdit::textEdited, this,
            [this](const QString& text) { User([&] { model_.UserEdit(ToUtf8(text)); }); });
    editor_->show();
    editor_->setFocus(Qt::OtherFocusReason);
    editor_->selectAll();
}

void WorksheetPeer::ShowSelection() {
    const CellRange& range = model_.Selection();
    QItemSelection wanted;
    if (!range.IsEmpty() && range.lastColumn >= 1 && range.lastRow >= 1) {
        wanted.select(
            cells_.index(std::max(range.firstRow, 1) - 1, std::max(range.firstColumn, 1) - 1),
            cells_.index(range.lastRow - 1, range.lastColumn - 1));
    }
    const QSignalBlocker blocker(table_.selectionModel());
    table_.selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
    if (!wanted.isEmpty()) {
        table_.selectionModel()->setCurrentIndex(wanted.first().topLeft(),
                                                 QItemSelectionModel::NoUpdate);
    }
    table_.viewport()->update();
}

void WorksheetPeer::TakeSelection() {
    const QModelIndexList marked = table_.selectionModel()->selectedIndexes();
    if (marked.isEmpty()) {
        return;
    }
    CellRange range{marked.first().column() + 1, marked.first().row() + 1,
                    marked.first().column() + 1, marked.first().row() + 1};
    for (const QModelIndex& index : marked) {
        range.firstColumn = std::min(range.firstColumn, index.column() + 1);
        range.firstRow = std::min(range.firstRow, index.row() + 1);
        range.lastColumn = std::max(range.lastColumn, index.column() + 1);
        range.lastRow = std::max(range.lastRow, index.row() + 1);
    }
    User([&] {
        if (model_.UserSelectCell({range.firstColumn, range.firstRow})) {
            model_.SetSelection(range);
        }
    });
}

bool WorksheetPeer::eventFilter(QObject* watched, QEvent* event) {
    if (Model() == nullptr) {
        return false;
    }
    if (editor_ != nullptr && watched == editor_) {
        return FilterEditor(event);
    }
    if (watched == viewport_) {
        return FilterViewport(event);
    }
    return FilterTableKey(event) || Peer::eventFilter(watched, event);
}

bool WorksheetPeer::FilterEditor(QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        User([&] { model_.UserCommit(); });
        return false;
    }
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // Never reaches the frame's button.
            User([&] { model_.UserCommit(); });
            return true;
        case Qt::Key_Escape:
            User([&] { model_.UserAbandon(); });
            return true;
        default:
            return false;
    }
}

bool WorksheetPeer::FilterTableKey(QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    auto* key = static_cast<QKeyEvent*>(event);
    const CellRange& range = model_.Selection();
    const CPoint cell{range.firstColumn, range.firstRow};
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        return true;
    }
    const QString typed = key->text();
    const bool types = !typed.isEmpty() && typed.front().isPrint() &&
                       (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    if (range.IsEmpty() || (key->key() != Qt::Key_F2 && !types)) {
        return false;
    }
    if (QComboBox* combo = ComboOf(cell)) {
        combo->setFocus(Qt::ShortcutFocusReason);
        combo->showPopup();
        return true;
    }
    bool opened = false;
    User([&] { opened = model_.UserBeginEdit(cell); });
    if (opened && types && editor_ != nullptr) {
        editor_->setText(typed);
        User([&] { model_.UserEdit(ToUtf8(typed)); });
    }
    return opened;
}

bool WorksheetPeer::FilterViewport(QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseMove: {
            const QPoint pixel = static_cast<QMouseEvent*>(event)->position().toPoint();
            const CPoint cell = CellAt(pixel);
            // Told from the cell's own corner, so that a place in the cell is the same number
            // wherever the cell stands.
            const CRect place = cell == CPoint{} ? CRect{} : CellRect(cell);
            const CPoint inCell{pixel.x() - place.left, pixel.y() - place.top};
            bool taken = false;
            User([&] {
                taken = model_.UserMouseMove(inCell, cell, {0, 0, place.Width(), place.Height()});
            });
            return taken;
        }
        case QEvent::MouseButtonPress: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            const CPoint pixel = ToPoint(mouse->position().toPoint());
            const CPoint cell = CellAt(mouse->position().toPoint());
            if (mouse->button() == Qt::RightButton) {
                const CellRange& marked = model_.Selection();
                const bool isMarked = cell.x >= marked.firstColumn && cell.x <= marked.lastColumn &&
                                      cell.y >= marked.firstRow && cell.y <= marked.lastRow;
                User([&] {
                    if (isMarked || model_.UserSelectCell(cell)) {
                        model_.UserContextMenu(pixel);
                    }
                });
                return true;
            }
            table_.setFocus(Qt::MouseFocusReason);
            User([&] { model_.UserPress(pixel, cell); });
            // A drag over the table marks cells, unless it moves a slider.
            return cell != CPoint{} && model_.Content() != nullptr &&
                   model_.Content()
                       ->GetCellRenderer(cell.x, cell.y)
                       ->Slider(*model_.Content(), cell.x, cell.y)
                       .has_value();
        }
        case QEvent::MouseButtonRelease: {
            const QPoint pixel = static_cast<QMouseEvent*>(event)->position().toPoint();
            bool taken = false;
            User([&] { taken = model_.UserRelease(ToPoint(pixel), CellAt(pixel)); });
            return taken;
        }
        case QEvent::MouseButtonDblClick: {
            const CPoint cell = CellAt(static_cast<QMouseEvent*>(event)->position().toPoint());
            bool opened = false;
            User([&] { opened = model_.UserBeginEdit(cell); });
            return opened;
        }
        case QEvent::ToolTip: {
            auto* help = static_cast<QHelpEvent*>(event);
            const CPoint cell = CellAt(help->pos());
            std::wstring tip;
            if (model_.Content() != nullptr && cell != CPoint{} &&
                model_.Content()->GetToolTipText(cell.x, cell.y, tip)) {
                QToolTip::showText(help->globalPos(), ToQt(tip), &table_);
            } else {
                QToolTip::hideText();
            }
            return true;
        }
        default:
            return false;
    }
}

}  // namespace kvopt
