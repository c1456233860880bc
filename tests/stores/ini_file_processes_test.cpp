#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "stores/file_layer_test_support.h"
#include "stores/store_test_support.h"

namespace kvopt {
namespace {

using testing::ElementsAre;

// Starts a function in a process of its own; Wait() gives waitpid()'s status.
class Process {
public:
    explicit Process(const std::function<void()>& run) : child_(::fork()) {
        if (child_ == 0) {
            run();
            ::_exit(0);
        }
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() { Wait(); }

    int Wait() {
        if (child_ > 0) {
            ::waitpid(child_, &status_, 0);
            child_ = -1;
        }
        return status_;
    }
    bool IsRunning() { return child_ > 0 && ::waitpid(child_, &status_, WNOHANG) == 0; }

private:
    pid_t child_;
    int status_ = 0;
};

class IniFileProcesses : public testing::Test {
protected:
    const test::TemporaryFolder folder_;
    const std::string file_ = folder_.File("study.ini");
    test::TroubleRecorder recorder_;
};

TEST_F(IniFileProcesses, FourThatWriteAThousandKeysEachLoseNone) {
    constexpr int kKeys = 1000;
    const int kKeysPerFlush = test::AmountOf("KVOPT_TEST_KEYS_PER_FLUSH", 50);
    const auto writer = [&](const std::string& prefix) {
        return [this, prefix, kKeysPerFlush] {
            IniFileFactory factory;
            const auto section = factory.GetIniFile(file_, "Factors");
            for (int i = 0; i < kKeys; ++i) {
                section->WriteKey((prefix + std::to_string(i)).c_str(), i);
                if (i % kKeysPerFlush == 0) {
                    section->Flush();
                }
            }
            section->Flush();
        };
    };
    const std::vector<std::string> names = {"One", "Two", "Three", "Four"};
    {
        std::vector<std::unique_ptr<Process>> writers;
        for (const std::string& name : names) {
            writers.push_back(std::make_unique<Process>(writer(name)));
        }
        for (const std::unique_ptr<Process>& process : writers) {
            EXPECT_EQ(process->Wait(), 0);
        }
    }
    const auto section = IniFileFactory().GetIniFile(file_, "Factors");
    EXPECT_EQ(section->KeyNames().size(), names.size() * kKeys);
    int lost = 0;
    for (const std::string& name : names) {
        for (int i = 0; i < kKeys; ++i) {
            lost += section->ReadKeyOr((name + std::to_string(i)).c_str(), -1) == i ? 0 : 1;
        }
    }
    EXPECT_EQ(lost, 0);
    EXPECT_THAT(folder_.Names(), ElementsAre("study.ini"));
}

TEST_F(IniFileProcesses, AReaderSeesNoTornFileWhileAnotherWrites) {
    constexpr int kRounds = 200;
    constexpr int kKeys = 100;
    const auto write = [this](IniFileFactory& factory, int round) {
        const auto section = factory.GetIniFile(file_, "A");
        for (int i = 0; i < kKeys; ++i) {
            section->WriteKey(("Key" + std::to_string(i)).c_str(), round);
        }
    };
    IniFileFactory factory;
    write(factory, 0);
    Process writer([&] {
        for (int round = 1; round <= kRounds; ++round) {
            write(factory, round);
        }
    });
    int looks = 0;
    int distinct = 0;
    int last = -1;
    do {
        const auto section = IniFileFactory().GetIniFile(file_, "A");
        ASSERT_NE(section, nullptr);
        const int round = section->ReadKeyOr("Key0", -1);
        ASSERT_GE(round, 0);
        for (int i = 1; i < kKeys; ++i) {
            ASSERT_EQ(section->ReadKeyOr(("Key" + std::to_string(i)).c_str(), -1), round);
        }
        distinct += round != last ? 1 : 0;
        last = round;
        ++looks;
    } while (writer.IsRunning());
    EXPECT_EQ(writer.Wait(), 0);
    EXPECT_GT(distinct, 1) << "the reader looked " << looks << " times while the writer wrote";
    EXPECT_TRUE(recorder_.troubles.empty());
}

TEST_F(IniFileProcesses, AWriterWaitsForWhoeverHoldsTheLock) {
    test::Spill(file_, "[A]\nKey=1\n");
    const int held = ::open(file_.c_str(), O_RDWR);
    ASSERT_GE(held, 0);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    Process writer([this, held] {
        ::close(held);
        IniFileFactory factory;
        factory.GetIniFile(file_, "A")->WriteKey("Key", 2);
    });
    ::usleep(50000);
    EXPECT_TRUE(writer.IsRunning());
    EXPECT_EQ(test::Slurp(file_), "[A]\nKey=1\n");
    // Whoever held the lock puts a new file under the name; the writer must see and keep it.
    test::Spill(folder_.File("next"), "[A]\nKey=1\nTheirs=3\n");
    std::filesystem::rename(folder_.File("next"), file_);
    ::close(held);
    EXPECT_EQ(writer.Wait(), 0);
    EXPECT_EQ(test::Slurp(file_), "[A]\nKey=2\nTheirs=3\n");
}

TEST_F(IniFileProcesses, TwoThatFindABadFileMoveItOnce) {
    test::Spill(file_, "not an ini file\n");
    const auto open = [this] {
        SetStoreTroubleHandler([](const StoreTrouble&) {});
        IniFileFactory factory;
        factory.GetIniFile(file_, "A")->WriteKey(std::to_string(::getpid()).c_str(), 1);
    };
    Process one(open);
    Process two(open);
    EXPECT_EQ(one.Wait(), 0);
    EXPECT_EQ(two.Wait(), 0);
    EXPECT_THAT(folder_.Names(), ElementsAre("study.ini", "study.ini.unreadable-1"));
    EXPECT_EQ(IniFileFactory().GetIniFile(file_, "A")->KeyNames().size(), 2U);
}

}  // namespace
}  // namespace kvopt
