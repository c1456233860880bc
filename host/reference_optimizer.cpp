#include "host/reference_optimizer.h"

#include <algorithm>
#include <limits>

#include "host/model_matrix.h"
#include "kvopt/study/investigation.h"

namespace kvopt {
namespace {

/// Steps of a range: enough to find the bend of a quadratic within a thousandth of its height.
constexpr int kSteps = 32;
constexpr double kNoEffect = -1.0;

std::size_t PlaceOf(const StudyData& data, const std::string& factor) {
    const auto found =
        std::find_if(data.factors.begin(), data.factors.end(),
                     [&](const StudyFactor& candidate) { return candidate.name == factor; });
    return static_cast<std::size_t>(found - data.factors.begin());
}

/// The values that a factor takes on its way through its range.
std::vector<double> Range(const StudyFactor& factor) {
    std::vector<double> values;
    if (IsQualitative(factor)) {
        for (std::size_t s = 0; s < factor.settings.size(); ++s) {
            if (factor.settings[s].included) {
                values.push_back(static_cast<double>(s + 1));
            }
        }
        return values;
    }
    const double low = LowOf(factor);
    const double step = (HighOf(factor) - low) / kSteps;
    for (int s = 0; s <= kSteps; ++s) {
        values.push_back(low + s * step);
    }
    return values;
}

}  // namespace

ReferenceOptimizer::ReferenceOptimizer(const Investigation* study, const StudyData& data,
                                       const Mixture& mixture, const ReferenceModels& models)
    : study_(study), data_(data), mixture_(mixture), models_(models) {}

std::vector<double> ReferenceOptimizer::Complete(const std::vector<float>& start) const {
    std::vector<double> point(start.begin(), start.end());
    for (std::size_t f = 0; f < point.size(); ++f) {
        const StudyFactor& factor = data_.factors[f];
        if (start[f] != kNotSetF) {
            continue;
        }
        if (mixture_.IsPart(f)) {
            point[f] = mixture_.Reference()[f];
        } else {
            point[f] = IsQualitative(factor) ? Range(factor).front()
                                             : (LowOf(factor) + HighOf(factor)) / 2.0;
        }
    }
    return point;
}

double ReferenceOptimizer::Effect(const ModelFit& fit, std::size_t response, std::size_t factor,
                                  const std::vector<double>& start) const {
    const StudyFactor& data = data_.factors[factor];
    const bool isOffered = data.type == CEType::Formulation || models_.Uses(response, factor);
    if (!isOffered || data.use == CEUse::Constant || data.type == CEType::Filler) {
        return kNoEffect;
    }
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -lowest;
    for (const double value : Range(data)) {
        std::vector<double> point = start;
        if (mixture_.IsPart(factor)) {
            mixture_.Adjust(point, factor, value);
        } else {
            point[factor] = value;
        }
        const double predicted = fit.Predict(point);
        lowest = std::min(lowest, predicted);
        highest = std::max(highest, predicted);
    }
    return highest - lowest;
}

std::vector<float> ReferenceOptimizer::CalculateFactorContribution(
    const std::vector<float>& start) const {
    const std::size_t count = data_.factors.size();
    if (start.size() != count || !models_.HasModel()) {
        return {};
    }
    const std::vector<double> point = Complete(start);
    std::vector<double> sums(count, 0.0);
    std::vector<bool> takesPart(count, false);
    int fits = 0;
    for (std::size_t r = 0; r < data_.responses.size(); ++r) {
        const ModelFit* fit = models_.Fit(r);
        if (fit == nullptr) {
            continue;
        }
        ++fits;
        std::vector<double> effects;
        double total = 0.0;
        for (std::size_t f = 0; f < count; ++f) {
            effects.push_back(Effect(*fit, r, f, point));
            total += std::max(effects.back(), 0.0);
        }
        for (std::size_t f = 0; f < count; ++f) {
            if (effects[f] >= 0.0) {
                takesPart[f] = true;
                sums[f] += total > 0.0 ? 100.0 * effects[f] / total : 0.0;
            }
        }
    }
    std::vector<float> contributions;
    for (std::size_t f = 0; f < count; ++f) {
        contributions.push_back(takesPart[f] ? static_cast<float>(sums[f] / fits) : kNotSetF);
    }
    return contributions;
}

float ReferenceOptimizer::FavouriteValue(std::size_t factor) const {
    const std::vector<float>& start =
        study_->favouriteSetpoint.GetDefaultStart(&SimplexSetup::CalculateRequiredOnlyOptima);
    return factor < start.size() ? start[factor] : kNotSetF;
}

float ReferenceOptimizer::GetOptimalValue(const std::string& factor,
                                          FavouriteSetpoint::OptimaType type) const {
    const std::size_t place = PlaceOf(data_, factor);
    const bool isAnswered = type == FavouriteSetpoint::Favourite && place < data_.factors.size() &&
                            !IsQualitative(data_.factors[place]);
    return isAnswered ? FavouriteValue(place) : kNotSetF;
}

std::string ReferenceOptimizer::GetOptimalSetting(const std::string& factor,
                                                  FavouriteSetpoint::OptimaType type) const {
    const std::size_t place = PlaceOf(data_, factor);
    if (type != FavouriteSetpoint::Favourite || place == data_.factors.size() ||
        !IsQualitative(data_.factors[place])) {
        return {};
    }
    const float index = FavouriteValue(place);
    const std::vector<StudySetting>& settings = data_.factors[place].settings;
    if (index < 1.0F || index > static_cast<float>(settings.size())) {
        return {};
    }
    return settings[static_cast<std::size_t>(index) - 1].name;
}

}  // namespace kvopt
