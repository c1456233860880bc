#pragma once

#include <string_view>

#include "kvopt/export.h"
#include "kvopt/platform/control.h"

namespace kvopt {

/// A line of text.
class KVOPT_EXPORT CEdit : public CControl {
public:
    CEdit(CDialog& dialog, const ControlTemplate& what);

    /// Whether typing takes digits alone; the template says so at first. What stands there stays.
    bool IsDigitsOnly() const { return digitsOnly_; }
    void SetDigitsOnly(bool digitsOnly) { digitsOnly_ = digitsOnly; }

    /// Writes the text by program: always notifies the page as typing does, the same text
    /// included, also on a hidden or disabled edit. The views are told only when it differs.
    void SetText(std::wstring_view text) override;
    /// Writes the text when it differs, as the data exchange does.
    void ExchangeText(std::wstring_view text);

    /// The whole text after one keystroke; notifies the page, the same text included. An edit that
    /// takes digits alone drops other new characters and tells its views to show what is left; with
    /// nothing new left nobody is notified.
    bool UserEdit(std::wstring_view text);
    /// The whole text after a paste; nothing is filtered.
    bool UserPaste(std::wstring_view text);

private:
    bool digitsOnly_;
};

}  // namespace kvopt
