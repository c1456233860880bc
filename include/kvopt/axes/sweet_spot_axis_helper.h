#pragma once

#include "kvopt/axes/axis_helper.h"
#include "kvopt/export.h"

namespace kvopt {

class SweetSpotData;

/// The axes of a sweet spot plot: two, or three in mixture form, of the set of the plot's type.
class KVOPT_EXPORT SweetSpotAxisHelper : public AxisHelper {
public:
    /// The form is that which the plot has now. Throws InvalidArgument for a type without a set.
    SweetSpotAxisHelper(const Investigation* investigation, SweetSpotData* data);
    ~SweetSpotAxisHelper() override;
    SweetSpotAxisHelper(const SweetSpotAxisHelper&);
    SweetSpotAxisHelper& operator=(const SweetSpotAxisHelper&);

protected:
    void FillAxis(int axis, const char* selected) override;

private:
    void FillMixtureAxis(int axis, const char* selected);

    bool isMixture_;
};

}  // namespace kvopt
