#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/stores/store_section.h"
#include "stores/section_node.h"

namespace kvopt {

/// A tree of sections in memory and what changed in it. Every change goes through here. Whoever
/// remembers a node asks Generation() first: it moves on whenever nodes may have gone.
class SectionStore {
public:
    /// A tree keeps the type of each key, and clearing its root empties it all. In an ini file keys
    /// have no types, and clearing the root, which holds the keys before the first header, leaves
    /// the named sections alone.
    enum class Shape { Tree, Ini };

    explicit SectionStore(Shape shape);
    SectionStore(const SectionStore&) = delete;
    SectionStore& operator=(const SectionStore&) = delete;
    virtual ~SectionStore();

    SectionNode& Root() { return *root_; }
    const SectionNode& Root() const { return *root_; }
    unsigned Generation() const { return generation_; }

    SectionNode* Find(const SectionPath& path) const;
    /// The section of this path, made where it is not there for something to be written into it.
    SectionNode& Open(const SectionPath& path);
    /// The child of this name and number, made to stand in the store also when nothing is written
    /// into it.
    SectionNode& OpenChild(SectionNode& parent, std::string_view name, int number);
    void Write(SectionNode& section, std::string_view key, KeyType type, std::string text);
    void Clear(SectionNode& section);
    void RemoveChildren(SectionNode& parent, std::string_view name);

    /// Writes the changes to the store's file; trouble goes to the store trouble handler.
    virtual void Flush() = 0;

protected:
    bool HasChanges() const { return hasChanges_; }
    /// The store is at one with its file.
    void ForgetChanges();
    /// Puts a tree that was just read in place of the present one, with the changes made to the
    /// present one since the last ForgetChanges() done to it.
    void Replace(std::unique_ptr<SectionNode> fresh);

private:
    void Empty(SectionNode& section) const;
    void Replay(const SectionNode& from, SectionNode& to) const;

    Shape shape_;
    std::unique_ptr<SectionNode> root_;
    std::vector<SectionPath> removed_;
    unsigned generation_ = 1;
    bool hasChanges_ = false;
};

/// The path from the outermost section down to this one.
SectionPath PathOf(const SectionNode& section);

}  // namespace kvopt
