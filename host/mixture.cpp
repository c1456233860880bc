#include "host/mixture.h"

#include <algorithm>

#include "host/model_term.h"

namespace kvopt {
namespace {

bool UsesFactor(const StudyData& study, std::size_t factor) {
    return std::any_of(
        study.responses.begin(), study.responses.end(), [&](const StudyResponse& response) {
            const std::vector<ModelTerm> terms = ModelTerms(study, response);
            return std::any_of(terms.begin(), terms.end(), [&](const ModelTerm& term) {
                return std::find(term.begin(), term.end(), factor) != term.end();
            });
        });
}

}  // namespace

Mixture::Mixture(const StudyData& study)
    : total_(study.mixtureTotal), pseudo_(study.pseudoComponents), freeTotal_(study.mixtureTotal) {
    for (std::size_t f = 0; f < study.factors.size(); ++f) {
        const StudyFactor& factor = study.factors[f];
        Part part;
        part.isPart = IsComponent(factor);
        part.isFiller = factor.type == CEType::Filler;
        part.isConstant = factor.use == CEUse::Constant;
        if (part.isPart) {
            part.low = factor.low;
            part.high = factor.high;
            freeTotal_ -= factor.low;
        }
        if (part.isFiller && !UsesFactor(study, f)) {
            trueFiller_ = true;
        }
        parts_.push_back(part);
    }
    FindReference();
}

void Mixture::FindReference() {
    reference_.assign(parts_.size(), 0.0);
    double middle = 0.0;
    double range = 0.0;
    for (const Part& part : parts_) {
        middle += (part.low + part.high) / 2.0;
        range += part.high - part.low;
    }
    const double shift = range > 0.0 ? (total_ - middle) / range : 0.0;
    std::size_t filler = parts_.size();
    double others = 0.0;
    for (std::size_t p = 0; p < parts_.size(); ++p) {
        const Part& part = parts_[p];
        if (!part.isPart) {
            continue;
        }
        reference_[p] = (part.low + part.high) / 2.0 + shift * (part.high - part.low);
        if (part.isFiller) {
            filler = p;
        } else {
            others += (part.low + part.high) / 2.0;
        }
    }
    // With a true filler the other parts stand in the middle of their bounds, as process factors
    // do, as long as the filler can make up the rest.
    if (!trueFiller_ || total_ - others < parts_[filler].low ||
        total_ - others > parts_[filler].high) {
        return;
    }
    for (std::size_t p = 0; p < parts_.size(); ++p) {
        reference_[p] = p == filler ? total_ - others : (parts_[p].low + parts_[p].high) / 2.0;
    }
}

void Mixture::Adjust(std::vector<double>& blend, std::size_t part, double amount) const {
    blend[part] = amount;
    std::vector<std::size_t> movable;
    double rest = total_ - amount;
    double sum = 0.0;
    for (std::size_t p = 0; p < parts_.size(); ++p) {
        if (!parts_[p].isPart || p == part) {
            continue;
        }
        const bool moves =
            trueFiller_ && !parts_[part].isFiller ? parts_[p].isFiller : !parts_[p].isConstant;
        if (moves) {
            movable.push_back(p);
            sum += blend[p];
        } else {
            rest -= blend[p];
        }
    }
    rest = std::max(rest, 0.0);
    for (const std::size_t p : movable) {
        blend[p] = sum > 0.0 ? blend[p] * rest / sum : rest / static_cast<double>(movable.size());
    }
}

double Mixture::ToPseudo(std::size_t part, double amount) const {
    return pseudo_ && parts_[part].isPart && freeTotal_ > 0.0
               ? (amount - parts_[part].low) / freeTotal_ * total_
               : amount;
}

double Mixture::FromPseudo(std::size_t part, double amount) const {
    return pseudo_ && parts_[part].isPart && freeTotal_ > 0.0
               ? parts_[part].low + amount / total_ * freeTotal_
               : amount;
}

}  // namespace kvopt
