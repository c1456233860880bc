#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <map>
#include <set>
#include <string>

#include "src/stores/file_layer.h"

namespace kvopt::test {

/// A layer that stops doing anything at a given point, as if the process were gone: nothing reaches
/// the disk after it, and locks are given back. With a power cut, what was written and not flushed
/// is gone as well.
class CrashingLayer : public FileLayer {
public:
    static constexpr int kNever = std::numeric_limits<int>::max();

    /// Crashes at the call of this number, counted from 1, or when this many bytes were written.
    CrashingLayer(int call, int bytes, bool isPowerCut)
        : call_(call), bytesLeft_(bytes), isPowerCut_(isPowerCut) {}

    bool HasCrashed() const { return hasCrashed_; }

    int Open(const std::string& path, int flags, mode_t mode) override {
        if (IsGone()) {
            return -1;
        }
        const int file = FileLayer::Open(path, flags, mode);
        paths_[file] = path;
        return file;
    }
    ssize_t Read(int file, char* buffer, std::size_t size) override {
        return IsGone() ? -1 : FileLayer::Read(file, buffer, size);
    }
    ssize_t Write(int file, const char* buffer, std::size_t size) override {
        if (IsGone()) {
            return -1;
        }
        const std::size_t written = std::min(size, static_cast<std::size_t>(bytesLeft_));
        unflushed_.insert(paths_[file]);
        const ssize_t result = FileLayer::Write(file, buffer, written);
        if (bytesLeft_ != kNever) {
            bytesLeft_ -= static_cast<int>(written);
            if (bytesLeft_ == 0) {
                Crash();
                return -1;
            }
        }
        return result;
    }
    int Sync(int file) override {
        if (IsGone()) {
            return -1;
        }
        unflushed_.erase(paths_[file]);
        return 0;
    }
    int Close(int file) override {
        // The system closes what a process that is gone had open.
        const bool isGone = IsGone();
        const int result = FileLayer::Close(file);
        return isGone ? Refuse() : result;
    }
    int ChangeMode(int file, mode_t mode) override {
        return IsGone() ? -1 : FileLayer::ChangeMode(file, mode);
    }
    int ChangeOwner(int file, uid_t owner, gid_t group) override {
        return IsGone() ? -1 : FileLayer::ChangeOwner(file, owner, group);
    }
    int StatusOfFile(int file, struct stat& status) override {
        return IsGone() ? -1 : FileLayer::StatusOfFile(file, status);
    }
    int Status(const std::string& path, struct stat& status) override {
        return IsGone() ? -1 : FileLayer::Status(path, status);
    }
    int TryLock(int file) override { return IsGone() ? -1 : FileLayer::TryLock(file); }
    void Pause() override {}
    int Rename(const std::string& from, const std::string& to) override {
        if (IsGone()) {
            return -1;
        }
        if (unflushed_.erase(from) != 0) {
            unflushed_.insert(to);
        }
        return FileLayer::Rename(from, to);
    }
    int Link(const std::string& from, const std::string& to) override {
        return IsGone() ? -1 : FileLayer::Link(from, to);
    }
    int Remove(const std::string& path) override { return IsGone() ? -1 : FileLayer::Remove(path); }

private:
    static int Refuse() {
        errno = EIO;
        return -1;
    }

    bool IsGone() {
        if (!hasCrashed_ && ++calls_ == call_) {
            Crash();
        }
        if (hasCrashed_) {
            Refuse();
        }
        return hasCrashed_;
    }

    void Crash() {
        hasCrashed_ = true;
        if (isPowerCut_) {
            for (const std::string& path : unflushed_) {
                // What is gone in any case may also be gone already.
                [[maybe_unused]] const int result = ::truncate(path.c_str(), 0);
            }
        }
        Refuse();
    }

    int call_;
    int bytesLeft_;
    bool isPowerCut_;
    int calls_ = 0;
    bool hasCrashed_ = false;
    std::map<int, std::string> paths_;
    std::set<std::string> unflushed_;
};

}  // namespace kvopt::test
