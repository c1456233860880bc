#include "kvopt/host/study_builder.h"

#include <algorithm>

#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {

StudyBuilder::StudyBuilder(std::string name) {
    data_.name = std::move(name);
}

StudyBuilder::StudyBuilder(StudyData data) : data_(std::move(data)) {}

StudyFactor& StudyBuilder::AddFactor(const std::string& name, CEType::EType type,
                                     const std::string& unit) {
    StudyFactor& factor = data_.factors.emplace_back();
    factor.name = name;
    factor.type = type;
    factor.unit = unit;
    return factor;
}

StudyBuilder& StudyBuilder::AddRange(const std::string& name, CEType::EType type, double low,
                                     double high, const std::string& unit) {
    StudyFactor& factor = AddFactor(name, type, unit);
    factor.low = low;
    factor.high = high;
    return *this;
}

StudyBuilder& StudyBuilder::AddLevels(const std::string& name, CEType::EType type,
                                      const std::vector<double>& levels, const std::string& unit) {
    StudyFactor& factor = AddFactor(name, type, unit);
    for (const double level : levels) {
        factor.settings.push_back({KvString::FromDouble(level), true});
    }
    return *this;
}

StudyResponse& StudyBuilder::AddResponse(const std::string& name, ResponseEx::EResponseType type) {
    StudyResponse& response = data_.responses.emplace_back();
    response.name = name;
    response.type = type;
    return response;
}

StudyFactor& StudyBuilder::LastFactor(const char* operation) {
    if (data_.factors.empty()) {
        throw InvalidArgument(std::string("StudyBuilder::") + operation +
                              ": there is no factor yet.");
    }
    return data_.factors.back();
}

StudyResponse& StudyBuilder::LastResponse(const char* operation) {
    if (data_.responses.empty()) {
        throw InvalidArgument(std::string("StudyBuilder::") + operation +
                              ": there is no response yet.");
    }
    return data_.responses.back();
}

StudyBuilder& StudyBuilder::Process(const std::string& name, double low, double high,
                                    const std::string& unit) {
    return AddRange(name, CEType::Quantitative, low, high, unit);
}

StudyBuilder& StudyBuilder::Qualitative(const std::string& name,
                                        const std::vector<std::string>& settings) {
    StudyFactor& factor = AddFactor(name, CEType::Qualitative, {});
    for (const std::string& setting : settings) {
        factor.settings.push_back({setting, true});
    }
    return *this;
}

StudyBuilder& StudyBuilder::Multilevel(const std::string& name, const std::vector<double>& levels,
                                       const std::string& unit) {
    return AddLevels(name, CEType::Multilevel, levels, unit);
}

StudyBuilder& StudyBuilder::Discrete(const std::string& name, const std::vector<double>& levels,
                                     const std::string& unit) {
    return AddLevels(name, CEType::Discrete, levels, unit);
}

StudyBuilder& StudyBuilder::MixturePart(const std::string& name, double low, double high,
                                        const std::string& unit) {
    return AddRange(name, CEType::Formulation, low, high, unit);
}

StudyBuilder& StudyBuilder::Filler(const std::string& name, double low, double high,
                                   const std::string& unit) {
    return AddRange(name, CEType::Filler, low, high, unit);
}

StudyBuilder& StudyBuilder::Covariate(const std::string& name, double low, double high,
                                      const std::string& unit) {
    AddRange(name, CEType::Covariate, low, high, unit);
    return Use(CEUse::Uncontrolled);
}

StudyBuilder& StudyBuilder::Blocks(const std::vector<std::string>& blocks) {
    Qualitative(kBlockFactorName, blocks);
    return Abbreviation(kBlockAbbreviation);
}

StudyBuilder& StudyBuilder::Abbreviation(const std::string& abbreviation) {
    LastFactor("Abbreviation").abbreviation = abbreviation;
    return *this;
}

StudyBuilder& StudyBuilder::Use(CEUse::EUse use) {
    LastFactor("Use").use = use;
    return *this;
}

StudyBuilder& StudyBuilder::Precision(double standardDeviation) {
    LastFactor("Precision").precision = standardDeviation;
    return *this;
}

StudyBuilder& StudyBuilder::Exclude(const std::string& setting) {
    StudyFactor& factor = LastFactor("Exclude");
    const auto found =
        std::find_if(factor.settings.begin(), factor.settings.end(),
                     [&](const StudySetting& candidate) { return candidate.name == setting; });
    if (found == factor.settings.end()) {
        throw InvalidArgument("StudyBuilder::Exclude: " + factor.name + " has no setting " +
                              setting + ".");
    }
    found->included = false;
    return *this;
}

StudyBuilder& StudyBuilder::Response(const std::string& name, const std::string& unit) {
    AddResponse(name, ResponseEx::Regular).unit = unit;
    return *this;
}

StudyBuilder& StudyBuilder::DerivedResponse(const std::string& name,
                                            const std::vector<std::string>& from) {
    AddResponse(name, ResponseEx::Derived).derivedFrom = from;
    return *this;
}

StudyBuilder& StudyBuilder::CombinedResponse(const std::string& name,
                                             const std::vector<std::string>& from) {
    AddResponse(name, ResponseEx::Combined).derivedFrom = from;
    return *this;
}

StudyBuilder& StudyBuilder::ExternalResponse(const std::string& name, const std::string& unit) {
    AddResponse(name, ResponseEx::External).unit = unit;
    return *this;
}

StudyBuilder& StudyBuilder::Limits(double low, double high, double target) {
    StudyResponse& response = LastResponse("Limits");
    response.lowLimit = low;
    response.highLimit = high;
    response.target = target;
    return *this;
}

StudyBuilder& StudyBuilder::Transform(StudyTransform transform) {
    LastResponse("Transform").transform = transform;
    return *this;
}

StudyBuilder& StudyBuilder::Model(const std::vector<std::string>& terms, bool intercept) {
    StudyResponse& response = LastResponse("Model");
    response.hasModel = true;
    response.model = {intercept, terms};
    return *this;
}

StudyBuilder& StudyBuilder::MixtureTotal(double total) {
    data_.mixtureTotal = total;
    return *this;
}

StudyBuilder& StudyBuilder::PseudoComponents(bool use) {
    data_.pseudoComponents = use;
    return *this;
}

StudyBuilder& StudyBuilder::Locked(bool locked) {
    data_.locked = locked;
    return *this;
}

StudyBuilder& StudyBuilder::Constraint(const std::map<std::string, double>& coefficients,
                                       double low, double high) {
    data_.constraints.push_back({coefficients, low, high});
    return *this;
}

StudyBuilder& StudyBuilder::Label(const std::string& name) {
    data_.labels.push_back(name);
    return *this;
}

StudyBuilder& StudyBuilder::Favourite(const std::string& factor, const StudyValue& value) {
    data_.favouriteSetpoint[factor] = value.Cell();
    return *this;
}

StudyBuilder& StudyBuilder::Select(const std::vector<std::string>& responses) {
    data_.selectedResponses = responses;
    return *this;
}

StudyBuilder& StudyBuilder::Setting(const std::string& section, const std::string& key,
                                    const StudySettingValue& value) {
    data_.settings[section][key] = value;
    return *this;
}

StudyBuilder& StudyBuilder::RandomBlocks() {
    return Setting(kBlockingSection, kFixedEffectKey, false);
}

StudyBuilder& StudyBuilder::DesignSpace(const DesignSpaceOptions& options) {
    data_.designSpace = options;
    return *this;
}

StudyBuilder& StudyBuilder::Run(const std::vector<StudyValue>& values) {
    if (data_.runs.columns.empty()) {
        for (const StudyFactor& factor : data_.factors) {
            data_.runs.columns.push_back(factor.name);
        }
        for (const StudyResponse& response : data_.responses) {
            if (response.type == ResponseEx::Regular) {
                data_.runs.columns.push_back(response.name);
            }
        }
        data_.runs.columns.insert(data_.runs.columns.end(), data_.labels.begin(),
                                  data_.labels.end());
    }
    std::vector<StudyCell>& row = data_.runs.rows.emplace_back();
    for (const StudyValue& value : values) {
        row.push_back(value.Cell());
    }
    return *this;
}

std::unique_ptr<ReferenceStudy> StudyBuilder::Build(const std::string& iniFileName) const {
    return std::make_unique<ReferenceStudy>(data_, iniFileName);
}

}  // namespace kvopt
