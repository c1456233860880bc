#pragma once

#include <string>

#include "kvopt/constants/constants_chooser.h"
#include "kvopt/export.h"

namespace kvopt {

class AxisPage;
class Investigation;

/// The rule of prediction plots on the axes that a page shows at the moment of asking. Owns nothing
/// of what it is given; the page must outlive it.
class KVOPT_EXPORT PredictedConstantsChooser2 : public ConstantsChooser {
public:
    PredictedConstantsChooser2(const Investigation* investigation, AxisPage* page, bool filter);

    bool SkipFactor(const std::string& name) const override;

private:
    const Investigation* investigation_;
    AxisPage* page_;
    bool filter_;
};

}  // namespace kvopt
