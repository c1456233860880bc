#include <utility>

#include "kvopt/platform/dialog_template.h"

namespace kvopt::layout {

namespace {

LayoutItem Container(LayoutKind kind, std::vector<LayoutItem> children) {
    LayoutItem item;
    item.kind = kind;
    item.children = std::move(children);
    return item;
}

LayoutItem Control(ControlKind kind, int number, const char* label = "") {
    LayoutItem item;
    item.kind = LayoutKind::Control;
    item.control.kind = kind;
    item.control.number = number;
    item.control.label = label;
    return item;
}

}  // namespace

LayoutItem Row(std::vector<LayoutItem> children) {
    return Container(LayoutKind::Row, std::move(children));
}

LayoutItem Column(std::vector<LayoutItem> children) {
    return Container(LayoutKind::Column, std::move(children));
}

LayoutItem Grid(int columns, std::vector<LayoutItem> children) {
    LayoutItem item = Container(LayoutKind::Grid, std::move(children));
    item.columns = columns;
    return item;
}

LayoutItem Group(const char* title, std::vector<LayoutItem> children) {
    LayoutItem item = Container(LayoutKind::Group, std::move(children));
    item.title = title;
    return item;
}

LayoutItem Stack(std::vector<LayoutItem> children) {
    return Container(LayoutKind::Stack, std::move(children));
}

LayoutItem Space() {
    LayoutItem item;
    item.stretch = 1;
    return item;
}

LayoutItem Text(const char* label) {
    return Control(ControlKind::Label, -1, label);
}

LayoutItem Label(int number, const char* label) {
    return Control(ControlKind::Label, number, label);
}

LayoutItem Edit(int number) {
    return Control(ControlKind::Edit, number);
}

LayoutItem RangeEdit(int number) {
    LayoutItem item = Edit(number);
    item.control.ranged = true;
    return item;
}

LayoutItem ComboList(int number) {
    return Control(ControlKind::ComboList, number);
}

LayoutItem ComboEdit(int number) {
    return Control(ControlKind::ComboEdit, number);
}

LayoutItem ListSingle(int number) {
    return Control(ControlKind::ListSingle, number);
}

LayoutItem ListMulti(int number) {
    return Control(ControlKind::ListMulti, number);
}

LayoutItem Push(int number, const char* label) {
    return Control(ControlKind::Push, number, label);
}

LayoutItem Check(int number, const char* label) {
    return Control(ControlKind::Check, number, label);
}

LayoutItem Radio(int number, const char* label) {
    return Control(ControlKind::Radio, number, label);
}

LayoutItem Spin(int number, int buddy) {
    return Control(ControlKind::Spin, number).Buddy(buddy);
}

LayoutItem Worksheet(int number) {
    return Control(ControlKind::Worksheet, number);
}

LayoutItem PropertyGrid(int number, const char* label) {
    return Control(ControlKind::PropertyGrid, number, label);
}

LayoutItem Markup(int number, const char* label) {
    return Control(ControlKind::Markup, number, label);
}

}  // namespace kvopt::layout
