// Every store while the system fails under it: whatever happens, the file is the old one or the new
// one, and a save that did not come about is told.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <memory>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "stores/crashing_layer_test_support.h"
#include "stores/file_layer_test_support.h"
#include "stores/store_kinds_test_support.h"

namespace kvopt {
namespace {

using test::CrashingLayer;
using testing::AnyOf;
using testing::ElementsAre;
using testing::Eq;
using testing::HasSubstr;

class EveryStore : public testing::TestWithParam<test::StoreKind> {
protected:
    const test::StoreUnderTest store_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Stores, EveryStore, testing::ValuesIn(test::StoreKinds()),
                         [](const testing::TestParamInfo<test::StoreKind>& row) {
                             return std::string(row.param.label);
                         });

TEST_P(EveryStore, IsOldOrNewAndTellsWhenAnyOneCallFails) {
    for (const int before : {0, 1}) {
        int call = 0;
        bool wasReached = true;
        while (wasReached) {
            ++call;
            SCOPED_TRACE("call " + std::to_string(call));
            store_.PutBack(before);
            const auto layer = std::make_shared<test::AskingLayer>(
                [call](const std::string&, int number) { return number == call ? EIO : 0; });
            std::shared_ptr<void> open;
            const test::SaveResult result = store_.Save(layer, 2, &open);
            wasReached = layer->calls >= call;
            const std::string content = store_.Content();
            ASSERT_THAT(content, AnyOf(store_.Content(before), store_.Content(2)));
            if (content != store_.Content(2)) {
                ASSERT_TRUE(result.wasTold) << "a save was lost without a word";
                ASSERT_THAT(result.reason, HasSubstr(GetParam().fileName));
            }
            open.reset();
            ASSERT_THAT(store_.Content(), AnyOf(store_.Content(before), store_.Content(2)));
            for (const std::string& name : store_.Folder().Names()) {
                ASSERT_EQ(name, GetParam().fileName);
            }
        }
        EXPECT_EQ(store_.Content(), store_.Content(2)) << "the last round met no fault";
        EXPECT_GT(call, 8);
    }
}

// How a crash at some point leaves the file, and that the next process finds its way from there.
void CheckAfterCrash(const test::StoreUnderTest& store, int before, int& points) {
    ASSERT_THAT(store.Content(), AnyOf(store.Content(before), store.Content(2)));
    if (store.Content() != "") {
        ASSERT_THAT(store.Read(), AnyOf(before, 2));
    }
    const test::SaveResult next = store.Save(std::make_shared<test::UnflushedLayer>(), 3);
    ASSERT_FALSE(next.wasTold) << next.reason;
    ASSERT_EQ(store.Content(), store.Content(3));
    ++points;
}

TEST_P(EveryStore, IsOldOrNewAfterACrashAtAnyCallAndAfterAnyByte) {
    int points = 0;
    for (const bool isPowerCut : {false, true}) {
        for (const int before : {0, 1}) {
            for (int call = 1; true; ++call) {
                SCOPED_TRACE("call " + std::to_string(call));
                store_.PutBack(before);
                const auto layer =
                    std::make_shared<CrashingLayer>(call, CrashingLayer::kNever, isPowerCut);
                store_.Save(layer, 2);
                if (!layer->HasCrashed()) {
                    ASSERT_EQ(store_.Content(), store_.Content(2));
                    break;
                }
                ASSERT_NO_FATAL_FAILURE(CheckAfterCrash(store_, before, points));
            }
            const int size = static_cast<int>(store_.Content(2).size());
            for (int bytes = 1; bytes <= size; ++bytes) {
                SCOPED_TRACE("byte " + std::to_string(bytes));
                store_.PutBack(before);
                const auto layer =
                    std::make_shared<CrashingLayer>(CrashingLayer::kNever, bytes, isPowerCut);
                store_.Save(layer, 2);
                ASSERT_TRUE(layer->HasCrashed());
                ASSERT_NO_FATAL_FAILURE(CheckAfterCrash(store_, before, points));
            }
        }
    }
    RecordProperty("CrashPoints", points);
    EXPECT_GT(points, 100);
}

TEST_P(EveryStore, IsWholeForAReaderAtAnyMomentOfAWrite) {
    store_.PutBack(1);
    int looks = 0;
    const auto layer = std::make_shared<test::AskingLayer>([&](const std::string&, int) {
        EXPECT_THAT(store_.Read(), AnyOf(1, 2));
        ++looks;
        return 0;
    });
    EXPECT_FALSE(store_.Save(layer, 2).wasTold);
    EXPECT_EQ(store_.Read(), 2);
    EXPECT_GT(looks, 8);
}

struct LastingFault {
    const char* label;
    const char* operation;
    int error;
};

// Fails from now on in one way; a write first brings half of it to the disk.
class FailingLayer : public test::AskingLayer {
public:
    explicit FailingLayer(LastingFault fault)
        : AskingLayer([this](const std::string& operation, int) {
              return operation == fault_.operation ? fault_.error : 0;
          }),
          fault_(fault) {}

    int Open(const std::string& path, int flags, mode_t mode) override {
        if (std::string(fault_.operation) == "Create" && (flags & O_EXCL) != 0) {
            errno = fault_.error;
            return -1;
        }
        return AskingLayer::Open(path, flags, mode);
    }
    ssize_t Write(int file, const char* buffer, std::size_t size) override {
        if (std::string(fault_.operation) == "ShortWrite") {
            errno = fault_.error;
            return size > 1 ? FileLayer::Write(file, buffer, size / 2) : -1;
        }
        if (std::string(fault_.operation) == "NoWrite") {
            return 0;
        }
        return AskingLayer::Write(file, buffer, size);
    }

private:
    LastingFault fault_;
};

TEST_P(EveryStore, KeepsTheOldFileAndSaysWhyUntilTheFaultIsGone) {
    const std::vector<LastingFault> faults = {
        {"full disk", "Write", ENOSPC},
        {"disk fills up in the middle", "ShortWrite", ENOSPC},
        {"nothing is taken", "NoWrite", ENOSPC},
        {"over quota", "Write", EDQUOT},
        {"bad disk", "Write", EIO},
        {"flush fails", "Sync", EIO},
        {"flush finds the disk full", "Sync", ENOSPC},
        {"close fails", "Close", EIO},
        {"read-only folder", "Create", EACCES},
        {"read-only file system", "Create", EROFS},
        {"no file descriptor left", "Create", EMFILE},
        {"rename refused", "Rename", EACCES},
        {"rename fails", "Rename", EIO},
        {"mode refused", "ChangeMode", EPERM},
        {"file cannot be looked at", "StatusOfFile", EIO},
    };
    for (const LastingFault& fault : faults) {
        SCOPED_TRACE(fault.label);
        store_.PutBack(1);
        const test::SaveResult result = store_.Save(std::make_shared<FailingLayer>(fault), 2);
        EXPECT_TRUE(result.wasTold);
        EXPECT_THAT(result.reason, HasSubstr(std::generic_category().message(fault.error)));
        EXPECT_EQ(store_.Content(), store_.Content(1));
        EXPECT_THAT(store_.Folder().Names(), ElementsAre(GetParam().fileName));
        EXPECT_FALSE(store_.Save(FileLayer::System(), 2).wasTold);
        EXPECT_EQ(store_.Content(), store_.Content(2));
    }
}

TEST_P(EveryStore, StaysALinkWhereTheFileIsOne) {
    const std::string target = store_.Folder().File("target");
    for (const bool isThere : {true, false}) {
        std::filesystem::remove(store_.Path());
        std::filesystem::create_symlink("target", store_.Path());
        std::filesystem::remove(target);
        if (isThere) {
            test::Spill(target, store_.Content(1));
        }
        EXPECT_FALSE(store_.Save(FileLayer::System(), 2).wasTold);
        EXPECT_TRUE(std::filesystem::is_symlink(store_.Path()));
        EXPECT_EQ(test::Slurp(target), store_.Content(2));
    }
}

TEST_P(EveryStore, RefusesALinkThatLeadsNowhereAPipeAndAFolder) {
    const std::vector<std::function<void()>> obstacles = {
        [&] { std::filesystem::create_symlink(GetParam().fileName, store_.Path()); },
        [&] { ASSERT_EQ(::mkfifo(store_.Path().c_str(), 0600), 0); },
        [&] { std::filesystem::create_directory(store_.Path()); },
    };
    for (const std::function<void()>& obstacle : obstacles) {
        std::filesystem::remove(store_.Path());
        obstacle();
        const auto before = std::filesystem::symlink_status(store_.Path()).type();
        EXPECT_TRUE(store_.Save(FileLayer::System(), 2).wasTold);
        EXPECT_EQ(std::filesystem::symlink_status(store_.Path()).type(), before);
        EXPECT_THAT(store_.Folder().Names(), ElementsAre(GetParam().fileName));
    }
}

mode_t ModeOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777U;
}

TEST_P(EveryStore, KeepsTheModeOfItsFileAndNeverShowsMoreOfIt) {
    for (const mode_t mode : {0600U, 0640U, 02640U, 0664U, 0666U}) {
        store_.PutBack(1);
        ASSERT_EQ(::chmod(store_.Path().c_str(), mode), 0);
        const auto layer = std::make_shared<test::AskingLayer>([&](const std::string&, int) {
            for (const std::string& name : store_.Folder().Names()) {
                EXPECT_EQ(ModeOf(store_.Folder().File(name)) & ~mode, 0U) << name;
            }
            return 0;
        });
        EXPECT_FALSE(store_.Save(layer, 2).wasTold);
        EXPECT_EQ(ModeOf(store_.Path()), mode);
    }
}

// Where only root may give files away, others give theirs to themselves.
TEST_P(EveryStore, StaysWithItsOwnerAndGroup) {
    const bool mayGiveAway = ::geteuid() == 0;
    const uid_t owner = mayGiveAway ? 1234U : ::geteuid();
    const gid_t group = mayGiveAway ? 2345U : ::getegid();
    store_.PutBack(1);
    ASSERT_EQ(::chown(store_.Path().c_str(), owner, group), 0);
    ASSERT_EQ(::chmod(store_.Path().c_str(), 0640), 0);
    EXPECT_FALSE(store_.Save(FileLayer::System(), 2).wasTold);
    struct stat status {};
    ASSERT_EQ(::stat(store_.Path().c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, owner);
    EXPECT_EQ(status.st_gid, group);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

// A file that seems to be of another owner and group, to whom it may be given.
class GivingFileLayer : public FileLayer {
public:
    static constexpr uid_t kOwner = 1234;
    static constexpr gid_t kGroup = 2345;

    int Status(const std::string& path, struct stat& status) override {
        const int result = FileLayer::Status(path, status);
        status.st_uid = kOwner;
        status.st_gid = kGroup;
        return result;
    }
    int ChangeOwner(int, uid_t owner, gid_t group) override {
        given.emplace_back(owner, group);
        return 0;
    }

    std::vector<std::pair<uid_t, gid_t>> given;
};

TEST_P(EveryStore, IsGivenToTheOwnerAndGroupOfItsFile) {
    const auto layer = std::make_shared<GivingFileLayer>();
    store_.PutBack(1);
    EXPECT_FALSE(store_.Save(layer, 2).wasTold);
    const std::pair owners(GivingFileLayer::kOwner, GivingFileLayer::kGroup);
    EXPECT_FALSE(layer->given.empty());
    for (const auto& given : layer->given) {
        EXPECT_EQ(given, owners);
    }
}

// A file that seems to be of another owner and group, which this process may not give it to.
class OthersFileLayer : public FileLayer {
public:
    explicit OthersFileLayer(bool mayGiveToGroup) : mayGiveToGroup_(mayGiveToGroup) {}

    int Status(const std::string& path, struct stat& status) override {
        const int result = FileLayer::Status(path, status);
        status.st_uid += 1;
        status.st_gid += 1;
        return result;
    }
    int ChangeOwner(int, uid_t owner, gid_t) override {
        if (mayGiveToGroup_ && owner == static_cast<uid_t>(-1)) {
            return 0;
        }
        errno = EPERM;
        return -1;
    }

private:
    bool mayGiveToGroup_;
};

TEST_P(EveryStore, GivesAnotherGroupNoMoreThanEverybodyHad) {
    store_.PutBack(1);
    ASSERT_EQ(::chmod(store_.Path().c_str(), 02664), 0);
    EXPECT_FALSE(store_.Save(std::make_shared<OthersFileLayer>(true), 2).wasTold);
    EXPECT_EQ(ModeOf(store_.Path()), 0664U) << "the group has its file, without its special bit";
    ASSERT_EQ(::chmod(store_.Path().c_str(), 0664), 0);
    EXPECT_FALSE(store_.Save(std::make_shared<OthersFileLayer>(false), 3).wasTold);
    EXPECT_EQ(ModeOf(store_.Path()), 0644U) << "another group may only read, as everybody may";
}

TEST_P(EveryStore, IsWholeWhenAnotherWriterComesInBetweenAnyTwoCalls) {
    for (int call = 1; true; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        store_.PutBack(1);
        // The other writer gives up where it finds the lock taken.
        bool hasOtherSaved = false;
        const auto layer = std::make_shared<test::AskingLayer>([&](const std::string&, int number) {
            if (number == call) {
                const auto impatient =
                    std::make_shared<test::AskingLayer>([](const std::string&, int) { return 0; });
                hasOtherSaved = !store_.Save(impatient, 3).wasTold;
            }
            return 0;
        });
        EXPECT_FALSE(store_.Save(layer, 2).wasTold);
        EXPECT_THAT(store_.Read(), AnyOf(2, hasOtherSaved ? 3 : 2));
        EXPECT_THAT(store_.Folder().Names(), ElementsAre(GetParam().fileName));
        if (layer->calls < call) {
            break;
        }
    }
}

}  // namespace
}  // namespace kvopt
