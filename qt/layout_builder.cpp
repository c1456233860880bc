#include "qt/layout_builder.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "kvopt/platform/control.h"
#include "kvopt/platform/dialog.h"
#include "qt/group_view.h"
#include "qt/peers.h"
#include "qt/qt_text.h"
#include "qt/spin_peer.h"

namespace kvopt {

namespace {

bool IsKind(const LayoutItem& item, ControlKind kind) {
    return item.kind == LayoutKind::Control && item.control.kind == kind;
}

/// Whether an item gains by being higher than it needs to be.
bool GrowsDown(const LayoutItem& item) {
    if (item.kind == LayoutKind::Control) {
        switch (item.control.kind) {
            case ControlKind::ListSingle:
            case ControlKind::ListMulti:
            case ControlKind::Worksheet:
            case ControlKind::PropertyGrid:
                return true;
            default:
                return false;
        }
    }
    return std::any_of(item.children.begin(), item.children.end(), GrowsDown);
}

bool HasStretch(const LayoutItem& item) {
    return std::any_of(item.children.begin(), item.children.end(),
                       [](const LayoutItem& child) { return child.stretch > 0; });
}

/// Room that gives way and is taken only when nothing else wants it.
void AddRoom(QBoxLayout& box, int stretch) {
    const bool across = box.direction() == QBoxLayout::LeftToRight;
    box.addSpacerItem(new QSpacerItem(0, 0, across ? QSizePolicy::Preferred : QSizePolicy::Minimum,
                                      across ? QSizePolicy::Minimum : QSizePolicy::Preferred));
    box.setStretch(box.count() - 1, stretch);
}

}  // namespace

LayoutBuilder::LayoutBuilder(QtDesktop& desktop, CDialog& dialog, QWidget& page)
    : desktop_(desktop), dialog_(dialog), page_(page) {}

void LayoutBuilder::Build() {
    const LayoutItem& root = dialog_.Template().layout;
    LayoutItem column;
    if (root.kind != LayoutKind::Column) {
        column = layout::Column({root});
    }
    page_.setLayout(MakeColumn(root.kind == LayoutKind::Column ? root : column, page_));
    // The window has margins of its own.
    page_.layout()->setContentsMargins(0, 0, 0, 0);
    BindRadioGroups(dialog_, widgets_, page_);
    BindBuddies();
    SetTabOrder();
}

LayoutBuilder::Part LayoutBuilder::Make(const LayoutItem& item, QWidget& parent) {
    switch (item.kind) {
        case LayoutKind::Control: {
            QWidget* widget = NextControl(parent);
            if (auto* label = qobject_cast<QLabel*>(widget)) {
                labels_[&item] = label;
            }
            return {widget, nullptr};
        }
        case LayoutKind::Group:
            return {MakeGroup(item, parent), nullptr};
        case LayoutKind::Row:
            return {nullptr, MakeRow(item, parent)};
        case LayoutKind::Column:
            return {nullptr, MakeColumn(item, parent)};
        case LayoutKind::Grid:
            return {nullptr, MakeGrid(item, parent)};
        case LayoutKind::Stack:
            return {nullptr, MakeStack(item, parent)};
        case LayoutKind::Space:
            break;
    }
    return {};
}

QBoxLayout* LayoutBuilder::MakeRow(const LayoutItem& item, QWidget& parent) {
    auto* row = new QHBoxLayout;
    QHBoxLayout* joined = nullptr;
    for (const LayoutItem& child : item.children) {
        const LayoutItem* after = &child == &item.children.back() ? nullptr : &child + 1;
        const Part part = Make(child, parent);
        if (joined != nullptr && part.widget != nullptr) {
            joined->addWidget(part.widget);
            joined = nullptr;
        } else if (after != nullptr && IsKind(*after, ControlKind::Spin) &&
                   part.widget != nullptr && after->control.buddy == child.control.number) {
            // Arrows touch the edit that they step.
            joined = new QHBoxLayout;
            joined->setSpacing(0);
            joined->addWidget(part.widget);
            row->addLayout(joined, child.stretch);
        } else if (part.widget != nullptr) {
            const bool isFlat = child.kind == LayoutKind::Control && !GrowsDown(child);
            row->addWidget(part.widget, child.stretch,
                           isFlat && GrowsDown(item) ? Qt::AlignTop : Qt::Alignment());
        } else if (part.layout != nullptr) {
            row->addLayout(part.layout, child.stretch);
        } else {
            AddRoom(*row, child.stretch);
        }
    }
    if (!HasStretch(item)) {
        AddRoom(*row, 1);
    }
    return row;
}

QBoxLayout* LayoutBuilder::MakeColumn(const LayoutItem& item, QWidget& parent) {
    auto* column = new QVBoxLayout;
    const bool isButtonBar =
        std::all_of(item.children.begin(), item.children.end(), [](const LayoutItem& child) {
            return child.kind == LayoutKind::Space || IsKind(child, ControlKind::Push);
        });
    for (const LayoutItem& child : item.children) {
        const Part part = Make(child, parent);
        if (part.widget != nullptr) {
            column->addWidget(part.widget, child.stretch);
            if (IsKind(child, ControlKind::Push) && !isButtonBar) {
                column->setAlignment(part.widget, Qt::AlignLeft);
            }
        } else if (part.layout != nullptr) {
            column->addLayout(part.layout, child.stretch);
        } else {
            AddRoom(*column, child.stretch);
        }
    }
    if (!HasStretch(item) && !GrowsDown(item)) {
        AddRoom(*column, 1);
    }
    AlignLabels(item);
    return column;
}

QGridLayout* LayoutBuilder::MakeGrid(const LayoutItem& item, QWidget& parent) {
    auto* grid = new QGridLayout;
    const int columns = std::max(item.columns, 1);
    int cell = 0;
    for (const LayoutItem& child : item.children) {
        const int row = cell / columns;
        const int column = cell % columns;
        const int span = std::clamp(child.span, 1, columns - column);
        const Part part = Make(child, parent);
        if (part.widget != nullptr) {
            grid->addWidget(part.widget, row, column, 1, span);
        } else if (part.layout != nullptr) {
            grid->addLayout(part.layout, row, column, 1, span);
        }
        if (span == 1) {
            grid->setColumnStretch(column, std::max(grid->columnStretch(column), child.stretch));
        }
        if (GrowsDown(child)) {
            grid->setRowStretch(row, 1);
        }
        cell += span;
    }
    if (!HasStretch(item)) {
        grid->setColumnStretch(columns, 1);
    }
    return grid;
}

QGridLayout* LayoutBuilder::MakeStack(const LayoutItem& item, QWidget& parent) {
    auto* stack = new QGridLayout;
    for (const LayoutItem& child : item.children) {
        const std::size_t first = next_;
        const Part part = Make(child, parent);
        if (part.widget != nullptr) {
            stack->addWidget(part.widget, 0, 0);
        } else if (part.layout != nullptr) {
            stack->addLayout(part.layout, 0, 0);
        }
        // The place is as large as the largest needs, so that nothing jumps when they change.
        for (std::size_t i = first; i < next_; ++i) {
            QWidget* widget = widgets_.at(dialog_.Controls()[i].get());
            QSizePolicy policy = widget->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            widget->setSizePolicy(policy);
        }
    }
    return stack;
}

QWidget* LayoutBuilder::MakeGroup(const LayoutItem& item, QWidget& parent) {
    auto* group = new QGroupBox(ToQt(std::string_view(item.title)), &parent);
    const std::size_t first = next_;
    group->setLayout(MakeColumn(item, *group));
    std::vector<CControl*> inside;
    for (std::size_t i = first; i < next_; ++i) {
        inside.push_back(dialog_.Controls()[i].get());
    }
    new GroupView(*group, inside);
    return group;
}

QWidget* LayoutBuilder::NextControl(QWidget& parent) {
    CControl& control = *dialog_.Controls()[next_++];
    QWidget* widget = MakeWidget(desktop_, control, parent);
    widgets_[&control] = widget;
    return widget;
}

/// Rows of a column that begin with a label are one form: what follows the labels is in line.
void LayoutBuilder::AlignLabels(const LayoutItem& column) const {
    std::vector<QLabel*> first;
    int width = 0;
    for (const LayoutItem& row : column.children) {
        if (row.kind != LayoutKind::Row || row.children.size() < 2 ||
            !IsKind(row.children.front(), ControlKind::Label) ||
            row.children[1].kind != LayoutKind::Control) {
            continue;
        }
        first.push_back(labels_.at(&row.children.front()));
        width = std::max(width, first.back()->sizeHint().width());
    }
    if (first.size() > 1) {
        for (QLabel* label : first) {
            label->setMinimumWidth(width);
        }
    }
}

void LayoutBuilder::BindBuddies() {
    for (const auto& [control, widget] : widgets_) {
        CControl* buddy = dialog_.GetDlgItem(control->Template().buddy);
        if (buddy == nullptr) {
            continue;
        }
        QWidget* partner = widgets_.at(buddy);
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            label->setBuddy(partner);
        } else if (auto* arrows = Peer::Of<SpinPeer>(*widget)) {
            arrows->SetBuddy(*partner);
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
