#pragma once

#include <QString>
#include <Qt>

class QComboBox;
class QLineEdit;
class QWidget;

namespace kvopt {

struct KeyStroke;

// What mouse and keyboard do on one widget.

/// What takes the typing in an edit or a drop-down list; null for any other widget, and for a list
/// without free text.
QLineEdit* FieldOf(QWidget& widget);

/// Clears the edit by one keystroke, then types each character. False when the edit died on the
/// way.
bool TypeInto(QLineEdit& edit, const QString& text);

/// Takes an entry of an open list with the mouse. False when the list is not open, or stays so.
bool PickEntry(QComboBox& combo, int index);

Qt::Key KeyOf(const KeyStroke& key);
QString TextOf(const KeyStroke& key);
Qt::KeyboardModifiers ModifiersOf(const KeyStroke& key);

}  // namespace kvopt
