#include "kvopt/study/investigation.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "kvopt/stores.h"
#include "support/fake_study.h"
#include "support/temporary_folder.h"

namespace kvopt {
namespace {

using test::FakeStudy;
using test::TemporaryFolder;

using Strings = std::vector<std::string>;

/// The least that a host has to write.
class SmallestStudy : public Investigation {
public:
    Variables* GetVariables() const override { return &variables_; }
    ResponseManager* GetResponseManager() const override { return &manager_; }

private:
    class Lists : public Variables {
    public:
        std::vector<FactorClass*> GetAllFactors() const override { return {&speed_}; }
        std::vector<ResponseClass*> GetAllResponses() const override { return {&yield_}; }

    private:
        mutable FactorClass speed_{"Speed", 0.0, 1.0};
        mutable ResponseClass yield_{"Yield"};
    };
    class Manager : public ResponseManager {
    public:
        const std::vector<ResponseEx*>& GetResponses() const override { return none_; }

    private:
        std::vector<ResponseEx*> none_;
    };
    mutable Lists variables_;
    mutable Manager manager_;
};

TEST(Investigation, AnswersForAHostThatGivesItsTwoListsAlone) {
    SmallestStudy study;
    EXPECT_EQ(study.GetFitInfo("Yield"), nullptr);
    EXPECT_TRUE(study.GetAllFitInfos().empty());
    EXPECT_EQ(study.GetConstraints(), nullptr);
    ASSERT_NE(study.GetModelQueries(), nullptr);
    EXPECT_FALSE(study.GetModelQueries()->HasModel());
    EXPECT_EQ(study.GetOptimizerQueries(), nullptr);
    EXPECT_EQ(study.GetIniFileName(), "");
    ASSERT_NE(study.GetInvestigationSettings("Blocking", false), nullptr);
    ASSERT_NE(study.GetDesignSpacePredictor(), nullptr);
    EXPECT_EQ(study.GetDesignSpacePredictor()->GetInvestigation(), &study);
    ASSERT_NE(study.GetOptions(), nullptr);
    EXPECT_EQ(*study.GetOptions(), KivexOptions());
    ASSERT_NE(study.GetModelSpec(), nullptr);
    EXPECT_EQ(static_cast<const Investigation&>(study).GetModelSpec(), study.GetModelSpec());
    ASSERT_NE(study.GetLabelTitles(), nullptr);
    EXPECT_EQ(study.GetLabelTitles()->NumNameTitles(), 3);
    EXPECT_FALSE(study.IsBlocked());
    EXPECT_FALSE(study.IsLocked());
    EXPECT_TRUE(
        study.favouriteSetpoint.GetDefaultStart(SimplexSetup::CalculateRequiredOnlyOptima).empty());
    EXPECT_EQ(study.GetFirstSelectedResponse(SelectResponseBase::Ordinary), "Yield");
}

TEST(Investigation, IsBlockedWithTheBlockEntry) {
    FakeStudy study;
    EXPECT_FALSE(study.IsBlocked());
    study.Block(2);
    EXPECT_TRUE(study.IsBlocked());
}

TEST(Investigation, ListsTheFitsThereAreInTheOrderOfTheResponses) {
    class Study : public FakeStudy {
    public:
        const FitInfo* GetFitInfo(const std::string& response) const override {
            return response == "Yield" ? &yield_ : response == "Profit" ? &profit_ : nullptr;
        }
        FitInfo yield_;
        FitInfo profit_;
    };
    Study study;
    for (const char* name : {"Yield", "Purity", "Profit"}) {
        study.Response(name);
    }
    EXPECT_EQ(study.GetAllFitInfos(), (std::vector<const FitInfo*>{&study.yield_, &study.profit_}));
}

TEST(Investigation, KeepsSettingsInMemoryWithoutAnIniFile) {
    SmallestStudy study;
    study.GetInvestigationSettings("Blocking", false)->WriteKey("FixedEffect", 0);
    int fixedEffect = 1;
    EXPECT_TRUE(
        study.GetInvestigationSettings("Blocking", true)->ReadKey("FixedEffect", fixedEffect));
    EXPECT_EQ(fixedEffect, 0);
    EXPECT_FALSE(
        study.GetInvestigationSettings("Optimizer", true)->ReadKey("FixedEffect", fixedEffect));
}

TEST(Investigation, KeepsSettingsAndOptionsInTheIniFileThatItNames) {
    const TemporaryFolder folder;
    const std::string file = folder.File("study.ini");
    {
        FakeStudy study;
        study.iniFileName = file;
        study.GetInvestigationSettings("Blocking", false)->WriteKey("FixedEffect", 0);
        KivexOptions options;
        options.numberFormat = CNumberFormat::Scientific;
        options.SaveOptions(*IniFileFactory::Instance()->GetIniFile(file, "Options"));
        DesignSpaceOptions designSpace;
        designSpace.dpmoLimit = 123;
        designSpace.SaveAsGlobalSettings(&study);
    }
    FakeStudy again;
    again.iniFileName = file;
    int fixedEffect = 1;
    EXPECT_TRUE(
        again.GetInvestigationSettings("Blocking", true)->ReadKey("FixedEffect", fixedEffect));
    EXPECT_EQ(fixedEffect, 0);
    EXPECT_EQ(again.GetOptions()->numberFormat, CNumberFormat::Scientific);
    EXPECT_EQ(again.GetDesignSpacePredictor()->GetOptions().dpmoLimit, 123);
}

TEST(Investigation, ReadsWithoutMakingAFile) {
    const TemporaryFolder folder;
    FakeStudy study;
    study.iniFileName = folder.File("study.ini");
    study.GetOptions();
    study.GetDesignSpacePredictor();
    study.GetInvestigationSettings("Blocking", true);
    EXPECT_EQ(folder.Names(), Strings());
}

TEST(Investigation, GivesTheSameOptionsEachTime) {
    FakeStudy study;
    study.GetOptions()->SetPlotLabelType(LabelTypes::RunOrder);
    EXPECT_EQ(study.GetOptions()->GetPlotLabelType(), LabelTypes::RunOrder);
    study.GetDesignSpacePredictor()->GetOptions().dpmoLimit = 77;
    EXPECT_EQ(study.GetDesignSpacePredictor()->GetOptions().dpmoLimit, 77);
    study.GetDesignSpacePredictor()->GetResponseSettings().resize(2);
    EXPECT_EQ(study.GetDesignSpacePredictor()->GetResponseSettings().size(), 2U);
}

/// Two ordinary responses, one of the extended set, and one that may not be plotted.
class SelectedResponses : public testing::Test {
protected:
    SelectedResponses() {
        study_.Response("Yield");
        study_.Response("Purity");
        study_.ExtraResponse("Profit");
        study_.Response("Lost");
        study_.unavailable = {"Lost"};
    }
    Strings Available(SelectResponseBase::ResponseType type) const {
        Strings names{"old"};
        study_.GetAllAvailableResponses(names, type, false);
        return names;
    }
    Strings Selected(SelectResponseBase::ResponseType type) const {
        Strings names{"old"};
        study_.GetSelectedResponses(names, type);
        return names;
    }

    FakeStudy study_;
};

TEST_F(SelectedResponses, ComeFromTheSetThatIsAsked) {
    EXPECT_EQ(Available(SelectResponseBase::Ordinary), (Strings{"Yield", "Purity"}));
    EXPECT_EQ(Available(SelectResponseBase::Extended), (Strings{"Yield", "Purity", "Profit"}));
    EXPECT_EQ(Available(SelectResponseBase::Special), (Strings{"Yield", "Purity", "Profit"}));
    Strings fitted;
    study_.GetAllAvailableResponses(fitted, SelectResponseBase::Extended, true);
    EXPECT_EQ(fitted, Strings());
}

TEST_F(SelectedResponses, AreRememberedInTheirOrderAsFarAsTheyAreAvailable) {
    EXPECT_EQ(Selected(SelectResponseBase::Extended), Strings());
    study_.SetSelectedResponses({"Profit", "Lost", "Purity", "xx"});
    EXPECT_EQ(Selected(SelectResponseBase::Extended), (Strings{"Profit", "Purity"}));
    EXPECT_EQ(Selected(SelectResponseBase::Ordinary), (Strings{"Purity"}));
    study_.unavailable.clear();
    EXPECT_EQ(Selected(SelectResponseBase::Ordinary), (Strings{"Lost", "Purity"}));
}

TEST_F(SelectedResponses, GiveTheFirstOfThemOrOfAll) {
    EXPECT_EQ(study_.GetFirstSelectedResponse(SelectResponseBase::Ordinary), "Yield");
    study_.SetSelectedResponses({"Profit", "Purity"});
    EXPECT_EQ(study_.GetFirstSelectedResponse(SelectResponseBase::Ordinary), "Purity");
    EXPECT_EQ(study_.GetFirstSelectedResponse(SelectResponseBase::Extended), "Profit");
    EXPECT_EQ(FakeStudy().GetFirstSelectedResponse(SelectResponseBase::Extended), "");
}

TEST_F(SelectedResponses, LoseWhatIsNoResponseOrMayNotBePlotted) {
    Strings names{"Profit", "Lost", "xx", "Yield"};
    study_.RemoveNonValidResponses(names);
    EXPECT_EQ(names, (Strings{"Profit", "Yield"}));
}

TEST(ActiveInvestigation, IsTheOneThatTheHostNamedAsLongAsItLives) {
    EXPECT_EQ(Investigation::GetActiveInvestigation(), nullptr);
    FakeStudy other;
    {
        FakeStudy study;
        Investigation::SetActiveInvestigation(&study);
        EXPECT_EQ(Investigation::GetActiveInvestigation(), &study);
    }
    EXPECT_EQ(Investigation::GetActiveInvestigation(), nullptr);
    Investigation::SetActiveInvestigation(&other);
    { const FakeStudy study; }
    EXPECT_EQ(Investigation::GetActiveInvestigation(), &other);
    Investigation::SetActiveInvestigation(nullptr);
    EXPECT_EQ(Investigation::GetActiveInvestigation(), nullptr);
}

}  // namespace
}  // namespace kvopt
