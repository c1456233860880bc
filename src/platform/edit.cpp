#include "kvopt/platform/edit.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace kvopt {

namespace {

/// `after` without those of its characters that are neither digits nor were there `before`.
std::wstring WithoutNewNonDigits(std::wstring_view before, std::wstring_view after) {
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t head = 0;
    while (head < shorter && before[head] == after[head]) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < shorter - head &&
           before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
        ++tail;
    }
    std::wstring kept(after.substr(0, head));
    for (const wchar_t c : after.substr(head, after.size() - head - tail)) {
        if (c >= L'0' && c <= L'9') {
            kept += c;
        }
    }
    kept += after.substr(after.size() - tail);
    return kept;
}

}  // namespace

CEdit::CEdit(CDialog& dialog, const ControlTemplate& what)
    : CControl(dialog, what), digitsOnly_(what.digitsOnly) {}

void CEdit::SetText(std::wstring_view text) {
    CWnd::SetText(text);
    Notify(Notification::Changed);
}

void CEdit::ExchangeText(std::wstring_view text) {
    if (text != GetText()) {
        SetText(text);
    }
}

bool CEdit::UserEdit(std::wstring_view text) {
    return Act([&] {
        if (!digitsOnly_) {
            SetText(text);
            return true;
        }
        const std::wstring before = GetText();
        const std::wstring kept = WithoutNewNonDigits(before, text);
        if (kept == before && kept != text) {
            NotifyViews(WindowChange::Text);
        } else {
            SetText(kept);
        }
        return true;
    });
}

bool CEdit::UserPaste(std::wstring_view text) {
    return Act([&] {
        SetText(text);
        return true;
    });
}

}  // namespace kvopt
