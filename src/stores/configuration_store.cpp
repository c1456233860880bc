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
    JsonStore() : SectionStore(Shape::Tree) {}

    void Read(std::string_view text, const std::string& fileName) {
        Replace(json::Parse(text, fileName));
    }

    void Save(const std::string& fileName) {
        WriteFileAtomically(*FileLayer::System(), ResolvePath(fileName), json::Print(Root()));
        SetFile(fileName);
    }

    /// The file that the tree is at one with now.
    void SetFile(const std::string& fileName) {
        fileName_ = fileName;
        ForgetChanges();
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
    std::string fileName_;
};

ConfigurationStore::ConfigurationStore() : store_(std::make_shared<JsonStore>()) {}

ConfigurationStore ConfigurationStore::Load(const std::string& fileName) {
    std::string text;
    if (!ReadWholeFile(*FileLayer::System(), fileName, text)) {
        throw FileError(fileName, "there is no such file");
    }
    ConfigurationStore store = Parse(text, fileName);
    store.store_->SetFile(fileName);
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
