#include "constants/chooser_axes.h"

#include <algorithm>

#include "kvopt/axes/axis_page.h"
#include "kvopt/study.h"

namespace kvopt {

AxesInQuestion AxesOf(const std::vector<std::shared_ptr<AxisInfo>>& axes, int count) {
    const auto axisAt = [&axes](int axis) { return axes[static_cast<std::size_t>(axis)].get(); };
    AxesInQuestion result;
    result.count = std::min(count, static_cast<int>(axes.size()) - 1);
    result.isFactor = [axisAt](int axis, const std::string& name) {
        return axisAt(axis) != nullptr && axisAt(axis)->Compare(name.c_str()) == 0;
    };
    result.isUsed = [axisAt](int axis) {
        return axisAt(axis) != nullptr && axisAt(axis)->IsUsed();
    };
    result.nameOf = [axisAt](int axis) {
        return axisAt(axis) != nullptr ? axisAt(axis)->GetName() : std::string();
    };
    return result;
}

AxesInQuestion AxesOf(const AxisPage& page) {
    AxesInQuestion result;
    result.count = page.NAxis();
    result.isFactor = [&page](int axis, const std::string& name) {
        return page.CompareAxis(axis, name);
    };
    result.isUsed = [&page](int axis) { return page.IsUsedAxis(axis); };
    result.nameOf = [&page](int axis) { return page.NameAxis(axis); };
    return result;
}

}  // namespace kvopt
