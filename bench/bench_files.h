#pragma once

#include <string>

#include "tests/support/temporary_folder.h"

namespace kvopt::bench {

/// What a program does that has no store: writes a text straight into its file, flushes it to disk
/// and closes it. Throws where that fails, as reading does.
void WriteFile(const std::string& path, const std::string& text);
std::string ReadFile(const std::string& path);

/// A folder for the files of one benchmark, gone with this object. It lies in the folder that
/// KVOPT_BENCH_FOLDER names, else in the one for temporary files, which may be no disk.
class BenchFolder {
public:
    BenchFolder();

    /// Of the file of this name in it.
    std::string Path(const std::string& name) const { return folder_.File(name); }
    /// Of a file that was not there before; the one given before is removed.
    std::string FreshPath();

private:
    test::TemporaryFolder folder_;
    std::string last_;
    int count_ = 0;
};

}  // namespace kvopt::bench
