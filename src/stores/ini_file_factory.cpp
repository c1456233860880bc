#include "kvopt/stores/ini_file_factory.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "kvopt/stores/store_trouble.h"
#include "kvopt/text/exceptions.h"
#include "stores/file_layer.h"
#include "stores/ini_file.h"

namespace kvopt {
namespace {

std::shared_ptr<IniFileFactory>& Installed() {
    static std::shared_ptr<IniFileFactory> factory = std::make_shared<IniFileFactory>();
    return factory;
}

}  // namespace

IniFileFactory::IniFileFactory() : IniFileFactory(FileLayer::System()) {}
IniFileFactory::IniFileFactory(std::shared_ptr<FileLayer> layer) : layer_(std::move(layer)) {}
IniFileFactory::~IniFileFactory() = default;

IniFileFactory* IniFileFactory::Instance() {
    return Installed().get();
}

std::shared_ptr<IniFileFactory> IniFileFactory::Install(std::shared_ptr<IniFileFactory> factory) {
    return std::exchange(Installed(),
                         factory ? std::move(factory) : std::make_shared<IniFileFactory>());
}

std::unique_ptr<IniFileSection> IniFileFactory::GetIniFile(const std::string& fileName,
                                                           const std::string& section) {
    if (fileName.empty()) {
        return nullptr;
    }
    const std::string path = ResolvePath(fileName);
    std::error_code error;
    if (!std::filesystem::is_directory(std::filesystem::path(path).parent_path(), error)) {
        return nullptr;
    }
    std::erase_if(files_, [](const auto& entry) { return entry.second.expired(); });
    std::weak_ptr<IniFile>& known = files_[path];
    std::shared_ptr<IniFile> file = known.lock();
    try {
        if (file == nullptr) {
            file = std::make_shared<IniFile>(path, layer_);
        }
        file->Refresh();
    } catch (const FileError& trouble) {
        TellStoreTrouble({StoreTrouble::Kind::NotRead, path, "", trouble.what()});
        return nullptr;
    }
    known = file;
    return std::make_unique<IniFileSection>(file, section);
}

}  // namespace kvopt
