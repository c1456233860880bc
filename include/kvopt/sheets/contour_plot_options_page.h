#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

class CComboBox;
class ContourPageData;
class Investigation;

/// Resolution, colours, labels and scale of a contour plot (template 6159) or a surface plot (6213,
/// which has fewer controls). It edits the page data in place and does not own it.
class KVOPT_EXPORT ContourPlotOptionsPage : public KvPropertyPage {
public:
    ContourPlotOptionsPage(const Investigation* investigation, ContourPageData& data,
                           BasePropertyPageHelper* helper, unsigned templateNumber,
                           unsigned helpTopic);

    bool OnInitDialog() override;
    bool OnSetActive() override;
    bool OnApply() override;

protected:
    void GetMessageMap(MessageMap& map) override;

private:
    void UpdateEnable();
    void OnScaleChanged();
    bool Refuse(const std::wstring& message);

    ContourPageData& data_;
};

}  // namespace kvopt
