#pragma once

#include <string>

#include "kvopt/constants/constants_chooser.h"
#include "kvopt/export.h"

namespace kvopt {

class AxisPage;
class Investigation;
class Variables;

/// The rule of contour plots on the axes that a page shows at the moment of asking. Owns nothing of
/// what it is given; the page must outlive it.
class KVOPT_EXPORT ContourConstantsChooser2 : public ConstantsChooser {
public:
    ContourConstantsChooser2(Variables* variables, AxisPage* page,
                             const Investigation* investigation);

    bool SkipFactor(const std::string& name) const override;

private:
    Variables* variables_;
    AxisPage* page_;
    const Investigation* investigation_;
};

}  // namespace kvopt
