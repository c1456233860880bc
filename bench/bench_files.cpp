#include "bench/bench_files.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace kvopt::bench {

BenchFolder::BenchFolder() {
    const char* const chosen = std::getenv("KVOPT_BENCH_FOLDER");
    const std::filesystem::path parent =
        chosen != nullptr ? chosen : std::filesystem::temp_directory_path();
    std::filesystem::create_directories(parent);
    path_ = (parent / "kvopt-bench-XXXXXX").string();
    if (mkdtemp(path_.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), path_);
    }
}

BenchFolder::~BenchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string BenchFolder::FreshPath() {
    if (!last_.empty()) {
        std::filesystem::remove(last_);
    }
    last_ = Path("fresh-" + std::to_string(++count_));
    return last_;
}

}  // namespace kvopt::bench
