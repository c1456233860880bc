#include "stores/file_access.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "kvopt/text/exceptions.h"

namespace kvopt {
namespace {

constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kPrivateMode = 0600;
constexpr mode_t kModeBits = 07777;
constexpr mode_t kPermissions = 0777;
constexpr mode_t kGroupPermissions = 0070;
constexpr mode_t kPermissionsOfAll = 0007;
constexpr off_t kLargestFile = off_t{1} << 30;

[[noreturn]] void Fail(const std::string& path, const char* operation) {
    const std::string reason = std::generic_category().message(errno);
    throw FileError(path, std::string(operation) + ": " + reason);
}

// An open file that closes itself.
class OpenFile {
public:
    OpenFile(FileLayer& layer, int file) : layer_(layer), file_(file) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (file_ >= 0) {
            layer_.Close(file_);
        }
    }

    int Get() const { return file_; }
    int Release() { return std::exchange(file_, -1); }
    int Close() { return layer_.Close(Release()); }

private:
    FileLayer& layer_;
    int file_;
};

FileStamp ToStamp(const struct stat& status) {
    return {true,
            status.st_dev,
            status.st_ino,
            status.st_size,
            static_cast<std::int64_t>(status.st_mtim.tv_sec),
            static_cast<std::int64_t>(status.st_mtim.tv_nsec)};
}

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

// False when there is nothing under the path.
bool LookAt(FileLayer& layer, const std::string& path, struct stat& status) {
    if (layer.Status(path, status) == 0) {
        return true;
    }
    if (errno != ENOENT) {
        Fail(path, "cannot be looked at");
    }
    return false;
}

// A file beside `path` under a name that nobody has; its name does not grow with that of the file,
// which may be as long as the system allows.
int OpenTemporary(FileLayer& layer, const std::string& path, mode_t mode, std::string& name) {
    static std::atomic<unsigned> counter{0};
    constexpr int kAttempts = 1000;
    for (int i = 0; i < kAttempts; ++i) {
        name = FolderOf(path) + "/.kvopt-" + std::to_string(::getpid()) + "-" +
               std::to_string(counter++) + ".tmp";
        const int file = layer.Open(name, O_WRONLY | O_CREAT | O_EXCL, mode);
        if (file >= 0 || errno != EEXIST) {
            return file;
        }
    }
    return -1;
}

void WriteAll(FileLayer& layer, int file, const std::string& path, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = layer.Write(file, content.data(), content.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written == 0) {
            errno = ENOSPC;
        }
        if (written <= 0) {
            Fail(path, "cannot be written");
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
}

// A file of another owner or group stays theirs as far as this process may give a file away. What
// the old group was allowed is nothing that another group gets.
void TakeOnOwnerAndMode(FileLayer& layer, int file, const std::string& path,
                        const struct stat& former) {
    struct stat own {};
    if (layer.StatusOfFile(file, own) != 0) {
        Fail(path, "its mode cannot be kept");
    }
    constexpr auto kSameOwner = static_cast<uid_t>(-1);
    mode_t mode = former.st_mode & kModeBits;
    const bool isOfAnother = own.st_uid != former.st_uid || own.st_gid != former.st_gid;
    if (isOfAnother && layer.ChangeOwner(file, former.st_uid, former.st_gid) != 0) {
        mode &= kPermissions;
        if (own.st_gid != former.st_gid &&
            layer.ChangeOwner(file, kSameOwner, former.st_gid) != 0) {
            mode &= ~kGroupPermissions | ((mode & kPermissionsOfAll) << 3U);
        }
    }
    if (layer.ChangeMode(file, mode) != 0) {
        Fail(path, "its mode cannot be kept");
    }
}

void WriteAndFlush(FileLayer& layer, int file, const std::string& path, std::string_view content) {
    WriteAll(layer, file, path, content);
    if (layer.Sync(file) != 0) {
        Fail(path, "cannot be flushed to disk");
    }
}

// For file systems without second names.
bool CopyToNew(FileLayer& layer, const std::string& path, const std::string& name,
               std::string_view content) {
    OpenFile file(layer, layer.Open(name, O_WRONLY | O_CREAT | O_EXCL, kPrivateMode));
    if (file.Get() < 0) {
        return false;
    }
    try {
        struct stat former {};
        if (LookAt(layer, path, former)) {
            TakeOnOwnerAndMode(layer, file.Get(), path, former);
        }
        WriteAndFlush(layer, file.Get(), name, content);
        return true;
    } catch (const FileError&) {
        layer.Remove(name);
        throw;
    }
}

bool HasNoSecondNames(int error) {
    return error == EPERM || error == ENOTSUP || error == ENOSYS || error == EMLINK;
}

std::string KeepAside(FileLayer& layer, const std::string& path, std::string_view content) {
    constexpr int kAttempts = 10000;
    for (int i = 1; i <= kAttempts; ++i) {
        std::string name = path + ".unreadable-" + std::to_string(i);
        if (layer.Link(path, name) == 0 ||
            (HasNoSecondNames(errno) && CopyToNew(layer, path, name, content))) {
            return name;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    Fail(path, "cannot be set aside");
}

void SyncFolder(FileLayer& layer, const std::string& path) {
    const OpenFile folder(layer, layer.Open(FolderOf(path), O_RDONLY | O_DIRECTORY, 0));
    // Some file systems cannot flush a folder; the file itself is safe on disk by then.
    if (folder.Get() >= 0 && layer.Sync(folder.Get()) != 0 && errno != EINVAL) {
        Fail(path, "the folder cannot be flushed to disk");
    }
}

}  // namespace

std::string ResolvePath(const std::string& fileName) {
    namespace fs = std::filesystem;
    std::error_code error;
    fs::path path = fs::absolute(fileName, error);
    // A link whose target is not there yet is followed too: the target is what will be made.
    constexpr int kMostLinks = 40;
    for (int i = 0; i < kMostLinks && fs::is_symlink(path, error); ++i) {
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    const fs::path folder = fs::canonical(path.parent_path(), error);
    return (error ? path : folder / path.filename()).string();
}

FileStamp StampOf(FileLayer& layer, const std::string& path) {
    struct stat status {};
    return LookAt(layer, path, status) ? ToStamp(status) : FileStamp();
}

bool ReadWholeFile(FileLayer& layer, const std::string& path, std::string& content,
                   FileStamp* stamp) {
    // Opening a pipe would wait for somebody to write into it.
    const OpenFile file(layer, layer.Open(path, O_RDONLY | O_NONBLOCK, 0));
    if (file.Get() < 0) {
        if (errno == ENOENT) {
            return false;
        }
        Fail(path, "cannot be opened");
    }
    struct stat status {};
    if (layer.StatusOfFile(file.Get(), status) != 0) {
        Fail(path, "cannot be read");
    }
    if (!S_ISREG(status.st_mode)) {
        throw FileError(path, "cannot be read: it is no file");
    }
    if (status.st_size > kLargestFile) {
        errno = EFBIG;
        Fail(path, "cannot be read");
    }
    content.clear();
    content.reserve(static_cast<std::size_t>(status.st_size));
    std::array<char, 65536> buffer{};
    while (true) {
        const ssize_t count = layer.Read(file.Get(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            Fail(path, "cannot be read");
        }
        if (count == 0) {
            break;
        }
        content.append(buffer.data(), static_cast<std::size_t>(count));
    }
    if (stamp != nullptr) {
        *stamp = ToStamp(status);
    }
    return true;
}

FileStamp WriteFileAtomically(FileLayer& layer, const std::string& path, std::string_view content) {
    struct stat status {};
    const bool isThere = LookAt(layer, path, status);
    if (isThere && !S_ISREG(status.st_mode)) {
        throw FileError(path, "cannot be replaced: it is no file");
    }
    std::string temporary;
    OpenFile file(layer,
                  OpenTemporary(layer, path, isThere ? kPrivateMode : kNewFileMode, temporary));
    if (file.Get() < 0) {
        Fail(path, "no file can be made in its folder");
    }
    try {
        if (isThere) {
            TakeOnOwnerAndMode(layer, file.Get(), path, status);
        }
        WriteAndFlush(layer, file.Get(), path, content);
        if (layer.StatusOfFile(file.Get(), status) != 0 || file.Close() != 0) {
            Fail(path, "cannot be closed");
        }
        if (layer.Rename(temporary, path) != 0) {
            Fail(path, "cannot be replaced");
        }
        SyncFolder(layer, path);
        return ToStamp(status);
    } catch (const FileError&) {
        layer.Remove(temporary);
        throw;
    }
}

std::string SetAsideAndWrite(FileLayer& layer, const std::string& path, std::string_view old,
                             std::string_view content) {
    const FileStamp before = StampOf(layer, path);
    std::string movedTo = KeepAside(layer, path, old);
    try {
        WriteFileAtomically(layer, path, content);
        return movedTo;
    } catch (const FileError&) {
        // Its second name goes only where the old file still has its first one.
        if (StampOf(layer, path) == before) {
            layer.Remove(movedTo);
        }
        throw;
    }
}

FileLock::FileLock(std::shared_ptr<FileLayer> layer, const std::string& path)
    : layer_(std::move(layer)) {
    constexpr int kLongestWait = 10000;
    int pauses = 0;
    while (true) {
        OpenFile file(*layer_, layer_->Open(path, O_RDWR | O_CREAT, kNewFileMode));
        if (file.Get() < 0) {
            Fail(path, "cannot be opened for writing");
        }
        while (layer_->TryLock(file.Get()) != 0) {
            if ((errno != EWOULDBLOCK && errno != EINTR) || ++pauses > kLongestWait) {
                Fail(path, "cannot be locked");
            }
            layer_->Pause();
        }
        // The writer that was waited for may have put a new file under the name; then the lock held
        // is that of the old one.
        struct stat locked {};
        struct stat present {};
        if (layer_->StatusOfFile(file.Get(), locked) != 0) {
            Fail(path, "cannot be locked");
        }
        if (LookAt(*layer_, path, present) && present.st_ino == locked.st_ino &&
            present.st_dev == locked.st_dev) {
            file_ = file.Release();
            return;
        }
        if (++pauses > kLongestWait) {
            errno = EWOULDBLOCK;
            Fail(path, "cannot be locked");
        }
    }
}

FileLock::~FileLock() {
    layer_->Close(file_);
}

}  // namespace kvopt
