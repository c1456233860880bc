#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "kvopt/stores/configuration_section.h"

namespace kvopt {

class SectionNode;
class SectionStore;

/// One step down a store: a child's name and its one-based number. The number 0 stands for the
/// lowest there is.
struct SectionStep {
    std::string name;
    int number = 0;
};
using SectionPath = std::vector<SectionStep>;

/// The sections of this library's own stores. Shares ownership of the store; holds a path into it
/// and finds its place again when another handle, or another process, has changed the store.
class KVOPT_EXPORT StoreSection : public ConfigurationSection {
public:
    StoreSection(std::shared_ptr<SectionStore> store, SectionPath base);
    ~StoreSection() override;

    using ConfigurationSection::WriteKey;

    void SetSection(const char* name) override;
    std::unique_ptr<ConfigurationSection> GetIndexedSection(const char* name, int index) override;
    std::unique_ptr<ConfigurationSection> GetSection(const char* name) override;
    int CountSections(const char* name) const override;
    void Clear() override;
    void Flush() override;
    bool HasSection(const char* name, bool alsoEmpty) const override;
    bool ReadKey(const char* key, bool& value) const override;
    bool ReadKey(const char* key, double& value) const override;
    bool ReadKey(const char* key, int& value) const override;
    bool ReadKey(const char* key, std::string& value) const override;
    void WriteKey(const char* key, bool value) override;
    void WriteKey(const char* key, double value) override;
    void WriteKey(const char* key, int value) override;
    void WriteKey(const char* key, const char* value) override;
    std::unique_ptr<const ConfigurationSection> GetIndexedSection(const char* name,
                                                                  int index) const override;
    std::unique_ptr<const ConfigurationSection> GetSection(const char* name) const override;

    /// The names of the keys of this section, in the store's order.
    std::vector<std::string> KeyNames() const;
    /// The names of the sections inside this one, in the store's order, each name once.
    std::vector<std::string> SectionNames() const;
    /// The section at the end of this path down from here; not created before its first key.
    std::unique_ptr<StoreSection> Descend(const SectionPath& path) const;
    /// Takes every child of this name out of the section, with all that lies below it.
    void RemoveSections(const char* name);

private:
    SectionPath Path() const;
    SectionNode* Find() const;
    SectionNode& Open();
    std::unique_ptr<StoreSection> Child(SectionStep step) const;

    std::shared_ptr<SectionStore> store_;
    SectionPath base_;
    std::optional<SectionStep> selected_;
    // Where the handle was opened and where it stands, as far as both are there; good for one
    // generation of the store.
    mutable SectionNode* baseNode_ = nullptr;
    mutable SectionNode* node_ = nullptr;
    mutable unsigned generation_ = 0;
};

}  // namespace kvopt
