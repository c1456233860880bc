#include "kvopt/platform/control.h"

#include "kvopt/platform/desktop.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/mnemonic.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

namespace {

bool ShowsItsLabel(ControlKind kind) {
    return kind == ControlKind::Label || kind == ControlKind::Push || kind == ControlKind::Check ||
           kind == ControlKind::Radio || kind == ControlKind::Markup;
}

}  // namespace

CControl::CControl(CDialog& dialog, const ControlTemplate& what)
    : CWnd(&dialog), dialog_(dialog), what_(what) {
    StoreText(KvStdString::ToWide(what.label));
    EnableWindow(what.enabled);
    ShowWindow(what.visible);
}

std::wstring CControl::AccessibleName() const {
    if (*what_.name != '\0') {
        return KvStdString::ToWide(what_.name);
    }
    if (ShowsItsLabel(Kind())) {
        return WithoutMnemonic(GetText());
    }
    for (const auto& other : dialog_.Controls()) {
        if (Number() >= 0 && other->Kind() == ControlKind::Label &&
            other->Template().buddy == Number()) {
            return WithoutMnemonic(other->GetText());
        }
    }
    return {};
}

void CControl::SetFocus() {
    dialog_.NoteProgramFocus(*this);
    NotifyViews(WindowChange::Focus);
}

bool CControl::IsUsable() const {
    return IsVisible() && IsEnabled() && dialog_.IsReachable();
}

bool CControl::UserFocus() {
    if (Kind() == ControlKind::Label) {
        return false;
    }
    return Act([] { return true; });
}

void CControl::OnLosesFocus() {}

bool CControl::Act(const std::function<bool()>& action) {
    if (!IsUsable()) {
        return false;
    }
    return Desktop::Instance().RunUserAction([&] {
        dialog_.MoveUserFocus(this);
        return IsUsable() && action();
    });
}

void CControl::Notify(Notification what) {
    dialog_.DispatchNotification(*this, what);
}

}  // namespace kvopt
