#pragma once

#include <memory>
#include <string>

#include "kvopt/stores/configuration_section.h"

namespace kvopt {

/// A section of a study's settings: what its store holds, and for a key that the store does not
/// hold the value that the study began with. The sections inside it have no such values.
class SeededSection final : public ConfigurationSection {
public:
    /// `seeds` may be null.
    SeededSection(std::unique_ptr<ConfigurationSection> store,
                  std::unique_ptr<const ConfigurationSection> seeds);
    ~SeededSection() override;

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

private:
    template <class Value>
    bool Read(const char* key, Value& value) const;

    std::unique_ptr<ConfigurationSection> store_;
    std::unique_ptr<const ConfigurationSection> seeds_;
    bool isOutermost_ = true;
};

}  // namespace kvopt
