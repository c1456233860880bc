#pragma once

#include <sys/types.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "stores/file_layer.h"

/// \file
/// Whole files: read, lock, write so that a crash leaves the old content or the new one. Failures
/// are FileError.

namespace kvopt {

/// What tells one state of a file from another. A file that is not there has a state of its own.
struct FileStamp {
    bool isThere = false;
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    bool operator==(const FileStamp&) const = default;
};

/// The file that a name leads to: absolute, symbolic links followed. The file itself need not
/// exist.
std::string ResolvePath(const std::string& fileName);

/// The stamp of what stands under the path now. Throws where the system does not tell.
FileStamp StampOf(FileLayer& layer, const std::string& path);

/// The content, and its stamp where one is wanted; false when there is no such file. Folders,
/// devices and pipes are no files, and one beyond a gigabyte is refused.
bool ReadWholeFile(FileLayer& layer, const std::string& path, std::string& content,
                   FileStamp* stamp = nullptr);

/// Writes a temporary file in the same folder, flushes it to disk, renames it over the old file,
/// whose mode, owner and group it takes on as far as the process may, and flushes the folder. The
/// path must be a resolved one. Gives the stamp of the new file.
FileStamp WriteFileAtomically(FileLayer& layer, const std::string& path, std::string_view content);

/// Puts the old file under the first free of the names "FILE.unreadable-1", "-2", ... and a new one
/// in its place. At no moment is there no file under the path. `old` is what the file holds. Gives
/// the name that it got.
std::string SetAsideAndWrite(FileLayer& layer, const std::string& path, std::string_view old,
                             std::string_view content);

/// Holds the lock on a file that this library's processes take before they read it in order to
/// write it. Makes an empty file where there is none, since the lock is the file's own. Waits up to
/// ten seconds for another process.
class FileLock {
public:
    FileLock(std::shared_ptr<FileLayer> layer, const std::string& path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

private:
    std::shared_ptr<FileLayer> layer_;
    int file_ = -1;
};

}  // namespace kvopt
