#pragma once

#include <limits>
#include <string>
#include <unordered_map>

#include "kvopt/export.h"
#include "kvopt/study/factor_constants.h"

namespace kvopt {

/// An array of constants with an index of its names: finding and adding take constant time, for
/// steps that go through all factors of a study. Good for as long as nothing else adds to the array
/// or takes from it. Does not own the array, which may be null. Exported for its tests alone.
class KVOPT_EXPORT ConstantsIndex {
public:
    explicit ConstantsIndex(FactorConstants::Constant* constants,
                            int capacity = std::numeric_limits<int>::max());

    /// The first entry with this name; null when there is none.
    FactorConstants::Constant* Find(const std::string& name) const;
    bool HasRoom() const { return count_ < capacity_; }
    /// As FactorConstants::Add() and FactorConstants::AddConstant(); nothing on a full array.
    void Add(const FactorConstants::Constant& constant);
    void Add(const Variables& variables, const FactorClass& factor,
             FactorConstants::SettingType position);

private:
    FactorConstants::Constant* constants_;
    int capacity_;
    int count_;
    std::unordered_map<std::string, int> places_;
};

}  // namespace kvopt
