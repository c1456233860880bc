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
    const QColor window(0x2B, 0x2B, 0x2B);
    const QColor base(0x1E, 0x1E, 0x1E);
    const QColor button(0x3A, 0x3A, 0x3A);
    const QColor text(0xE6, 0xE6, 0xE6);
    const QColor faint(0x9A, 0x9A, 0x9A);
    const QColor accent(0x2F, 0x65, 0xA7);

    QPalette palette(text, button, QColor(0x5A, 0x5A, 0x5A), QColor(0x16, 0x16, 0x16),
                     QColor(0x45, 0x45, 0x45), text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
    palette.setColor(QPalette::ToolTipBase, button);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x7F, 0xB2, 0xF0));
    palette.setColor(QPalette::LinkVisited, QColor(0xC3, 0xA6, 0xE8));
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x50, 0x50, 0x50));
    return palette;
}

}  // namespace kvopt
