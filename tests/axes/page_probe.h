#pragma once

/// \file
/// The rows of an axis page as a user sees them, by the numbers of their controls.

#include <string>
#include <vector>

#include "kvopt/axes/axis_page.h"
#include "kvopt/platform.h"
#include "kvopt/text.h"

namespace kvopt::test {

/// One row of a page that has a window.
class RowProbe {
public:
    RowProbe(const CDialog& page, int axis)
        : list(*page.Item<CComboBox>(6035 + axis)),
          low(*page.Item<CEdit>(kLow[axis - 1])),
          high(*page.Item<CEdit>(kHigh[axis - 1])),
          button(*page.Item<CButton>(6005 + axis)) {}

    std::string Name() const { return KvStdString::ToUtf8(list.GetText()); }
    std::string Low() const { return KvStdString::ToUtf8(low.GetText()); }
    std::string High() const { return KvStdString::ToUtf8(high.GetText()); }
    /// "name|low|high", with "(off)" behind a row whose edits and button are disabled.
    std::string Text() const {
        const bool on = low.IsEnabled() && high.IsEnabled() && button.IsEnabled();
        const bool off = !low.IsEnabled() && !high.IsEnabled() && !button.IsEnabled();
        return Name() + "|" + Low() + "|" + High() + (on ? "" : off ? " (off)" : " (mixed)");
    }
    std::vector<std::string> Entries() const {
        std::vector<std::string> entries;
        for (int i = 0; i < list.GetCount(); ++i) {
            entries.push_back(KvStdString::ToUtf8(list.GetItemText(i)));
        }
        return entries;
    }
    bool Pick(const std::string& name) {
        return list.UserPick(list.FindStringExact(-1, KvStdString::ToWide(name)));
    }

    CComboBox& list;
    CEdit& low;
    CEdit& high;
    CButton& button;

private:
    static constexpr int kLow[6] = {6055, 6058, 6060, 6062, 6064, 6066};
    static constexpr int kHigh[6] = {6054, 6057, 6059, 6061, 6063, 6065};
};

inline std::vector<std::string> Rows(const AxisPage& page) {
    std::vector<std::string> rows;
    for (int axis = 1; axis <= page.NAxis(); ++axis) {
        rows.push_back(RowProbe(page, axis).Text());
    }
    return rows;
}

/// A page that counts its helper's updates needs one that is connected.
class ConnectedHelper : public BasePropertyPageHelper {
public:
    ConnectedHelper() { listener_.ConnectTo(this); }
    bool Update() override {
        ++updates;
        return answer;
    }
    int updates = 0;
    bool answer = true;

private:
    PropertyPageListener listener_;
};

}  // namespace kvopt::test
