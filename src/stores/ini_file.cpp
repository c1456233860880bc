#include "stores/ini_file.h"

#include <utility>

#include "kvopt/text/exceptions.h"

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
    if (path_.empty() || StampOf(*layer_, path_) == stamp_) {
        return;
    }
    FileStamp stamp;
    Text text = ReadText(stamp);
    try {
        Use(text, ini::Parse(*text, path_));
        BeAtOneWith(std::move(text), stamp);
    } catch (const FileFormatError& unreadable) {
        // Only the holder of the lock may replace the file: another process may have put a good one
        // in its place by now.
        try {
            const FileLock lock(layer_, path_);
            LoadOrSetAside();
        } catch (const FileError& error) {
            Use(text, ini::ParseWhatIsReadable(*text));
            onDisk_ = nullptr;
            stamp_ = stamp;
            troubles_.push_back({StoreTrouble::Kind::SetAside, path_, "",
                                 std::string(unreadable.what()) + "; " + error.Reason()});
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

IniFile::Text IniFile::ReadText(FileStamp& stamp) const {
    std::string text;
    ReadWholeFile(*layer_, path_, text, &stamp);
    return std::make_shared<const std::string>(std::move(text));
}

// The document points into the text.
void IniFile::Use(Text text, ini::Document document) {
    Replace(std::move(document.root));
    tail_ = document.tail;
    text_ = std::move(text);
}

void IniFile::BeAtOneWith(Text onDisk, const FileStamp& stamp) {
    onDisk_ = std::move(onDisk);
    stamp_ = stamp;
}

// Under the lock. The stamp is not asked: two writes within one tick of the system's clock may
// leave one that looks the same.
void IniFile::LoadOrSetAside() {
    FileStamp stamp;
    Text text = ReadText(stamp);
    if (onDisk_ != nullptr && *onDisk_ == *text) {
        return;
    }
    try {
        Use(text, ini::Parse(*text, path_));
        BeAtOneWith(std::move(text), stamp);
    } catch (const FileFormatError& unreadable) {
        ini::Document readable = ini::ParseWhatIsReadable(*text);
        Text kept = std::make_shared<const std::string>(ini::Print(*readable.root, readable.tail));
        std::string movedTo = SetAsideAndWrite(*layer_, path_, *text, *kept);
        Use(std::move(text), std::move(readable));
        BeAtOneWith(std::move(kept), {});
        troubles_.push_back(
            {StoreTrouble::Kind::SetAside, path_, std::move(movedTo), unreadable.what()});
    }
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
    LoadOrSetAside();
    Text text = std::make_shared<const std::string>(ini::Print(Root(), tail_));
    if (*onDisk_ != *text) {
        stamp_ = WriteFileAtomically(*layer_, path_, *text);
        onDisk_ = std::move(text);
    }
}

}  // namespace kvopt
