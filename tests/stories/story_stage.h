#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/host.h"
#include "tests/stories/story.h"
#include "tests/support/installed_stores.h"

namespace kvopt::test {

/// Where a story plays: a fresh folder with the stores of a user who has never run anything, the
/// study loaded and active. Puts everything back when it is gone.
class StoryStage {
public:
    explicit StoryStage(const Story& story);
    ~StoryStage();
    StoryStage(const StoryStage&) = delete;
    StoryStage& operator=(const StoryStage&) = delete;

    ReferenceStudy& Study() { return *study_; }
    /// Of the study; does not exist before something is written.
    std::string IniFile() const { return FileOf("study.ini"); }
    std::string FileOf(const std::string& name) const { return stores_.File(name); }

    /// What a function answered, into the transcript.
    void NoteResult(const std::string& what) const;
    /// What a file of the stage holds; empty when there is none.
    std::string Bytes(const std::string& name) const;
    /// Every file of the stage, name and content, in the order of the names.
    std::string AllStores() const;

private:
    InstalledStores stores_;
    std::unique_ptr<ReferenceStudy> study_;
};

}  // namespace kvopt::test
