#include "qt/combo_peer.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

#include "kvopt/platform/combo_box.h"
#include "qt/qt_text.h"

namespace kvopt {

ComboPeer::ComboPeer(QtDesktop& desktop, CComboBox& model, QComboBox& combo)
    : Peer(desktop, model, combo), model_(model), combo_(combo) {
    combo.setEditable(model.IsEditable());
    combo.setInsertPolicy(QComboBox::NoInsert);
    combo.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    combo.setMinimumContentsLength(8);
    combo.setFocusPolicy(Qt::StrongFocus);
    connect(&combo, &QComboBox::activated, this,
            [this](int index) { User([&] { model_.UserPick(index); }); });
    if (QLineEdit* field = combo.lineEdit()) {
        // Completion would type what nobody typed.
        combo.setCompleter(nullptr);
        connect(field, &QLineEdit::textEdited, this, [this](const QString& text) {
            User([&] { model_.UserEdit(text.toStdWString()); });
        });
    }
}

bool ComboPeer::eventFilter(QObject* watched, QEvent* event) {
    // A wheel over the page must not change a choice in passing.
    if (event->type() == QEvent::Wheel && !combo_.hasFocus()) {
        event->ignore();
        return true;
    }
    return Peer::eventFilter(watched, event);
}

void ComboPeer::Push(WindowChange change) {
    if (change == WindowChange::Items) {
        QStringList entries;
        for (int index = 0; index < model_.GetCount(); ++index) {
            entries << ToQt(model_.GetItemText(index));
        }
        combo_.clear();
        combo_.addItems(entries);
    }
    if (change == WindowChange::Items || change == WindowChange::Selection ||
        change == WindowChange::Text) {
        combo_.setCurrentIndex(model_.GetCurSel());
        if (combo_.isEditable() && combo_.currentText() != ToQt(model_.GetText())) {
            combo_.setEditText(ToQt(model_.GetText()));
        }
    }
}

}  // namespace kvopt
