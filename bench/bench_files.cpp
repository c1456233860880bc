#include "bench/bench_files.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

namespace kvopt::bench {
namespace {

using OpenFile = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

OpenFile Open(const std::string& path, const char* mode) {
    return {std::fopen(path.c_str(), mode), &std::fclose};
}

[[noreturn]] void Fail(const std::string& path) {
    throw std::system_error(errno, std::generic_category(), path);
}

std::filesystem::path ParentOfFolder() {
    const char* const chosen = std::getenv("KVOPT_BENCH_FOLDER");
    return chosen != nullptr ? chosen : std::filesystem::temp_directory_path();
}

}  // namespace

void WriteFile(const std::string& path, const std::string& text) {
    const OpenFile file = Open(path, "wb");
    if (file == nullptr || std::fwrite(text.data(), 1, text.size(), file.get()) != text.size() ||
        std::fflush(file.get()) != 0 || ::fsync(::fileno(file.get())) != 0) {
        Fail(path);
    }
}

std::string ReadFile(const std::string& path) {
    std::string text(std::filesystem::file_size(path), '\0');
    const OpenFile file = Open(path, "rb");
    if (file == nullptr || std::fread(text.data(), 1, text.size(), file.get()) != text.size()) {
        Fail(path);
    }
    return text;
}

BenchFolder::BenchFolder() : folder_(ParentOfFolder()) {}

std::string BenchFolder::FreshPath() {
    if (!last_.empty()) {
        std::filesystem::remove(last_);
    }
    last_ = Path("fresh-" + std::to_string(++count_));
    return last_;
}

}  // namespace kvopt::bench
