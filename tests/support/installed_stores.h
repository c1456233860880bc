#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "kvopt/stores.h"
#include "tests/support/temporary_folder.h"

namespace kvopt::test {

/// The stores of a user who has never run anything, in a folder of their own. They are installed
/// while this object lives, and the former ones after it.
class InstalledStores {
public:
    explicit InstalledStores(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path())
        : folder_(parent),
          formerFactory_(IniFileFactory::Install(std::make_shared<IniFileFactory>())),
          formerProfile_(UserProfile::Install(std::make_shared<UserProfile>(
              IniFileFactory::Instance()->GetIniFile(File("profile.ini"), "")))),
          formerRegistry_(Registry::Install(std::make_shared<Registry>(
              IniFileFactory::Instance()->GetIniFile(File("registry.ini"), "")))) {}
    InstalledStores(const InstalledStores&) = delete;
    InstalledStores& operator=(const InstalledStores&) = delete;
    ~InstalledStores() {
        Registry::Install(formerRegistry_);
        UserProfile::Install(formerProfile_);
        IniFileFactory::Install(formerFactory_);
    }

    const TemporaryFolder& Folder() const { return folder_; }
    std::string File(const std::string& name) const { return folder_.File(name); }

private:
    TemporaryFolder folder_;
    std::shared_ptr<IniFileFactory> formerFactory_;
    std::shared_ptr<UserProfile> formerProfile_;
    std::shared_ptr<Registry> formerRegistry_;
};

}  // namespace kvopt::test
