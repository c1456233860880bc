#include "qt/widget_hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>

#include "kvopt/platform/keys.h"

namespace kvopt {

QLineEdit* FieldOf(QWidget& widget) {
    if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        return combo->lineEdit();
    }
    return qobject_cast<QLineEdit*>(&widget);
}

bool PickEntry(QComboBox& combo, int index) {
    QAbstractItemView* list = combo.view();
    if (!list->isVisible()) {
        return false;
    }
    const QModelIndex entry =
        combo.model()->index(index, combo.modelColumn(), combo.rootModelIndex());
    list->scrollTo(entry);
    const QPoint place = list->visualRect(entry).center();
    // A list that the pointer never entered takes the release of the press that opened it.
    QMouseEvent enter(QEvent::MouseMove, place, list->viewport()->mapToGlobal(place), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &enter);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    return !list->isVisible();
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

QString TextOf(const KeyStroke& key) {
    const bool isCharacter = key.key >= '0' && key.key <= 'Z' && !key.control && !key.alt;
    const QString upper(QChar(static_cast<char16_t>(key.key)));
    return !isCharacter ? QString() : key.shift ? upper : upper.toLower();
}

Qt::KeyboardModifiers ModifiersOf(const KeyStroke& key) {
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ControlModifier, key.control);
    modifiers.setFlag(Qt::ShiftModifier, key.shift);
    modifiers.setFlag(Qt::AltModifier, key.alt);
    return modifiers;
}

bool TypeInto(QLineEdit& edit, const QString& text) {
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

}  // namespace kvopt
