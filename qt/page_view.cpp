#include "qt/page_view.h"

#include "kvopt/platform/control.h"
#include "kvopt/platform/dialog.h"
#include "qt/layout_builder.h"
#include "qt/peer.h"

namespace kvopt {

PageView::PageView(QtDesktop& desktop, CDialog& dialog, QWidget* parent)
    : QWidget(parent), dialog_(dialog) {
    LayoutBuilder(desktop, dialog, *this).Build();
}

PageView::~PageView() {
    // Widgets send events while they are destroyed, and are no longer what their peers think.
    for (QObject* child : findChildren<QObject*>()) {
        if (auto* peer = dynamic_cast<Peer*>(child)) {
            peer->LetGo();
        }
    }
}

QWidget* PageView::WidgetOf(const QWidget& window, const CControl& control) {
    for (QObject* child : window.findChildren<QObject*>()) {
        auto* peer = dynamic_cast<Peer*>(child);
        if (peer != nullptr && peer->Model() == &control) {
            return &peer->Widget();
        }
    }
    return nullptr;
}

void PageView::TakeFocus() {
    const CControl* focused = dialog_.GetFocusControl();
    if (QWidget* widget = focused != nullptr ? WidgetOf(*this, *focused) : nullptr) {
        widget->setFocus(Qt::OtherFocusReason);
        return;
    }
    for (const auto& control : dialog_.Controls()) {
        QWidget* widget = WidgetOf(*this, *control);
        if (widget != nullptr && widget->isEnabled() && control->IsVisible() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0) {
            widget->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

}  // namespace kvopt
