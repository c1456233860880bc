#include "kvopt/host/reference_study.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "kvopt/host/study_builder.h"
#include "kvopt/stores.h"
#include "support/temporary_folder.h"

namespace kvopt {
namespace {

class ReferenceStudySettings : public testing::Test {
protected:
    std::string IniFile() const { return folder_.File("a study.ini"); }

private:
    const test::TemporaryFolder folder_;
};

StudyBuilder WithSettings() {
    StudyBuilder builder("settings");
    builder.Blocks({"1", "2"}).RandomBlocks();
    builder.Setting("Own", "Flag", true).Setting("Own", "Number", 7);
    builder.Setting("Own", "Share", 0.25).Setting("Own", "Text", std::string("word"));
    return builder;
}

TEST_F(ReferenceStudySettings, BeginWithThoseOfTheRecord) {
    for (const std::string& iniFile : {std::string(), IniFile()}) {
        const auto study = WithSettings().Build(iniFile);
        const auto section = study->GetInvestigationSettings("Own", false);
        EXPECT_TRUE(section->ReadKeyOr("Flag", false));
        EXPECT_EQ(section->ReadKeyOr("Flag", 0), 1);
        EXPECT_EQ(section->ReadKeyOr("Number", 0), 7);
        EXPECT_EQ(section->ReadKeyOr("Number", 0.0), 7.0);
        EXPECT_TRUE(section->ReadKeyOr("Number", false));
        EXPECT_EQ(section->ReadKeyOr("Share", 0.0), 0.25);
        EXPECT_EQ(section->ReadKeyOr("Text", std::string()), "word");
        EXPECT_EQ(section->ReadKeyOr("Text", -1), -1);
        EXPECT_EQ(section->ReadKeyOr("Share", -1), -1);
        EXPECT_EQ(section->ReadKeyOr("Number", std::string("none")), "none");
        EXPECT_EQ(study->GetInvestigationSettings("Blocking", true)->ReadKeyOr("FixedEffect", 1),
                  0);
        EXPECT_EQ(study->GetInvestigationSettings("Other", true)->ReadKeyOr("Number", -1), -1);
    }
}

TEST_F(ReferenceStudySettings, AreReadWithoutWritingAFile) {
    const auto study = WithSettings().Build(IniFile());
    study->GetInvestigationSettings("Own", false)->ReadKeyOr("Number", 0);
    study->GetInvestigationSettings("Own", true)->ReadKeyOr("Number", 0);
    EXPECT_FALSE(std::filesystem::exists(IniFile()));
}

TEST_F(ReferenceStudySettings, ThatWereChangedComeBackFromTheIniFile) {
    {
        const auto study = WithSettings().Build(IniFile());
        const auto section = study->GetInvestigationSettings("Blocking", false);
        section->WriteKey("FixedEffect", 1);
        section->Flush();
    }
    const auto study = WithSettings().Build(IniFile());
    EXPECT_EQ(study->GetInvestigationSettings("Blocking", false)->ReadKeyOr("FixedEffect", -1), 1);
    EXPECT_EQ(study->GetInvestigationSettings("Own", false)->ReadKeyOr("Number", 0), 7);
    EXPECT_EQ(
        IniFileFactory::Instance()->GetIniFile(IniFile(), "Blocking")->ReadKeyOr("FixedEffect", -1),
        1);
}

TEST_F(ReferenceStudySettings, LastAsLongAsAStudyWithoutAnIniFile) {
    const auto study = WithSettings().Build();
    study->GetInvestigationSettings("Own", false)->WriteKey("Number", 8);
    EXPECT_EQ(study->GetInvestigationSettings("Own", true)->ReadKeyOr("Number", 0), 8);
    EXPECT_EQ(WithSettings().Build()->GetInvestigationSettings("Own", true)->ReadKeyOr("Number", 0),
              7);
}

TEST_F(ReferenceStudySettings, OfTheRecordDoNotStandInSectionsInside) {
    const auto study = WithSettings().Build();
    const auto section = study->GetInvestigationSettings("Own", false);
    section->SetSection("Inside");
    EXPECT_EQ(section->ReadKeyOr("Number", -1), -1);
    section->SetSection("");
    EXPECT_EQ(section->ReadKeyOr("Number", -1), 7);
    section->GetSection("Child")->WriteKey("Number", 3);
    EXPECT_TRUE(section->HasSection("Child", true));
    EXPECT_EQ(section->CountSections("Child"), 1);
    EXPECT_EQ(section->GetIndexedSection("Child", 1)->ReadKeyOr("Number", -1), 3);
    const ConfigurationSection& constant = *section;
    EXPECT_NE(constant.GetSection("Child"), nullptr);
    EXPECT_EQ(constant.GetIndexedSection("Child", 2), nullptr);
}

TEST_F(ReferenceStudySettings, FollowTheIniFileThatIsSetLater) {
    const auto study = WithSettings().Build();
    EXPECT_EQ(study->GetIniFileName(), "");
    study->SetIniFileName(IniFile());
    EXPECT_EQ(study->GetIniFileName(), IniFile());
    {
        const auto section = study->GetInvestigationSettings("Own", false);
        section->WriteKey("Number", 9);
        section->Flush();
    }
    EXPECT_TRUE(std::filesystem::exists(IniFile()));
}

TEST_F(ReferenceStudySettings, KeepDesignSpaceOptionsThatWereSavedOverThoseOfTheRecord) {
    DesignSpaceOptions options;
    options.dpmoLimit = 66;
    const StudyBuilder builder = StudyBuilder().DesignSpace(options);
    {
        const auto study = builder.Build(IniFile());
        DesignSpaceOptions changed = study->GetDesignSpacePredictor()->GetOptions();
        EXPECT_EQ(changed.dpmoLimit, 66);
        changed.dpmoLimit = 77;
        changed.SaveAsGlobalSettings(study.get());
    }
    EXPECT_EQ(builder.Build(IniFile())->GetDesignSpacePredictor()->GetOptions().dpmoLimit, 77);
}

TEST(ReferenceStudy, TakesItsDesignSpaceOptionsFromTheRecord) {
    DesignSpaceOptions options;
    options.dpmoLimit = 66;
    options.intervalType = CIntervalType::Tolerance;
    const auto study = StudyBuilder().DesignSpace(options).Build();
    EXPECT_EQ(study->GetDesignSpacePredictor()->GetOptions(), options);
    EXPECT_EQ(StudyBuilder().Build()->GetDesignSpacePredictor()->GetOptions(),
              DesignSpaceOptions());
}

TEST(ReferenceStudy, AsksOfEachResponseWhatItsLimitsSay) {
    const auto study = StudyBuilder()
                           .Response("most")
                           .Limits(1, kNotSet)
                           .Response("least")
                           .Limits(kNotSet, 1)
                           .Response("between")
                           .Limits(0, 1)
                           .Response("whatever")
                           .Build();
    const auto& settings = study->GetDesignSpacePredictor()->GetResponseSettings();
    ASSERT_EQ(settings.size(), 4U);
    EXPECT_EQ(study->GetDesignSpacePredictor()->GetResponseSettings().size(), 4U);
    EXPECT_EQ(settings[0].criterion, 2U);
    EXPECT_EQ(settings[1].criterion, 0U);
    EXPECT_EQ(settings[2].criterion, 1U);
    EXPECT_EQ(settings[3].criterion, 3U);
}

TEST(ReferenceStudy, IsLockedWhereTheRecordSaysSo) {
    EXPECT_FALSE(StudyBuilder().Build()->IsLocked());
    EXPECT_TRUE(StudyBuilder().Locked().Build()->IsLocked());
}

TEST(ReferenceStudy, CountsItsBlocks) {
    const auto study = StudyBuilder().Blocks({"1", "2", "3"}).Build();
    EXPECT_TRUE(study->IsBlocked());
    EXPECT_EQ(study->GetModelSpec()->GetBlockCount(0), 3);
    EXPECT_FALSE(StudyBuilder().Build()->IsBlocked());
}

TEST(ReferenceStudy, SelectsTheResponsesOfTheRecord) {
    const auto study = StudyBuilder().Response("y").Response("z").Select({"z"}).Build();
    std::vector<std::string> selected;
    study->GetSelectedResponses(selected, SelectResponseBase::Ordinary);
    EXPECT_EQ(selected, std::vector<std::string>{"z"});
    EXPECT_EQ(study->GetFirstSelectedResponse(SelectResponseBase::Ordinary), "z");
}

TEST(ReferenceStudy, IsSoundWithoutFactorsAndResponses) {
    const auto study = StudyBuilder("empty").Build();
    EXPECT_EQ(study->GetVariables()->GetCount(CEVar::AllFactors), 0);
    EXPECT_EQ(study->GetFirstSelectedResponse(SelectResponseBase::Extended), "");
    EXPECT_FALSE(ResponseModelUtilities(study.get()).HasModel());
}

}  // namespace
}  // namespace kvopt
