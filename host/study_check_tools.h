#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>

#include "kvopt/host/study_data.h"

namespace kvopt {

/// The pointer of an item of a list: "/factors/2".
std::string Step(const char* list, std::size_t index);

/// Names that must differ from each other, with the place of each.
class UniqueNames {
public:
    /// `what` the names are, as the fault tells it: "a setting".
    explicit UniqueNames(std::string what) : what_(std::move(what)) {}

    /// Throws a StudyFault for an empty name, one that stands twice, and one that holds a NUL.
    void Add(const std::string& name, const std::string& pointer);

private:
    std::string what_;
    std::map<std::string, std::string> places_;
};

/// Throws a StudyFault for what is no finite number.
void CheckNumber(double number, const std::string& pointer);

/// The same for two bounds, of which each may be kNotSet, and for a low one above the high one.
void CheckRange(double low, double high, const std::string& pointer);

}  // namespace kvopt
