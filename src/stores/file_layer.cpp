#include "stores/file_layer.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <thread>

namespace kvopt {

FileLayer::~FileLayer() = default;

std::shared_ptr<FileLayer> FileLayer::System() {
    static const std::shared_ptr<FileLayer> layer = std::make_shared<FileLayer>();
    return layer;
}

int FileLayer::Open(const std::string& path, int flags, mode_t mode) {
    return ::open(path.c_str(), flags | O_CLOEXEC, mode);
}

ssize_t FileLayer::Read(int file, char* buffer, std::size_t size) {
    return ::read(file, buffer, size);
}

ssize_t FileLayer::Write(int file, const char* buffer, std::size_t size) {
    return ::write(file, buffer, size);
}

int FileLayer::Sync(int file) {
    return ::fsync(file);
}

int FileLayer::Close(int file) {
    return ::close(file);
}

int FileLayer::ChangeMode(int file, mode_t mode) {
    return ::fchmod(file, mode);
}

int FileLayer::ChangeOwner(int file, uid_t owner, gid_t group) {
    return ::fchown(file, owner, group);
}

int FileLayer::StatusOfFile(int file, struct stat& status) {
    return ::fstat(file, &status);
}

int FileLayer::Status(const std::string& path, struct stat& status) {
    return ::stat(path.c_str(), &status);
}

int FileLayer::TryLock(int file) {
    return ::flock(file, LOCK_EX | LOCK_NB);
}

void FileLayer::Pause() {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

int FileLayer::Rename(const std::string& from, const std::string& to) {
    return ::rename(from.c_str(), to.c_str());
}

int FileLayer::Link(const std::string& from, const std::string& to) {
    return ::link(from.c_str(), to.c_str());
}

int FileLayer::Remove(const std::string& path) {
    return ::unlink(path.c_str());
}

}  // namespace kvopt
