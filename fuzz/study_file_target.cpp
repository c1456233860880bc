#include <optional>
#include <utility>

#include "fuzz/targets.h"
#include "kvopt/host.h"
#include "kvopt/text/exceptions.h"

namespace kvopt::fuzz {
namespace {

// Fitting takes its time, so only studies that are small enough are asked.
constexpr std::size_t kMostFactors = 12;
constexpr std::size_t kMostRuns = 64;
constexpr std::size_t kMostTerms = 64;

bool IsSmall(const StudyData& study) {
    std::size_t terms = 0;
    for (const StudyResponse& response : study.responses) {
        terms += response.model.terms.size();
    }
    return study.factors.size() <= kMostFactors && study.runs.rows.size() <= kMostRuns &&
           terms <= kMostTerms;
}

}  // namespace

void StudyFile(std::string_view input) {
    std::optional<StudyData> data;
    try {
        data = ParseStudy(input, "x.json");
    } catch (const FileFormatError& error) {
        Require(!error.Place().empty() && !error.Expected().empty() && !error.Found().empty(),
                "an error without place, expectation or finding");
        return;
    }
    if (!IsSmall(*data)) {
        return;
    }
    const ReferenceStudy study(std::move(*data));
    for (const StudyResponse& response : study.Data().responses) {
        study.GetFitInfo(response.name);
    }
    study.GetVariables()->GetCount(CEVar::ProcessFactors);
}

}  // namespace kvopt::fuzz
