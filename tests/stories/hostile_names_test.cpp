// Any text is legal as the name of a factor, of a setting and of a response: it goes through the
// wizard, the study's ini file and a saved plot and comes back the same, in every desktop, also in
// a process that counts in German.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>

#include "kvopt/host.h"
#include "kvopt/plotargs.h"
#include "kvopt/sheets.h"
#include "kvopt/stores.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "tests/stores/store_test_support.h"
#include "tests/stories/played_story.h"
#include "tests/support/installed_stores.h"
#include "tests/support/plot_compare.h"
#include "tests/text/german_process.h"

namespace kvopt::test {

namespace {

constexpr const char* kThroughTheWizard = "click \"Add\"\nnext\nfinish\n";

/// A study whose every name holds the text.
std::unique_ptr<ReferenceStudy> StudyNamed(const std::string& text, const std::string& iniFile) {
    StudyBuilder study(text);
    study.Process(text, 0.5, 2.25)
        .Process(text + "2", -1.5, 1.25)
        .Process(text + "3", 10, 20)
        .Qualitative(text + "4", {text + "a", text, text + "b"})
        .Response(text + "r")
        .Model({"A", "B", "C", "D"});
    const char* const settings[] = {"a", "", "b"};
    for (int run = 0; run < 12; ++run) {
        study.Run({run % 2 == 0 ? 0.5 : 2.25, run % 3 == 0 ? -1.5 : 1.25, run % 4 < 2 ? 10 : 20,
                   text + settings[run % 3], run * 1.5});
    }
    return study.Build(iniFile);
}

bool IsText(const std::string& text) {
    return KvStdString::ToUtf8(KvStdString::ToWide(text)) == text;
}

/// Names that a host refuses, and bytes that are no text, aside.
std::vector<NastyText> NamesOfAStudy() {
    std::vector<NastyText> names;
    for (const NastyText& nasty : NastyTexts()) {
        if (!nasty.text.empty() && nasty.text != kBlockFactorName && IsText(nasty.text)) {
            names.push_back(nasty);
        }
    }
    return names;
}

/// What is kept of each constant. Where in its range the value of a qualitative one lies is not.
std::map<std::string, std::string> Values(const ContourPlotData& plot) {
    std::map<std::string, std::string> values;
    const FactorConstants::Constant* constants = plot.GetPlotConstants();
    for (int at = 0; at < FactorConstants::NumConstants(constants); ++at) {
        values[constants[at].Name()] = constants[at].kind == FactorConstants::kQuantitativeKind
                                           ? KvString::FromDouble(constants[at].FloatValue())
                                           : constants[at].QualValue();
    }
    return values;
}

/// Nothing is remembered of the ini files that were read before.
void Forget() {
    IniFileFactory::Install(std::make_shared<IniFileFactory>());
}

std::unique_ptr<ContourPlotData> NewPlot(ReferenceStudy& study) {
    return std::make_unique<ContourPlotData>(&study, 4, study.GetIniFileName(), false, false, false,
                                             false);
}

class HostileNames : public testing::TestWithParam<std::tuple<StoryDesktopKind, bool>> {};

TEST_P(HostileNames, GoThroughWizardIniFileAndSavedPlotAndComeBackTheSame) {
    const auto& [kind, german] = GetParam();
    for (const NastyText& nasty : NamesOfAStudy()) {
        SCOPED_TRACE(nasty.label);
        // The application of a front end sets the locale of the process when it is made.
        const auto desktop = kind.make(UserScript::FromText(kThroughTheWizard));
        std::optional<GermanProcess> germanProcess;
        if (german) {
            germanProcess.emplace();
        }
        const InstalledStores stores;
        const auto study = StudyNamed(nasty.text, stores.File("study.ini"));
        const auto plot = NewPlot(*study);

        Desktop* former = Desktop::Install(&desktop->Get());
        const bool finished = ShowContourWizard(nullptr, *plot, study.get(), true, false);
        Desktop::Install(former);
        EXPECT_THAT(desktop->Verify(), testing::IsEmpty());
        ASSERT_TRUE(finished);

        int count = 0;
        const auto& axes = plot->GetSelectedAxisInfo(count);
        const std::set<std::string> onAxes{axes[1]->GetName(), axes[2]->GetName()};
        EXPECT_EQ(onAxes.size(), 2U);
        for (const std::string& name : onAxes) {
            EXPECT_TRUE(study->GetVariables()->IsFactor(name)) << name;
        }
        EXPECT_EQ(plot->GetContourTypeData()->GetSelectedResponses(),
                  std::vector<std::string>{nasty.text + "r"});
        EXPECT_TRUE(FactorConstants::IsMember(plot->GetPlotConstants(), nasty.text + "4"));

        Forget();
        const auto remembered = NewPlot(*study);
        EXPECT_EQ(Describe(remembered->GetAxisInfo(ContourPlotData::Process2D), 2),
                  Describe(plot->GetAxisInfo(ContourPlotData::Process2D), 2));
        EXPECT_EQ(Values(*remembered), Values(*plot));

        ConfigurationStore saved;
        plot->WriteSection(saved.Root().get());
        saved.Save(stores.File("plot.json"));
        const ConfigurationStore loaded = ConfigurationStore::Load(stores.File("plot.json"));
        const auto back = NewPlot(*study);
        ASSERT_TRUE(back->ReadSection(loaded.Root().get()));
        EXPECT_EQ(Describe(back->GetAxisInfo(ContourPlotData::Process2D), 2),
                  Describe(plot->GetAxisInfo(ContourPlotData::Process2D), 2));
        EXPECT_EQ(Values(*back), Values(*plot));
        EXPECT_EQ(back->GetContourTypeData()->GetSelectedResponses(),
                  plot->GetContourTypeData()->GetSelectedResponses());
    }
}

INSTANTIATE_TEST_SUITE_P(All, HostileNames,
                         testing::Combine(testing::ValuesIn(AllStoryDesktops()), testing::Bool()),
                         [](const auto& combination) {
                             return std::string(std::get<0>(combination.param).name) +
                                    (std::get<1>(combination.param) ? "InGerman" : "");
                         });

}  // namespace

}  // namespace kvopt::test
