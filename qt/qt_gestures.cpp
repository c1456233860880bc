#include "qt/qt_gestures.h"

#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>

#include "kvopt/platform/controls.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/keys.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/qt/qt_desktop.h"
#include "kvopt/qt/qt_player.h"
#include "qt/page_view.h"
#include "qt/qt_text.h"
#include "qt/sheet_window.h"
#include "qt/worksheet_peer.h"

namespace kvopt {

namespace {

/// Where a person hits a check box or a radio button: its mark, not the empty room beside it.
QPoint HitPoint(const QWidget& widget) {
    return {widget.height() / 2, widget.height() / 2};
}

QLineEdit* FieldOf(QWidget& widget) {
    if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        return combo->lineEdit();
    }
    return qobject_cast<QLineEdit*>(&widget);
}

/// Opens the list of a combo box and takes an entry with the keyboard.
void PickEntry(QComboBox& combo, int index) {
    combo.setFocus(Qt::MouseFocusReason);
    combo.showPopup();
    QAbstractItemView* view = combo.view();
    view->setCurrentIndex(combo.model()->index(index, combo.modelColumn(), combo.rootModelIndex()));
    QTest::keyClick(view, Qt::Key_Return);
}

Qt::Key KeyOf(const KeyStroke& key) {
    switch (key.key) {
        case kKeyInsert:
            return Qt::Key_Insert;
        case kKeyDelete:
            return Qt::Key_Delete;
        case kKeyReturn:
            return Qt::Key_Return;
        case kKeyEscape:
            return Qt::Key_Escape;
        case kKeyF1:
            return Qt::Key_F1;
        default:
            return static_cast<Qt::Key>(key.key);
    }
}

Qt::KeyboardModifiers ModifiersOf(const KeyStroke& key) {
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ControlModifier, key.control);
    modifiers.setFlag(Qt::ShiftModifier, key.shift);
    modifiers.setFlag(Qt::AltModifier, key.alt);
    return modifiers;
}

}  // namespace

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
    return table != nullptr ? WorksheetPeer::Of(table) : nullptr;
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

bool QtGestures::TypeInto(QLineEdit& edit, const QString& text) {
    const QPointer<QLineEdit> alive(&edit);
    if (!edit.text().isEmpty()) {
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
    }
    for (const QChar& character : text) {
        if (alive == nullptr) {
            return false;
        }
        QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
    }
    return alive != nullptr;
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
    PickEntry(*widget, index);
    return true;
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
        return true;
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
    QWidget* target = window;
    if (const CControl* focused = dialog->GetFocusControl()) {
        if (QWidget* widget = Reach(*focused)) {
            WorksheetPeer* worksheet = WorksheetPeer::Of(widget);
            target = worksheet != nullptr && worksheet->Editor() != nullptr ? worksheet->Editor()
                                                                            : widget;
        }
    }
    if (key == KeyStroke{kKeyReturn} || key == KeyStroke{kKeyEscape}) {
        player_.KeepPage();
    }
    QTest::keyClick(target, KeyOf(key), ModifiersOf(key));
    return true;
}

bool QtGestures::ClickCell(WorksheetPeer& peer, CPoint cell, Qt::KeyboardModifiers modifiers) {
    const CRect rect = peer.CellRect(cell);
    const QPoint middle(rect.left + rect.Width() / 2, rect.top + rect.Height() / 2);
    QTest::mouseClick(peer.Table().viewport(), Qt::LeftButton, modifiers, middle);
    return true;
}

bool QtGestures::SelectCells(VirtualWorksheet& worksheet, const CellRange& cells) {
    WorksheetPeer* peer = ReachWorksheet(worksheet);
    if (peer == nullptr) {
        return false;
    }
    ClickCell(*peer, {cells.firstColumn, cells.firstRow}, Qt::NoModifier);
    if (cells.firstColumn != cells.lastColumn || cells.firstRow != cells.lastRow) {
        ClickCell(*peer, {cells.lastColumn, cells.lastRow}, Qt::ShiftModifier);
    }
    return worksheet.Selection() == cells;
}

bool QtGestures::TypeIntoCell(VirtualWorksheet& worksheet, CPoint cell, const std::string& text,
                              bool commit) {
    WorksheetPeer* peer = ReachWorksheet(worksheet);
    if (peer == nullptr) {
        return false;
    }
    ClickCell(*peer, cell, Qt::NoModifier);
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
    const WorksheetPeer* peer = ReachWorksheet(worksheet);
    QComboBox* combo = peer != nullptr ? peer->ComboOf(cell) : nullptr;
    if (combo == nullptr || !combo->isVisible() || !combo->isEnabled()) {
        return false;
    }
    PickEntry(*combo, entry);
    return true;
}

bool QtGestures::Mouse(VirtualWorksheet& worksheet, CPoint cell, CPoint pixel, int type,
                       Qt::MouseButton button) {
    WorksheetPeer* peer = ReachWorksheet(worksheet);
    if (peer == nullptr) {
        return false;
    }
    const CRect rect = peer->CellRect(cell);
    QWidget* viewport = peer->Table().viewport();
    const QPointF place(rect.left + pixel.x, rect.top + pixel.y);
    held_.setFlag(button, type == QEvent::MouseButtonPress);
    QMouseEvent event(static_cast<QEvent::Type>(type), place, viewport->mapToGlobal(place), button,
                      held_, Qt::NoModifier);
    QApplication::sendEvent(viewport, &event);
    return true;
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
    const bool pressed = Mouse(worksheet, cell, pixel, QEvent::MouseButtonPress, Qt::RightButton);
    held_ = Qt::NoButton;
    return pressed;
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
