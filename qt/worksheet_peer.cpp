#include "qt/worksheet_peer.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>
#include <QToolTip>
#include <algorithm>

#include "kvopt/platform/desktop.h"
#include "kvopt/platform/keys.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "qt/cell_editors.h"
#include "qt/qt_text.h"
#include "qt/worksheet_delegate.h"
#include "qt/worksheet_model.h"

namespace kvopt {

namespace {

constexpr int kNameColumn = 1;
/// Pixels that a row is higher than its text: what a drop-down list in it needs.
constexpr int kRowPadding = 9;
/// Pixels that a cell keeps free beside its text.
constexpr int kTextPadding = 4;
constexpr int kRowsAtLeast = 4;
/// Characters of the widest column that grows with its texts.
constexpr int kWidestColumn = 44;

bool IsIn(const CellRange& range, CPoint cell) {
    return cell.x >= range.firstColumn && cell.x <= range.lastColumn && cell.y >= range.firstRow &&
           cell.y <= range.lastRow;
}

}  // namespace

WorksheetPeer::WorksheetPeer(QtDesktop& desktop, VirtualWorksheet& model, QTableView& table)
    : Peer(desktop, model, table),
      model_(model),
      table_(table),
      cells_(*new WorksheetModel(model, &table)) {
    table.setModel(&cells_);
    table.setItemDelegate(new WorksheetDelegate(cells_, &table));
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setSelectionMode(QAbstractItemView::ContiguousSelection);
    table.setTabKeyNavigation(false);
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setHighlightSections(false);
    table.viewport()->setMouseTracking(true);
    table.viewport()->installEventFilter(this);
    editors_ = std::make_unique<CellEditors>(
        model, table, cells_, [this](const std::function<void()>& action) { User(action); });
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { TakeSelection(); });
}

WorksheetPeer::~WorksheetPeer() = default;

const BaseWorksheetInterface* WorksheetPeer::Content() const {
    return Model() != nullptr ? model_.Content() : nullptr;
}

QComboBox* WorksheetPeer::ComboOf(CPoint cell) const {
    return editors_->ComboOf(cell);
}

QLineEdit* WorksheetPeer::Editor() const {
    return editors_->Editor();
}

CRect WorksheetPeer::CellRect(CPoint cell) const {
    // The lines between cells belong to the cells on their left and above.
    const QModelIndex index = cells_.IndexOf(cell);
    const int left = table_.columnViewportPosition(index.column());
    const int top = table_.rowViewportPosition(index.row());
    return {left, top, left + table_.columnWidth(index.column()),
            top + table_.rowHeight(index.row())};
}

WorksheetPeer::Pointer WorksheetPeer::PointerAt(QPoint place) const {
    const QModelIndex index = table_.indexAt(place);
    if (!index.isValid()) {
        const QRect all = table_.viewport()->rect();
        return {{}, {place.x(), place.y()}, {0, 0, all.width(), all.height()}};
    }
    const CPoint cell{index.column() + 1, index.row() + 1};
    const CRect rect = CellRect(cell);
    return {
        cell, {place.x() - rect.left, place.y() - rect.top}, {0, 0, rect.Width(), rect.Height()}};
}

bool WorksheetPeer::HasSlider(CPoint cell) const {
    const VWSRenderer* renderer = Content()->GetCellRenderer(cell.x, cell.y);
    return renderer != nullptr && renderer->Slider(*Content(), cell.x, cell.y).has_value();
}

void WorksheetPeer::Push(WindowChange change) {
    if (change == WindowChange::Cells) {
        cells_.Refresh();
        if (Content() != nullptr) {
            ShowColumns();
            ShowRows();
            editors_->Show();
        }
    }
    if (change == WindowChange::Cells || change == WindowChange::Selection) {
        ShowSelection();
        table_.viewport()->update();
    }
}

void WorksheetPeer::ShowColumns() {
    const BaseWorksheetInterface& content = *Content();
    std::vector<int> widths;
    for (int column = 0; column <= content.ColumnCount(); ++column) {
        widths.push_back(content.ColumnWidth(column));
    }
    widths.push_back(content.RowCount());
    if (widths == widthsShown_) {
        return;
    }
    widthsShown_ = widths;
    const int rowHeight =
        std::max(content.DefaultRowHeight(), table_.fontMetrics().height() + kRowPadding);
    table_.verticalHeader()->setMinimumSectionSize(rowHeight);
    table_.verticalHeader()->setDefaultSectionSize(rowHeight);
    table_.verticalHeader()->setVisible(content.ColumnWidth(0) > 0);
    QHeaderView& header = *table_.horizontalHeader();
    const QAbstractItemView& texts = table_;
    const int widest = table_.fontMetrics().averageCharWidth() * kWidestColumn;
    int needed = 0;
    for (int column = 1; column <= content.ColumnCount(); ++column) {
        int width = content.ColumnWidth(column);
        bool slides = false;
        for (int row = 1; row <= content.RowCount() && !slides; ++row) {
            slides = HasSlider({column, row});
        }
        // A slider is exactly as wide as the content says, since its pixels are values. The names
        // take what is left.
        if (!slides) {
            width = std::max(width, std::min(texts.sizeHintForColumn(column - 1), widest));
        }
        header.setSectionResizeMode(column - 1, slides                  ? QHeaderView::Fixed
                                                : column == kNameColumn ? QHeaderView::Stretch
                                                                        : QHeaderView::Interactive);
        header.resizeSection(column - 1, width);
        needed += width;
    }
    const int frame = 2 * table_.frameWidth();
    table_.setMinimumSize(needed + table_.verticalScrollBar()->sizeHint().width() + frame,
                          header.sizeHint().height() + kRowsAtLeast * rowHeight + frame);
}

void WorksheetPeer::ShowRows() {
    const BaseWorksheetInterface& content = *Content();
    const auto isEmpty = [&content](int row) {
        for (int column = 1; column <= content.ColumnCount(); ++column) {
            if (!content.GetCellText(column, row).empty()) {
                return false;
            }
        }
        return true;
    };
    // Rows that are kept behind the last one with something in it belong to the content alone.
    bool isBehind = true;
    for (int row = content.RowCount(); row >= 1; --row) {
        isBehind = isBehind && isEmpty(row);
        table_.setRowHidden(row - 1, isBehind);
    }
}

void WorksheetPeer::ShowSelection() {
    const CellRange& range = model_.Selection();
    QItemSelection wanted;
    if (!range.IsEmpty() && range.lastColumn >= 1 && range.lastRow >= 1) {
        wanted.select(cells_.IndexOf({std::max(range.firstColumn, 1), std::max(range.firstRow, 1)}),
                      cells_.IndexOf({range.lastColumn, range.lastRow}));
    }
    QItemSelectionModel& selection = *table_.selectionModel();
    if (selection.selection() != wanted) {
        selection.select(wanted, QItemSelectionModel::ClearAndSelect);
    }
    // The moving end of marked cells stays where it is.
    if (!wanted.isEmpty() && !wanted.contains(selection.currentIndex())) {
        selection.setCurrentIndex(wanted.first().topLeft(), QItemSelectionModel::NoUpdate);
    }
}

void WorksheetPeer::TakeSelection() {
    const QItemSelection marked = table_.selectionModel()->selection();
    if (marked.isEmpty()) {
        return;
    }
    const QItemSelectionRange& block = marked.first();
    const CellRange range{block.left() + 1, block.top() + 1, block.right() + 1, block.bottom() + 1};
    User([&] {
        if (range.firstColumn == range.lastColumn && range.firstRow == range.lastRow) {
            model_.UserSelectCell({range.firstColumn, range.firstRow});
        } else if (model_.UserFocus()) {
            model_.SetSelection(range);
        }
    });
}

void WorksheetPeer::MarkTo(CPoint cell) {
    User([&] {
        if (model_.UserFocus()) {
            model_.SetSelection({std::min(anchor_.x, cell.x), std::min(anchor_.y, cell.y),
                                 std::max(anchor_.x, cell.x), std::max(anchor_.y, cell.y)});
        }
    });
}

bool WorksheetPeer::eventFilter(QObject* watched, QEvent* event) {
    if (Content() == nullptr) {
        return false;
    }
    if (watched == table_.viewport()) {
        return FilterViewport(event);
    }
    if (watched == &table_ && event->type() == QEvent::KeyPress &&
        FilterKey(static_cast<QKeyEvent&>(*event))) {
        return true;
    }
    return Peer::eventFilter(watched, event);
}

bool WorksheetPeer::FilterKey(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
        // Never reaches the frame's button.
        return true;
    }
    for (const auto& [sequence, command] :
         {std::pair(QKeySequence::Copy, kCommandCopy),
          std::pair(QKeySequence::Paste, kCommandPaste),
          std::pair(QKeySequence::SelectAll, kCommandSelectAll)}) {
        if (key.matches(sequence)) {
            const int chosen = command;
            User([&] { model_.UserCommand(chosen); });
            return true;
        }
    }
    const QModelIndex current = table_.currentIndex();
    const QString typed = key.text();
    const bool types = !typed.isEmpty() && typed.front().isPrint() && !typed.front().isSpace() &&
                       (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    const bool opens = key.key() == Qt::Key_F2 || key.key() == Qt::Key_Space ||
                       (key.key() == Qt::Key_Down && (key.modifiers() & Qt::AltModifier) != 0);
    return current.isValid() && (types || opens) &&
           OpenEditor({current.column() + 1, current.row() + 1}, types ? typed : QString());
}

bool WorksheetPeer::OpenEditor(CPoint cell, const QString& typed) {
    if (HasSlider(cell)) {
        // The keyboard's way to a slider.
        --cell.x;
    }
    if (QComboBox* combo = ComboOf(cell)) {
        combo->setFocus(Qt::OtherFocusReason);
        combo->showPopup();
        return true;
    }
    bool opened = false;
    User([&] { opened = model_.UserBeginEdit(cell); });
    if (opened && !typed.isEmpty() && Editor() != nullptr) {
        Editor()->setText(typed);
        User([&] { model_.UserEdit(ToUtf8(typed)); });
    }
    return opened;
}

bool WorksheetPeer::FilterViewport(QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseMove:
            MoveMouse(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseButtonPress:
            PressMouse(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseButtonRelease:
            ReleaseMouse(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseButtonDblClick:
            if (!OpenEditor(PointerAt(static_cast<QMouseEvent*>(event)->position().toPoint()).cell,
                            {})) {
                PressMouse(static_cast<QMouseEvent&>(*event));
            }
            return true;
        case QEvent::Leave:
            LeaveMouse();
            return false;
        case QEvent::ContextMenu: {
            auto* menu = static_cast<QContextMenuEvent*>(event);
            const bool byMouse = menu->reason() == QContextMenuEvent::Mouse;
            const QModelIndex current = table_.currentIndex();
            const CPoint cell = byMouse ? PointerAt(menu->pos()).cell
                                        : CPoint{current.column() + 1, current.row() + 1};
            OpenMenu(cell, byMouse ? menu->pos() : table_.visualRect(current).center());
            return true;
        }
        case QEvent::ToolTip: {
            auto* help = static_cast<QHelpEvent*>(event);
            QToolTip::showText(help->globalPos(), TipAt(PointerAt(help->pos()).cell), &table_);
            return true;
        }
        default:
            return false;
    }
}

void WorksheetPeer::MoveMouse(const QMouseEvent& event) {
    const Pointer at = PointerAt(event.position().toPoint());
    User([&] { mouseTaken_ = model_.UserMouseMove(at.pixel, at.cell, at.rect); });
    const bool slides = mouseTaken_ && Desktop::Instance().GetCursor() == Cursor::SizeHorizontal;
    table_.viewport()->setCursor(slides ? Qt::SizeHorCursor : Qt::ArrowCursor);
    const bool marks = (event.buttons() & Qt::LeftButton) != 0 && anchor_ != CPoint{};
    if (!mouseTaken_ && marks && at.cell != CPoint{}) {
        MarkTo(at.cell);
    }
}

void WorksheetPeer::PressMouse(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) {
        return;
    }
    const Pointer at = PointerAt(event.position().toPoint());
    table_.setFocus(Qt::MouseFocusReason);
    const CellRange& marked = model_.Selection();
    if ((event.modifiers() & Qt::ShiftModifier) != 0 && !marked.IsEmpty() && at.cell != CPoint{}) {
        anchor_ = {marked.firstColumn, marked.firstRow};
        MarkTo(at.cell);
        return;
    }
    anchor_ = at.cell;
    User([&] { mouseTaken_ = model_.UserPress(at.pixel, at.cell); });
}

void WorksheetPeer::ReleaseMouse(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) {
        return;
    }
    anchor_ = {};
    const Pointer at = PointerAt(event.position().toPoint());
    User([&] { mouseTaken_ = model_.UserRelease(at.pixel, at.cell); });
}

void WorksheetPeer::LeaveMouse() {
    const QRect all = table_.viewport()->rect();
    User([&] { model_.UserMouseMove({-1, -1}, {}, {0, 0, all.width(), all.height()}); });
    table_.viewport()->unsetCursor();
}

void WorksheetPeer::OpenMenu(CPoint cell, QPoint place) {
    User([&] {
        if (IsIn(model_.Selection(), cell) || cell == CPoint{} || model_.UserSelectCell(cell)) {
            model_.UserContextMenu({place.x(), place.y()});
        }
    });
}

QString WorksheetPeer::TipAt(CPoint cell) const {
    if (cell == CPoint{}) {
        return {};
    }
    std::wstring tip;
    if (model_.Content()->GetToolTipText(cell.x, cell.y, tip)) {
        return ToQt(tip);
    }
    // A text that its column cuts off can be read here.
    const QString text = ToQt(std::string_view(Content()->GetCellText(cell.x, cell.y)));
    const bool isCut =
        table_.fontMetrics().horizontalAdvance(text) + kTextPadding > CellRect(cell).Width();
    return isCut ? text : QString();
}

}  // namespace kvopt
