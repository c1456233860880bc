#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "monkey/coverage.h"
#include "monkey/dice.h"
#include "monkey/episode.h"
#include "monkey/recorded_user.h"
#include "monkey/scenes.h"
#include "tests/monkey/faulty_scenes.h"

namespace kvopt::monkey {

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int kSteps = 40;

std::string StudyFile(const std::string& name) {
    return std::string(KVOPT_SOURCE_DIR) + "/examples/studies/" + name + ".json";
}

const std::string& TireTread() {
    static const std::string file = StudyFile("tire-tread-ccd-4-responses");
    return file;
}

std::vector<std::string> AllStudies() {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(
             std::filesystem::path(KVOPT_SOURCE_DIR) / "examples" / "studies")) {
        if (entry.path().extension() == ".json") {
            files.push_back(entry.path().string());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

Scene SceneNamed(const std::string& name) {
    const std::vector<Scene> scenes = AllScenes();
    return *std::find_if(scenes.begin(), scenes.end(),
                         [&](const Scene& scene) { return scene.name == name; });
}

Episode Play(const Scene& scene, const std::string& script) {
    RecordedUser user(UserScript::FromText(script).Steps());
    return PlayScene(TireTread(), scene, user);
}

}  // namespace

TEST(RandomUser, FindsNothingInAnyScene) {
    Coverage coverage;
    const std::vector<std::string> studies = AllStudies();
    std::size_t turn = 0;
    int steps = 0;
    for (const Scene& scene : AllScenes()) {
        const std::string& study = studies[turn++ % studies.size()];
        const Episode episode = PlayAtRandom(study, scene, turn, kSteps, coverage);
        EXPECT_EQ(episode.finding, "") << scene.name << " on " << study;
        steps += episode.steps;
    }
    EXPECT_GT(steps, 300);
}

TEST(RandomUser, DoesTheSameFromTheSameSeed) {
    Coverage coverage;
    const Scene scene = SceneNamed("contour wizard");
    const Episode first = PlayAtRandom(TireTread(), scene, 5, kSteps, coverage);
    EXPECT_EQ(first.transcript, PlayAtRandom(TireTread(), scene, 5, kSteps, coverage).transcript);
    EXPECT_NE(first.transcript, PlayAtRandom(TireTread(), scene, 6, kSteps, coverage).transcript);
}

TEST(RandomUser, IsPlayedAgainByAPlainDesktop) {
    Coverage coverage;
    const Scene scene = SceneNamed("process design space sheet");
    for (const std::uint64_t seed : {1U, 2U, 3U}) {
        const Episode episode = PlayAtRandom(TireTread(), scene, seed, kSteps, coverage);
        EXPECT_EQ(DifferenceOfReplay(episode, PlayPlainly(TireTread(), scene, ScriptOf(episode))),
                  "");
    }
}

TEST(Replay, NoticesABoxThatTheScriptDoesNotExpect) {
    const Scene scene = SceneNamed("design space page");
    const Episode episode = Play(scene, "type 6238 abc\napply\ncancel\n");
    ASSERT_EQ(episode.finding, "");
    const Episode without =
        PlayPlainly(TireTread(), scene, UserScript::FromText("type 6238 abc\napply\ncancel\n"));
    EXPECT_THAT(DifferenceOfReplay(episode, without), HasSubstr("an unexpected box came"));
}

TEST(Shorten, KeepsTheStepsThatBreakTheInvariant) {
    const Scene scene = StoresBeforeItRefuses();
    const Episode found = Play(scene,
                               "click 6259\ntype 6241 3\nclick 6260\ntype 6238 abc\nfocus 6237\n"
                               "click 6259\napply\n");
    ASSERT_NE(found.finding, "");
    const Episode shortest = Shorten(TireTread(), scene, found);
    EXPECT_EQ(shortest.steps, 2);
    EXPECT_THAT(ScriptOf(shortest).Text(), HasSubstr("type 6238 \"abc\"\napply\n"));
    EXPECT_EQ(DifferenceOfReplay(shortest, PlayPlainly(TireTread(), scene, ScriptOf(shortest))),
              "");
}

TEST(Invariants, LetTheRefusalOfAnOrdinaryPagePass) {
    const Episode episode = Play(SceneNamed("design space page"),
                                 "type 6238 abc\napply\ntype 6238 200\ntype 6241 0\nok\ncancel\n");
    EXPECT_EQ(episode.finding, "");
    EXPECT_THAT(episode.faults, IsEmpty());
}

TEST(Invariants, KnowWhoRefusedWhenTheConstantsAreAskedOnceMore) {
    const std::string doubt =
        "expect box question \"The following constant settings are missing or outside the "
        "recommended range:\\n\\nSulfur = Not used\\n\\nDo you still want to use these "
        "settings?\" answer ";
    const Episode episode = Play(SceneNamed("process design space sheet"),
                                 "tab \"Design space options\"\npick 6046 64\ntype 6272 inf\n"
                                 "tab Constants\ntype cell 1 2 in 6139 \"Not used\"\napply\n" +
                                     doubt + "yes\n" + doubt + "yes\n" + doubt + "no\n");
    EXPECT_THAT(episode.transcript, Contains(HasSubstr("The number of simulations should be")));
    EXPECT_EQ(episode.finding, "");
}

TEST(Invariants, NoticeAPageThatStoresBeforeItRefuses) {
    EXPECT_THAT(Play(StoresBeforeItRefuses(), "type 6238 abc\napply\n").finding,
                HasSubstr("a refused page changed the options"));
}

TEST(Invariants, NoticeAChangeThatCountsTwice) {
    EXPECT_THAT(Play(CountsAChangeTwice(), "click 6259\n").finding,
                HasSubstr("1 pages are dirty, the helper knows of 2"));
}

TEST(Invariants, NoticeAnItemThatIsLost) {
    EXPECT_THAT(Play(LosesAnItem(), "focus 6078\nclick 6017\n").finding,
                HasSubstr("the two lists hold"));
}

TEST(Invariants, NoticeABoxWithoutAText) {
    EXPECT_THAT(Play(RaisesABoxWithoutAText(), "click 6259\napply\n").finding,
                HasSubstr("a message box has no text"));
}

TEST(Invariants, NoticeABoxThatNobodyAnswers) {
    EXPECT_THAT(Play(RaisesABoxThatNobodyAnswers(), "click 6259\napply\n").finding,
                HasSubstr("boxes in the transcript: 1, answered: 0"));
}

TEST(Invariants, NoticeBoxesWithoutEnd) {
    EXPECT_THAT(Play(RaisesBoxesWithoutEnd(), "click 6259\napply\n").finding,
                HasSubstr("more than 50 boxes"));
}

TEST(Invariants, NoticeAWindowThatStaysOpenBehindCancel) {
    EXPECT_THAT(Play(StaysOpenBehindCancel(), "click 6259\n").finding,
                HasSubstr("Cancel leaves the window open"));
}

TEST(Invariants, NoticeAPageThatThrows) {
    EXPECT_EQ(Play(ThrowsOnAChange(), "click 6259\n").finding, "the page fell over");
}

TEST(Invariants, NoticeAFactorOnTwoAxes) {
    const Episode episode = Play(AcceptsAFactorTwice(),
                                 "pick 6037 Silica\n"
                                 "pick 6036 Silica\nfinish\n");
    EXPECT_THAT(episode.finding, HasSubstr("lies on two used axes"));
}

TEST(Invariants, NoticeConstantsWithoutAnEnd) {
    EXPECT_THAT(Play(FillsTheConstants(), "finish\n").finding,
                HasSubstr("the constants hold one more"));
}

}  // namespace kvopt::monkey
