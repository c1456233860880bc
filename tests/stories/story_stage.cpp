#include "tests/stories/story_stage.h"

#include <fstream>
#include <iterator>

#include "kvopt/platform.h"

namespace kvopt::test {

std::string StoryFile(const std::string& name) {
    return std::string(KVOPT_SOURCE_DIR) + "/tests/stories/" + name;
}

std::vector<Story> AllStories() {
    std::vector<Story> all = ContourStories();
    for (const auto& more : {DesignSpaceStories(), SheetStories()}) {
        all.insert(all.end(), more.begin(), more.end());
    }
    return all;
}

StoryStage::StoryStage(const Story& story)
    : study_(
          LoadStudy(std::string(KVOPT_SOURCE_DIR) + "/examples/studies/" + story.study + ".json")) {
    study_->SetIniFileName(IniFile());
    Investigation::SetActiveInvestigation(study_.get());
}

StoryStage::~StoryStage() {
    Investigation::SetActiveInvestigation(nullptr);
}

void StoryStage::NoteResult(const std::string& what) const {
    Desktop::Instance().Note("result " + what);
}

std::string StoryStage::Bytes(const std::string& name) const {
    std::ifstream file(FileOf(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string StoryStage::AllStores() const {
    std::string all;
    for (const std::string& name : stores_.Folder().Names()) {
        all += "==== " + name + '\n' + Bytes(name);
        all += all.back() == '\n' ? "" : "\n";
    }
    return all;
}

}  // namespace kvopt::test
