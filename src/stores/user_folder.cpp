#include "stores/user_folder.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include "kvopt/stores/store_trouble.h"
#include "kvopt/text/exceptions.h"
#include "stores/file_layer.h"
#include "stores/ini_file.h"

namespace kvopt {
namespace {

std::filesystem::path ConfigurationFolder() {
    // A relative path in the variable counts as none, as the base directory conventions have it.
    const char* const configured = std::getenv("XDG_CONFIG_HOME");
    if (configured != nullptr && std::filesystem::path(configured).is_absolute()) {
        return configured;
    }
    const char* const home = std::getenv("HOME");
    return home != nullptr && *home != '\0' ? std::filesystem::path(home) / ".config"
                                            : std::filesystem::path();
}

}  // namespace

std::unique_ptr<IniFileSection> OpenUserFile(const char* name) {
    const std::filesystem::path folder = ConfigurationFolder();
    if (folder.empty()) {
        return std::make_unique<IniFileSection>();
    }
    const std::filesystem::path file = folder / "kvopt" / name;
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    try {
        if (error) {
            throw FileError(file.string(), "its folder cannot be made: " + error.message());
        }
        const auto store =
            std::make_shared<IniFile>(ResolvePath(file.string()), FileLayer::System());
        store->Refresh();
        return std::make_unique<IniFileSection>(store, "");
    } catch (const FileError& trouble) {
        TellStoreTrouble({StoreTrouble::Kind::NotRead, file.string(), "", trouble.what()});
        return std::make_unique<IniFileSection>();
    }
}

}  // namespace kvopt
