#include "kvopt/stores/configuration_store.h"

#include <utility>

#include "kvopt/stores/store_trouble.h"
#include "kvopt/text/exceptions.h"
#include "stores/file_access.h"
#include "stores/section_json.h"
#include "stores/section_store.h"

namespace kvopt {

/// The tree of a ConfigurationStore and the file it was last at one with, if any.
class JsonStore : public SectionStore {
public:
    explicit JsonStore(std::shared_ptr<FileLayer> layer)
        : SectionStore(Shape::Tree), layer_(layer ? std::move(layer) : FileLayer::System()) {}

    void Read(std::string_view text, const std::string& fileName) {
        Replace(json::Parse(text, fileName));
    }

    /// The tree of a file that can be read, as text, whole or by halves.
    void Load(const std::string& fileName, bool alsoDamaged) {
        const std::string path = ResolvePath(fileName);
        std::string text;
        FileStamp stamp;
        if (!ReadWholeFile(*layer_, path, text, &stamp)) {
            throw FileError(fileName, "there is no such file");
        }
        try {
            Read(text, fileName);
            SetFile(fileName, stamp);
        } catch (const FileFormatError& unreadable) {
            if (!alsoDamaged) {
                throw;
            }
            Replace(json::ParseWhatIsReadable(text));
            SetFile(fileName, {});
            SetAside(path, text, unreadable);
        }
    }

    void Save(const std::string& fileName) {
        const std::string path = ResolvePath(fileName);
        const FileStamp present = StampOf(*layer_, path);
        if (present.size != 0 && present != stamp_) {
            SaveOverOther(fileName, path);
        } else {
            SetFile(fileName, WriteFileAtomically(*layer_, path, json::Print(Root())));
        }
    }

    void Flush() override {
        if (!HasChanges() || fileName_.empty()) {
            return;
        }
        try {
            Save(fileName_);
        } catch (const FileError& error) {
            TellStoreTrouble({StoreTrouble::Kind::NotWritten, fileName_, "", error.what()});
        }
    }

private:
    /// The file that the tree is at one with now.
    void SetFile(const std::string& fileName, const FileStamp& stamp) {
        fileName_ = fileName;
        stamp_ = stamp;
        ForgetChanges();
    }

    // Over a file that this store has not seen.
    void SaveOverOther(const std::string& fileName, const std::string& path) {
        const std::string tree = json::Print(Root());
        std::string text;
        ReadWholeFile(*layer_, path, text);
        try {
            json::Parse(text, path);
        } catch (const FileFormatError& unreadable) {
            std::string movedTo = SetAsideAndWrite(*layer_, path, text, tree);
            SetFile(fileName, {});
            TellStoreTrouble(
                {StoreTrouble::Kind::SetAside, path, std::move(movedTo), unreadable.what()});
            return;
        }
        SetFile(fileName, WriteFileAtomically(*layer_, path, tree));
    }

    void SetAside(const std::string& path, const std::string& text,
                  const FileFormatError& unreadable) {
        StoreTrouble trouble{StoreTrouble::Kind::SetAside, path, "", unreadable.what()};
        try {
            trouble.movedTo = SetAsideAndWrite(*layer_, path, text, json::Print(Root()));
        } catch (const FileError& error) {
            trouble.reason += "; " + error.Reason();
        }
        TellStoreTrouble(trouble);
    }

    std::shared_ptr<FileLayer> layer_;
    std::string fileName_;
    // Of the file as this store read or wrote it last; none where it has to look again.
    FileStamp stamp_;
};

ConfigurationStore::ConfigurationStore() : ConfigurationStore(nullptr) {}
ConfigurationStore::ConfigurationStore(std::shared_ptr<FileLayer> layer)
    : store_(std::make_shared<JsonStore>(std::move(layer))) {}

ConfigurationStore ConfigurationStore::Load(const std::string& fileName,
                                            std::shared_ptr<FileLayer> layer) {
    ConfigurationStore store(std::move(layer));
    store.store_->Load(fileName, false);
    return store;
}

ConfigurationStore ConfigurationStore::Recover(const std::string& fileName,
                                               std::shared_ptr<FileLayer> layer) {
    ConfigurationStore store(std::move(layer));
    store.store_->Load(fileName, true);
    return store;
}

ConfigurationStore ConfigurationStore::Parse(std::string_view text, const std::string& fileName) {
    ConfigurationStore store;
    store.store_->Read(text, fileName);
    return store;
}

void ConfigurationStore::Save(const std::string& fileName) {
    store_->Save(fileName);
}

std::string ConfigurationStore::Text() const {
    return json::Print(store_->Root());
}

std::unique_ptr<ConfigurationSection> ConfigurationStore::Root() {
    return std::make_unique<StoreSection>(store_, SectionPath());
}

std::unique_ptr<const ConfigurationSection> ConfigurationStore::Root() const {
    return std::make_unique<StoreSection>(store_, SectionPath());
}

}  // namespace kvopt
