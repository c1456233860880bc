#include "host/seeded_section.h"

#include <utility>

namespace kvopt {

SeededSection::SeededSection(std::unique_ptr<ConfigurationSection> store,
                             std::unique_ptr<const ConfigurationSection> seeds)
    : store_(std::move(store)), seeds_(std::move(seeds)) {}

SeededSection::~SeededSection() = default;

template <class Value>
bool SeededSection::Read(const char* key, Value& value) const {
    return store_->ReadKey(key, value) ||
           (seeds_ != nullptr && isOutermost_ && seeds_->ReadKey(key, value));
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
    return Read(key, value);
}
bool SeededSection::ReadKey(const char* key, double& value) const {
    return Read(key, value);
}
bool SeededSection::ReadKey(const char* key, int& value) const {
    return Read(key, value);
}
bool SeededSection::ReadKey(const char* key, std::string& value) const {
    return Read(key, value);
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
