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
constexpr mode_t kModeBits = 07777;

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

// A file beside `path` under a name that nobody has; its name does not grow with that of the file,
// which may be as long as the system allows.
int OpenTemporary(FileLayer& layer, const std::string& path, std::string& name) {
    static std::atomic<unsigned> counter{0};
    constexpr int kAttempts = 1000;
    for (int i = 0; i < kAttempts; ++i) {
        name = FolderOf(path) + "/.kvopt-" + std::to_string(::getpid()) + "-" +
               std::to_string(counter++) + ".tmp";
        const int file = layer.Open(name, O_WRONLY | O_CREAT | O_EXCL, kNewFileMode);
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
        if (written < 0) {
            Fail(path, "cannot be written");
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
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
        const fs::path target = fs::read_symlink(path, error);
        path = target.is_absolute() ? target : path.parent_path() / target;
    }
    const fs::path folder = fs::canonical(path.parent_path(), error);
    return (error ? path : folder / path.filename()).string();
}

FileStamp StampOf(FileLayer& layer, const std::string& path) {
    struct stat status {};
    return layer.Status(path, status) == 0 ? ToStamp(status) : FileStamp();
}

bool ReadWholeFile(FileLayer& layer, const std::string& path, std::string& content,
                   FileStamp* stamp) {
    const OpenFile file(layer, layer.Open(path, O_RDONLY, 0));
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
    std::string temporary;
    OpenFile file(layer, OpenTemporary(layer, path, temporary));
    if (file.Get() < 0) {
        Fail(path, "no file can be made in its folder");
    }
    try {
        struct stat status {};
        if (layer.Status(path, status) == 0 &&
            layer.ChangeMode(file.Get(), status.st_mode & kModeBits) != 0) {
            Fail(path, "its mode cannot be kept");
        }
        WriteAll(layer, file.Get(), path, content);
        if (layer.Sync(file.Get()) != 0) {
            Fail(path, "cannot be flushed to disk");
        }
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

std::string SetFileAside(FileLayer& layer, const std::string& path) {
    constexpr int kAttempts = 10000;
    for (int i = 1; i <= kAttempts; ++i) {
        std::string name = path + ".unreadable-" + std::to_string(i);
        if (layer.RenameToNew(path, name) == 0) {
            return name;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    Fail(path, "cannot be set aside");
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
        if (layer_->Status(path, present) == 0 && present.st_ino == locked.st_ino &&
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
