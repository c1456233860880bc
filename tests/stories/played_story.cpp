#include "tests/stories/played_story.h"

#include "kvopt/platform/transcript.h"
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

}  // namespace

std::vector<StoryDesktopKind> AllStoryDesktops() {
    return {{"Scripted", [](const UserScript& script) -> std::unique_ptr<StoryDesktop> {
                 return std::make_unique<ScriptedStoryDesktop>(script);
             }}};
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
