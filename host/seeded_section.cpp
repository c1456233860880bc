#include "host/seeded_section.h"

#include <utility>

namespace kvopt {

SeededSection::SeededSection(std::unique_ptr<ConfigurationSection> store,
                             const StudySettingsSection* seeds)
    : store_(std::move(store)), seeds_(seeds) {}

SeededSection::~SeededSection() = default;

const StudySettingValue* SeededSection::Seed(const char* key) const {
    if (seeds_ == nullptr || !isOutermost_) {
        return nullptr;
    }
    const auto found = seeds_->find(key);
    return found == seeds_->end() ? nullptr : &found->second;
}

void SeededSection::SetSection(const char* name) {
    store_->SetSection(name);
    isOutermost_ = *name == '\0';
}

std::unique_ptr<ConfigurationSection> SeededSection::GetIndexedSection(const char* name,
                                                                       int index) {
    return store_->GetIndexedSection(name, index);
}

std::unique_ptr<ConfigurationSection> SeededSection::GetSection(const char* name) {
    return store_->GetSection(name);
}

int SeededSection::CountSections(const char* name) const {
    return store_->CountSections(name);
}

void SeededSection::Clear() {
    store_->Clear();
}

void SeededSection::Flush() {
    store_->Flush();
}

bool SeededSection::HasSection(const char* name, bool alsoEmpty) const {
    return store_->HasSection(name, alsoEmpty);
}

bool SeededSection::ReadKey(const char* key, bool& value) const {
    if (store_->ReadKey(key, value)) {
        return true;
    }
    const StudySettingValue* seed = Seed(key);
    if (seed == nullptr) {
        return false;
    }
    if (const auto* flag = std::get_if<bool>(seed)) {
        value = *flag;
        return true;
    }
    const auto* number = std::get_if<int>(seed);
    if (number != nullptr) {
        value = *number != 0;
    }
    return number != nullptr;
}

bool SeededSection::ReadKey(const char* key, double& value) const {
    if (store_->ReadKey(key, value)) {
        return true;
    }
    const StudySettingValue* seed = Seed(key);
    if (seed == nullptr) {
        return false;
    }
    if (const auto* real = std::get_if<double>(seed)) {
        value = *real;
        return true;
    }
    const auto* number = std::get_if<int>(seed);
    if (number != nullptr) {
        value = *number;
    }
    return number != nullptr;
}

bool SeededSection::ReadKey(const char* key, int& value) const {
    if (store_->ReadKey(key, value)) {
        return true;
    }
    const StudySettingValue* seed = Seed(key);
    if (seed == nullptr) {
        return false;
    }
    if (const auto* flag = std::get_if<bool>(seed)) {
        value = *flag ? 1 : 0;
        return true;
    }
    const auto* number = std::get_if<int>(seed);
    if (number != nullptr) {
        value = *number;
    }
    return number != nullptr;
}

bool SeededSection::ReadKey(const char* key, std::string& value) const {
    if (store_->ReadKey(key, value)) {
        return true;
    }
    const StudySettingValue* seed = Seed(key);
    const auto* text = seed == nullptr ? nullptr : std::get_if<std::string>(seed);
    if (text != nullptr) {
        value = *text;
    }
    return text != nullptr;
}

void SeededSection::WriteKey(const char* key, bool value) {
    store_->WriteKey(key, value);
}
void SeededSection::WriteKey(const char* key, double value) {
    store_->WriteKey(key, value);
}
void SeededSection::WriteKey(const char* key, int value) {
    store_->WriteKey(key, value);
}
void SeededSection::WriteKey(const char* key, const char* value) {
    store_->WriteKey(key, value);
}

std::unique_ptr<const ConfigurationSection> SeededSection::GetIndexedSection(const char* name,
                                                                             int index) const {
    return std::as_const(*store_).GetIndexedSection(name, index);
}

std::unique_ptr<const ConfigurationSection> SeededSection::GetSection(const char* name) const {
    return std::as_const(*store_).GetSection(name);
}

}  // namespace kvopt
