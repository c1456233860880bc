#include "stores/ini_file.h"

#include <utility>

#include "kvopt/text/exceptions.h"
#include "stores/ini_text.h"

namespace kvopt {

IniFile::IniFile() : SectionStore(Shape::Ini) {}

IniFile::IniFile(std::string path, std::shared_ptr<FileLayer> layer)
    : SectionStore(Shape::Ini), path_(std::move(path)), layer_(std::move(layer)) {}

IniFile::~IniFile() {
    try {
        IniFile::Flush();
    } catch (...) {  // NOLINT(bugprone-empty-catch): a release must not throw; memory ran out
    }
}

void IniFile::Refresh() {
    if (path_.empty() || !HasFileChanged()) {
        return;
    }
    try {
        Load();
    } catch (const FileFormatError& unreadable) {
        // Only the holder of the lock may move the file: another process may have put a good one
        // in its place by now.
        try {
            const FileLock lock(layer_, path_);
            LoadOrSetAside();
        } catch (const FileError& error) {
            Block(std::string(unreadable.what()) + "; " + error.Reason());
        }
        TellTroubles();
    }
}

void IniFile::TellTroubles() {
    const std::vector<StoreTrouble> troubles = std::exchange(troubles_, {});
    for (const StoreTrouble& trouble : troubles) {
        TellStoreTrouble(trouble);
    }
}

// No file and an empty one are the same; the lock makes the one of the other.
bool IniFile::HasFileChanged() const {
    const FileStamp stamp = StampOf(*layer_, path_);
    return stamp != stamp_ && (stamp.size != 0 || stamp_.size != 0);
}

void IniFile::Load() {
    auto text = std::make_shared<std::string>();
    FileStamp stamp;
    ReadWholeFile(*layer_, path_, *text, &stamp);
    ini::Document document = ini::Parse(*text, path_);
    Replace(std::move(document.root));
    tail_ = document.tail;
    text_ = std::move(text);
    onDisk_ = text_;
    stamp_ = stamp;
    isBlocked_ = false;
}

void IniFile::LoadOrSetAside() {
    try {
        Load();
    } catch (const FileFormatError& unreadable) {
        std::string movedTo;
        try {
            movedTo = SetFileAside(*layer_, path_);
        } catch (const FileError& error) {
            Block(std::string(unreadable.what()) + "; " + error.Reason());
            return;
        }
        Load();
        troubles_.push_back({StoreTrouble::Kind::SetAside, path_, movedTo, unreadable.what()});
    }
}

void IniFile::Block(const std::string& reason) {
    isBlocked_ = true;
    stamp_ = StampOf(*layer_, path_);
    troubles_.push_back({StoreTrouble::Kind::SetAside, path_, "", reason});
}

void IniFile::Flush() {
    if (!HasChanges() || path_.empty()) {
        return;
    }
    try {
        WriteThrough();
        ForgetChanges();
        lastTrouble_.clear();
    } catch (const FileError& error) {
        if (lastTrouble_ != error.what()) {
            lastTrouble_ = error.what();
            troubles_.push_back({StoreTrouble::Kind::NotWritten, path_, "", error.what()});
        }
    }
    TellTroubles();
}

void IniFile::WriteThrough() {
    const FileLock lock(layer_, path_);
    if (HasFileChanged()) {
        LoadOrSetAside();
    }
    if (isBlocked_) {
        throw FileError(path_, "is no ini file and could not be set aside");
    }
    auto text = std::make_shared<const std::string>(ini::Print(Root(), tail_));
    if (onDisk_ == nullptr || *onDisk_ != *text) {
        stamp_ = WriteFileAtomically(*layer_, path_, *text);
        onDisk_ = std::move(text);
    }
}

}  // namespace kvopt
