#include "qt/qt_gestures.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "kvopt/platform/controls.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/keys.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/qt/qt_desktop.h"
#include "kvopt/qt/qt_player.h"
#include "qt/hit_point.h"
#include "qt/page_view.h"
#include "qt/property_grid_peer.h"
#include "qt/property_grid_view.h"
#include "qt/qt_text.h"
#include "qt/sheet_window.h"
#include "qt/widget_hands.h"
#include "qt/worksheet_peer.h"

namespace kvopt {

QtGestures::QtGestures(QtDesktop& desktop, QtPlayer& player) : desktop_(desktop), player_(player) {}

ModalWindow* QtGestures::Front() const {
    return dynamic_cast<ModalWindow*>(desktop_.FrontWindow());
}

QWidget* QtGestures::Reach(const CControl& control) const {
    const ModalWindow* window = Front();
    QWidget* widget = window != nullptr ? PageView::WidgetOf(*window, control) : nullptr;
    const bool reachable = widget != nullptr && widget->isVisible() && widget->isEnabled() &&
                           QApplication::activeModalWidget() == window;
    return reachable ? widget : nullptr;
}

WorksheetPeer* QtGestures::ReachWorksheet(const VirtualWorksheet& worksheet) const {
    QWidget* table = Reach(worksheet);
    return table != nullptr ? Peer::Of<WorksheetPeer>(*table) : nullptr;
}

bool QtGestures::Focus(CControl& control) {
    QWidget* widget = Reach(control);
    if (widget == nullptr) {
        return false;
    }
    widget->window()->activateWindow();
    widget->setFocus(Qt::TabFocusReason);
    // A widget that had the keyboard all along tells nobody.
    return control.Dialog().GetFocusControl() == &control || control.UserFocus();
}

bool QtGestures::Click(CButton& button) {
    QWidget* widget = Reach(button);
    if (widget == nullptr) {
        return false;
    }
    QTest::mouseClick(widget, Qt::LeftButton, {}, HitPoint(*widget));
    return true;
}

bool QtGestures::Type(CControl& field, const std::wstring& text) {
    QWidget* widget = Reach(field);
    QLineEdit* edit = widget != nullptr ? FieldOf(*widget) : nullptr;
    return edit != nullptr && Focus(field) && TypeInto(*edit, ToQt(text));
}

bool QtGestures::Paste(CControl& field, const std::wstring& /*text*/) {
    QWidget* widget = Reach(field);
    QLineEdit* edit = widget != nullptr ? FieldOf(*widget) : nullptr;
    if (edit == nullptr || !Focus(field)) {
        return false;
    }
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    return true;
}

bool QtGestures::Pick(CComboBox& combo, int index) {
    auto* widget = qobject_cast<QComboBox*>(Reach(combo));
    if (widget == nullptr) {
        return false;
    }
    widget->setFocus(Qt::TabFocusReason);
    widget->showPopup();
    return PickEntry(*widget, index);
}

bool QtGestures::Mark(CListBox& list, const std::vector<int>& indices) {
    auto* widget = qobject_cast<QListWidget*>(Reach(list));
    if (widget == nullptr) {
        return false;
    }
    const auto click = [widget](int index, Qt::KeyboardModifiers modifiers) {
        widget->scrollToItem(widget->item(index));
        QTest::mouseClick(widget->viewport(), Qt::LeftButton, modifiers,
                          widget->visualItemRect(widget->item(index)).center());
    };
    if (indices.empty()) {
        for (const int index : list.GetSelItems()) {
            click(index, Qt::ControlModifier);
        }
        return Focus(list);
    }
    for (const int index : indices) {
        click(index, index == indices.front() ? Qt::NoModifier : Qt::ControlModifier);
    }
    return true;
}

bool QtGestures::DoubleClick(CListBox& list, int index) {
    auto* widget = qobject_cast<QListWidget*>(Reach(list));
    if (widget == nullptr) {
        return false;
    }
    widget->scrollToItem(widget->item(index));
    const QPoint place = widget->visualItemRect(widget->item(index)).center();
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(widget->viewport(), Qt::LeftButton, {}, place);
    return true;
}

bool QtGestures::Spin(CSpinButtonCtrl& spin, bool up) {
    QWidget* widget = Reach(spin);
    if (widget == nullptr) {
        return false;
    }
    for (QToolButton* arrow : widget->findChildren<QToolButton*>()) {
        if ((arrow->arrowType() == Qt::UpArrow) == up) {
            QTest::mouseClick(arrow, Qt::LeftButton);
            return true;
        }
    }
    return false;
}

bool QtGestures::SelectTab(CPropertySheet& /*sheet*/, int index) {
    auto* window = dynamic_cast<SheetWindow*>(Front());
    if (window == nullptr || window->Tabs() == nullptr) {
        return false;
    }
    player_.KeepPage();
    QTest::mouseClick(window->Tabs(), Qt::LeftButton, {}, window->Tabs()->tabRect(index).center());
    return true;
}

bool QtGestures::Press(const StepScope& /*scope*/, FrameButton button) {
    ModalWindow* window = Front();
    if (window == nullptr) {
        return false;
    }
    player_.KeepPage();
    if (button == FrameButton::Close) {
        window->close();
        return true;
    }
    QAbstractButton* widget = window->ButtonFor(button);
    if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) {
        return false;
    }
    widget->setFocus(Qt::MouseFocusReason);
    QTest::mouseClick(widget, Qt::LeftButton);
    return true;
}

bool QtGestures::PressKey(const StepScope& scope, const KeyStroke& key) {
    ModalWindow* window = Front();
    CDialog* dialog = scope.ActiveDialog();
    if (window == nullptr || dialog == nullptr) {
        return false;
    }
    QWidget* target = window->focusWidget() != nullptr ? window->focusWidget() : window;
    if (key == KeyStroke{kKeyReturn} || key == KeyStroke{kKeyEscape}) {
        player_.KeepPage();
    }
    QKeyEvent press(QEvent::KeyPress, KeyOf(key), ModifiersOf(key), TextOf(key));
    QApplication::sendEvent(target, &press);
    return press.isAccepted();
}

void QtGestures::ShowCell(const WorksheetPeer& peer, CPoint cell) {
    QTableView& table = peer.Table();
    table.scrollTo(table.model()->index(cell.y - 1, cell.x - 1));
}

/// By keyboard, as one gets to any cell without pressing on what it shows.
bool QtGestures::GoToCell(WorksheetPeer& peer, CPoint cell) {
    QTableView& table = peer.Table();
    table.setFocus(Qt::TabFocusReason);
    if (!table.currentIndex().isValid()) {
        QTest::keyClick(&table, Qt::Key_Home, Qt::ControlModifier);
    }
    const auto walk = [&](int wanted, Qt::Key forth, Qt::Key back, auto place) {
        for (int last = -1; place() != wanted && place() != last;) {
            last = place();
            QTest::keyClick(&table, last < wanted ? forth : back);
        }
    };
    walk(cell.y - 1, Qt::Key_Down, Qt::Key_Up, [&] { return table.currentIndex().row(); });
    walk(cell.x - 1, Qt::Key_Right, Qt::Key_Left, [&] { return table.currentIndex().column(); });
    const CellRange& selection = peer.Worksheet().Selection();
    if (selection != CellRange{cell.x, cell.y, cell.x, cell.y}) {
        // The keyboard was on the cell already.
        return peer.Worksheet().UserSelectCell(cell);
    }
    return peer.Worksheet().Dialog().GetFocusControl() == &peer.Worksheet() ||
           peer.Worksheet().UserFocus();
}

bool QtGestures::SelectCells(VirtualWorksheet& worksheet, const CellRange& cells) {
    WorksheetPeer* peer = ReachWorksheet(worksheet);
    if (peer == nullptr || !GoToCell(*peer, {cells.firstColumn, cells.firstRow})) {
        return false;
    }
    for (int row = cells.firstRow; row < cells.lastRow; ++row) {
        QTest::keyClick(&peer->Table(), Qt::Key_Down, Qt::ShiftModifier);
    }
    for (int column = cells.firstColumn; column < cells.lastColumn; ++column) {
        QTest::keyClick(&peer->Table(), Qt::Key_Right, Qt::ShiftModifier);
    }
    return worksheet.Selection() == cells;
}

bool QtGestures::TypeIntoCell(VirtualWorksheet& worksheet, CPoint cell, const std::string& text,
                              bool commit) {
    WorksheetPeer* peer = ReachWorksheet(worksheet);
    if (peer == nullptr || !GoToCell(*peer, cell)) {
        return false;
    }
    QTest::keyClick(&peer->Table(), Qt::Key_F2);
    if (peer->Editor() == nullptr || !TypeInto(*peer->Editor(), ToQt(std::string_view(text)))) {
        return false;
    }
    if (commit) {
        QTest::keyClick(peer->Editor(), Qt::Key_Return);
    }
    return true;
}

bool QtGestures::PasteIntoCells(VirtualWorksheet& worksheet) {
    WorksheetPeer* peer = ReachWorksheet(worksheet);
    if (peer == nullptr) {
        return false;
    }
    QTest::keyClick(&peer->Table(), Qt::Key_V, Qt::ControlModifier);
    return true;
}

bool QtGestures::PickInCell(VirtualWorksheet& worksheet, CPoint cell, int entry) {
    WorksheetPeer* peer = ReachWorksheet(worksheet);
    if (peer == nullptr || !GoToCell(*peer, cell)) {
        return false;
    }
    QComboBox* combo = peer->ComboOf(cell);
    if (combo == nullptr || !combo->isVisible() || !combo->isEnabled()) {
        return false;
    }
    QTest::keyClick(&peer->Table(), Qt::Key_F2);
    return PickEntry(*combo, entry);
}

bool QtGestures::Mouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel, int type,
                       Qt::MouseButton button) {
    WorksheetPeer* peer = ReachWorksheet(worksheet);
    if (peer == nullptr) {
        return false;
    }
    ShowCell(*peer, cell);
    const CRect rect = peer->CellRect(cell);
    QWidget* viewport = peer->Table().viewport();
    const QPointF place(rect.left + pixel.x, rect.top + pixel.y);
    held_.setFlag(button, type == QEvent::MouseButtonPress);
    QMouseEvent event(static_cast<QEvent::Type>(type), place, viewport->mapToGlobal(place), button,
                      held_, Qt::NoModifier);
    const QPointer<WorksheetPeer> alive(peer);
    QApplication::sendEvent(viewport, &event);
    return alive == nullptr || peer->MouseWasTaken();
}

bool QtGestures::MoveMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) {
    return Mouse(worksheet, cell, pixel, QEvent::MouseMove, Qt::NoButton);
}

bool QtGestures::PressMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) {
    return Mouse(worksheet, cell, pixel, QEvent::MouseButtonPress, Qt::LeftButton);
}

bool QtGestures::ReleaseMouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) {
    return Mouse(worksheet, cell, pixel, QEvent::MouseButtonRelease, Qt::LeftButton);
}

bool QtGestures::ContextMenu(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel) {
    WorksheetPeer* peer = ReachWorksheet(worksheet);
    if (peer == nullptr) {
        return false;
    }
    ShowCell(*peer, cell);
    const CRect rect = peer->CellRect(cell);
    const QPoint place(rect.left + pixel.x, rect.top + pixel.y);
    QWidget* viewport = peer->Table().viewport();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport->mapToGlobal(place));
    QApplication::sendEvent(viewport, &event);
    return true;
}

PropertyGridPeer* QtGestures::ReachGrid(const CXTPPropertyGrid& grid) const {
    QWidget* view = Reach(grid);
    return view != nullptr ? Peer::Of<PropertyGridPeer>(*view) : nullptr;
}

bool QtGestures::SelectRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row) {
    PropertyGridPeer* peer = ReachGrid(grid);
    if (peer == nullptr) {
        return false;
    }
    const QRect place = peer->CaptionPlace(row);
    if (place.isEmpty()) {
        return false;
    }
    QTest::mouseClick(peer->Tree().viewport(), Qt::LeftButton, {}, place.center());
    // A tree that had the keyboard all along tells nobody.
    return grid.GetSelectedItem() == &row &&
           (grid.Dialog().GetFocusControl() == &grid || grid.UserFocus());
}

bool QtGestures::ToggleRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row) {
    return PickInRow(grid, row, 1 - row.CurrentChoice());
}

bool QtGestures::ExpandRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row, bool expand) {
    PropertyGridPeer* peer = ReachGrid(grid);
    if (peer == nullptr) {
        return false;
    }
    const QPoint mark = peer->MarkPlace(row);
    QTest::mouseClick(peer->Tree().viewport(), Qt::LeftButton, {}, mark);
    return row.IsExpanded() == expand;
}

bool QtGestures::PickInRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row, int choice) {
    if (!SelectRow(grid, row)) {
        return false;
    }
    PropertyGridPeer* peer = ReachGrid(grid);
    if (peer == nullptr || peer->List() == nullptr) {
        return false;
    }
    const QPointer<QComboBox> list(peer->List());
    QTest::keyClick(&peer->Tree(), Qt::Key_F2);
    const bool picked = PickEntry(*list, choice);
    if (!picked && list != nullptr) {
        list->hidePopup();
    }
    return picked;
}

bool QtGestures::TypeIntoRow(CXTPPropertyGrid& grid, CXTPPropertyGridItem& row,
                             const std::wstring& text, bool commit) {
    if (!SelectRow(grid, row)) {
        return false;
    }
    PropertyGridPeer* peer = ReachGrid(grid);
    if (peer == nullptr) {
        return false;
    }
    QTest::keyClick(&peer->Tree(), Qt::Key_F2);
    if (peer->Editor() == nullptr || !TypeInto(*peer->Editor(), ToQt(text))) {
        return false;
    }
    if (commit) {
        QTest::keyClick(peer->Editor(), Qt::Key_Return);
    }
    return true;
}

bool QtGestures::Wait(unsigned milliseconds) {
    player_.Clock().Advance(milliseconds);
    return true;
}

bool QtGestures::TakePicture(const std::string& name) {
    if (QWidget* window = desktop_.FrontWindow()) {
        player_.TakePicture(*window, name);
    }
    return true;
}

}  // namespace kvopt
