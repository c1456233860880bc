#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/stores.h"
#include "kvopt/text.h"
#include "src/stores/file_layer.h"
#include "stores/store_test_support.h"

namespace kvopt::test {

/// What a save came to: whether the host was told of trouble, by the handler or by an exception,
/// and why.
struct SaveResult {
    bool wasTold = false;
    std::string reason;
};

/// One of the stores, driven alike whatever it is: it holds one value twice.
struct StoreKind {
    const char* label;
    const char* fileName;
    /// Opens the store of this file, writes the value and saves. The store is released later, with
    /// what is given back.
    std::function<std::shared_ptr<void>(std::shared_ptr<FileLayer> layer, const std::string& file,
                                        int value)>
        write;
    /// Opens the store with fresh eyes: the value, 0 where there is none, -1 where both differ.
    std::function<int(const std::string& file)> read;

    friend std::ostream& operator<<(std::ostream& out, const StoreKind& kind) {
        return out << kind.label;
    }
};

inline int Both(int first, int second) {
    return first == second ? first : -1;
}

inline const std::vector<StoreKind>& StoreKinds() {
    using Layer = std::shared_ptr<FileLayer>;
    using Open = std::shared_ptr<void>;
    const auto open = [](const Layer& layer, const std::string& file, const char* section) {
        return IniFileFactory(layer).GetIniFile(file, section);
    };
    static const std::vector<StoreKind> kinds = {
        {"IniFile", "study.ini",
         [open](const Layer& layer, const std::string& file, int value) -> Open {
             std::shared_ptr<IniFileSection> section = open(layer, file, "A");
             if (section != nullptr) {
                 section->WriteKey("Key", value);
                 section->WriteKey("Copy", value);
                 section->Flush();
             }
             return section;
         },
         [open](const std::string& file) {
             const auto section = open(FileLayer::System(), file, "A");
             return Both(section->ReadKeyOr("Key", 0), section->ReadKeyOr("Copy", 0));
         }},
        {"Profile", "profile.ini",
         [open](const Layer& layer, const std::string& file, int value) -> Open {
             auto profile = std::make_shared<UserProfile>(open(layer, file, ""));
             profile->WriteProfileInteger("Plot", "ContourResolution", value);
             return profile;
         },
         [open](const std::string& file) {
             const UserProfile profile(open(FileLayer::System(), file, ""));
             return profile.GetProfileInteger("Plot", "ContourResolution", 0);
         }},
        {"Registry", "registry.ini",
         [open](const Layer& layer, const std::string& file, int value) -> Open {
             auto registry = std::make_shared<Registry>(open(layer, file, ""));
             const auto key = registry->GetKey("App\\WindowPos");
             key->WriteKey("Left", value);
             key->WriteKey("Top", value);
             key->Flush();
             return registry;
         },
         [open](const std::string& file) {
             Registry registry(open(FileLayer::System(), file, ""));
             const auto key = registry.GetKey("App\\WindowPos");
             return Both(key->ReadKeyOr("Left", 0), key->ReadKeyOr("Top", 0));
         }},
        {"SavedPlot", "plot.json",
         [](const Layer& layer, const std::string& file, int value) -> Open {
             auto store = std::make_shared<ConfigurationStore>(layer);
             const auto root = store->Root();
             root->WriteKey("Key", value);
             root->GetSection("A")->WriteKey("Copy", value);
             store->Save(file);
             return store;
         },
         [](const std::string& file) {
             const auto root = ConfigurationStore::Load(file).Root();
             return Both(root->ReadKeyOr("Key", 0), root->GetSection("A")->ReadKeyOr("Copy", 0));
         }},
    };
    return kinds;
}

/// A store of one kind in a folder of its own, with what its file holds after each value was saved.
class StoreUnderTest {
public:
    explicit StoreUnderTest(const StoreKind& kind) : kind_(kind) {
        for (int value = 0; value <= kLastValue; ++value) {
            const TemporaryFolder folder;
            if (value != 0) {
                kind.write(FileLayer::System(), folder.File(kind.fileName), value);
            }
            contents_.push_back(Slurp(folder.File(kind.fileName)));
        }
    }

    const std::string& Path() const { return path_; }
    const TemporaryFolder& Folder() const { return folder_; }
    /// What stands in the file when this value was saved; empty for 0, which is no file.
    const std::string& Content(int value) const {
        return contents_[static_cast<std::size_t>(value)];
    }
    std::string Content() const { return Slurp(path_); }
    void PutBack(int value) const {
        std::filesystem::remove(path_);
        if (value != 0) {
            Spill(path_, Content(value));
        }
    }
    int Read() const { return kind_.read(path_); }

    /// Saves the value through the layer. `open` gets the store that is to be released later; where
    /// there is none it is released before the return.
    SaveResult Save(std::shared_ptr<FileLayer> layer, int value,
                    std::shared_ptr<void>* open = nullptr) const {
        SaveResult result;
        {
            const TroubleRecorder recorder;
            std::shared_ptr<void> store;
            try {
                store = kind_.write(std::move(layer), path_, value);
            } catch (const FileError& error) {
                result = {true, error.what()};
            }
            if (open != nullptr) {
                *open = std::move(store);
            }
            store.reset();
            if (!recorder.troubles.empty()) {
                result = {true, recorder.troubles.front().reason};
            }
        }
        return result;
    }

    static constexpr int kLastValue = 3;

private:
    const StoreKind& kind_;
    const TemporaryFolder folder_;
    const std::string path_ = folder_.File(kind_.fileName);
    std::vector<std::string> contents_;
};

}  // namespace kvopt::test
