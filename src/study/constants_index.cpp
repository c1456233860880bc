#include "study/constants_index.h"

#include <array>
#include <cstddef>

namespace kvopt {

using FactorConstants::Constant;

ConstantsIndex::ConstantsIndex(Constant* constants, int capacity)
    : constants_(constants), capacity_(capacity), count_(FactorConstants::NumConstants(constants)) {
    places_.reserve(static_cast<std::size_t>(count_));
    for (int index = 0; index < count_; ++index) {
        places_.emplace(constants[index].Name(), index);
    }
}

Constant* ConstantsIndex::Find(const std::string& name) const {
    const auto found = places_.find(name);
    return found != places_.end() ? &constants_[found->second] : nullptr;
}

void ConstantsIndex::Add(const Constant& constant) {
    // The array from its end on is one without entries.
    if (constants_ == nullptr || !HasRoom() ||
        FactorConstants::Add(constants_ + count_, constant) < 0) {
        return;
    }
    places_.emplace(constant.Name(), count_);
    ++count_;
}

void ConstantsIndex::Add(const Variables& variables, const FactorClass& factor,
                         FactorConstants::SettingType position) {
    std::array<Constant, 2> made;
    FactorConstants::AddConstant(made.data(), &variables, &factor, position);
    Add(made.front());
}

}  // namespace kvopt
