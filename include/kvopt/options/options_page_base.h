#pragma once

#include "kvopt/export.h"
#include "kvopt/options/grid_page.h"

namespace kvopt {

/// The grid page (template 6350) on KvPropertyPage.
class KVOPT_EXPORT OptionsPageBase : public GridPage<KvPropertyPage> {
public:
    OptionsPageBase(BasePropertyPageHelper* helper, unsigned helpTopic);
    ~OptionsPageBase() override;

    bool OnInitDialog() override;
};

}  // namespace kvopt
