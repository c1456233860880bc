#pragma once

#include <sys/types.h>

#include <cstddef>
#include <memory>
#include <string>

#include "kvopt/export.h"

struct stat;

namespace kvopt {

/// The system calls of the stores, one operation for each, with the meaning and the errors (-1 and
/// errno) of the call. A derived layer makes them fail, or ends the process in the middle.
class KVOPT_EXPORT FileLayer {
public:
    FileLayer() = default;
    FileLayer(const FileLayer&) = delete;
    FileLayer& operator=(const FileLayer&) = delete;
    virtual ~FileLayer();

    /// The layer that goes to the system.
    static std::shared_ptr<FileLayer> System();

    virtual int Open(const std::string& path, int flags, mode_t mode);
    virtual ssize_t Read(int file, char* buffer, std::size_t size);
    virtual ssize_t Write(int file, const char* buffer, std::size_t size);
    virtual int Sync(int file);
    virtual int Close(int file);
    virtual int ChangeMode(int file, mode_t mode);
    virtual int ChangeOwner(int file, uid_t owner, gid_t group);
    virtual int StatusOfFile(int file, struct stat& status);
    virtual int Status(const std::string& path, struct stat& status);
    /// Takes the exclusive lock on an open file without waiting.
    virtual int TryLock(int file);
    /// Waits a millisecond for whoever holds the lock.
    virtual void Pause();
    virtual int Rename(const std::string& from, const std::string& to);
    /// Gives a file a second name; fails with EEXIST where there is something under it.
    virtual int Link(const std::string& from, const std::string& to);
    virtual int Remove(const std::string& path);
};

}  // namespace kvopt
