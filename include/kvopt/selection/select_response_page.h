#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

class CComboBox;
class Investigation;
class SelectResponseBase;

/// The page on which one response is picked from a list. It owns neither the study nor the owner of
/// the selection; both outlive it.
class KVOPT_EXPORT SelectResponsePage : public KvPropertyPage {
public:
    /// With `extended` the responses are those of the ResponseManager, else those of Variables.
    /// `allowNone` offers an entry for no response. A null `base` throws InvalidArgument.
    SelectResponsePage(const Investigation* investigation, SelectResponseBase* base,
                       BasePropertyPageHelper* helper, bool extended, bool allowNone);
    ~SelectResponsePage() override;

    bool OnInitDialog() override;
    /// Stores what the list shows, also when the user changed nothing: where the former response is
    /// no longer offered, that is another one.
    bool OnApply() override;
    void DoDataExchange(CDataExchange& exchange) override;

protected:
    void GetMessageMap(MessageMap& map) override;
    void OnDestroyWindow() override;

private:
    CComboBox* mResponse = nullptr;
    const Investigation* mInvestigation;
    bool mExtended;
    bool mAllowNone;
    SelectResponseBase* mBase;
};

}  // namespace kvopt
