#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/stores/store_trouble.h"
#include "stores/file_access.h"
#include "stores/ini_text.h"
#include "stores/section_store.h"

namespace kvopt {

/// An ini file in memory. Reads the file whole; writes the changes made since into whatever the
/// file holds by then, under the file's lock, so that two processes lose nothing of each other's.
/// Released with changes, it writes them.
class IniFile : public SectionStore {
public:
    /// Without a file.
    IniFile();
    /// Of a resolved path; reads nothing yet.
    IniFile(std::string path, std::shared_ptr<FileLayer> layer);
    ~IniFile() override;

    /// Reads the file where it changed since the last look, keeping what was changed here. A file
    /// that is no ini file is set aside, and what could be read of it goes on. Throws FileError
    /// when the file cannot be read.
    void Refresh();
    void Flush() override;

private:
    using Text = std::shared_ptr<const std::string>;

    Text ReadText(FileStamp& stamp) const;
    void Use(Text text, ini::Document document);
    void BeAtOneWith(Text onDisk, const FileStamp& stamp);
    void LoadOrSetAside();
    void WriteThrough();
    void TellTroubles();

    std::string path_;
    std::shared_ptr<FileLayer> layer_;
    FileStamp stamp_;
    // The present tree points into the text that was read last; the file may since have been
    // written.
    Text text_;
    // No file and an empty one are the same. Null for a file that could neither be parsed nor set
    // aside yet: nothing is written over it.
    Text onDisk_ = std::make_shared<const std::string>();
    std::string_view tail_;
    // Told when the lock is released: the handler may show a box and take its time.
    std::vector<StoreTrouble> troubles_;
    // What the handler was told last of a failed write, so that it is not told again at each flush.
    std::string lastTrouble_;
};

}  // namespace kvopt
