#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace kvopt::test {

class StoryStage;

/// One story: what the analyst does (tests/stories/<name>.script), in which study, and what the
/// host does around it. Its road runs in every desktop and must leave the same traces in each:
/// those of tests/stories/<name>.transcript and <name>.stores.
struct Story {
    const char* name;
    const char* study;  ///< file of examples/studies, without its extension
    void (*road)(StoryStage&);
};

/// The stories of each wizard and sheet, by the source that tells them.
std::vector<Story> ContourStories();
std::vector<Story> DesignSpaceStories();
std::vector<Story> SheetStories();

/// All of them.
std::vector<Story> AllStories();

inline void PrintTo(const Story& story, std::ostream* out) {
    *out << story.name;
}

/// A file beside the stories, by its name.
std::string StoryFile(const std::string& name);

}  // namespace kvopt::test
