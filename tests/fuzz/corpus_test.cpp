// What the fuzzers start from and what they found goes through their targets again, with any
// compiler and without libFuzzer.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "fuzz/targets.h"
#include "stores/store_test_support.h"

namespace kvopt {
namespace {

std::vector<std::filesystem::path> FilesOf(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(KVOPT_SOURCE_DIR "/" + folder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

class FuzzTarget : public testing::TestWithParam<fuzz::Target> {};

INSTANTIATE_TEST_SUITE_P(Fuzz, FuzzTarget, testing::ValuesIn(fuzz::kTargets),
                         [](const testing::TestParamInfo<fuzz::Target>& row) {
                             return std::string(row.param.name);
                         });

TEST_P(FuzzTarget, HasNoFindingInItsCorpus) {
    const std::string folder = std::string("fuzz/corpus/") + GetParam().name;
    const std::vector<std::filesystem::path> files = FilesOf(folder);
    EXPECT_GE(files.size(), 5U);
    for (const std::filesystem::path& file : files) {
        EXPECT_NO_THROW(GetParam().run(test::Slurp(file.string()))) << file;
    }
}

TEST_P(FuzzTarget, HasADictionary) {
    const std::string file =
        KVOPT_SOURCE_DIR "/fuzz/dictionaries/" + std::string(GetParam().name) + ".dict";
    EXPECT_NE(test::Slurp(file), "");
}

TEST_P(FuzzTarget, HasNoFindingInTheEmptyInputAndInSingleBytes) {
    EXPECT_NO_THROW(GetParam().run(""));
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_NO_THROW(GetParam().run(std::string(1, static_cast<char>(byte)))) << byte;
    }
}

void AddMatches(const std::string& folder, const std::regex& pattern,
                std::set<std::string>& names) {
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(KVOPT_SOURCE_DIR "/" + folder)) {
        if (!entry.is_regular_file()) {
            continue;
        }
        const std::string text = test::Slurp(entry.path().string());
        for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end;
             ++match) {
            names.insert((*match)[1]);
        }
    }
}

// Those that define it themselves, and the enumerations that have it from their common base.
std::set<std::string> ClassesThatReadSections() {
    std::set<std::string> names;
    AddMatches("src", std::regex("\n(?:bool|void) (\\w+)::ReadSection\\("), names);
    AddMatches("include", std::regex("class KVOPT_EXPORT (\\w+)[^;{]*public EnumHelper<"), names);
    return names;
}

TEST(Fuzz, ReadsSavedPlotsWithEveryClassThatReadsSections) {
    const std::string readers = test::Slurp(KVOPT_SOURCE_DIR "/fuzz/section_readers.cpp");
    const std::set<std::string> names = ClassesThatReadSections();
    EXPECT_GE(names.size(), 14U);
    for (const std::string& name : names) {
        EXPECT_NE(readers.find(name), std::string::npos)
            << name << " has a ReadSection: add it to ReadEverything()";
    }
}

}  // namespace
}  // namespace kvopt
