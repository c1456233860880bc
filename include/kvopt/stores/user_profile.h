#pragma once

#include <memory>
#include <string>

#include "kvopt/export.h"
#include "kvopt/stores/ini_file_section.h"

namespace kvopt {

/// The integers that are remembered for the user, whatever the study. One object serves the whole
/// process; a host with a profile of its own installs a derived one.
class KVOPT_EXPORT UserProfile {
public:
    /// "kvopt/profile.ini" in the user's configuration folder ($XDG_CONFIG_HOME, or ".config" in
    /// the home folder), which is made with the first value. Without such a folder values last as
    /// long as the process.
    UserProfile();
    /// In the given store; owned. Null counts as a store without a file.
    explicit UserProfile(std::unique_ptr<IniFileSection> store);
    UserProfile(const UserProfile&) = delete;
    UserProfile& operator=(const UserProfile&) = delete;
    virtual ~UserProfile();

    /// The profile in use; never null.
    static UserProfile* Instance();
    /// Puts another profile in place and gives the former one back. Null puts the default back.
    static std::shared_ptr<UserProfile> Install(std::shared_ptr<UserProfile> profile);

    /// `fallback` when the key is absent or no integer.
    virtual int GetProfileInteger(const std::string& section, const std::string& key,
                                  int fallback) const;
    /// Writes through at once.
    virtual void WriteProfileInteger(const std::string& section, const std::string& key, int value);

private:
    std::unique_ptr<IniFileSection> store_;
};

}  // namespace kvopt
