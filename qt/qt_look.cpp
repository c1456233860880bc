#include "kvopt/qt/qt_look.h"

#include <QApplication>
#include <QByteArray>
#include <QStyleFactory>
#include <QtGlobal>

namespace kvopt {

void QtLook::ApplyScale() const {
    if (scale != 1.0) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    }
}

void QtLook::ApplyColours() const {
    if (dark) {
        // Other styles paint parts of their own colours over a palette.
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QApplication::setPalette(DarkPalette());
    }
}

QPalette QtLook::DarkPalette() {
    // The style frames boxes and radio buttons darker than the window, so that an empty one is told
    // by its ground alone: the window must be well lighter than that.
    const QColor window(0x44, 0x44, 0x44);
    const QColor base(0x1B, 0x1B, 0x1B);
    const QColor button(0x4A, 0x4A, 0x4A);
    const QColor text(0xEC, 0xEC, 0xEC);
    const QColor faint(0xB4, 0xB4, 0xB4);
    const QColor accent(0x2F, 0x65, 0xA7);

    QPalette palette(text, button, QColor(0x6A, 0x6A, 0x6A), QColor(0x1C, 0x1C, 0x1C),
                     QColor(0x56, 0x56, 0x56), text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, QColor(0x24, 0x24, 0x24));
    palette.setColor(QPalette::ToolTipBase, button);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x94, 0xC2, 0xFA));
    palette.setColor(QPalette::LinkVisited, QColor(0xC3, 0xA6, 0xE8));
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0x36, 0x36, 0x36));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x60, 0x60, 0x60));
    return palette;
}

}  // namespace kvopt
