#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <memory>
#include <string>
#include <vector>

#include "stores/file_layer_test_support.h"
#include "stores/store_test_support.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kOld = "[A]\nKey=1\n";
constexpr const char* kNew = "[A]\nKey=2\n";

std::shared_ptr<test::AskingLayer> LayerThatRefuses(const std::string& operation, int error) {
    return std::make_shared<test::AskingLayer>([operation, error](const std::string& asked, int) {
        return asked == operation ? error : 0;
    });
}

class IniFileFaults : public testing::Test {
protected:
    IniFileFaults() { test::Spill(file_, kOld); }

    const test::TemporaryFolder folder_;
    const std::string file_ = folder_.File("study.ini");
    test::TroubleRecorder recorder_;
};

struct Fault {
    const char* operation;
    int error;
};

class WriteFault : public testing::TestWithParam<Fault> {};

INSTANTIATE_TEST_SUITE_P(Stores, WriteFault,
                         testing::Values(Fault{"Write", ENOSPC}, Fault{"Write", EIO},
                                         Fault{"Sync", EIO}, Fault{"ChangeMode", EPERM},
                                         Fault{"Rename", EACCES}, Fault{"TryLock", ENOLCK},
                                         Fault{"TryLock", EWOULDBLOCK}, Fault{"Open", EACCES},
                                         Fault{"Open", EROFS}, Fault{"StatusOfFile", EIO}),
                         [](const testing::TestParamInfo<Fault>& row) {
                             return std::string(row.param.operation) +
                                    std::to_string(row.param.error);
                         });

TEST_P(WriteFault, LeavesTheOldFileTellsTheHostOnceAndKeepsTheChanges) {
    const test::TemporaryFolder folder;
    const std::string file = folder.File("study.ini");
    test::Spill(file, kOld);
    test::TroubleRecorder recorder;
    bool isFaulty = false;
    const auto layer = std::make_shared<test::AskingLayer>([&](const std::string& operation, int) {
        return isFaulty && operation == GetParam().operation ? GetParam().error : 0;
    });
    IniFileFactory factory(layer);
    const auto section = factory.GetIniFile(file, "A");
    section->WriteKey("Key", 2);
    isFaulty = true;
    section->Flush();
    section->Flush();
    ASSERT_EQ(recorder.troubles.size(), 1U) << "the same trouble is told once";
    EXPECT_EQ(recorder.troubles.front().kind, StoreTrouble::Kind::NotWritten);
    EXPECT_THAT(recorder.troubles.front().file, HasSubstr("study.ini"));
    EXPECT_THAT(recorder.troubles.front().reason,
                HasSubstr(std::generic_category().message(GetParam().error)));
    EXPECT_EQ(test::Slurp(file), kOld);
    EXPECT_THAT(folder.Names(), ElementsAre("study.ini"));
    EXPECT_EQ(section->ReadKeyOr("Key", 0), 2);
    isFaulty = false;
    section->Flush();
    EXPECT_EQ(test::Slurp(file), kNew);
    EXPECT_EQ(recorder.troubles.size(), 1U);
    isFaulty = true;
    section->WriteKey("Key", 3);
    section->Flush();
    EXPECT_EQ(recorder.troubles.size(), 2U) << "told again after a write that went well";
    isFaulty = false;
}

TEST_F(IniFileFaults, AnyCallMayFailAndTheFileIsOldOrNew) {
    int call = 0;
    bool isWhole = false;
    while (!isWhole) {
        ++call;
        test::Spill(file_, kOld);
        const auto layer = std::make_shared<test::AskingLayer>(
            [call](const std::string&, int number) { return number == call ? EIO : 0; });
        {
            IniFileFactory factory(layer);
            const auto section = factory.GetIniFile(file_, "A");
            if (section != nullptr) {
                section->WriteKey("Key", 2);
                section->Flush();
                const std::string content = test::Slurp(file_);
                EXPECT_TRUE(content == kOld || content == kNew) << call << ": " << content;
            }
            isWhole = layer->calls < call;
        }
        const std::string content = test::Slurp(file_);
        EXPECT_TRUE(content == kOld || content == kNew) << call << ": " << content;
        EXPECT_THAT(folder_.Names(), ElementsAre("study.ini")) << call;
    }
    EXPECT_GT(call, 15);
    EXPECT_EQ(test::Slurp(file_), kNew);
}

TEST_F(IniFileFaults, AKillBeforeAnyCallLeavesTheOldFileOrTheNewOne) {
    int call = 0;
    int status = 1;
    bool sawOldWithTemporary = false;
    while (status != 0) {
        ++call;
        test::Spill(file_, kOld);
        status = test::RunInProcess([&] {
            const auto layer =
                std::make_shared<test::AskingLayer>([call](const std::string&, int number) {
                    if (number == call) {
                        ::kill(::getpid(), SIGKILL);
                    }
                    return 0;
                });
            IniFileFactory factory(layer);
            factory.GetIniFile(file_, "A")->WriteKey("Key", 2);
        });
        const std::string content = test::Slurp(file_);
        EXPECT_TRUE(content == kOld || content == kNew) << call << ": " << content;
        sawOldWithTemporary =
            sawOldWithTemporary || (content == kOld && folder_.Names().size() > 1);
        // The next process gets the lock, reads and writes, whatever was left behind.
        IniFileFactory().GetIniFile(file_, "A")->WriteKey("Key", 3);
        EXPECT_EQ(test::Slurp(file_), "[A]\nKey=3\n");
    }
    EXPECT_GT(call, 15);
    EXPECT_TRUE(sawOldWithTemporary) << "one kill fell between the temporary file and the rename";
    EXPECT_TRUE(recorder_.troubles.empty());
}

TEST_F(IniFileFaults, FlushesTheFileBeforeTheRenameAndItsFolderAfterwards) {
    std::vector<std::string> operations;
    const auto layer = std::make_shared<test::AskingLayer>([&](const std::string& operation, int) {
        operations.push_back(operation);
        return 0;
    });
    IniFileFactory(layer).GetIniFile(file_, "A")->WriteKey("Key", 2);
    const auto write = std::find(operations.begin(), operations.end(), "Write");
    const std::vector<std::string> fromWriteOn(write, operations.end());
    EXPECT_THAT(fromWriteOn, ElementsAre("Write", "Sync", "StatusOfFile", "Close", "Rename", "Open",
                                         "Sync", "Close", "Close"))
        << "the last close gives the lock back";
}

// Fails at the folder of a file: when it is opened, or when it is flushed.
class FolderLayer : public FileLayer {
public:
    FolderLayer(const char* operation, int error) : operation_(operation), error_(error) {}

    int Open(const std::string& path, int flags, mode_t mode) override {
        const bool isFolder = (flags & O_DIRECTORY) != 0;
        if (isFolder && operation_ == "Open") {
            errno = error_;
            return -1;
        }
        const int file = FileLayer::Open(path, flags, mode);
        folder_ = isFolder ? file : folder_;
        return file;
    }
    int Sync(int file) override {
        if (file != folder_ || operation_ != "Sync") {
            return FileLayer::Sync(file);
        }
        errno = error_;
        return -1;
    }
    int Close(int file) override {
        folder_ = file == folder_ ? -1 : folder_;
        return FileLayer::Close(file);
    }

private:
    std::string operation_;
    int error_;
    int folder_ = -1;
};

TEST_F(IniFileFaults, AFolderThatCannotBeFlushedAtAllIsNoTrouble) {
    for (const Fault& fault : {Fault{"Open", EACCES}, Fault{"Sync", EINVAL}}) {
        test::Spill(file_, kOld);
        IniFileFactory(std::make_shared<FolderLayer>(fault.operation, fault.error))
            .GetIniFile(file_, "A")
            ->WriteKey("Key", 2);
        EXPECT_EQ(test::Slurp(file_), kNew);
        EXPECT_TRUE(recorder_.troubles.empty()) << fault.operation;
    }
    IniFileFactory(std::make_shared<FolderLayer>("Sync", EIO))
        .GetIniFile(file_, "A")
        ->WriteKey("Key", 3);
    ASSERT_EQ(recorder_.troubles.size(), 1U);
    EXPECT_THAT(recorder_.troubles.front().reason, HasSubstr("the folder cannot be flushed"));
}

// The writer that is waited for puts a new file under the name, with a lock of its own.
TEST_F(IniFileFaults, TheLockIsTakenAnewWhereAnotherFileStandsUnderTheNameByThen) {
    class ReplacingLayer : public FileLayer {
    public:
        explicit ReplacingLayer(bool isOnOtherDevice) : isOnOtherDevice_(isOnOtherDevice) {}

        int locks = 0;

        int TryLock(int file) override {
            ++locks;
            return FileLayer::TryLock(file);
        }
        int Status(const std::string& path, struct stat& status) override {
            const int result = FileLayer::Status(path, status);
            if (locks == 1) {
                ++(isOnOtherDevice_ ? status.st_dev : status.st_ino);
            }
            return result;
        }

    private:
        bool isOnOtherDevice_;
    };
    for (const bool isOnOtherDevice : {false, true}) {
        test::Spill(file_, kOld);
        const auto layer = std::make_shared<ReplacingLayer>(isOnOtherDevice);
        IniFileFactory(layer).GetIniFile(file_, "A")->WriteKey("Key", 2);
        EXPECT_EQ(test::Slurp(file_), kNew);
        EXPECT_EQ(layer->locks, 2) << isOnOtherDevice;
    }
}

// It would hold the lock for as long as it runs.
TEST_F(IniFileFaults, AProgramThatTheHostStartsGetsNoneOfItsOpenFiles) {
    class LookingLayer : public FileLayer {
    public:
        int opened = 0;

        int Open(const std::string& path, int flags, mode_t mode) override {
            const int file = FileLayer::Open(path, flags, mode);
            EXPECT_NE(::fcntl(file, F_GETFD) & FD_CLOEXEC, 0) << path;
            ++opened;
            return file;
        }
    };
    const auto layer = std::make_shared<LookingLayer>();
    IniFileFactory(layer).GetIniFile(file_, "A")->WriteKey("Key", 2);
    EXPECT_GT(layer->opened, 3);
}

// As two processes of one number may be, each on a machine of its own.
TEST_F(IniFileFaults, ATemporaryFileOfAnotherProcessIsLeftAlone) {
    class CrowdedLayer : public FileLayer {
    public:
        std::string taken;

        int Open(const std::string& path, int flags, mode_t mode) override {
            if ((flags & O_EXCL) != 0 && taken.empty()) {
                taken = path;
                test::Spill(path, "another's");
            }
            return FileLayer::Open(path, flags, mode);
        }
    };
    const auto layer = std::make_shared<CrowdedLayer>();
    IniFileFactory(layer).GetIniFile(file_, "A")->WriteKey("Key", 2);
    EXPECT_EQ(test::Slurp(file_), kNew);
    EXPECT_EQ(test::Slurp(layer->taken), "another's");
    EXPECT_TRUE(recorder_.troubles.empty());
}

TEST_F(IniFileFaults, ShortWritesAndInterruptedCallsAreCarriedOn) {
    class SlowLayer : public FileLayer {
    public:
        ssize_t Read(int file, char* buffer, std::size_t) override {
            return Interrupted() ? -1 : FileLayer::Read(file, buffer, 1);
        }
        ssize_t Write(int file, const char* buffer, std::size_t) override {
            return Interrupted() ? -1 : FileLayer::Write(file, buffer, 1);
        }
        int TryLock(int file) override { return Interrupted() ? -1 : FileLayer::TryLock(file); }

    private:
        bool Interrupted() {
            errno = EINTR;
            return ++calls_ % 2 == 1;
        }
        int calls_ = 0;
    };
    IniFileFactory factory(std::make_shared<SlowLayer>());
    EXPECT_EQ(factory.GetIniFile(file_, "A")->ReadKeyOr("Key", 0), 1);
    factory.GetIniFile(file_, "A")->WriteKey("Key", 2);
    EXPECT_EQ(test::Slurp(file_), kNew);
    EXPECT_TRUE(recorder_.troubles.empty());
}

TEST_F(IniFileFaults, ABadFileThatCannotBeMovedIsNeverWrittenOver) {
    test::Spill(file_, "not an ini file\n");
    IniFileFactory factory(LayerThatRefuses("Link", EACCES));
    {
        const auto section = factory.GetIniFile(file_, "A");
        ASSERT_NE(section, nullptr);
        ASSERT_EQ(recorder_.troubles.size(), 1U);
        EXPECT_EQ(recorder_.troubles.front().kind, StoreTrouble::Kind::SetAside);
        EXPECT_EQ(recorder_.troubles.front().movedTo, "");
        EXPECT_THAT(recorder_.troubles.front().reason, HasSubstr("line 1"));
        EXPECT_THAT(recorder_.troubles.front().reason, HasSubstr("cannot be set aside"));
        section->WriteKey("Key", 2);
        section->Flush();
        ASSERT_EQ(recorder_.troubles.size(), 2U);
        EXPECT_EQ(recorder_.troubles.back().kind, StoreTrouble::Kind::NotWritten);
        EXPECT_EQ(test::Slurp(file_), "not an ini file\n");
        EXPECT_EQ(section->ReadKeyOr("Key", 0), 2);
        // The analyst repairs the file; the changes then go in.
        test::Spill(file_, "[A]\nRepaired=1\n");
    }
    EXPECT_EQ(test::Slurp(file_), "[A]\nRepaired=1\nKey=2\n");
}

TEST_F(IniFileFaults, ABadFileIsCopiedAsideWhereTheFileSystemHasNoSecondNames) {
    for (const int error : {EPERM, ENOTSUP, ENOSYS, EMLINK}) {
        const test::TemporaryFolder folder;
        const std::string file = folder.File("study.ini");
        test::Spill(file, "[A]\nKey=1\nnot a key\n");
        test::Spill(file + ".unreadable-1", "an earlier one");
        ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
        IniFileFactory(LayerThatRefuses("Link", error)).GetIniFile(file, "A");
        EXPECT_EQ(test::Slurp(file), kOld);
        EXPECT_EQ(test::Slurp(file + ".unreadable-1"), "an earlier one");
        EXPECT_EQ(test::Slurp(file + ".unreadable-2"), "[A]\nKey=1\nnot a key\n");
        struct stat status {};
        ASSERT_EQ(::stat((file + ".unreadable-2").c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, 0640U);
    }
    EXPECT_EQ(recorder_.troubles.size(), 4U);
}

// While a bad file is set aside, it stands whole under one of the two names.
TEST_F(IniFileFaults, ABadFileIsNeverLostWhereverASetAsideFails) {
    const std::string bad = "[A]\nKey=1\nnot a key\n";
    for (const bool hasLinks : {true, false}) {
        for (int call = 1; true; ++call) {
            SCOPED_TRACE("call " + std::to_string(call));
            const test::TemporaryFolder folder;
            const std::string file = folder.File("study.ini");
            test::Spill(file, bad);
            const auto layer =
                std::make_shared<test::AskingLayer>([&](const std::string& operation, int number) {
                    return number == call ? EIO : operation == "Link" && !hasLinks ? EPERM : 0;
                });
            IniFileFactory(layer).GetIniFile(file, "A");
            const std::string content = test::Slurp(file);
            const std::string aside = test::Slurp(file + ".unreadable-1");
            if (content == bad) {
                EXPECT_THAT(folder.Names(), ElementsAre("study.ini"));
            } else {
                EXPECT_EQ(content, kOld);
                EXPECT_EQ(aside, bad);
            }
            if (layer->calls < call) {
                EXPECT_EQ(content, kOld);
                break;
            }
        }
    }
}

TEST_F(IniFileFaults, ABadFileThatCannotBeLockedIsLeftAndWorkGoesOn) {
    test::Spill(file_, "not an ini file\n");
    IniFileFactory factory(LayerThatRefuses("TryLock", ENOLCK));
    const auto section = factory.GetIniFile(file_, "A");
    ASSERT_NE(section, nullptr);
    ASSERT_EQ(recorder_.troubles.size(), 1U);
    EXPECT_EQ(recorder_.troubles.front().kind, StoreTrouble::Kind::SetAside);
    EXPECT_EQ(recorder_.troubles.front().movedTo, "");
    EXPECT_EQ(test::Slurp(file_), "not an ini file\n");
}

TEST_F(IniFileFaults, AFileThatCannotBeReadGivesNoSectionAndIsTold) {
    IniFileFactory factory(LayerThatRefuses("Open", EACCES));
    EXPECT_EQ(factory.GetIniFile(file_, "A"), nullptr);
    ASSERT_EQ(recorder_.troubles.size(), 1U);
    EXPECT_EQ(recorder_.troubles.front().kind, StoreTrouble::Kind::NotRead);
    EXPECT_EQ(IniFileFactory().GetIniFile(folder_.Path(), "A"), nullptr) << "a folder";
    EXPECT_EQ(recorder_.troubles.size(), 2U);
    ASSERT_EQ(::mkfifo(folder_.File("pipe.ini").c_str(), 0600), 0);
    EXPECT_EQ(IniFileFactory().GetIniFile(folder_.File("pipe.ini"), "A"), nullptr) << "a pipe";
    EXPECT_EQ(recorder_.troubles.size(), 3U);
}

TEST_F(IniFileFaults, KeepsTheOthersKeysWhenTheStampOfTheirFileIsTheOldOne) {
    const auto section = IniFileFactory().GetIniFile(file_, "A");
    struct stat status {};
    ASSERT_EQ(::stat(file_.c_str(), &status), 0);
    // As long as before, in the same place, and within the same tick of the clock.
    test::Spill(file_, "[A]\nYek=7\n");
    const timespec times[2] = {status.st_atim, status.st_mtim};
    ASSERT_EQ(::utimensat(AT_FDCWD, file_.c_str(), times, 0), 0);
    section->WriteKey("Mine", 2);
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "[A]\nYek=7\nMine=2\n");
}

TEST_F(IniFileFaults, AFileThatCannotBeLookedAtIsNotTakenForNone) {
    bool isFaulty = false;
    IniFileFactory factory(
        std::make_shared<test::AskingLayer>([&](const std::string& operation, int) {
            return isFaulty && operation == "Status" ? EACCES : 0;
        }));
    const auto section = factory.GetIniFile(file_, "A");
    isFaulty = true;
    EXPECT_EQ(factory.GetIniFile(file_, "A"), nullptr);
    section->WriteKey("Mine", 2);
    section->Flush();
    ASSERT_EQ(recorder_.troubles.size(), 2U);
    EXPECT_EQ(recorder_.troubles.front().kind, StoreTrouble::Kind::NotRead);
    EXPECT_EQ(recorder_.troubles.back().kind, StoreTrouble::Kind::NotWritten);
    EXPECT_EQ(test::Slurp(file_), kOld);
    isFaulty = false;
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "[A]\nKey=1\nMine=2\n");
}

TEST_F(IniFileFaults, AFileBeyondAGigabyteIsRefusedBeforeItIsRead) {
    ASSERT_EQ(::truncate(file_.c_str(), (off_t{1} << 30) + 1), 0);
    EXPECT_EQ(IniFileFactory().GetIniFile(file_, "A"), nullptr);
    ASSERT_EQ(recorder_.troubles.size(), 1U);
    EXPECT_THAT(recorder_.troubles.front().reason,
                HasSubstr(std::generic_category().message(EFBIG)));
}

TEST_F(IniFileFaults, KeepsTheModeOfTheFile) {
    ASSERT_EQ(::chmod(file_.c_str(), 0640), 0);
    IniFileFactory().GetIniFile(file_, "A")->WriteKey("Key", 2);
    struct stat status {};
    ASSERT_EQ(::stat(file_.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    const mode_t former = ::umask(027);
    IniFileFactory().GetIniFile(folder_.File("new.ini"), "A")->WriteKey("Key", 2);
    ::umask(former);
    ASSERT_EQ(::stat(folder_.File("new.ini").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(IniFileFaults, FollowsSymbolicLinksAlsoToAFileThatIsNotThereYet) {
    std::filesystem::create_directory(folder_.File("elsewhere"));
    std::filesystem::create_symlink("study.ini", folder_.File("link.ini"));
    std::filesystem::create_symlink("elsewhere/new.ini", folder_.File("dangling.ini"));
    IniFileFactory().GetIniFile(folder_.File("link.ini"), "A")->WriteKey("Key", 2);
    IniFileFactory().GetIniFile(folder_.File("dangling.ini"), "A")->WriteKey("Key", 2);
    EXPECT_TRUE(std::filesystem::is_symlink(folder_.File("link.ini")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder_.File("dangling.ini")));
    EXPECT_EQ(test::Slurp(file_), kNew);
    EXPECT_EQ(test::Slurp(folder_.File("elsewhere/new.ini")), kNew);
}

TEST_F(IniFileFaults, WritesAFileWhoseNameIsAsLongAsTheSystemAllows) {
    const std::string file = folder_.File(std::string(255, 'n'));
    IniFileFactory().GetIniFile(file, "A")->WriteKey("Key", 2);
    EXPECT_EQ(test::Slurp(file), kNew);
}

}  // namespace
}  // namespace kvopt
