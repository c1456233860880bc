// Each golden file, cut after every byte and with one byte of it changed, at every position: it
// opens or is refused with a clear error, and the damaged file is still there afterwards. With
// KVOPT_TEST_FLIPS each byte of every file is changed in so many ways, of four.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "kvopt/host.h"
#include "stores/file_layer_test_support.h"
#include "stores/store_test_support.h"

namespace kvopt {
namespace {

// 0 for every day: one flip, and steps of a few bytes through the larger files.
const int kFlips = test::AmountOf("KVOPT_TEST_FLIPS", 0);
constexpr std::size_t kMostPositions = 1500;

struct GoldenFile {
    std::string folder;
    std::string name;
};

// The usual file of a folder, or all of them where a number of flips is told.
std::vector<GoldenFile> FilesOf(const std::string& folder, const std::string& usual) {
    if (kFlips == 0) {
        return {{folder, usual}};
    }
    std::vector<GoldenFile> files;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(KVOPT_SOURCE_DIR "/") + folder)) {
        if (entry.path().extension() == ".json") {
            files.push_back({folder, entry.path().filename().string()});
        }
    }
    return files;
}

std::string NameOf(const testing::TestParamInfo<GoldenFile>& row) {
    std::string name = row.param.name.substr(0, row.param.name.find('.'));
    for (char& c : name) {
        c = c == '-' ? '_' : c;
    }
    return name;
}

class DamagedFile : public testing::TestWithParam<GoldenFile> {
protected:
    const std::string golden_ =
        test::Slurp(KVOPT_SOURCE_DIR "/" + GetParam().folder + "/" + GetParam().name);
    const test::TemporaryFolder folder_;
    const std::string file_ = folder_.File(GetParam().name);
    test::TroubleRecorder recorder_;
    int clean_ = 0;
    int refused_ = 0;

    /// Opens the file damaged in each way. The function says whether it opened.
    void DamageEverywhere(const std::function<bool(const std::string& content)>& open) {
        constexpr std::array<int, 4> kMasks = {0x01, 0x20, 0x80, 0xFF};
        const auto flips = static_cast<std::size_t>(std::max(kFlips, 1));
        const std::size_t step = kFlips > 0 ? 1 : 1 + golden_.size() / kMostPositions;
        ASSERT_FALSE(golden_.empty());
        for (std::size_t at = 0; at < golden_.size(); at += step) {
            SCOPED_TRACE("byte " + std::to_string(at));
            ASSERT_NO_FATAL_FAILURE(OpenDamaged(golden_.substr(0, at), open));
            for (std::size_t i = 0; i < flips; ++i) {
                std::string content = golden_;
                content[at] = static_cast<char>(content[at] ^ kMasks[(at + i) % kMasks.size()]);
                ASSERT_NO_FATAL_FAILURE(OpenDamaged(content, open));
            }
        }
        RecordProperty("Clean", clean_);
        RecordProperty("Refused", refused_);
        EXPECT_GT(clean_, 0);
        EXPECT_GT(refused_, 0);
    }

private:
    void OpenDamaged(const std::string& content,
                     const std::function<bool(const std::string& content)>& open) {
        std::filesystem::remove(file_);
        test::Spill(file_, content);
        ++(open(content) ? clean_ : refused_);
    }
};

void ExpectClear(const FileFormatError& error, const std::string& file) {
    EXPECT_EQ(error.File(), file);
    EXPECT_NE(error.Place(), "");
    EXPECT_NE(error.Expected(), "");
    EXPECT_NE(error.Found(), "");
}

class DamagedIni : public DamagedFile {};
INSTANTIATE_TEST_SUITE_P(Stores, DamagedIni,
                         testing::Values(GoldenFile{"tests/stores/golden", "study-1.ini"}), NameOf);

TEST_P(DamagedIni, OpensOrIsSetAsideWhole) {
    IniFileFactory factory(std::make_shared<test::UnflushedLayer>());
    DamageEverywhere([&](const std::string& content) {
        recorder_.troubles.clear();
        EXPECT_NE(factory.GetIniFile(file_, ""), nullptr);
        if (recorder_.troubles.empty()) {
            EXPECT_EQ(test::Slurp(file_), content);
            return true;
        }
        const std::string& movedTo = recorder_.troubles.front().movedTo;
        EXPECT_EQ(test::Slurp(movedTo), content);
        std::filesystem::remove(movedTo);
        // What took its place is good, and holds all but what was hit.
        recorder_.troubles.clear();
        EXPECT_NE(factory.GetIniFile(file_, ""), nullptr);
        EXPECT_TRUE(recorder_.troubles.empty());
        return false;
    });
}

class DamagedPlot : public DamagedFile {};
INSTANTIATE_TEST_SUITE_P(Stores, DamagedPlot,
                         testing::ValuesIn(FilesOf("tests/stores/golden", "plot-1.json")), NameOf);
INSTANTIATE_TEST_SUITE_P(PlotArguments, DamagedPlot,
                         testing::ValuesIn(FilesOf("tests/plotargs/golden", "design_space.json")),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(LevelPages, DamagedPlot,
                         testing::ValuesIn(FilesOf("tests/statpages/golden",
                                                   "confidence_level_page.json")),
                         NameOf);

TEST_P(DamagedPlot, OpensOrIsRefusedAndStays) {
    DamageEverywhere([&](const std::string& content) {
        bool isClean = true;
        try {
            ConfigurationStore::Load(file_);
        } catch (const FileFormatError& error) {
            ExpectClear(error, file_);
            isClean = false;
        }
        EXPECT_EQ(test::Slurp(file_), content);
        return isClean;
    });
}

class DamagedStudy : public DamagedFile {};
INSTANTIATE_TEST_SUITE_P(Stores, DamagedStudy,
                         testing::ValuesIn(FilesOf("examples/studies",
                                                   "yarn-elongation-simplex-lattice.json")),
                         NameOf);

TEST_P(DamagedStudy, OpensOrIsRefusedAndStays) {
    DamageEverywhere([&](const std::string& content) {
        bool isClean = true;
        try {
            ReadStudyFile(file_);
        } catch (const FileFormatError& error) {
            ExpectClear(error, file_);
            isClean = false;
        }
        EXPECT_EQ(test::Slurp(file_), content);
        return isClean;
    });
}

}  // namespace
}  // namespace kvopt
