#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kvopt {

/// What a key was written as. An ini file does not keep it: its keys are untyped.
enum class KeyType { Bool, Int, Double, Text, Untyped };

/// A key with its value as text, whatever the type: the stores hold texts alone.
struct StoredKey {
    std::string name;
    std::string text;
    KeyType type = KeyType::Text;
    /// Written since the store was last at one with its file.
    bool isChanged = false;
    /// For a key that was read from an ini file: its line there, and the comment and blank lines
    /// above it. They point into the text that the store read, and the line is empty once the key
    /// was written again.
    std::string_view line;
    std::string_view linesAbove;
    /// Of a key that stands there more than once: its earlier lines, with those above them.
    std::string earlierLines;
};

/// Sections lie at most this deep inside each other, so that no file can exhaust the stack.
inline constexpr std::size_t kDeepestSection = 100;

/// One section of a store in memory. Owns its keys and the sections inside it, and finds either in
/// constant time; sections of one name are kept in the order of their numbers.
class SectionNode {
public:
    SectionNode(std::string name, int number, SectionNode* parent)
        : name_(std::move(name)), number_(number), parent_(parent) {}
    SectionNode(const SectionNode&) = delete;
    SectionNode& operator=(const SectionNode&) = delete;

    const std::string& Name() const { return name_; }
    int Number() const { return number_; }
    const SectionNode* Parent() const { return parent_; }
    const std::vector<StoredKey>& Keys() const { return keys_; }
    std::vector<StoredKey>& Keys() { return keys_; }
    const std::vector<std::unique_ptr<SectionNode>>& Children() const { return children_; }
    bool IsEmpty() const { return keys_.empty() && children_.empty(); }

    const StoredKey* FindKey(std::string_view name) const;
    StoredKey* FindKey(std::string_view name);
    /// The key of this name, made at the end when there is none; its value is the caller's to set.
    StoredKey& OpenKey(std::string_view name);

    /// The child of this name and number, the lowest of the name for the number 0; null when there
    /// is none.
    SectionNode* FindChild(std::string_view name, int number) const;
    /// The same, made at the end when there is none (with the number 1 for 0).
    SectionNode& OpenChild(std::string_view name, int number);
    /// Hangs a section that was built apart in as the last child, under this name and number, which
    /// no child may have yet.
    SectionNode& AdoptChild(std::unique_ptr<SectionNode> child, std::string name, int number);
    int CountChildren(std::string_view name) const;

    void ClearKeys();
    void ClearChildren();
    void RemoveChildren(std::string_view name);

    /// Was made, or emptied, since the store was last at one with its file.
    bool isNew = false;
    bool isCleared = false;

    /// For a section that was read from an ini file: its header line, the lines above it, and
    /// comments of keys that are gone, which stand below the header.
    std::string_view line;
    std::string_view linesAbove;
    std::string linesBelow;
    /// Whether the section stands in the ini file by itself, not only as part of a longer name.
    bool hasHeader = false;
    /// The number of the header's line in the file; 0 for a section that the file does not hold.
    int place = 0;

private:
    /// In the order of their numbers; null when there is none.
    const std::vector<SectionNode*>* ChildrenNamed(std::string_view name) const;

    std::string name_;
    int number_;
    SectionNode* parent_;
    std::vector<StoredKey> keys_;
    std::vector<std::unique_ptr<SectionNode>> children_;

    using KeyTable = std::unordered_map<std::string, std::size_t>;
    using ChildTable = std::unordered_map<std::string_view, std::vector<SectionNode*>>;
    // Most sections are small and many: their keys are searched from end to end, and neither table
    // is there before it is needed.
    std::unique_ptr<KeyTable> keyTable_;
    std::unique_ptr<ChildTable> childTable_;
};

}  // namespace kvopt
