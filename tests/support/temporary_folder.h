#pragma once

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace kvopt::test {

/// A new folder, removed with what is in it when this object goes.
class TemporaryFolder {
public:
    explicit TemporaryFolder(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        static int count = 0;
        const std::string name = "kvopt-" + std::to_string(::getpid()) + '-';
        std::filesystem::create_directories(parent);
        // A process that was killed may have left one behind.
        do {
            path_ = parent / (name + std::to_string(++count));
        } while (!std::filesystem::create_directory(path_));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }

    std::string File(const std::string& name) const { return (path_ / name).string(); }
    std::string Path() const { return path_.string(); }
    /// The names in the folder, sorted.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::filesystem::path path_;
};

}  // namespace kvopt::test
