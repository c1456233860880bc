#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "kvopt/export.h"
#include "kvopt/stores/configuration_section.h"

namespace kvopt {

class FileLayer;
class JsonStore;

/// A tree of sections in memory, kept in a JSON file when the owner says so: the store of saved
/// plots. Copies share one tree. Section handles keep the tree alive when the store object is gone.
class KVOPT_EXPORT ConfigurationStore {
public:
    /// An empty tree without a file.
    ConfigurationStore();
    /// The same; files are reached through the given layer. Null stands for the system's own.
    explicit ConfigurationStore(std::shared_ptr<FileLayer> layer);

    /// Reads a saved file. Throws FileError when it cannot be read, and FileFormatError when it is
    /// not what Save() writes; the file is then as it was, and nothing of it was read.
    static ConfigurationStore Load(const std::string& fileName,
                                   std::shared_ptr<FileLayer> layer = nullptr);
    /// The same, but of a damaged file gives what stands before the damage. The damaged file is set
    /// aside under a new name, the store trouble handler is told, and what could be read is saved
    /// in its place. Throws FileError when the file cannot be read at all.
    static ConfigurationStore Recover(const std::string& fileName,
                                      std::shared_ptr<FileLayer> layer = nullptr);
    /// The same from a text at hand; the file name only stands in errors.
    static ConfigurationStore Parse(std::string_view text, const std::string& fileName);

    /// Writes the tree: the file holds the old content or the new one, never a part. The file
    /// becomes the one that Flush() of a section writes. A file in its place that is no saved plot
    /// is set aside under a new name, and the store trouble handler is told. Throws FileError when
    /// it cannot be written; the file is then as it was.
    void Save(const std::string& fileName);
    /// What Save() writes.
    std::string Text() const;

    /// The outermost section.
    std::unique_ptr<ConfigurationSection> Root();
    std::unique_ptr<const ConfigurationSection> Root() const;

private:
    std::shared_ptr<JsonStore> store_;
};

}  // namespace kvopt
