#pragma once

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <functional>
#include <string>
#include <utility>

#include "src/stores/file_layer.h"

namespace kvopt::test {

/// A layer that asks, before each call, whether it is to go through; a refused call fails with the
/// errno that the answer gives. Calls are counted from 1.
class AskingLayer : public FileLayer {
public:
    /// Gets the operation and the number of the call; 0 lets it through.
    using Answer = std::function<int(const std::string& operation, int call)>;

    explicit AskingLayer(Answer answer) : answer_(std::move(answer)) {}

    int calls = 0;

    int Open(const std::string& path, int flags, mode_t mode) override {
        return Refused("Open") ? -1 : FileLayer::Open(path, flags, mode);
    }
    ssize_t Read(int file, char* buffer, std::size_t size) override {
        return Refused("Read") ? -1 : FileLayer::Read(file, buffer, size);
    }
    ssize_t Write(int file, const char* buffer, std::size_t size) override {
        return Refused("Write") ? -1 : FileLayer::Write(file, buffer, size);
    }
    int Sync(int file) override { return Refused("Sync") ? -1 : FileLayer::Sync(file); }
    int Close(int file) override {
        // What is refused is the answer of the call; the file is closed all the same.
        const bool isRefused = Refused("Close");
        const int error = errno;
        const int result = FileLayer::Close(file);
        errno = error;
        return isRefused ? -1 : result;
    }
    int ChangeMode(int file, mode_t mode) override {
        return Refused("ChangeMode") ? -1 : FileLayer::ChangeMode(file, mode);
    }
    int ChangeOwner(int file, uid_t owner, gid_t group) override {
        return Refused("ChangeOwner") ? -1 : FileLayer::ChangeOwner(file, owner, group);
    }
    int StatusOfFile(int file, struct stat& status) override {
        return Refused("StatusOfFile") ? -1 : FileLayer::StatusOfFile(file, status);
    }
    int Status(const std::string& path, struct stat& status) override {
        return Refused("Status") ? -1 : FileLayer::Status(path, status);
    }
    int TryLock(int file) override { return Refused("TryLock") ? -1 : FileLayer::TryLock(file); }
    void Pause() override {}
    int Rename(const std::string& from, const std::string& to) override {
        return Refused("Rename") ? -1 : FileLayer::Rename(from, to);
    }
    int Link(const std::string& from, const std::string& to) override {
        return Refused("Link") ? -1 : FileLayer::Link(from, to);
    }
    int Remove(const std::string& path) override {
        return Refused("Remove") ? -1 : FileLayer::Remove(path);
    }

private:
    bool Refused(const char* operation) {
        const int error = answer_(operation, ++calls);
        if (error != 0) {
            errno = error;
        }
        return error != 0;
    }

    Answer answer_;
};

/// Leaves out the flushes to disk, for tests that save thousands of times.
class UnflushedLayer : public FileLayer {
public:
    int Sync(int) override { return 0; }
};

/// Runs a function in a process of its own and gives the status that waitpid() has of it.
inline int RunInProcess(const std::function<void()>& run) {
    const pid_t child = ::fork();
    if (child == 0) {
        run();
        ::_exit(0);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return status;
}

}  // namespace kvopt::test
