#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

class CComboBox;
class Investigation;

/// The page on which one factor is picked from a list. It owns neither the study nor the string
/// that receives the choice; both outlive it.
class KVOPT_EXPORT SelectVariablePage : public KvPropertyPage {
public:
    /// `variable` is the factor's name in UTF-8, before and after.
    SelectVariablePage(const Investigation* investigation, std::string& variable,
                       BasePropertyPageHelper* helper);
    ~SelectVariablePage() override;

    bool OnInitDialog() override;
    /// Stores what the list shows, also when the user changed nothing: where the former factor is
    /// no longer offered, that is another one.
    bool OnApply() override;
    void DoDataExchange(CDataExchange& exchange) override;

protected:
    void GetMessageMap(MessageMap& map) override;
    void OnDestroyWindow() override;

private:
    CComboBox* mFactor = nullptr;
    const Investigation* mInvestigation;
    std::string& mVariable;
};

}  // namespace kvopt
