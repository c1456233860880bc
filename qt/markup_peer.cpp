#include "qt/markup_peer.h"

#include <QLabel>

#include "kvopt/platform/markup_static.h"
#include "qt/qt_text.h"

namespace kvopt {

namespace {

constexpr double kLarger = 1.15;

}  // namespace

MarkupPeer::MarkupPeer(QtDesktop& desktop, CXTPMarkupStatic& model, QLabel& label)
    : Peer(desktop, model, label), label_(label) {
    label.setTextFormat(Qt::RichText);
    label.setWordWrap(true);
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * kLarger);
    label.setFont(font);
}

void MarkupPeer::Push(WindowChange change) {
    if (change == WindowChange::Text) {
        // Titles are texts: what looks like markup in them is meant as it stands.
        const QString title = ToQt(Model()->GetText()).toHtmlEscaped();
        const QString bold = QStringLiteral("<b>%1</b>").arg(title);
        label_.setText(bold);
    }
}

}  // namespace kvopt
