#include "bench/ini_content.h"

namespace kvopt::bench {

IniContent IniContentOf(int sections) {
    IniContent content;
    for (int i = 1; i <= sections; ++i) {
        content.push_back({"Factor " + std::to_string(i), i + 0.25, i + 100.5, i % 5, "kg/h"});
    }
    return content;
}

double SumOf(const IniContent& content) {
    double sum = 0;
    for (const IniSection& section : content) {
        sum += SumOf(section.low, section.high, section.setting, section.unit);
    }
    return sum;
}

}  // namespace kvopt::bench
