#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "kvopt/host/study_data.h"

namespace kvopt {

/// A product of factors: their zero-based indices in ascending order, one that stands n times for
/// its n-th power.
using ModelTerm = std::vector<std::size_t>;

/// Reads model terms of one study, which outlives the reader.
class ModelTermReader {
public:
    explicit ModelTermReader(const StudyData& study);

    /// Reads "A", "A*B" or "A^2*B" with the abbreviations of the study's factors; blanks around
    /// them count for nothing. Throws a StudyFault at `pointer` for a term that cannot be.
    ModelTerm Read(const std::string& text, const std::string& pointer) const;

private:
    [[noreturn]] void FailUnknown(const std::string& part, const std::string& text,
                                  const std::string& pointer) const;

    const StudyData& study_;
    std::unordered_map<std::string, std::size_t> factors_;  ///< by abbreviation
};

/// The term in the one form of this system: abbreviations joined by "*", powers written out.
std::string TermName(const StudyData& study, const ModelTerm& term);

/// All terms of a response's model, in its order.
std::vector<ModelTerm> ModelTerms(const StudyData& study, const StudyResponse& response);

/// True when the factor's levels are names and take part in a model as such.
bool IsQualitative(const StudyFactor& factor);
/// True for components of the mixture, the filler included.
bool IsComponent(const StudyFactor& factor);
/// True for factors whose levels are listed, be it as names or as numbers.
bool HasListedSettings(const StudyFactor& factor);

}  // namespace kvopt
