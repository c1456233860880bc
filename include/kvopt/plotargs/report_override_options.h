#pragma once

#include <map>
#include <string>

#include "kvopt/export.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/study/factor_constants.h"

namespace kvopt {

/// The axes and constants that a report imposes on the plots it draws: one object for the whole
/// process, filled by the report and consumed by WizardPlotData::OverRideOptions().
class KVOPT_EXPORT ReportOverRideOptions {
public:
    using AxisMap = std::map<int, AxisInfoImpl>;
    using ConstantMap = std::map<std::string, FactorConstants::Constant>;

    ReportOverRideOptions(const ReportOverRideOptions&) = delete;
    ReportOverRideOptions& operator=(const ReportOverRideOptions&) = delete;

    /// Made at first use, with both maps empty.
    static ReportOverRideOptions* Instance();

    /// By one-based axis position. A limit of kNotSet, and a name of blanks alone, leave what the
    /// plot has.
    AxisMap& GetAxes() { return axes_; }
    const AxisMap& GetAxes() const { return axes_; }
    /// By factor name; the name inside the constant counts for nothing.
    ConstantMap& GetConstants() { return constants_; }
    const ConstantMap& GetConstants() const { return constants_; }

    /// Empties both maps.
    void Clear();

private:
    ReportOverRideOptions();
    ~ReportOverRideOptions();

    AxisMap axes_;
    ConstantMap constants_;
};

}  // namespace kvopt
