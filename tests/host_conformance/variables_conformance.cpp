#include <cmath>
#include <set>

#include "host_conformance/host_conformance.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {
namespace {

TEST_P(HostConformance, GivesTheSameVariablesAndResponsesEachTime) {
    ASSERT_NE(study->GetVariables(), nullptr);
    ASSERT_NE(study->GetResponseManager(), nullptr);
    EXPECT_EQ(study->GetVariables(), study->GetVariables());
    EXPECT_EQ(study->GetResponseManager(), study->GetResponseManager());
    EXPECT_EQ(Factors(), Factors());
}

TEST_P(HostConformance, NamesEachFactorOnceAndNeverAsAnUnusedAxis) {
    std::set<std::string> names;
    for (const FactorClass* factor : Factors()) {
        ASSERT_NE(factor, nullptr);
        EXPECT_FALSE(factor->GetName().empty());
        EXPECT_FALSE(AxisInfo::IsNotUsedName(factor->GetName()));
        EXPECT_TRUE(names.insert(factor->GetName()).second) << factor->GetName();
    }
}

TEST_P(HostConformance, FindsEachFactorByItsExactName) {
    for (FactorClass* factor : Factors()) {
        EXPECT_EQ(variables.GetFactor(factor->GetName()), factor);
        EXPECT_TRUE(variables.IsFactor(factor->GetName()));
        EXPECT_EQ(variables.GetUnits(factor->GetName()), factor->GetUnits());
        EXPECT_EQ(variables.GetType(factor->GetName()), factor->factorValue.type);
        EXPECT_EQ(variables.GetUse(factor->GetName()), factor->factorValue.use);
        EXPECT_EQ(variables.IsFactorQualitative(factor->GetName()), factor->IsQualitative());
        EXPECT_EQ(variables.IsMixture(factor->GetName()), factor->IsMixture());
        EXPECT_FALSE(variables.IsFactor(factor->GetName() + " "));
    }
}

TEST_P(HostConformance, KnowsNoUnknownFactor) {
    const std::string unknown = UnknownName();
    EXPECT_EQ(variables.GetFactor(unknown), nullptr);
    EXPECT_EQ(variables.GetFactorFromAbbr(unknown), nullptr);
    EXPECT_EQ(variables.GetNameFromAbbr(unknown), "");
    EXPECT_FALSE(variables.IsFactor(unknown));
    EXPECT_FALSE(variables.IsFactor(""));
    EXPECT_FALSE(variables.IsFactorQualitative(unknown));
    EXPECT_FALSE(variables.IsMixture(unknown));
    EXPECT_FALSE(variables.LegalSetting(unknown, "1"));
    EXPECT_EQ(variables.GetSetting(unknown, 1), "");
    EXPECT_EQ(variables.GetUnits(unknown), "");
    EXPECT_EQ(variables.GetMixtureReferenceRegulated(unknown, "", kNotSet, false), kNotSet);
}

TEST_P(HostConformance, CountsFactorsFromOne) {
    const std::vector<FactorClass*> factors = Factors();
    const int count = static_cast<int>(factors.size());
    for (int i = 1; i <= count; ++i) {
        EXPECT_EQ(variables.GetIndexFactor(i), factors[static_cast<std::size_t>(i - 1)]);
        EXPECT_EQ(variables.GetFactor(i), factors[static_cast<std::size_t>(i - 1)]->GetName());
    }
    for (const int outside : {-1, 0, count + 1}) {
        EXPECT_EQ(variables.GetIndexFactor(outside), nullptr);
        EXPECT_EQ(variables.GetFactor(outside), "");
        EXPECT_EQ(variables.GetDesignFactor(outside), "");
    }
}

TEST_P(HostConformance, CountsEachFactorAsAProcessOrAMixtureFactor) {
    int mixture = 0;
    bool isAnyFiller = false;
    bool isAnyQualitative = false;
    for (const FactorClass* factor : Factors()) {
        const CEType::EType type = factor->factorValue.type;
        mixture += type == CEType::Formulation || type == CEType::Filler ? 1 : 0;
        isAnyFiller = isAnyFiller || type == CEType::Filler;
        isAnyQualitative = isAnyQualitative || type == CEType::Qualitative;
        EXPECT_EQ(factor->IsQualitative(), type == CEType::Qualitative);
        EXPECT_EQ(factor->IsMixture(), type == CEType::Formulation);
    }
    const int all = variables.GetCount(CEVar::AllFactors);
    EXPECT_EQ(all, static_cast<int>(Factors().size()));
    EXPECT_EQ(variables.GetCount(CEVar::MixtureFactors), mixture);
    EXPECT_EQ(variables.GetCount(CEVar::ProcessFactors), all - mixture);
    EXPECT_EQ(variables.GetMixture(), mixture);
    EXPECT_EQ(variables.IsAnyFiller(), isAnyFiller);
    EXPECT_EQ(variables.IsAnyQualitative(), isAnyQualitative);
    EXPECT_TRUE(isAnyFiller || !variables.IstrueFiller());
}

TEST_P(HostConformance, GivesEachFactorAnIndexOfItsOwn) {
    std::set<int> indices;
    for (const FactorClass* factor : Factors()) {
        EXPECT_GT(factor->index, 0);
        EXPECT_TRUE(indices.insert(factor->index).second) << factor->GetName();
    }
}

TEST_P(HostConformance, FindsFactorsByTheirAbbreviations) {
    std::set<std::string> abbreviations;
    for (FactorClass* factor : Factors()) {
        const std::string& abbreviation = factor->abbreviation;
        if (abbreviation.empty()) {
            continue;
        }
        EXPECT_TRUE(abbreviations.insert(abbreviation).second) << abbreviation;
        EXPECT_EQ(abbreviation.find('*'), std::string::npos) << abbreviation;
        EXPECT_EQ(variables.GetFactorFromAbbr(abbreviation), factor);
        EXPECT_EQ(variables.GetNameFromAbbr(abbreviation), factor->GetName());
    }
}

TEST_P(HostConformance, TellsTheSettingsOfFactorsWithLevels) {
    for (const FactorClass* factor : Factors()) {
        if (!CEType::IsList(factor->factorValue.type)) {
            continue;
        }
        SCOPED_TRACE(factor->GetName());
        ASSERT_GT(factor->settingCount, 0);
        std::set<std::string> settings;
        for (int i = 1; i <= factor->settingCount; ++i) {
            const std::string setting = factor->GetSetting(i);
            EXPECT_FALSE(setting.empty());
            EXPECT_TRUE(settings.insert(setting).second) << setting;
            EXPECT_EQ(variables.GetSetting(factor->GetName(), i), setting);
            EXPECT_EQ(factor->factorValue.GetSettingIndex(setting), i);
            EXPECT_NE(factor->GetNameWithSetting(i), factor->GetName());
        }
        for (const int outside : {-1, 0, factor->settingCount + 1}) {
            EXPECT_EQ(factor->GetSetting(outside), "");
            EXPECT_EQ(variables.GetSetting(factor->GetName(), outside), "");
        }
        EXPECT_LE(factor->factorValue.GetSettingIndex(UnknownName()), 0);
    }
}

TEST_P(HostConformance, IncludesSettingsInOrderAndTakesThemAsLegal) {
    for (const FactorClass* factor : Factors()) {
        if (!CEType::IsList(factor->factorValue.type)) {
            continue;
        }
        SCOPED_TRACE(factor->GetName());
        const std::vector<int> included = factor->GetIncludedSettings();
        EXPECT_FALSE(included.empty());
        int previous = 0;
        for (const int index : included) {
            EXPECT_GT(index, previous);
            EXPECT_LE(index, factor->settingCount);
            previous = index;
            EXPECT_TRUE(factor->LegalSetting(factor->GetSetting(index)));
            EXPECT_TRUE(variables.LegalSetting(factor->GetName(), factor->GetSetting(index)));
        }
        EXPECT_FALSE(factor->LegalSetting(UnknownName()));
        EXPECT_FALSE(factor->LegalSetting(""));
    }
}

TEST_P(HostConformance, GivesNumericFactorsARangeWithItsMiddleInside) {
    for (const FactorClass* factor : Factors()) {
        if (factor->IsQualitative()) {
            continue;
        }
        SCOPED_TRACE(factor->GetName());
        const double low = factor->GetLow(true);
        const double high = factor->GetHigh(true);
        ASSERT_TRUE(std::isfinite(low) && std::isfinite(high));
        EXPECT_NE(low, kNotSet);
        EXPECT_NE(high, kNotSet);
        EXPECT_LE(low, high);
        const double centre = factor->GetCenterpoint(true, kNotSet, kNotSet);
        EXPECT_GE(centre, low);
        EXPECT_LE(centre, high);
    }
}

TEST_P(HostConformance, TakesTextsOfNumbersWithinTheRangeAsLegal) {
    for (const FactorClass* factor : Factors()) {
        if (factor->IsQualitative()) {
            continue;
        }
        SCOPED_TRACE(factor->GetName());
        const double low = factor->GetLow(true);
        const double high = factor->GetHigh(true);
        const double range = high - low + 1.0;
        for (const double limit : {low, high}) {
            EXPECT_TRUE(factor->LegalSetting(KvString::FormatG(limit)));
            EXPECT_TRUE(factor->LegalSetting(" " + KvString::FromDouble(limit) + "\t"));
            EXPECT_TRUE(variables.LegalSetting(factor->GetName(), KvString::FromDouble(limit)));
        }
        for (const std::string& illegal :
             {std::string(), std::string(" "), std::string("low"),
              KvString::FormatG(low) + " " + KvString::FormatG(low),
              KvString::FromDouble(low - range), KvString::FromDouble(high + range)}) {
            EXPECT_FALSE(factor->LegalSetting(illegal)) << illegal;
        }
    }
}

TEST_P(HostConformance, LetsOnlyControlledFactorsIntoTheDesign) {
    for (const bool includeBlock : {false, true}) {
        const std::vector<FactorClass*> design = variables.GetAllDesignFactors(includeBlock);
        EXPECT_EQ(variables.GetDesignFactorCount(includeBlock), static_cast<int>(design.size()));
        for (const FactorClass* factor : design) {
            EXPECT_EQ(factor->factorValue.use, CEUse::Controlled);
            EXPECT_TRUE(includeBlock || factor->GetName() != kBlockFactorName);
        }
    }
    const std::vector<FactorClass*> design = variables.GetAllDesignFactors(false);
    for (std::size_t i = 0; i < design.size(); ++i) {
        EXPECT_EQ(variables.GetDesignFactor(static_cast<int>(i) + 1), design[i]->GetName());
    }
}

TEST_P(HostConformance, KeepsTheReferenceMixtureAtTheTotal) {
    double sum = 0.0;
    bool isMixture = false;
    for (const FactorClass* factor : Factors()) {
        const double part =
            variables.GetMixtureReferenceRegulated(factor->GetName(), "", kNotSet, true);
        if (!factor->IsMixture() && factor->factorValue.type != CEType::Filler) {
            EXPECT_EQ(part, kNotSet) << factor->GetName();
            continue;
        }
        isMixture = true;
        EXPECT_GE(part, factor->GetLow(true) - 1e-9) << factor->GetName();
        EXPECT_LE(part, factor->GetHigh(true) + 1e-9) << factor->GetName();
        sum += part;
    }
    EXPECT_GT(variables.GetMixtureTotal(), 0.0);
    if (isMixture) {
        EXPECT_NEAR(sum, variables.GetMixtureTotal(), 1e-9);
    }
}

TEST_P(HostConformance, RegulatesTheMixtureAroundAFixedPart) {
    for (const FactorClass* fixed : Factors()) {
        if (!fixed->IsMixture()) {
            continue;
        }
        const double value = (fixed->GetLow(true) + fixed->GetHigh(true)) / 2.0;
        double sum = 0.0;
        for (const FactorClass* factor : Factors()) {
            const double part = variables.GetMixtureReferenceRegulated(
                factor->GetName(), fixed->GetName(), value, true);
            sum += part == kNotSet ? 0.0 : part;
        }
        EXPECT_EQ(
            variables.GetMixtureReferenceRegulated(fixed->GetName(), fixed->GetName(), value, true),
            value);
        EXPECT_NEAR(sum, variables.GetMixtureTotal(), 1e-9) << fixed->GetName();
    }
}

TEST_P(HostConformance, TurnsPseudoComponentsBackIntoAmounts) {
    for (const FactorClass* factor : Factors()) {
        if (!factor->IsMixture()) {
            continue;
        }
        const double amount =
            variables.GetMixtureReferenceRegulated(factor->GetName(), "", kNotSet, true);
        const double pseudo =
            variables.GetMixtureReferenceRegulated(factor->GetName(), "", kNotSet, false);
        EXPECT_NEAR(variables.GetPseudoComponent(factor, pseudo, false), amount, 1e-9);
        EXPECT_NEAR(variables.GetPseudoComponent(factor, amount, true), pseudo, 1e-9);
    }
}

TEST_P(HostConformance, GivesEveryPositionOfANumericFactorALegalValue) {
    for (const FactorClass* factor : Factors()) {
        if (factor->IsQualitative()) {
            continue;
        }
        for (const auto position :
             {FactorConstants::LOW, FactorConstants::REF, FactorConstants::HIGH}) {
            const double value =
                FactorConstants::GetQuantitativeFloatValue(variables, factor, position);
            ASSERT_NE(value, kNotSet) << factor->GetName();
            EXPECT_GE(value, factor->GetLow(true) - 1e-9) << factor->GetName();
            EXPECT_LE(value, factor->GetHigh(true) + 1e-9) << factor->GetName();
        }
    }
}

TEST_P(HostConformance, AgreesWithItselfAboutConstraints) {
    bool isAny = false;
    const ConstraintsInfo* constraints = study->GetConstraints();
    for (const FactorClass* factor : Factors()) {
        isAny = isAny || (constraints != nullptr && constraints->HasConstraints(factor->GetName()));
    }
    const FMatrix* matrix = variables.GetConstraints();
    EXPECT_EQ(matrix != nullptr, isAny);
    if (constraints != nullptr) {
        EXPECT_FALSE(constraints->HasConstraints(UnknownName()));
    }
    if (matrix != nullptr) {
        EXPECT_GT(matrix->rows, 0);
        EXPECT_EQ(matrix->values.size(), static_cast<std::size_t>(matrix->rows * matrix->columns));
    }
}

TEST_P(HostConformance, IsBlockedExactlyWithABlockFactor) {
    const FactorClass* block = variables.GetFactor(std::string(kBlockFactorName));
    EXPECT_EQ(study->IsBlocked(), block != nullptr);
    if (block != nullptr) {
        EXPECT_TRUE(block->IsQualitative());
        EXPECT_FALSE(block->IsDesignFactor());
    }
    const Investigation& constant = *study;
    EXPECT_EQ(constant.GetModelSpec()->GetBlockCount(0) > 1,
              block != nullptr && block->settingCount > 1);
}

}  // namespace
}  // namespace kvopt
