#pragma once

#include "kvopt/export.h"
#include "kvopt/options/grid_page.h"

namespace kvopt {

/// The grid page (template 6222) on KvXtpPropertyPage.
class KVOPT_EXPORT KvXtpOptionsPageBase : public GridPage<KvXtpPropertyPage> {
public:
    KvXtpOptionsPageBase(BasePropertyPageHelper* helper, unsigned helpTopic);
    ~KvXtpOptionsPageBase() override;

    bool OnInitDialog() override;
};

}  // namespace kvopt
