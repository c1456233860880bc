#include "kvopt/platform/dialog_template.h"

#include <string>
#include <utility>

#include "kvopt/text/exceptions.h"
#include "library_templates.h"

namespace kvopt {

namespace {

void CollectControls(const LayoutItem& item, std::vector<ControlTemplate>& controls) {
    if (item.kind == LayoutKind::Control) {
        controls.push_back(item.control);
    }
    for (const LayoutItem& child : item.children) {
        CollectControls(child, controls);
    }
}

/// A copy of the item on which `change` was made.
template <class Change>
LayoutItem With(LayoutItem item, const Change& change) {
    change(item);
    return item;
}

}  // namespace

LayoutItem LayoutItem::Stretch(int share) const {
    return With(*this, [&](LayoutItem& item) { item.stretch = share; });
}

LayoutItem LayoutItem::Span(int count) const {
    return With(*this, [&](LayoutItem& item) { item.span = count; });
}

LayoutItem LayoutItem::Named(const char* accessibleName) const {
    return With(*this, [&](LayoutItem& item) { item.control.name = accessibleName; });
}

LayoutItem LayoutItem::Disabled() const {
    return With(*this, [](LayoutItem& item) { item.control.enabled = false; });
}

LayoutItem LayoutItem::Hidden() const {
    return With(*this, [](LayoutItem& item) { item.control.visible = false; });
}

LayoutItem LayoutItem::StartsGroup() const {
    return With(*this, [](LayoutItem& item) { item.control.startsGroup = true; });
}

LayoutItem LayoutItem::DigitsOnly() const {
    return With(*this, [](LayoutItem& item) { item.control.digitsOnly = true; });
}

LayoutItem LayoutItem::Wraps() const {
    return With(*this, [](LayoutItem& item) { item.control.wraps = true; });
}

LayoutItem LayoutItem::Buddy(int number) const {
    return With(*this, [&](LayoutItem& item) { item.control.buddy = number; });
}

LayoutItem LayoutItem::Entries(std::vector<const char*> texts) const {
    return With(*this, [&](LayoutItem& item) { item.control.entries = std::move(texts); });
}

std::vector<ControlTemplate> DialogTemplate::Controls() const {
    std::vector<ControlTemplate> controls;
    CollectControls(layout, controls);
    return controls;
}

TemplateCatalog::TemplateCatalog() {
    for (DialogTemplate& dialog : LibraryTemplates()) {
        Add(std::move(dialog));
    }
}

TemplateCatalog& TemplateCatalog::Instance() {
    static TemplateCatalog catalog;
    return catalog;
}

const DialogTemplate* TemplateCatalog::Find(int number) const {
    const auto found = templates_.find(number);
    return found == templates_.end() ? nullptr : &found->second;
}

std::vector<const DialogTemplate*> TemplateCatalog::All() const {
    std::vector<const DialogTemplate*> all;
    for (const auto& [number, dialog] : templates_) {
        all.push_back(&dialog);
    }
    return all;
}

void TemplateCatalog::Add(DialogTemplate dialog) {
    const int number = dialog.number;
    if (!templates_.emplace(number, std::move(dialog)).second) {
        throw InvalidArgument("TemplateCatalog::Add: there is a dialog template " +
                              std::to_string(number) + " already");
    }
}

}  // namespace kvopt
