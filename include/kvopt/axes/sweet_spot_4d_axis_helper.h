#pragma once

#include "kvopt/axes/axis_helper.h"
#include "kvopt/export.h"

namespace kvopt {

class SweetSpotData;

/// The axes of a 4D sweet spot plot: four, or five in mixture form, of the set of the plot's type;
/// the last two are the outer ones.
class KVOPT_EXPORT SweetSpot4DAxisHelper : public AxisHelper {
public:
    /// The form is that which the plot has now. Throws InvalidArgument for a type without a set.
    SweetSpot4DAxisHelper(const Investigation* investigation, SweetSpotData* data);
    ~SweetSpot4DAxisHelper() override;
    SweetSpot4DAxisHelper(const SweetSpot4DAxisHelper&);
    SweetSpot4DAxisHelper& operator=(const SweetSpot4DAxisHelper&);

    /// Offers the not-used name on the outer axes first; the fill then starts afresh.
    void Setup() override;

protected:
    void FillAxis(int axis, const char* selected) override;

private:
    void FillMixtureAxis(int axis, const char* selected);
    int FirstOuterAxis() const { return isMixture_ ? 4 : 3; }

    bool isMixture_;
};

}  // namespace kvopt
