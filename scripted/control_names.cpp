#include "scripted/control_names.h"

#include <algorithm>

#include "kvopt/platform/controls.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/mnemonic.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/text/kv_std_string.h"
#include "scripted/script_lexer.h"

namespace kvopt {

namespace {

/// Texts that change while the page is open name a control as well as its template does.
bool ShowsItsLabel(ControlKind kind) {
    return kind == ControlKind::Label || kind == ControlKind::Push || kind == ControlKind::Check ||
           kind == ControlKind::Radio;
}

std::vector<std::string> NamesOf(const CControl& control) {
    std::vector<std::string> names;
    const auto add = [&names](std::string name) {
        if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(std::move(name));
        }
    };
    add(KvStdString::ToUtf8(control.AccessibleName()));
    if (ShowsItsLabel(control.Kind())) {
        add(PlainLabel(control.GetText()));
    }
    return names;
}

CControl* BuddyOf(const CDialog& dialog, const CControl& control) {
    return control.Kind() == ControlKind::Label && control.Template().buddy >= 0
               ? dialog.GetDlgItem(control.Template().buddy)
               : nullptr;
}

}  // namespace

std::string PlainLabel(std::wstring_view label) {
    return KvStdString::ToUtf8(WithoutMnemonic(label));
}

std::vector<CControl*> ControlsNamed(const CDialog& dialog, const std::string& name) {
    const std::string stripped = PlainLabel(KvStdString::ToWide(name));
    std::vector<CControl*> bearers;
    const auto add = [&bearers](CControl* control) {
        if (std::find(bearers.begin(), bearers.end(), control) == bearers.end()) {
            bearers.push_back(control);
        }
    };
    for (const auto& control : dialog.Controls()) {
        CControl* buddy = BuddyOf(dialog, *control);
        for (const std::string& its : NamesOf(*control)) {
            const bool isIts = its == name || its == stripped;
            if (isIts) {
                add(control.get());
            }
            if (buddy != nullptr && (isIts || its == name + ':' || its == stripped + ':')) {
                add(buddy);
            }
        }
    }
    return bearers;
}

std::vector<std::string> ControlNames(const CDialog& dialog) {
    std::vector<std::string> names;
    for (const auto& control : dialog.Controls()) {
        for (const std::string& name : NamesOf(*control)) {
            names.push_back(name);
        }
    }
    return names;
}

std::string TitleOf(const CDialog& dialog) {
    const auto* page = dynamic_cast<const CPropertyPage*>(&dialog);
    return KvStdString::ToUtf8(page != nullptr ? page->PageTitle() : dialog.Caption());
}

std::string DescribeControl(const CControl& control) {
    const std::vector<std::string> names = NamesOf(control);
    const std::string number = "control " + std::to_string(control.Number());
    return names.empty() ? number : number + ' ' + QuoteForScript(names.front());
}

}  // namespace kvopt
