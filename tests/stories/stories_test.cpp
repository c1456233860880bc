#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <tuple>

#include "tests/stories/played_story.h"
#include "tests/stories/story.h"

namespace kvopt::test {
namespace {

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Compares with a file beside the stories. With KVOPT_WRITE_GOLDEN set in the environment the
/// file is written instead, to be read before it is committed; such a run fails, so that it is
/// never taken for a test.
void ExpectGolden(const std::string& name, const std::string& text) {
    const std::string path = StoryFile(name);
    if (std::getenv("KVOPT_WRITE_GOLDEN") != nullptr) {
        std::ofstream(path, std::ios::binary) << text;
        ADD_FAILURE() << path << " was written; run again without KVOPT_WRITE_GOLDEN";
        return;
    }
    ASSERT_TRUE(std::filesystem::exists(path)) << path;
    EXPECT_EQ(text, ReadFile(path)) << path;
}

/// "contour_of_two_factors" in a desktop becomes "ContourOfTwoFactorsScripted".
std::string NameOf(const testing::TestParamInfo<std::tuple<Story, StoryDesktopKind>>& info) {
    std::string name;
    bool startsWord = true;
    for (const char* at = std::get<Story>(info.param).name; *at != '\0'; ++at) {
        if (*at == '_') {
            startsWord = true;
            continue;
        }
        name += startsWord ? static_cast<char>(*at - 'a' + 'A') : *at;
        startsWord = false;
    }
    return name + std::get<StoryDesktopKind>(info.param).name;
}

class StoryTest : public testing::TestWithParam<std::tuple<Story, StoryDesktopKind>> {};

TEST_P(StoryTest, GoesAsToldAndLeavesTheTranscriptAndTheStoresOfItsGoldenFiles) {
    const auto& [story, kind] = GetParam();
    const std::string name = story.name;
    const PlayedStory played = Play(story, kind);
    EXPECT_THAT(played.faults, testing::IsEmpty());
    ExpectGolden(name + ".transcript", played.transcript);
    ExpectGolden(name + ".stores", played.stores);
}

INSTANTIATE_TEST_SUITE_P(All, StoryTest,
                         testing::Combine(testing::ValuesIn(AllStories()),
                                          testing::ValuesIn(AllStoryDesktops())),
                         NameOf);

TEST(Stories, TheExampleOfTheDocumentIsOneOfThem) {
    const std::string document = ReadFile(std::string(KVOPT_SOURCE_DIR) + "/docs/scripts.md");
    const std::string fence = "```\n";
    const std::size_t begin = document.find(fence, document.find("## An example")) + fence.size();
    const std::string example = document.substr(begin, document.find(fence, begin) - begin);
    EXPECT_EQ(example, ReadFile(StoryFile("contour_of_two_factors.script")));
}

TEST(Stories, EveryScriptAndGoldenFileBelongsToAStory) {
    std::set<std::string> names;
    for (const Story& story : AllStories()) {
        EXPECT_TRUE(names.insert(story.name).second) << story.name << " is told twice";
    }
    for (const auto& entry : std::filesystem::directory_iterator(StoryFile(""))) {
        const std::filesystem::path& path = entry.path();
        const std::set<std::string> kinds{".script", ".transcript", ".stores"};
        if (kinds.count(path.extension().string()) > 0) {
            EXPECT_EQ(names.count(path.stem().string()), 1U) << path;
        }
    }
}

}  // namespace
}  // namespace kvopt::test
