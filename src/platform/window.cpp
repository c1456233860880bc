#include "kvopt/platform/window.h"

#include <algorithm>
#include <utility>

#include "kvopt/platform/desktop.h"

namespace kvopt {

WindowListener::~WindowListener() = default;

CWnd::CWnd(CWnd* parent) : parent_(parent), life_(std::make_shared<char>()) {}

CWnd::~CWnd() {
    // A view may take itself off the list while it is told.
    for (WindowListener* listener : std::exchange(listeners_, {})) {
        listener->OnWindowGone(*this);
    }
}

std::wstring CWnd::GetText() const {
    return text_;
}

void CWnd::SetText(std::wstring_view text) {
    if (text != text_) {
        StoreText(text);
        NotifyViews(WindowChange::Text);
    }
}

void CWnd::EnableWindow(bool enable) {
    if (enable != enabled_) {
        enabled_ = enable;
        NotifyViews(WindowChange::Enabled);
    }
}

void CWnd::ShowWindow(bool show) {
    if (show != visible_) {
        visible_ = show;
        NotifyViews(WindowChange::Visible);
    }
}

CWnd* CWnd::GetTopLevelParent() {
    CWnd* window = this;
    while (window->parent_ != nullptr) {
        window = window->parent_;
    }
    return window;
}

bool CWnd::OnCommand(int /*command*/) {
    return false;
}

void CWnd::AddListener(WindowListener* listener) {
    if (std::find(listeners_.begin(), listeners_.end(), listener) == listeners_.end()) {
        listeners_.push_back(listener);
    }
}

void CWnd::RemoveListener(WindowListener* listener) {
    std::erase(listeners_, listener);
}

void CWnd::PostStep(std::string_view name, std::function<void()> step) {
    Desktop::Instance().Post(*this, name, std::move(step));
}

void CWnd::NotifyViews(WindowChange change) {
    // Views come and go while they are told, so those that are still there are asked for each time.
    const std::vector<WindowListener*> told = listeners_;
    for (WindowListener* listener : told) {
        if (std::find(listeners_.begin(), listeners_.end(), listener) != listeners_.end()) {
            listener->OnWindowChanged(*this, change);
        }
    }
}

}  // namespace kvopt
