#include "tests/stories/story_stage.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <utility>

#include "kvopt/platform.h"

namespace kvopt::test {

namespace {

constexpr const char* kProfile = "profile.ini";
constexpr const char* kRegistry = "registry.ini";

std::filesystem::path MakeFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "kvopt-story-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no folder can be made for the story");
    }
    return name;
}

}  // namespace

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
    : folder_(MakeFolder()),
      oldFactory_(IniFileFactory::Install(std::make_shared<IniFileFactory>())),
      oldProfile_(UserProfile::Install(std::make_shared<UserProfile>(
          IniFileFactory::Instance()->GetIniFile(FileOf(kProfile), "")))),
      oldRegistry_(Registry::Install(std::make_shared<Registry>(
          IniFileFactory::Instance()->GetIniFile(FileOf(kRegistry), "")))),
      study_(
          LoadStudy(std::string(KVOPT_SOURCE_DIR) + "/examples/studies/" + story.study + ".json")) {
    study_->SetIniFileName(IniFile());
    Investigation::SetActiveInvestigation(study_.get());
}

StoryStage::~StoryStage() {
    Investigation::SetActiveInvestigation(nullptr);
    study_.reset();
    Registry::Install(std::move(oldRegistry_));
    UserProfile::Install(std::move(oldProfile_));
    IniFileFactory::Install(std::move(oldFactory_));
    std::filesystem::remove_all(folder_);
}

void StoryStage::NoteResult(const std::string& what) const {
    Desktop::Instance().Note("result " + what);
}

std::string StoryStage::Bytes(const std::string& name) const {
    std::ifstream file(folder_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string StoryStage::AllStores() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
        names.insert(entry.path().filename().string());
    }
    std::string all;
    for (const std::string& name : names) {
        all += "==== " + name + '\n' + Bytes(name);
        all += all.back() == '\n' ? "" : "\n";
    }
    return all;
}

}  // namespace kvopt::test
