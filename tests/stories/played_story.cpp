#include "tests/stories/played_story.h"

#include "kvopt/platform/transcript.h"
#if defined(KVOPT_HAS_QT)
#include <cstdlib>
#include <filesystem>

#include "kvopt/qt.h"
#include "tests/support/qt_application.h"
#endif

#include "kvopt/scripted/scripted_desktop.h"
#include "tests/stories/story_stage.h"

namespace kvopt::test {

namespace {

class ScriptedStoryDesktop : public StoryDesktop {
public:
    explicit ScriptedStoryDesktop(const UserScript& script) : desktop_(script) {}
    Desktop& Get() override { return desktop_; }
    std::vector<std::string> Verify() override { return desktop_.Verify(); }

private:
    ScriptedDesktop desktop_;
};

#if defined(KVOPT_HAS_QT)
class QtStoryDesktop : public StoryDesktop {
public:
    explicit QtStoryDesktop(const UserScript& script) : player_(desktop_, script) {
        // Pictures of every page, a folder a story, for who asks for them.
        const char* pictures = std::getenv("KVOPT_STORY_PICTURES");
        if (pictures != nullptr) {
            const auto story = std::filesystem::path(script.Source()).stem();
            const auto folder = std::filesystem::path(pictures) / story;
            std::filesystem::create_directories(folder);
            player_.SetPictureFolder(folder.string());
        }
    }
    Desktop& Get() override { return desktop_; }
    std::vector<std::string> Verify() override { return player_.Verify(); }

private:
    QtDesktop desktop_;
    QtPlayer player_;
};
#endif

}  // namespace

std::vector<StoryDesktopKind> AllStoryDesktops() {
    std::vector<StoryDesktopKind> kinds{
        {"Scripted", [](const UserScript& script) -> std::unique_ptr<StoryDesktop> {
             return std::make_unique<ScriptedStoryDesktop>(script);
         }}};
#if defined(KVOPT_HAS_QT)
    kinds.push_back({"Qt", [](const UserScript& script) -> std::unique_ptr<StoryDesktop> {
                         return std::make_unique<QtStoryDesktop>(script);
                     }});
#endif
    return kinds;
}

PlayedStory Play(const Story& story, const StoryDesktopKind& kind) {
    StoryStage stage(story);
    const auto desktop =
        kind.make(UserScript::FromFile(StoryFile(std::string(story.name) + ".script")));
    Transcript transcript;
    desktop->Get().SetTranscript(&transcript);
    Desktop* before = Desktop::Install(&desktop->Get());
    try {
        story.road(stage);
    } catch (...) {
        Desktop::Install(before);
        throw;
    }
    Desktop::Install(before);
    return {transcript.Text(), stage.AllStores(), desktop->Verify()};
}

}  // namespace kvopt::test
