#pragma once

#include <string>
#include <vector>

#include "kvopt/axes/axis_page.h"
#include "kvopt/export.h"

namespace kvopt {

class Variables;

/// One row of an axis page as it was entered.
struct AxisEntry {
    std::string name;  ///< the text of the list
    std::string low;
    std::string high;
};

/// Judges entered axes: legal, doubtful or illegal. A value made on the spot; it shows nothing.
class KVOPT_EXPORT AxisRules {
public:
    /// The variables must outlive it. Entry n-1 is axis n.
    AxisRules(const Variables* variables, std::vector<AxisEntry> entries);

    /// Bits of AxisPage::AxisFlag, 0 for a legal axis. `axis` counts from 1 and must exist.
    unsigned IsAxisLegal(int axis) const;

    /// Judges all axes that are used; `message` comes in empty and gets the text for the user: of
    /// the first error, or of all warnings with the question whether to go on.
    AxisPage::AxisErrorSeverity AreAxesLegal(std::string& message) const;

private:
    struct Range {
        float low;
        float high;
    };
    Range RangeOf(const AxisEntry& entry) const;
    bool FindDuplicate(std::string& message) const;
    std::string ErrorText(int axis, unsigned flags) const;
    void JudgeRange(int axis, unsigned flags, std::string& error, std::string& warning) const;

    const Variables* variables_;
    std::vector<AxisEntry> entries_;
};

}  // namespace kvopt
