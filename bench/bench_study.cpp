#include "bench/bench_study.h"

#include <map>
#include <utility>

namespace kvopt::bench {
namespace {

std::vector<std::string> Numbered(const std::string& noun, int count) {
    std::vector<std::string> names;
    for (int i = 1; i <= count; ++i) {
        names.push_back(noun + " " + std::to_string(i));
    }
    return names;
}

std::unique_ptr<ReferenceStudy> MakeStudy(int factors, int responses) {
    StudyBuilder builder("A study of many factors");
    // With abbreviations of their own the builder need not look for free ones.
    int number = 0;
    for (const std::string& name : FactorNames(factors)) {
        builder.Process(name, 0, 100, "kg").Abbreviation("X" + std::to_string(++number));
    }
    const std::vector<std::string> names = ResponseNames(responses);
    for (const std::string& name : names) {
        builder.Response(name, "%");
    }
    return builder.Select({names.front()}).Build();
}

}  // namespace

std::vector<std::string> FactorNames(int count) {
    return Numbered("Factor", count);
}

std::vector<std::string> ResponseNames(int count) {
    return Numbered("Response", count);
}

ReferenceStudy& StudyOf(int factors, int responses) {
    static std::map<std::pair<int, int>, std::unique_ptr<ReferenceStudy>> studies;
    std::unique_ptr<ReferenceStudy>& study = studies[{factors, responses}];
    if (!study) {
        study = MakeStudy(factors, responses);
    }
    return *study;
}

std::unique_ptr<ContourPlotData> PlotOf(ReferenceStudy& study, const std::string& iniFile) {
    return std::make_unique<ContourPlotData>(&study, 0, iniFile, false, false, false, false);
}

}  // namespace kvopt::bench
