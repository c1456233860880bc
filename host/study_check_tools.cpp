#include "host/study_check_tools.h"

#include <cmath>

#include "host/json_node.h"
#include "host/study_fault.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {

std::string Step(const char* list, std::size_t index) {
    return "/" + std::string(list) + "/" + std::to_string(index);
}

void UniqueNames::Add(const std::string& name, const std::string& pointer) {
    if (name.empty()) {
        throw StudyFault{pointer, "a name", "an empty text"};
    }
    if (name.find('\0') != std::string::npos) {
        throw StudyFault{pointer, "a name without the character U+0000", Quoted(name)};
    }
    const auto [known, isNew] = places_.emplace(name, pointer);
    if (!isNew) {
        throw StudyFault{pointer, what_ + " that differs from that at " + known->second,
                         Quoted(name) + " again"};
    }
}

void CheckNumber(double number, const std::string& pointer) {
    if (!std::isfinite(number)) {
        throw StudyFault{pointer, "a finite number", KvString::FromDouble(number)};
    }
}

void CheckRange(double low, double high, const std::string& pointer) {
    if (low != kNotSet) {
        CheckNumber(low, pointer + "/low");
    }
    if (high != kNotSet) {
        CheckNumber(high, pointer + "/high");
    }
    if (low != kNotSet && high != kNotSet && low > high) {
        throw StudyFault{pointer, "a low that is not above the high " + KvString::FromDouble(high),
                         "the low " + KvString::FromDouble(low)};
    }
}

}  // namespace kvopt
