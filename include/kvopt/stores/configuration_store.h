#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "kvopt/export.h"
#include "kvopt/stores/configuration_section.h"

namespace kvopt {

class JsonStore;

/// A tree of sections in memory, kept in a JSON file when the owner says so: the store of saved
/// plots. Copies share one tree. Section handles keep the tree alive when the store object is gone.
class KVOPT_EXPORT ConfigurationStore {
public:
    /// An empty tree without a file.
    ConfigurationStore();

    /// Reads a saved file. Throws FileError when it cannot be read, and FileFormatError when it is
    /// not what Save() writes; a store is never read by halves.
    static ConfigurationStore Load(const std::string& fileName);
    /// The same from a text at hand; the file name only stands in errors.
    static ConfigurationStore Parse(std::string_view text, const std::string& fileName);

    /// Writes the tree: the file holds the old content or the new one, never a part. The file
    /// becomes the one that Flush() of a section writes. Throws FileError when it cannot be
    /// written.
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
