#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "kvopt/axes/axis_page.h"
#include "kvopt/export.h"

namespace kvopt {

class AxisInfo;
class Investigation;
class UseFactor;
class WizardPlotData;

/// Does the work of an axis page without a window: gives a plot a complete set of axes. Derived
/// classes say which set, how many axes, and which factors each may take.
///
/// Owns nothing of what it is given; the axes and the defaults must outlive it. It reports nothing:
/// an axis that no factor fits ends on the not-used name. Axes count from 1; positions that do not
/// exist are passed over. A copy works on the same axes.
class KVOPT_EXPORT AxisHelper {
public:
    AxisHelper(const Investigation* investigation, const AxisPage::Arguments& arguments);
    /// Without axes, until SetArguments.
    explicit AxisHelper(const Investigation* investigation);
    virtual ~AxisHelper();
    AxisHelper(const AxisHelper&);
    AxisHelper& operator=(const AxisHelper&);

    /// Fills the lists, selects, and writes the axes. Unlike the page it lets the defaults decide
    /// every axis, also one that holds a factor already.
    virtual void Setup();
    /// Takes the range of the axis's factor from the defaults; empty texts when it has none.
    virtual void SetDefault(int axis);

    void SetArguments(const AxisPage::Arguments& arguments);

    /// The factors that the axis may take, the chosen one first; empty for an axis without a list.
    const std::vector<std::string>& Options(int axis) const;
    /// The range as text; empty where there is none.
    const std::string& LowText(int axis) const;
    const std::string& HighText(int axis) const;

protected:
    /// Fills the list of one axis. `selected` is not used.
    virtual void FillAxis(int axis, const char* selected);

    /// Fills the list with the factors that `filter` passes. True when there are any.
    bool FillFactor(const UseFactor* filter, int axis);
    /// Adds the not-used name at the end of the list unless the list has it.
    void AddUnusedOption(int axis);
    /// Moves exactly this name to the front of the list, where it changes places with what was
    /// there, and takes its defaults. The position that it had (zero-based), or -1 when the list
    /// does not have it: then the defaults of axis 1 are taken, whatever axis was asked for.
    int SelectString(int axis, const std::string& name);
    /// kNotSet gives an empty text.
    void SetRange(int axis, float low, float high);
    /// Writes names, units and ranges or settings into the axes.
    void Transfer();

    const Investigation* GetInvestigation() const { return investigation_; }
    /// Null for an axis that is not in the set.
    AxisInfo* Axis(int axis) const;

    /// The arguments for a set of a plot with its defaults; a number below zero is the set that the
    /// plot uses.
    static AxisPage::Arguments ArgumentsOf(WizardPlotData& data, int set, int numAxes);

private:
    bool TakeDefault(int axis, std::set<std::string>& taken);
    void TakeArguments(const AxisPage::Arguments& arguments);
    void ResizeLists(int count);
    bool HasList(int axis) const;
    /// The first text of the list; the not-used name of an empty one.
    const std::string& Selected(int axis) const;
    void TransferSettings(AxisInfo& axis, const std::string& name) const;

    const Investigation* investigation_;
    std::vector<std::shared_ptr<AxisInfo>>* axes_ = nullptr;
    std::vector<std::vector<std::string>> options_;  ///< axis n is element n-1, also below
    int numAxes_ = -1;
    std::vector<std::string> lowTexts_;
    std::vector<std::string> highTexts_;
    std::vector<std::shared_ptr<AxisInfo>>* defaults_ = nullptr;
    int numDefaults_ = -1;
};

}  // namespace kvopt
