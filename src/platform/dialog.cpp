#include "kvopt/platform/dialog.h"

#include <cstddef>
#include <string>
#include <utility>

#include "control_factory.h"
#include "kvopt/platform/button.h"
#include "kvopt/platform/data_exchange.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/platform/keys.h"
#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

CDialog::CDialog(int templateNumber, CWnd* parent)
    : CWnd(parent), templateNumber_(templateNumber) {}

CDialog::~CDialog() = default;

const DialogTemplate& CDialog::Template() const {
    const DialogTemplate* found = TemplateCatalog::Instance().Find(templateNumber_);
    if (found == nullptr) {
        throw InvalidArgument("CDialog::Template: there is no dialog template " +
                              std::to_string(templateNumber_));
    }
    return *found;
}

std::wstring CDialog::Caption() const {
    return GetText().empty() ? KvStdString::ToWide(Template().caption) : GetText();
}

void CDialog::Create() {
    if (hasWindow_) {
        return;
    }
    SetText(Caption());
    messageMap_ = MessageMap();
    GetMessageMap(messageMap_);
    MakeControls();
    hasWindow_ = true;
    try {
        OnInitDialog();
    } catch (...) {
        DestroyWindow();
        throw;
    }
}

void CDialog::DestroyWindow() {
    if (!hasWindow_) {
        return;
    }
    OnDestroyWindow();
    hasWindow_ = false;
    focus_ = nullptr;
    // Views that look at the dialog while its controls die must find none.
    std::exchange(controls_, {}).clear();
}

void CDialog::MakeControls() {
    for (const ControlTemplate& what : Template().Controls()) {
        controls_.push_back(MakeControl(*this, what));
    }
}

CControl* CDialog::GetDlgItem(int number) const {
    if (number >= 0) {
        for (const auto& control : controls_) {
            if (control->Number() == number) {
                return control.get();
            }
        }
    }
    return nullptr;
}

std::vector<CButton*> CDialog::RadioGroup(int number) const {
    std::vector<CButton*> group;
    bool found = false;
    for (const auto& control : controls_) {
        if (control->Kind() != ControlKind::Radio) {
            continue;
        }
        if (control->Template().startsGroup) {
            if (found) {
                break;
            }
            group.clear();
        }
        group.push_back(static_cast<CButton*>(control.get()));
        found = found || control->Number() == number;
    }
    return found ? group : std::vector<CButton*>();
}

int CDialog::DoModal() {
    return Desktop::Instance().RunDialog(*this);
}

void CDialog::EndDialog(int result) {
    result_ = result;
    ended_ = true;
    NotifyViews(WindowChange::Ended);
}

bool CDialog::UpdateData(bool save) {
    if (!hasWindow_) {
        return false;
    }
    CDataExchange exchange{*this, save};
    DoDataExchange(exchange);
    return true;
}

bool CDialog::OnInitDialog() {
    UpdateData(false);
    return true;
}

void CDialog::OnOK() {
    UpdateData(true);
    EndDialog(kResultOk);
}

void CDialog::OnCancel() {
    EndDialog(kResultCancel);
}

void CDialog::DoDataExchange(CDataExchange& /*exchange*/) {}

bool CDialog::PreTranslateMessage(const KeyStroke& /*key*/) {
    return false;
}

bool CDialog::OnCommand(int command) {
    if (const MessageMap::Handler* handler = messageMap_.FindCommand(command)) {
        (*handler)();
        return true;
    }
    return CWnd::OnCommand(command);
}

bool CDialog::UserKey(const KeyStroke& key) {
    return IsReachable() &&
           Desktop::Instance().RunUserAction([&] { return PreTranslateMessage(key); });
}

bool CDialog::UserOk() {
    return UserEnds(&CDialog::OnOK);
}

bool CDialog::UserCancel() {
    return UserEnds(&CDialog::OnCancel);
}

bool CDialog::UserEnds(void (CDialog::*step)()) {
    return IsReachable() && Desktop::Instance().RunUserAction([&] {
        MoveUserFocus(nullptr);
        (this->*step)();
        return true;
    });
}

void CDialog::GotoDlgCtrl(CControl* control) {
    if (control != nullptr) {
        control->SetFocus();
    }
}

void CDialog::DispatchNotification(CControl& control, Notification what) {
    if (const MessageMap::Handler* handler = messageMap_.Find(what, control.Number())) {
        (*handler)();
    }
}

void CDialog::NoteProgramFocus(CControl& control) {
    MoveUserFocus(&control);
    Desktop::Instance().Note("focus " + std::to_string(templateNumber_) + ":" +
                             std::to_string(control.Number()));
}

void CDialog::MoveUserFocus(CControl* control) {
    if (control == focus_) {
        return;
    }
    // Moved first, so that a handler that runs below and asks finds it where the user put it.
    if (CControl* before = std::exchange(focus_, control)) {
        before->OnLosesFocus();
    }
}

bool CDialog::IsReachable() const {
    return hasWindow_ && !ended_ && IsVisible() && IsEnabled();
}

void CDialog::GetMessageMap(MessageMap& /*map*/) {}

void CDialog::OnDestroyWindow() {}

}  // namespace kvopt
