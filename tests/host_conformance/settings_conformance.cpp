#include "host_conformance/host_conformance.h"
#include "kvopt/stores/configuration_section.h"

namespace kvopt {
namespace {

TEST_P(HostConformance, HasEveryServiceThatPagesAskFor) {
    EXPECT_NE(study->GetDesignSpacePredictor(), nullptr);
    EXPECT_NE(study->GetOptions(), nullptr);
    EXPECT_NE(study->GetModelSpec(), nullptr);
    EXPECT_NE(study->GetModelSpec()->GetFactors(), nullptr);
    const std::shared_ptr<BaseLabelTitles> titles = study->GetLabelTitles();
    ASSERT_NE(titles, nullptr);
    for (int i = 0; i < titles->NumNameTitles(); ++i) {
        EXPECT_NE(titles->GetName(i), "");
    }
    EXPECT_EQ(titles->GetName(-1), "");
    EXPECT_EQ(titles->GetName(titles->NumNameTitles()), "");
}

TEST_P(HostConformance, ReadsBackWhatItsSettingsWereGiven) {
    {
        const auto section = study->GetInvestigationSettings("Conformance", false);
        ASSERT_NE(section, nullptr);
        section->WriteKey("Flag", true);
        section->WriteKey("Number", 17);
        section->WriteKey("Share", 0.1);
        section->WriteKey("Text", " a;b=[c] ");
        section->Flush();
    }
    const auto section = study->GetInvestigationSettings("Conformance", true);
    ASSERT_NE(section, nullptr);
    EXPECT_TRUE(section->ReadKeyOr("Flag", false));
    EXPECT_EQ(section->ReadKeyOr("Number", 0), 17);
    EXPECT_EQ(section->ReadKeyOr("Share", 0.0), 0.1);
    EXPECT_EQ(section->ReadKeyOr("Text", std::string()), " a;b=[c] ");
}

TEST_P(HostConformance, LeavesTheTargetOfAMissingSettingAlone) {
    const auto section = study->GetInvestigationSettings("No such section", true);
    ASSERT_NE(section, nullptr);
    int number = 5;
    EXPECT_FALSE(section->ReadKey("No such key", number));
    EXPECT_EQ(number, 5);
    std::string text = "kept";
    EXPECT_FALSE(section->ReadKey("No such key", text));
    EXPECT_EQ(text, "kept");
}

TEST_P(HostConformance, ReadsTheBlockEffectAsANumberAndAsAFlag) {
    const int number =
        study->GetInvestigationSettings("Blocking", false)->ReadKeyOr("FixedEffect", 1);
    const bool flag =
        study->GetInvestigationSettings("Blocking", false)->ReadKeyOr("FixedEffect", true);
    EXPECT_TRUE(number == 0 || number == 1);
    EXPECT_EQ(flag, number == 1);
}

TEST_P(HostConformance, RemembersAChangedBlockEffect) {
    for (const int effect : {0, 1}) {
        const auto section = study->GetInvestigationSettings("Blocking", false);
        section->WriteKey("FixedEffect", effect);
        section->Flush();
        EXPECT_EQ(study->GetInvestigationSettings("Blocking", false)->ReadKeyOr("FixedEffect", -1),
                  effect);
    }
}

TEST_P(HostConformance, KeepsChangesOfItsOptions) {
    study->GetOptions()->SetPlotLabelType(LabelTypes::RunOrder);
    EXPECT_EQ(study->GetOptions()->GetPlotLabelType(), LabelTypes::RunOrder);
    study->GetDesignSpacePredictor()->GetOptions().dpmoLimit = 1234;
    EXPECT_EQ(study->GetDesignSpacePredictor()->GetOptions().dpmoLimit, 1234);
}

}  // namespace
}  // namespace kvopt
