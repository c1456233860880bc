#pragma once

/// \file
/// What the tests of the axis helpers of plots share: a study with factors of each kind, the order
/// of the defaults, and what an axis offers.

#include <algorithm>
#include <string>
#include <vector>

#include "axes/axes_study.h"
#include "kvopt/plotargs/wizard_plot_data.h"
#include "kvopt/study/axis_info.h"

namespace kvopt::test {

using Texts = std::vector<std::string>;

/// Three numbers, a qualitative factor, four parts and the filler.
inline void AddFactorsOfEachKind(AxesStudy& study) {
    study.Names("Colour");
    study.Number("Temp", 0, 100);
    study.Number("Time", 0, 60);
    study.Number("Speed", 0, 9);
    for (const char* name : {"A", "B", "C", "D"}) {
        study.Part(name);
    }
    study.Add("Rest", CEType::Filler);
}

/// The order of the defaults is the plot's business; here it is the study's.
inline AxisVector DefaultsInOrder() {
    return MakeAxes({{"Colour"},
                     {"Temp", 1, 2},
                     {"Time", 3, 4},
                     {"Speed", 5, 6},
                     {"A", 0.1F, 0.2F},
                     {"B", 0.3F, 0.4F},
                     {"C", 0.5F, 0.6F},
                     {"D", 0.7F, 0.8F}});
}

/// The names of a set.
inline Texts NamesOfSet(const WizardPlotData& data, int set) {
    Texts names;
    for (const auto& axis : data.GetAxisInfo(set)) {
        if (axis) {
            names.push_back(axis->GetName());
        }
    }
    return names;
}

/// A text for each axis: the first letters of what it may take, "-" for the not-used name.
template <class Helper>
Texts Offers(const Helper& helper, int axes) {
    Texts offers;
    for (int axis = 1; axis <= axes; ++axis) {
        Texts options = helper.Options(axis);
        std::sort(options.begin(), options.end());
        std::string text;
        for (const std::string& option : options) {
            text += AxisInfo::IsNotUsedName(option) ? "-" : option.substr(0, 2) + " ";
        }
        offers.push_back(text);
    }
    return offers;
}

}  // namespace kvopt::test
