#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/host/reference_study.h"
#include "kvopt/host/study_data.h"

namespace kvopt {

/// A value of a run as one writes it in code: a number, the name of a setting, or nullptr for
/// nothing.
class StudyValue {
public:
    StudyValue(std::nullptr_t /*nothing*/) {}                   // NOLINT(google-explicit-*)
    StudyValue(const char* text) : cell_(std::string(text)) {}  // NOLINT(google-explicit-*)
    StudyValue(std::string text) : cell_(std::move(text)) {}    // NOLINT(google-explicit-*)
    template <class Number, std::enable_if_t<std::is_arithmetic_v<Number>, int> = 0>
    StudyValue(Number number) : cell_(static_cast<double>(number)) {}  // NOLINT(google-explicit-*)

    const StudyCell& Cell() const { return cell_; }

private:
    StudyCell cell_;
};

/// Puts a study together in code:
///
///     auto study = StudyBuilder("Yield of a reaction")
///                      .Process("Time", 80, 90, "min")
///                      .Qualitative("Solvent", {"Water", "Ethanol"})
///                      .Response("Yield", "%").Limits(80, 100).Model({"A", "B", "A*B"})
///                      .Run({80, "Water", 71.5})
///                      .Run({90, "Ethanol", 78.0})
///                      .Build();
///
/// Factors and responses stand in the order in which they are added. Factors without an
/// abbreviation get A, B, C and so on. Operations that tell more about a factor or a response speak
/// of the last one added, and throw InvalidArgument when there is none; everything else is judged
/// by Build().
class KVOPT_EXPORT StudyBuilder {
public:
    explicit StudyBuilder(std::string name = "Study");
    /// Goes on from a record, for example that of a study file.
    explicit StudyBuilder(StudyData data);

    StudyBuilder& Process(const std::string& name, double low, double high,
                          const std::string& unit = {});
    StudyBuilder& Qualitative(const std::string& name, const std::vector<std::string>& settings);
    /// Levels in ascending order, and no value between them.
    StudyBuilder& Multilevel(const std::string& name, const std::vector<double>& levels,
                             const std::string& unit = {});
    /// Levels in ascending order; a model may go between them.
    StudyBuilder& Discrete(const std::string& name, const std::vector<double>& levels,
                           const std::string& unit = {});
    StudyBuilder& MixturePart(const std::string& name, double low, double high,
                              const std::string& unit = {});
    StudyBuilder& Filler(const std::string& name, double low, double high,
                         const std::string& unit = {});
    /// Measured with the response and not controlled.
    StudyBuilder& Covariate(const std::string& name, double low, double high,
                            const std::string& unit = {});
    /// The block factor, with the abbreviation "$B".
    StudyBuilder& Blocks(const std::vector<std::string>& blocks);

    /// Of the last factor.
    StudyBuilder& Abbreviation(const std::string& abbreviation);
    StudyBuilder& Use(CEUse::EUse use);
    /// Of the last factor: it cannot be set better than with this standard deviation.
    StudyBuilder& Precision(double standardDeviation);
    /// Of the last factor: no plot offers this setting.
    StudyBuilder& Exclude(const std::string& setting);

    StudyBuilder& Response(const std::string& name, const std::string& unit = {});
    StudyBuilder& DerivedResponse(const std::string& name, const std::vector<std::string>& from);
    StudyBuilder& CombinedResponse(const std::string& name, const std::vector<std::string>& from);
    StudyBuilder& ExternalResponse(const std::string& name, const std::string& unit = {});

    /// Of the last response; kNotSet for what it does not have.
    StudyBuilder& Limits(double low, double high, double target = kNotSet);
    StudyBuilder& Transform(StudyTransform transform);
    /// Of the last response. Scheffe models of mixtures have no intercept.
    StudyBuilder& Model(const std::vector<std::string>& terms, bool intercept = true);

    StudyBuilder& MixtureTotal(double total);
    StudyBuilder& PseudoComponents(bool use = true);
    StudyBuilder& Locked(bool locked = true);
    /// low <= sum of coefficient times factor <= high; kNotSet for no bound.
    StudyBuilder& Constraint(const std::map<std::string, double>& coefficients, double low,
                             double high);
    StudyBuilder& Label(const std::string& name);
    StudyBuilder& Favourite(const std::string& factor, const StudyValue& value);
    StudyBuilder& Select(const std::vector<std::string>& responses);
    StudyBuilder& Setting(const std::string& section, const std::string& key,
                          const StudySettingValue& value);
    /// Predictions count the block effect as random, not as fixed.
    StudyBuilder& RandomBlocks();
    StudyBuilder& DesignSpace(const DesignSpaceOptions& options);
    /// The values of one run: those of all factors, then of all ordinary responses, then labels, in
    /// the order in which they were added; so all of these come before the first run.
    StudyBuilder& Run(const std::vector<StudyValue>& values);

    const StudyData& Data() const { return data_; }
    /// Throws InvalidArgument, which says what is wrong and where, when this makes no study.
    std::unique_ptr<ReferenceStudy> Build(const std::string& iniFileName = {}) const;

private:
    StudyFactor& AddFactor(const std::string& name, CEType::EType type, const std::string& unit);
    StudyBuilder& AddRange(const std::string& name, CEType::EType type, double low, double high,
                           const std::string& unit);
    StudyBuilder& AddLevels(const std::string& name, CEType::EType type,
                            const std::vector<double>& levels, const std::string& unit);
    StudyResponse& AddResponse(const std::string& name, ResponseEx::EResponseType type);
    StudyFactor& LastFactor(const char* operation);
    StudyResponse& LastResponse(const char* operation);

    StudyData data_;
};

}  // namespace kvopt
