#include "kvopt/platform/property_sheet.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include "kvopt/platform/desktop.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/platform/transcript.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {

namespace {

constexpr unsigned kLastStart = std::numeric_limits<int>::max();

}  // namespace

CPropertySheet::CPropertySheet(const std::wstring& caption, CWnd* parent, unsigned startPage)
    : CWnd(parent), start_(static_cast<int>(std::min(startPage, kLastStart))) {
    StoreText(caption);
}

CPropertySheet::~CPropertySheet() {
    for (CPropertyPage* page : pages_) {
        page->sheet_ = nullptr;
        page->SetParent(nullptr);
    }
}

void CPropertySheet::AddPage(CPropertyPage* page) {
    if (page == nullptr || page->sheet_ != nullptr || running_) {
        throw InvalidArgument(std::string("CPropertySheet::AddPage: ") +
                              (page == nullptr ? "there is no page"
                               : running_      ? "the sheet is running"
                                               : "the page stands in a sheet already"));
    }
    page->sheet_ = this;
    page->SetParent(this);
    pages_.push_back(page);
}

void CPropertySheet::RemovePage(CPropertyPage* page) {
    const int index = GetPageIndex(page);
    std::erase(pages_, page);
    if (index == active_) {
        active_ = -1;
    } else if (index < active_) {
        --active_;
    }
}

CPropertyPage* CPropertySheet::GetPage(int index) const {
    return index >= 0 && index < GetPageCount() ? pages_[static_cast<std::size_t>(index)] : nullptr;
}

int CPropertySheet::GetPageIndex(const CPropertyPage* page) const {
    const auto found = std::find(pages_.begin(), pages_.end(), page);
    return found == pages_.end() ? -1 : static_cast<int>(found - pages_.begin());
}

CPropertyPage* CPropertySheet::GetActivePage() const {
    return GetPage(GetActiveIndex());
}

int CPropertySheet::GetActiveIndex() const {
    return active_ >= 0 || running_ ? active_ : std::min(start_, GetPageCount() - 1);
}

bool CPropertySheet::SetActivePage(CPropertyPage* page) {
    const int index = GetPageIndex(page);
    if (index < 0) {
        return false;
    }
    if (!running_) {
        start_ = index;
        return true;
    }
    return ChangePage(index);
}

void CPropertySheet::SetWizardButtons(unsigned long buttons) {
    if (wizard_) {
        PostStep("", [this, buttons] {
            buttonsSet_ = true;
            ApplyButtons(buttons);
        });
    }
}

int CPropertySheet::DoModal() {
    return Desktop::Instance().RunSheet(*this);
}

void CPropertySheet::EndDialog(int result) {
    result_ = result;
    ended_ = true;
    NotifyViews(WindowChange::Ended);
}

bool CPropertySheet::OnInitDialog() {
    return true;
}

bool CPropertySheet::ApplyAllNow() {
    if (!Leave()) {
        return false;
    }
    for (int i = 0; i < GetPageCount(); ++i) {
        CPropertyPage& page = *GetPage(i);
        if (page.HasWindow() && !page.OnApply()) {
            return false;
        }
    }
    return true;
}

void CPropertySheet::OnOK() {
    if (ApplyAllNow() && !ended_) {
        EndDialog(kResultOk);
    }
}

void CPropertySheet::OnApply() {
    if (ApplyAllNow() && running_ && !ended_) {
        BringUp(active_, 1);
    }
}

void CPropertySheet::OnCancel() {
    for (int i = 0; i < GetPageCount(); ++i) {
        if (GetPage(i)->HasWindow()) {
            GetPage(i)->OnCancel();
        }
    }
    EndDialog(kResultCancel);
}

bool CPropertySheet::IsApplyEnabled() const {
    return hasApply_ && std::any_of(pages_.begin(), pages_.end(),
                                    [](const CPropertyPage* page) { return page->IsModified(); });
}

void CPropertySheet::BeginRun() {
    const int first = std::min(start_, GetPageCount() - 1);
    running_ = true;
    ended_ = false;
    result_ = kResultCancel;
    buttons_ = 0;
    buttonsSet_ = false;
    OnInitDialog();
    // The sheet's own opening may have brought up a page already.
    if (active_ < 0) {
        BringUp(first, 1);
    }
}

void CPropertySheet::EndRun() {
    for (int i = 0; i < GetPageCount(); ++i) {
        GetPage(i)->DestroyWindow();
    }
    running_ = false;
    active_ = -1;
}

bool CPropertySheet::ChangePage(int index) {
    if (index != active_) {
        const int before = active_;
        // A step that changes the page itself has the last word.
        if (!Leave() || active_ != before || ended_) {
            return active_ == index;
        }
        BringUp(index, index < before ? -1 : 1);
    }
    return active_ == index;
}

void CPropertySheet::BringUp(int index, int direction) {
    for (; GetPage(index) != nullptr && !ended_; index += direction) {
        CPropertyPage& page = *GetPage(index);
        active_ = index;
        Desktop::Instance().Note("page " + std::to_string(page.TemplateNumber()) + " " +
                                 Transcript::Quote(page.PageTitle()));
        ApplyDefaultButtons();
        page.Create();
        if (page.OnSetActive() || active_ != index) {
            break;
        }
    }
    NotifyViews(WindowChange::ActivePage);
}

bool CPropertySheet::Leave() {
    CPropertyPage* page = GetPage(active_);
    return page == nullptr || page->OnKillActive();
}

int CPropertySheet::IndexOfTemplate(int number) const {
    for (int i = 0; i < GetPageCount(); ++i) {
        if (GetPage(i)->TemplateNumber() == number) {
            return i;
        }
    }
    return -1;
}

void CPropertySheet::ApplyButtons(unsigned long buttons) {
    std::string line = "buttons";
    line += (buttons & kWizardBack) != 0 ? " back" : "";
    line += (buttons & kWizardNext) != 0 ? " next" : "";
    line += (buttons & kWizardFinish) != 0 ? " finish" : "";
    Desktop::Instance().Note(line);
    if (buttons != buttons_) {
        buttons_ = buttons;
        NotifyViews(WindowChange::Buttons);
    }
}

void CPropertySheet::ApplyDefaultButtons() {
    if (!wizard_ || buttonsSet_) {
        return;
    }
    const unsigned long buttons = active_ == 0 ? kWizardNext : kWizardBack | kWizardNext;
    if (buttons != buttons_) {
        ApplyButtons(buttons);
    }
}

bool CPropertySheet::IsReachable() const {
    return running_ && !ended_ && IsVisible() && IsEnabled() && GetPage(active_) != nullptr;
}

bool CPropertySheet::Press(bool offered, const std::function<void()>& step) {
    if (!offered || !IsReachable()) {
        return false;
    }
    return Desktop::Instance().RunUserAction([&] {
        // A press outside the page: an open cell editor commits.
        GetPage(active_)->MoveUserFocus(nullptr);
        if (IsReachable()) {
            step();
        }
        return true;
    });
}

void CPropertySheet::FollowWizardStep(int asked, int answer, int neighbour) {
    const int index = answer == 0 ? neighbour : IndexOfTemplate(answer);
    // A step that changes the page itself has the last word; -1 names no page.
    if (!ended_ && active_ == asked && GetPage(index) != nullptr) {
        ChangePage(index);
    }
}

bool CPropertySheet::UserNext() {
    return Press(wizard_ && (buttons_ & kWizardNext) != 0, [this] {
        const int asked = active_;
        FollowWizardStep(asked, GetPage(asked)->OnWizardNext(), asked + 1);
    });
}

bool CPropertySheet::UserBack() {
    return Press(wizard_ && (buttons_ & kWizardBack) != 0, [this] {
        const int asked = active_;
        FollowWizardStep(asked, GetPage(asked)->OnWizardBack(), asked - 1);
    });
}

bool CPropertySheet::UserFinish() {
    return Press(wizard_ && (buttons_ & kWizardFinish) != 0, [this] {
        if (GetPage(active_)->OnWizardFinish() && Leave() && !ended_) {
            EndDialog(kResultFinish);
        }
    });
}

bool CPropertySheet::UserOk() {
    return Press(!wizard_, [this] { OnOK(); });
}

bool CPropertySheet::UserApply() {
    return Press(!wizard_ && IsApplyEnabled(), [this] { OnApply(); });
}

bool CPropertySheet::UserCancel() {
    return Press(true, [this] { OnCancel(); });
}

bool CPropertySheet::UserSelectPage(int index) {
    return Press(!wizard_ && GetPage(index) != nullptr, [this, index] { ChangePage(index); });
}

}  // namespace kvopt
