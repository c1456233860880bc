#include "kvopt/stores/store_section.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_string.h"
#include "stores/section_store.h"

namespace kvopt {
namespace {

const char* NotNull(const char* text, const char* operation) {
    if (text == nullptr) {
        throw InvalidArgument(operation);
    }
    return text;
}

bool IsOneOf(KeyType type, std::initializer_list<KeyType> types) {
    return std::find(types.begin(), types.end(), type) != types.end();
}

bool ReadText(const StoredKey& key, int& value) {
    if (!IsOneOf(key.type, {KeyType::Int, KeyType::Bool, KeyType::Untyped})) {
        return false;
    }
    if (key.text == "true" || key.text == "false") {
        value = key.text == "true" ? 1 : 0;
        return true;
    }
    return KvString::ToInt(key.text, value);
}

bool ReadText(const StoredKey& key, bool& value) {
    int number = 0;
    if (!ReadText(key, number)) {
        return false;
    }
    value = number != 0;
    return true;
}

bool ReadText(const StoredKey& key, double& value) {
    return IsOneOf(key.type, {KeyType::Double, KeyType::Int, KeyType::Untyped}) &&
           (KvString::FromStore(key.text, value) || KvString::ToDouble(key.text, value));
}

bool ReadText(const StoredKey& key, std::string& value) {
    if (!IsOneOf(key.type, {KeyType::Text, KeyType::Untyped})) {
        return false;
    }
    value = key.text;
    return true;
}

template <class Value>
bool ReadFrom(const SectionNode* section, const char* name, Value& value) {
    NotNull(name, "ConfigurationSection::ReadKey");
    const StoredKey* const key = section != nullptr ? section->FindKey(name) : nullptr;
    return key != nullptr && ReadText(*key, value);
}

}  // namespace

StoreSection::StoreSection(std::shared_ptr<SectionStore> store, SectionPath base)
    : store_(std::move(store)), base_(std::move(base)) {}
StoreSection::~StoreSection() = default;

SectionPath StoreSection::Path() const {
    SectionPath path = base_;
    if (selected_) {
        path.push_back(*selected_);
    }
    return path;
}

SectionNode* StoreSection::Find() const {
    if (generation_ != store_->Generation()) {
        baseNode_ = nullptr;
        node_ = nullptr;
        generation_ = store_->Generation();
    }
    if (node_ == nullptr) {
        if (baseNode_ == nullptr) {
            baseNode_ = store_->Find(base_);
        }
        node_ = baseNode_ != nullptr && selected_
                    ? baseNode_->FindChild(selected_->name, selected_->number)
                    : baseNode_;
    }
    return node_;
}

SectionNode& StoreSection::Open() {
    if (Find() == nullptr) {
        node_ = &store_->Open(Path());
    }
    return *node_;
}

std::unique_ptr<StoreSection> StoreSection::Child(SectionStep step) const {
    return Descend({std::move(step)});
}

void StoreSection::SetSection(const char* name) {
    NotNull(name, "ConfigurationSection::SetSection");
    if (*name == '\0') {
        selected_.reset();
    } else {
        selected_ = SectionStep{name, 0};
    }
    node_ = nullptr;
}

std::unique_ptr<ConfigurationSection> StoreSection::GetIndexedSection(const char* name, int index) {
    NotNull(name, "ConfigurationSection::GetIndexedSection");
    if (index < 1) {
        throw InvalidArgument("ConfigurationSection::GetIndexedSection: a number below 1");
    }
    store_->OpenChild(Open(), name, index);
    return Child({name, index});
}

std::unique_ptr<ConfigurationSection> StoreSection::GetSection(const char* name) {
    NotNull(name, "ConfigurationSection::GetSection");
    return Child({name, store_->OpenChild(Open(), name, 0).Number()});
}

std::unique_ptr<const ConfigurationSection> StoreSection::GetIndexedSection(const char* name,
                                                                            int index) const {
    NotNull(name, "ConfigurationSection::GetIndexedSection");
    const SectionNode* const section = Find();
    if (section == nullptr || index < 1 || section->FindChild(name, index) == nullptr) {
        return nullptr;
    }
    return Child({name, index});
}

std::unique_ptr<const ConfigurationSection> StoreSection::GetSection(const char* name) const {
    NotNull(name, "ConfigurationSection::GetSection");
    const SectionNode* const section = Find();
    const SectionNode* const child = section != nullptr ? section->FindChild(name, 0) : nullptr;
    return child != nullptr ? Child({name, child->Number()}) : nullptr;
}

int StoreSection::CountSections(const char* name) const {
    NotNull(name, "ConfigurationSection::CountSections");
    const SectionNode* const section = Find();
    return section != nullptr ? section->CountChildren(name) : 0;
}

bool StoreSection::HasSection(const char* name, bool alsoEmpty) const {
    NotNull(name, "ConfigurationSection::HasSection");
    const SectionNode* const section = Find();
    const SectionNode* const child = section != nullptr ? section->FindChild(name, 0) : nullptr;
    return child != nullptr && (alsoEmpty || !child->IsEmpty());
}

void StoreSection::Clear() {
    store_->Clear(Open());
}

void StoreSection::Flush() {
    store_->Flush();
}

bool StoreSection::ReadKey(const char* key, bool& value) const {
    return ReadFrom(Find(), key, value);
}
bool StoreSection::ReadKey(const char* key, double& value) const {
    return ReadFrom(Find(), key, value);
}
bool StoreSection::ReadKey(const char* key, int& value) const {
    return ReadFrom(Find(), key, value);
}
bool StoreSection::ReadKey(const char* key, std::string& value) const {
    return ReadFrom(Find(), key, value);
}

void StoreSection::WriteKey(const char* key, bool value) {
    store_->Write(Open(), NotNull(key, "ConfigurationSection::WriteKey"), KeyType::Bool,
                  value ? "true" : "false");
}
void StoreSection::WriteKey(const char* key, double value) {
    store_->Write(Open(), NotNull(key, "ConfigurationSection::WriteKey"), KeyType::Double,
                  KvString::FromDouble(value));
}
void StoreSection::WriteKey(const char* key, int value) {
    store_->Write(Open(), NotNull(key, "ConfigurationSection::WriteKey"), KeyType::Int,
                  std::to_string(value));
}
void StoreSection::WriteKey(const char* key, const char* value) {
    store_->Write(Open(), NotNull(key, "ConfigurationSection::WriteKey"), KeyType::Text,
                  NotNull(value, "ConfigurationSection::WriteKey"));
}

std::vector<std::string> StoreSection::KeyNames() const {
    std::vector<std::string> names;
    if (const SectionNode* const section = Find()) {
        for (const StoredKey& key : section->Keys()) {
            names.push_back(key.name);
        }
    }
    return names;
}

std::vector<std::string> StoreSection::SectionNames() const {
    std::vector<std::string> names;
    std::unordered_set<std::string_view> seen;
    if (const SectionNode* const section = Find()) {
        for (const std::unique_ptr<SectionNode>& child : section->Children()) {
            if (seen.insert(child->Name()).second) {
                names.push_back(child->Name());
            }
        }
    }
    return names;
}

std::unique_ptr<StoreSection> StoreSection::Descend(const SectionPath& path) const {
    SectionPath whole = Path();
    whole.insert(whole.end(), path.begin(), path.end());
    return std::make_unique<StoreSection>(store_, std::move(whole));
}

void StoreSection::RemoveSections(const char* name) {
    NotNull(name, "StoreSection::RemoveSections");
    if (SectionNode* const section = Find()) {
        store_->RemoveChildren(*section, name);
    }
}

}  // namespace kvopt
