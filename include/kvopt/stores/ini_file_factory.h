#pragma once

#include <map>
#include <memory>
#include <string>

#include "kvopt/export.h"
#include "kvopt/stores/ini_file_section.h"

namespace kvopt {

class FileLayer;

/// Opens the sections of ini files. One object serves the whole process; a host may install a
/// derived one of its own.
class KVOPT_EXPORT IniFileFactory {
public:
    IniFileFactory();
    /// Files are reached through the given layer, which the factory shares.
    explicit IniFileFactory(std::shared_ptr<FileLayer> layer);
    IniFileFactory(const IniFileFactory&) = delete;
    IniFileFactory& operator=(const IniFileFactory&) = delete;
    virtual ~IniFileFactory();

    /// The factory in use; never null.
    static IniFileFactory* Instance();
    /// Puts another factory in place and gives the former one back. Null puts the default back.
    static std::shared_ptr<IniFileFactory> Install(std::shared_ptr<IniFileFactory> factory);

    /// The section of this name in the file; with the empty name, the keys before the first header,
    /// from where SetSection() leads on. The file need not exist, its folder must. Null when the
    /// file cannot be had: an empty file name, a folder that is not there, a file that cannot be
    /// read. A file that is no ini file is set aside under a new name, the store trouble handler is
    /// told, and what could be read of it is written in its place. Reading writes nothing else.
    virtual std::unique_ptr<IniFileSection> GetIniFile(const std::string& fileName,
                                                       const std::string& section);

private:
    std::shared_ptr<FileLayer> layer_;
    std::map<std::string, std::weak_ptr<IniFile>> files_;
};

}  // namespace kvopt
