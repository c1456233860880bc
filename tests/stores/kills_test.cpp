// A busy writer that is killed at random moments. KVOPT_TEST_KILLS says how often; the usual number
// is small, for every day.

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <memory>
#include <new>
#include <random>
#include <string>
#include <vector>

#include "stores/store_kinds_test_support.h"

namespace kvopt {
namespace {

// The rounds that the writer's saves came back from, seen by both processes.
class SharedRounds {
public:
    SharedRounds()
        : memory_(::mmap(nullptr, sizeof(Rounds), PROT_READ | PROT_WRITE,
                         MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
        if (memory_ == MAP_FAILED) {
            throw std::bad_alloc();
        }
        rounds_ = new (memory_) Rounds();
    }
    SharedRounds(const SharedRounds&) = delete;
    SharedRounds& operator=(const SharedRounds&) = delete;
    ~SharedRounds() { ::munmap(memory_, sizeof(Rounds)); }

    std::atomic<int>& Of(std::size_t store) const { return (*rounds_)[store]; }
    /// Set by a writer that has begun.
    std::atomic<int>& HasBegun() const { return rounds_->back(); }

private:
    using Rounds = std::array<std::atomic<int>, 5>;
    void* memory_;
    Rounds* rounds_;
};

void KeepWriting(const std::vector<std::string>& files, const SharedRounds& saved) {
    const std::vector<test::StoreKind>& kinds = test::StoreKinds();
    saved.HasBegun() = 1;
    while (true) {
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            const int round = saved.Of(i) + 1;
            kinds[i].write(FileLayer::System(), files[i], round);
            saved.Of(i) = round;
        }
    }
}

TEST(Kills, AWriterThatIsKilledAtRandomMomentsTearsAndLosesNothing) {
    const int kills = test::AmountOf("KVOPT_TEST_KILLS", 60);
    const test::TemporaryFolder folder;
    const std::vector<test::StoreKind>& kinds = test::StoreKinds();
    std::vector<std::string> files;
    for (const test::StoreKind& kind : kinds) {
        files.push_back(folder.File(kind.fileName));
        kind.write(FileLayer::System(), files.back(), 1);
    }
    const SharedRounds saved;
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        saved.Of(i) = 1;
    }
    const test::TroubleRecorder recorder;
    std::mt19937 random(20);
    std::uniform_int_distribution<useconds_t> moments(0, 12000);
    int torn = 0;
    int lost = 0;
    int inTheMiddle = 0;
    int done = 0;
    // On a busy machine few kills may fall into a save at first, and few saves may come about.
    while (done < kills || ((inTheMiddle == 0 || saved.Of(0) == 1) && done < 10 * kills)) {
        ++done;
        saved.HasBegun() = 0;
        const pid_t writer = ::fork();
        if (writer == 0) {
            KeepWriting(files, saved);
        }
        while (saved.HasBegun() == 0) {
            ::usleep(100);
        }
        ::usleep(moments(random));
        ::kill(writer, SIGKILL);
        ::waitpid(writer, nullptr, 0);
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            const int found = kinds[i].read(files[i]);
            torn += found < 1 ? 1 : 0;
            // A save may have come about whose return was not seen any more.
            lost += found >= 1 && found != saved.Of(i) && found != saved.Of(i) + 1 ? 1 : 0;
            saved.Of(i) = std::max<int>(saved.Of(i), found);
        }
        const std::vector<std::string> names = folder.Names();
        for (const std::string& name : names) {
            if (name.find(".tmp") != std::string::npos) {
                std::filesystem::remove(folder.File(name));
                ++inTheMiddle;
            }
        }
    }
    RecordProperty("Kills", done);
    RecordProperty("BetweenTemporaryFileAndRename", inTheMiddle);
    RecordProperty("Saves", saved.Of(0) + saved.Of(1) + saved.Of(2) + saved.Of(3));
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(lost, 0);
    EXPECT_TRUE(recorder.troubles.empty()) << recorder.troubles.front().reason;
    EXPECT_GT(inTheMiddle, 0) << "no kill fell into a save";
    EXPECT_GT(saved.Of(0), 1) << "no save came about";
}

}  // namespace
}  // namespace kvopt
