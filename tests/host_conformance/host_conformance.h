#pragma once

/// \file
/// What plots, pages and rules rely on when they ask a host's study. A host runs the suite over its
/// own adapter: it compiles the sources of this folder, less reference_host_test.cpp, with
///
///     INSTANTIATE_TEST_SUITE_P(MyHost, HostConformance,
///                              testing::Values(ConformanceHost{"empty", [] { return ...; }},
///                              ...));
///
/// over studies of every kind that it can hold: empty, with and without models, process, mixture,
/// blocked, locked, with names that hold any character.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "kvopt/study.h"

namespace kvopt {

struct ConformanceHost {
    std::string name;  ///< letters, digits and underscores
    /// A fresh study, whose settings and selection the tests may change.
    std::function<std::unique_ptr<Investigation>()> make;
};

inline void PrintTo(const ConformanceHost& host, std::ostream* stream) {
    *stream << host.name;
}

inline std::string ConformanceName(const testing::TestParamInfo<ConformanceHost>& info) {
    return info.param.name;
}

class HostConformance : public testing::TestWithParam<ConformanceHost> {
protected:
    HostConformance() : study(GetParam().make()), variables(*study->GetVariables()) {}

    std::vector<FactorClass*> Factors() const { return variables.GetAllFactors(); }
    std::vector<ResponseEx*> Responses() const {
        const ResponseManager& manager = *study->GetResponseManager();
        return {manager.begin(), manager.end()};
    }
    ResponseModelUtilities Models() const { return ResponseModelUtilities(study.get()); }
    /// A name that no factor, response or setting of the study bears.
    static std::string UnknownName() { return "\x1F no such name \xE2\x98\x83"; }

    static constexpr int kNoLimit = 2147483647;

    std::unique_ptr<Investigation> study;
    const Variables& variables;
};

}  // namespace kvopt
