#include "stores/section_node.h"

#include <algorithm>
#include <utility>

namespace kvopt {
namespace {

constexpr std::size_t kSearchedKeys = 8;

bool HasLowerNumber(const SectionNode* node, int number) {
    return node->Number() < number;
}

// Of the lines of keys and comments, the comments and blank lines.
void AppendComments(std::string_view lines, std::string& comments) {
    while (!lines.empty()) {
        const std::size_t size = std::min(lines.find('\n'), lines.size() - 1) + 1;
        const std::size_t first = lines.find_first_not_of(" \t\r");
        if (lines[first] == ';' || lines[first] == '#' || lines[first] == '\n') {
            comments += lines.substr(0, size);
        }
        lines.remove_prefix(size);
    }
}

}  // namespace

const StoredKey* SectionNode::FindKey(std::string_view name) const {
    if (keys_.size() > kSearchedKeys) {
        const auto found = keyTable_->find(std::string(name));
        return found == keyTable_->end() ? nullptr : &keys_[found->second];
    }
    const auto found = std::find_if(keys_.begin(), keys_.end(),
                                    [&](const StoredKey& key) { return key.name == name; });
    return found == keys_.end() ? nullptr : &*found;
}

StoredKey* SectionNode::FindKey(std::string_view name) {
    return const_cast<StoredKey*>(static_cast<const SectionNode*>(this)->FindKey(name));
}

StoredKey& SectionNode::OpenKey(std::string_view name) {
    if (StoredKey* key = FindKey(name)) {
        return *key;
    }
    if (keys_.empty()) {
        constexpr std::size_t kUsualKeys = 4;
        keys_.reserve(kUsualKeys);
    }
    keys_.emplace_back().name = name;
    if (keys_.size() == kSearchedKeys + 1) {
        keyTable_ = std::make_unique<KeyTable>();
        for (std::size_t i = 0; i < keys_.size(); ++i) {
            keyTable_->emplace(keys_[i].name, i);
        }
    } else if (keys_.size() > kSearchedKeys) {
        keyTable_->emplace(name, keys_.size() - 1);
    }
    return keys_.back();
}

const std::vector<SectionNode*>* SectionNode::ChildrenNamed(std::string_view name) const {
    if (childTable_ == nullptr) {
        return nullptr;
    }
    const auto found = childTable_->find(name);
    return found == childTable_->end() ? nullptr : &found->second;
}

SectionNode* SectionNode::FindChild(std::string_view name, int number) const {
    const std::vector<SectionNode*>* const sameName = ChildrenNamed(name);
    if (sameName == nullptr) {
        return nullptr;
    }
    if (number == 0) {
        return sameName->front();
    }
    const auto at = std::lower_bound(sameName->begin(), sameName->end(), number, HasLowerNumber);
    return at != sameName->end() && (*at)->Number() == number ? *at : nullptr;
}

SectionNode& SectionNode::OpenChild(std::string_view name, int number) {
    if (SectionNode* child = FindChild(name, number)) {
        return *child;
    }
    return AdoptChild(std::make_unique<SectionNode>("", 1, nullptr), std::string(name),
                      std::max(number, 1));
}

SectionNode& SectionNode::AdoptChild(std::unique_ptr<SectionNode> child, std::string name,
                                     int number) {
    child->name_ = std::move(name);
    child->number_ = number;
    child->parent_ = this;
    children_.push_back(std::move(child));
    SectionNode* const adopted = children_.back().get();
    // The table's view of a name is that of the first child with it, which outlives the entry.
    if (childTable_ == nullptr) {
        childTable_ = std::make_unique<ChildTable>();
    }
    std::vector<SectionNode*>& sameName = (*childTable_)[adopted->name_];
    sameName.insert(std::lower_bound(sameName.begin(), sameName.end(), number, HasLowerNumber),
                    adopted);
    return *adopted;
}

int SectionNode::CountChildren(std::string_view name) const {
    const std::vector<SectionNode*>* const sameName = ChildrenNamed(name);
    return sameName == nullptr ? 0 : static_cast<int>(sameName->size());
}

void SectionNode::ClearKeys() {
    for (const StoredKey& key : keys_) {
        AppendComments(key.earlierLines, linesBelow);
        linesBelow += key.linesAbove;
    }
    keys_.clear();
    keyTable_.reset();
}

void SectionNode::ClearChildren() {
    childTable_.reset();
    children_.clear();
}

void SectionNode::RemoveChildren(std::string_view name) {
    if (childTable_ != nullptr) {
        childTable_->erase(name);
    }
    children_.erase(std::remove_if(children_.begin(), children_.end(),
                                   [&](const std::unique_ptr<SectionNode>& child) {
                                       return child->Name() == name;
                                   }),
                    children_.end());
}

}  // namespace kvopt
