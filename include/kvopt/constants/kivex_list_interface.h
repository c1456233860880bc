#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/property_page_helper.h"
#include "kvopt/platform/worksheet_interface.h"
#include "kvopt/study/select_response_base.h"

namespace kvopt {

/// A worksheet that can also stand as a page's helper, listen to one, and offer responses. The base
/// does none of the three of its own accord.
class KVOPT_EXPORT KivexListInterface : public BaseWorksheetInterface,
                                        public BasePropertyPageHelper,
                                        public SelectResponseBase,
                                        public PropertyPageListener {
public:
    explicit KivexListInterface(std::string name);
    ~KivexListInterface() override;
};

}  // namespace kvopt
