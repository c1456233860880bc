#pragma once

#include <cstddef>
#include <vector>

#include "kvopt/host/study_data.h"

namespace kvopt {

/// The mixture of a study: its parts are the formulation factors and the filler. A blend is a
/// vector with one amount for each factor of the study, 0 for what is no part.
class Mixture {
public:
    explicit Mixture(const StudyData& study);

    /// Whether a filler makes up the rest of every blend: the study has one, and no model has a
    /// term in it, so that the other parts vary as freely as process factors.
    bool HasTrueFiller() const { return trueFiller_; }
    bool IsPart(std::size_t factor) const { return parts_[factor].isPart; }

    /// The blend in the middle of all bounds: each part lies as far, in shares of its own range,
    /// above or below the middle of its bounds as the total asks for.
    const std::vector<double>& Reference() const { return reference_; }
    /// Sets one part of a blend; the others make up the rest in the proportions that they have. A
    /// true filler makes it up alone, and parts held constant keep their amount.
    void Adjust(std::vector<double>& blend, std::size_t part, double amount) const;

    /// The amount in pseudo-components, and back; the same number in a study that does not use
    /// them.
    double ToPseudo(std::size_t part, double amount) const;
    double FromPseudo(std::size_t part, double amount) const;

private:
    struct Part {
        bool isPart = false;
        bool isFiller = false;
        bool isConstant = false;
        double low = 0.0;
        double high = 0.0;
    };

    void FindReference();

    double total_;
    bool pseudo_;
    bool trueFiller_ = false;
    double freeTotal_;  ///< what all parts together have above their lower bounds
    std::vector<Part> parts_;
    std::vector<double> reference_;
};

}  // namespace kvopt
