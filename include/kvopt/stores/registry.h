#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/stores/ini_file_section.h"

namespace kvopt {

/// The user's registry: keys within keys, where the application remembers window positions, docking
/// layouts and answers that are not to be asked again. One object serves the whole process; a host
/// with a registry of its own installs a derived one.
///
/// A path names a key and the keys above it with a backslash between them, which therefore is the
/// one character that no name holds. Every other character is plain text; "/" is no separator.
class KVOPT_EXPORT Registry {
public:
    /// "kvopt/registry.ini" in the user's configuration folder; see UserProfile.
    Registry();
    /// In the given store; owned. Null counts as a store without a file.
    explicit Registry(std::unique_ptr<IniFileSection> store);
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    virtual ~Registry();

    /// The registry in use; never null.
    static Registry* Instance();
    /// Puts another registry in place and gives the former one back. Null puts the default back.
    static std::shared_ptr<Registry> Install(std::shared_ptr<Registry> registry);

    /// The key of this path; it comes to be with its first value, and Flush() writes it through.
    virtual std::unique_ptr<ConfigurationSection> GetKey(const std::string& path);
    /// The names of the keys right below this one; none when it is not there.
    virtual std::vector<std::string> SubKeys(const std::string& path) const;
    /// Deletes the key with what lies below it and writes through; nothing when it is not there, or
    /// for the empty path.
    virtual void DeleteKey(const std::string& path);

private:
    std::unique_ptr<IniFileSection> store_;
};

}  // namespace kvopt
