#include "qt/layout_builder.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "kvopt/platform/control.h"
#include "kvopt/platform/dialog.h"
#include "qt/peers.h"
#include "qt/qt_text.h"

namespace kvopt {

LayoutBuilder::LayoutBuilder(QtDesktop& desktop, CDialog& dialog, QWidget& page)
    : desktop_(desktop), dialog_(dialog), page_(page) {}

void LayoutBuilder::Build() {
    const LayoutItem& root = dialog_.Template().layout;
    if (QLayout* layout = MakeLayout(root, page_)) {
        page_.setLayout(layout);
    } else {
        auto* column = new QVBoxLayout(&page_);
        AddToBox(*column, root, page_);
    }
    BindRadioGroups(dialog_, widgets_, page_);
    BindLabels();
    SetTabOrder();
}

QLayout* LayoutBuilder::MakeLayout(const LayoutItem& item, QWidget& parent) {
    switch (item.kind) {
        case LayoutKind::Row:
        case LayoutKind::Column:
            return MakeBox(item, parent);
        case LayoutKind::Grid:
        case LayoutKind::Stack:
            return MakeGrid(item, parent);
        case LayoutKind::Group:
        case LayoutKind::Control:
        case LayoutKind::Space:
            break;
    }
    return nullptr;
}

QBoxLayout* LayoutBuilder::MakeBox(const LayoutItem& item, QWidget& parent) {
    QBoxLayout* box =
        item.kind == LayoutKind::Row ? static_cast<QBoxLayout*>(new QHBoxLayout) : new QVBoxLayout;
    for (const LayoutItem& child : item.children) {
        AddToBox(*box, child, parent);
    }
    return box;
}

void LayoutBuilder::AddToBox(QBoxLayout& box, const LayoutItem& item, QWidget& parent) {
    if (item.kind == LayoutKind::Space) {
        box.addStretch(item.stretch > 0 ? item.stretch : 1);
    } else if (item.kind == LayoutKind::Control) {
        box.addWidget(NextControl(parent), item.stretch);
    } else if (item.kind == LayoutKind::Group) {
        box.addWidget(MakeGroup(item, parent), item.stretch);
    } else {
        box.addLayout(MakeLayout(item, parent), item.stretch);
    }
}

QLayout* LayoutBuilder::MakeGrid(const LayoutItem& item, QWidget& parent) {
    auto* grid = new QGridLayout;
    const bool stacked = item.kind == LayoutKind::Stack;
    const int columns = item.columns > 0 ? item.columns : 1;
    int cell = 0;
    for (const LayoutItem& child : item.children) {
        const int row = stacked ? 0 : cell / columns;
        const int column = stacked ? 0 : cell % columns;
        const int span = stacked ? 1 : child.span;
        if (child.kind == LayoutKind::Control) {
            grid->addWidget(NextControl(parent), row, column, 1, span);
        } else if (child.kind == LayoutKind::Group) {
            grid->addWidget(MakeGroup(child, parent), row, column, 1, span);
        } else if (QLayout* inner = MakeLayout(child, parent)) {
            grid->addLayout(inner, row, column, 1, span);
        }
        if (child.stretch > 0 && span == 1) {
            grid->setColumnStretch(column, child.stretch);
        }
        cell += span;
    }
    return grid;
}

QWidget* LayoutBuilder::MakeGroup(const LayoutItem& item, QWidget& parent) {
    auto* group = new QGroupBox(ToQt(std::string_view(item.title)), &parent);
    auto* column = new QVBoxLayout(group);
    for (const LayoutItem& child : item.children) {
        AddToBox(*column, child, *group);
    }
    return group;
}

QWidget* LayoutBuilder::NextControl(QWidget& parent) {
    CControl& control = *dialog_.Controls()[next_++];
    QWidget* widget = MakeWidget(desktop_, control, parent);
    widgets_[&control] = widget;
    return widget;
}

void LayoutBuilder::BindLabels() {
    for (const auto& [control, widget] : widgets_) {
        auto* label = qobject_cast<QLabel*>(widget);
        CControl* buddy = label != nullptr && control->Template().buddy != -1
                              ? dialog_.GetDlgItem(control->Template().buddy)
                              : nullptr;
        if (buddy != nullptr) {
            label->setBuddy(widgets_.at(buddy));
        }
    }
}

void LayoutBuilder::SetTabOrder() {
    QWidget* before = nullptr;
    for (const auto& control : dialog_.Controls()) {
        QWidget* widget = widgets_.at(control.get());
        if (widget->focusPolicy() == Qt::NoFocus) {
            continue;
        }
        if (before != nullptr) {
            QWidget::setTabOrder(before, widget);
        }
        before = widget;
    }
}

}  // namespace kvopt
