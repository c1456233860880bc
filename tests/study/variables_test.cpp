#include "kvopt/study/variables.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/fake_study.h"

namespace kvopt {
namespace {

using test::FakeStudy;

/// Eight factors: a block entry, four process factors of which two are not set by the design, and
/// three parts of a mixture.
class StudyVariables : public testing::Test {
protected:
    StudyVariables() {
        study_.Block(2);
        speed_ = &study_.Number("Speed", 10.0, 20.0);
        speed_->abbreviation = "Sp";
        speed_->units = "m/s";
        study_.Names("Colour", {"red", "green"});
        study_.Number("Humidity").factorValue.use = CEUse::Uncontrolled;
        study_.Number("Pressure").factorValue.use = CEUse::Constant;
        study_.Part("Water", 0.2, 0.8);
        study_.Part("Salt", 0.0, 0.2);
        filler_ = &study_.Filler("Sand", 0.1, 0.5);
        study_.Response("Yield");
        vars().GetAllResponses().front()->units = "%";
    }
    const Variables& vars() const { return *study_.GetVariables(); }

    FakeStudy study_;
    FactorClass* speed_;
    FactorClass* filler_;
};

TEST_F(StudyVariables, CountFactorsByKindTheFillerAmongTheMixture) {
    EXPECT_EQ(vars().GetCount(CEVar::AllFactors), 8);
    EXPECT_EQ(vars().GetCount(CEVar::ProcessFactors), 5);
    EXPECT_EQ(vars().GetCount(CEVar::MixtureFactors), 3);
    EXPECT_EQ(vars().GetMixture(), 3);
}

TEST_F(StudyVariables, ListTheDesignFactorsWithTheBlockEntryOnlyWhenAsked) {
    std::vector<std::string> names;
    for (const FactorClass* factor : vars().GetAllDesignFactors(false)) {
        names.push_back(factor->GetName());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Speed", "Colour", "Water", "Salt", "Sand"}));
    EXPECT_EQ(vars().GetDesignFactorCount(false), 5);
    EXPECT_EQ(vars().GetDesignFactorCount(true), 6);
    EXPECT_EQ(vars().GetAllDesignFactors(true).front()->GetName(), kBlockFactorName);
    EXPECT_EQ(vars().GetDesignFactor(1), "Speed");
    EXPECT_EQ(vars().GetDesignFactor(5), "Sand");
    EXPECT_EQ(vars().GetDesignFactor(0), "");
    EXPECT_EQ(vars().GetDesignFactor(6), "");
}

TEST_F(StudyVariables, CountFactorsFromOne) {
    EXPECT_EQ(vars().GetFactor(1), kBlockFactorName);
    EXPECT_EQ(vars().GetFactor(8), "Sand");
    EXPECT_EQ(vars().GetFactor(0), "");
    EXPECT_EQ(vars().GetFactor(9), "");
    EXPECT_EQ(vars().GetIndexFactor(1), vars().GetFactor(kBlockFactorName));
    EXPECT_EQ(vars().GetIndexFactor(2), speed_);
    EXPECT_EQ(vars().GetIndexFactor(8), filler_);
    EXPECT_EQ(vars().GetIndexFactor(0), nullptr);
    EXPECT_EQ(vars().GetIndexFactor(-1), nullptr);
    EXPECT_EQ(vars().GetIndexFactor(9), nullptr);
}

TEST_F(StudyVariables, FindFactorsByExactName) {
    EXPECT_EQ(vars().GetFactor("Speed"), speed_);
    EXPECT_EQ(study_.GetVariables()->GetFactor(std::string("Speed")), speed_);
    EXPECT_EQ(vars().GetFactor("speed"), nullptr);
    EXPECT_EQ(vars().GetFactor("Yield"), nullptr);
    EXPECT_TRUE(vars().IsFactor("Speed"));
    EXPECT_FALSE(vars().IsFactor("Sp"));
    EXPECT_FALSE(vars().IsFactor(""));
}

TEST_F(StudyVariables, FindFactorsByAbbreviationOrByNameWithoutOne) {
    EXPECT_EQ(vars().GetFactorFromAbbr("Sp"), speed_);
    EXPECT_EQ(vars().GetFactorFromAbbr("Speed"), nullptr);
    EXPECT_EQ(vars().GetFactorFromAbbr("Colour"), vars().GetFactor("Colour"));
    EXPECT_EQ(vars().GetFactorFromAbbr(""), nullptr);
    EXPECT_EQ(vars().GetNameFromAbbr("Sp"), "Speed");
    EXPECT_EQ(vars().GetNameFromAbbr("Salt"), "Salt");
    EXPECT_EQ(vars().GetNameFromAbbr("xx"), "");
}

TEST_F(StudyVariables, TellKindsAndUsesByName) {
    EXPECT_TRUE(vars().IsFactorQualitative("Colour"));
    EXPECT_FALSE(vars().IsFactorQualitative("Speed"));
    EXPECT_FALSE(vars().IsFactorQualitative("xx"));
    EXPECT_TRUE(vars().IsMixture("Water"));
    EXPECT_FALSE(vars().IsMixture("Sand"));
    EXPECT_FALSE(vars().IsMixture("xx"));
    EXPECT_EQ(vars().GetType("Sand"), CEType::Filler);
    EXPECT_EQ(vars().GetUse("Pressure"), CEUse::Constant);
    EXPECT_EQ(vars().GetType("xx"), FactorValue().type);
    EXPECT_EQ(vars().GetUse("xx"), FactorValue().use);
    EXPECT_TRUE(vars().IsAnyQualitative());
    EXPECT_TRUE(vars().IsAnyFiller());
    EXPECT_TRUE(vars().IstrueFiller());
    filler_->factorValue.type = CEType::Formulation;
    EXPECT_FALSE(vars().IsAnyFiller());
    EXPECT_FALSE(vars().IstrueFiller());
    FakeStudy plain;
    plain.Number("Speed");
    EXPECT_FALSE(plain.GetVariables()->IsAnyQualitative());
}

TEST_F(StudyVariables, AnswerForSettingsAndUnits) {
    EXPECT_TRUE(vars().LegalSetting("Speed", "15"));
    EXPECT_FALSE(vars().LegalSetting("Speed", "25"));
    EXPECT_TRUE(vars().LegalSetting("Colour", "red"));
    EXPECT_FALSE(vars().LegalSetting("xx", "15"));
    EXPECT_EQ(vars().GetSetting("Colour", 2), "green");
    EXPECT_EQ(vars().GetSetting("Colour", 3), "");
    EXPECT_EQ(vars().GetSetting("xx", 1), "");
    EXPECT_EQ(vars().GetUnits("Speed"), "m/s");
    EXPECT_EQ(vars().GetUnits("Yield"), "%");
    EXPECT_EQ(vars().GetUnits("xx"), "");
}

TEST_F(StudyVariables, HaveNoConstraintsAndNoPseudoComponentsUnlessTheHostSaysSo) {
    EXPECT_EQ(vars().GetConstraints(), nullptr);
    EXPECT_EQ(vars().GetPseudoComponent(speed_, 0.25, true), 0.25);
    EXPECT_EQ(vars().GetPseudoComponent(speed_, 0.25, false), 0.25);
    EXPECT_EQ(vars().GetMixtureTotal(), 1.0);
}

double Reference(const Variables& variables, const std::string& factor,
                 const std::string& fixedFactor = "", double fixedValue = kNotSet) {
    return variables.GetMixtureReferenceRegulated(factor, fixedFactor, fixedValue, true);
}

TEST_F(StudyVariables, GoTheSameWayUpEachRangeInTheReferenceMixture) {
    // The lows sum to 0.3 and the highs to 1.5, so t is 0.7 / 1.2.
    const double way = 0.7 / 1.2;
    EXPECT_DOUBLE_EQ(Reference(vars(), "Water"), 0.2 + way * 0.6);
    EXPECT_DOUBLE_EQ(Reference(vars(), "Salt"), way * 0.2);
    EXPECT_DOUBLE_EQ(Reference(vars(), "Sand"), 0.1 + way * 0.4);
    EXPECT_NEAR(Reference(vars(), "Water") + Reference(vars(), "Salt") + Reference(vars(), "Sand"),
                1.0, 1e-12);
    EXPECT_EQ(Reference(vars(), "Speed"), kNotSet);
    EXPECT_EQ(Reference(vars(), "xx"), kNotSet);
}

TEST_F(StudyVariables, KeepEachPartOfTheReferenceMixtureWithinItsLimits) {
    FakeStudy tight;
    tight.Part("A", 0.9, 0.95);
    for (const char* name : {"B", "C", "D"}) {
        tight.Part(name, 0.0, 0.1);
    }
    const Variables& variables = *tight.GetVariables();
    double sum = 0.0;
    for (const FactorClass* part : variables.GetAllFactors()) {
        const double value = Reference(variables, part->GetName());
        EXPECT_GE(value, part->low);
        EXPECT_LE(value, part->high);
        sum += value;
    }
    EXPECT_NEAR(sum, 1.0, 1e-12);
}

TEST_F(StudyVariables, StopAtTheLimitsWhereTheTotalLiesBeyondThem) {
    FakeStudy little;
    little.Part("A", 0.1, 0.2);
    little.Part("B", 0.1, 0.3);
    EXPECT_EQ(Reference(*little.GetVariables(), "A"), 0.2);
    FakeStudy much;
    much.Part("A", 0.7, 0.9);
    much.Part("B", 0.6, 0.8);
    EXPECT_EQ(Reference(*much.GetVariables(), "A"), 0.7);
}

TEST_F(StudyVariables, LetAPartWithoutLimitsBeAnything) {
    FakeStudy open;
    for (const char* name : {"A", "B", "C", "D"}) {
        open.Part(name, kNotSet, kNotSet);
    }
    EXPECT_DOUBLE_EQ(Reference(*open.GetVariables(), "B"), 0.25);
}

TEST_F(StudyVariables, HoldAPartAndLetTheOthersMakeUpTheRest) {
    EXPECT_EQ(Reference(vars(), "Water", "Water", 0.4), 0.4);
    const double salt = Reference(vars(), "Salt");
    const double sand = Reference(vars(), "Sand");
    const double heldSalt = Reference(vars(), "Salt", "Water", 0.4);
    const double heldSand = Reference(vars(), "Sand", "Water", 0.4);
    EXPECT_NEAR(heldSalt + heldSand, 0.6, 1e-12);
    EXPECT_NEAR(heldSalt / heldSand, salt / sand, 1e-12);
    EXPECT_EQ(Reference(vars(), "Salt", "Water", kNotSet), salt);
    EXPECT_EQ(Reference(vars(), "Salt", "xx", 0.4), salt);
    EXPECT_EQ(Reference(vars(), "Salt", "Speed", 0.4), salt);
}

TEST_F(StudyVariables, ShareTheRestWhenTheHeldPartWasTheWholeReference) {
    FakeStudy one;
    one.Part("A", 1.0, 1.0);
    one.Part("B", 0.0, 0.0);
    one.Part("C", 0.0, 0.0);
    EXPECT_EQ(Reference(*one.GetVariables(), "A"), 1.0);
    EXPECT_DOUBLE_EQ(Reference(*one.GetVariables(), "B", "A", 0.4), 0.3);
}

TEST(PseudoComponents, AreWhatTheReferenceMixtureAnswersUnlessOriginalUnitsAreAsked) {
    class Pseudo : public Variables {
    public:
        std::vector<FactorClass*> GetAllFactors() const override { return {&a_, &b_}; }
        std::vector<ResponseClass*> GetAllResponses() const override { return {}; }
        double GetPseudoComponent(const FactorClass*, double value, bool toPseudo) const override {
            return toPseudo ? value * 10.0 : value / 10.0;
        }

    private:
        mutable FactorClass a_{"A", 0.0, 1.0, CEType::Formulation};
        mutable FactorClass b_{"B", 0.0, 1.0, CEType::Formulation};
    };
    const Pseudo variables;
    EXPECT_DOUBLE_EQ(variables.GetMixtureReferenceRegulated("A", "", kNotSet, true), 0.5);
    EXPECT_DOUBLE_EQ(variables.GetMixtureReferenceRegulated("A", "", kNotSet, false), 5.0);
}

}  // namespace
}  // namespace kvopt
