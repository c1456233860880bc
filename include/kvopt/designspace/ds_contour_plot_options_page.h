#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

class ContourPageData;
class Investigation;
class PlainText;

/// Resolution, colours, labels and simulation of a design space plot (template 6221). It edits the
/// page data in place and does not own it. The risk limit is shown in the unit of the general
/// settings and kept in DPMO.
///
/// Dirty as soon as it is shown. What was stored before a refusal stays stored.
class KVOPT_EXPORT DSContourPlotOptionsPage : public KvPropertyPage {
public:
    DSContourPlotOptionsPage(const Investigation* investigation, ContourPageData& data,
                             BasePropertyPageHelper* helper);

    bool OnInitDialog() override;
    bool OnSetActive() override;
    bool OnApply() override;

protected:
    void GetMessageMap(MessageMap& map) override;

private:
    bool StoreResolution();
    bool StoreSimulation();
    bool StoreLimit();
    bool Refuse(int control, const PlainText& message);

    ContourPageData& data_;
};

}  // namespace kvopt
