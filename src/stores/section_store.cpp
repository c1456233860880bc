#include "stores/section_store.h"

#include <algorithm>
#include <utility>

#include "kvopt/text/exceptions.h"

namespace kvopt {
namespace {

SectionNode* FindNode(SectionNode* node, const SectionPath& path) {
    for (const SectionStep& step : path) {
        node = node->FindChild(step.name, step.number);
        if (node == nullptr) {
            break;
        }
    }
    return node;
}

// Whether anything at or below the section has to be done again on a fresh tree.
bool IsTouched(const SectionNode& section) {
    return section.isNew || section.isCleared ||
           std::any_of(section.Keys().begin(), section.Keys().end(),
                       [](const StoredKey& key) { return key.isChanged; }) ||
           std::any_of(section.Children().begin(), section.Children().end(),
                       [](const auto& child) { return IsTouched(*child); });
}

void CheckDepth(std::size_t depth) {
    if (depth > kDeepestSection) {
        throw InvalidArgument("ConfigurationSection: too many sections inside each other");
    }
}

void ForgetChangesIn(SectionNode& section) {
    section.hasHeader = section.hasHeader || section.isNew;
    section.isNew = false;
    section.isCleared = false;
    for (StoredKey& key : section.Keys()) {
        key.isChanged = false;
    }
    for (const std::unique_ptr<SectionNode>& child : section.Children()) {
        ForgetChangesIn(*child);
    }
}

void Put(SectionNode& section, std::string_view name, KeyType type, std::string text) {
    StoredKey& key = section.OpenKey(name);
    key.type = type;
    key.text = std::move(text);
    key.isChanged = true;
    key.line = {};
}

}  // namespace

SectionPath PathOf(const SectionNode& section) {
    SectionPath path;
    for (const SectionNode* node = &section; node->Parent() != nullptr; node = node->Parent()) {
        path.push_back({node->Name(), node->Number()});
    }
    std::reverse(path.begin(), path.end());
    return path;
}

SectionStore::SectionStore(Shape shape)
    : shape_(shape), root_(std::make_unique<SectionNode>("", 1, nullptr)) {}
SectionStore::~SectionStore() = default;

SectionNode* SectionStore::Find(const SectionPath& path) const {
    return FindNode(root_.get(), path);
}

SectionNode& SectionStore::Open(const SectionPath& path) {
    CheckDepth(path.size());
    SectionNode* node = root_.get();
    for (const SectionStep& step : path) {
        node = &node->OpenChild(step.name, step.number);
    }
    return *node;
}

SectionNode& SectionStore::OpenChild(SectionNode& parent, std::string_view name, int number) {
    if (SectionNode* child = parent.FindChild(name, number)) {
        return *child;
    }
    CheckDepth(PathOf(parent).size() + 1);
    SectionNode& child = parent.OpenChild(name, number);
    child.isNew = true;
    hasChanges_ = true;
    return child;
}

void SectionStore::Write(SectionNode& section, std::string_view key, KeyType type,
                         std::string text) {
    Put(section, key, shape_ == Shape::Tree ? type : KeyType::Untyped, std::move(text));
    hasChanges_ = true;
}

void SectionStore::Empty(SectionNode& section) const {
    section.ClearKeys();
    if (section.Parent() != nullptr || shape_ == Shape::Tree) {
        section.ClearChildren();
    }
    section.isCleared = true;
}

void SectionStore::Clear(SectionNode& section) {
    ++generation_;
    Empty(section);
    hasChanges_ = true;
}

void SectionStore::RemoveChildren(SectionNode& parent, std::string_view name) {
    if (parent.CountChildren(name) == 0) {
        return;
    }
    SectionPath path = PathOf(parent);
    path.push_back({std::string(name), 0});
    removed_.push_back(std::move(path));
    parent.RemoveChildren(name);
    ++generation_;
    hasChanges_ = true;
}

void SectionStore::ForgetChanges() {
    ForgetChangesIn(*root_);
    removed_.clear();
    hasChanges_ = false;
}

void SectionStore::Replay(const SectionNode& from, SectionNode& to) const {
    if (from.isCleared) {
        Empty(to);
    }
    to.isNew = from.isNew;
    for (const StoredKey& key : from.Keys()) {
        if (key.isChanged) {
            Put(to, key.name, key.type, key.text);
        }
    }
    for (const std::unique_ptr<SectionNode>& child : from.Children()) {
        if (IsTouched(*child)) {
            Replay(*child, to.OpenChild(child->Name(), child->Number()));
        }
    }
}

void SectionStore::Replace(std::unique_ptr<SectionNode> fresh) {
    for (const SectionPath& path : removed_) {
        const SectionPath parent(path.begin(), path.end() - 1);
        if (SectionNode* node = FindNode(fresh.get(), parent)) {
            node->RemoveChildren(path.back().name);
        }
    }
    Replay(*root_, *fresh);
    root_ = std::move(fresh);
    ++generation_;
}

}  // namespace kvopt
