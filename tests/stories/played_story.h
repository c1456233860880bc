#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "kvopt/platform/desktop.h"
#include "kvopt/scripted/user_script.h"
#include "tests/stories/story.h"

namespace kvopt::test {

/// A desktop that a story can play in.
class StoryDesktop {
public:
    virtual ~StoryDesktop() = default;
    virtual Desktop& Get() = 0;
    virtual std::vector<std::string> Verify() = 0;
};

/// A way to make a desktop whose user is a script.
struct StoryDesktopKind {
    const char* name;
    std::unique_ptr<StoryDesktop> (*make)(const UserScript& script);
};

/// Every desktop that this build has; each must leave the same traces of a story.
std::vector<StoryDesktopKind> AllStoryDesktops();

inline void PrintTo(const StoryDesktopKind& kind, std::ostream* out) {
    *out << kind.name;
}

/// What a story left behind.
struct PlayedStory {
    std::string transcript;
    std::string stores;
    std::vector<std::string> faults;
};

/// Plays a story from its script file on a stage of its own.
PlayedStory Play(const Story& story, const StoryDesktopKind& kind);

}  // namespace kvopt::test
