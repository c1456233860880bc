#include "road_desktop.h"

#include <kvopt/scripted.h>
#include <kvopt/text.h>

#if defined(KVOPT_HAS_QT)
#include "window/qt_road_desktop.h"
#endif

namespace {

/// Models alone, played by a script.
class ScriptedRoadDesktop : public RoadDesktop {
public:
    explicit ScriptedRoadDesktop(const std::string& scriptFile)
        : desktop_(kvopt::UserScript::FromFile(scriptFile)),
          former_(kvopt::Desktop::Install(&desktop_)) {}
    ~ScriptedRoadDesktop() override { kvopt::Desktop::Install(former_); }

    std::vector<std::string> Finish() override { return desktop_.Verify(); }
    std::string TranscriptText() const override { return desktop_.Log().Text(); }

private:
    mutable kvopt::ScriptedDesktop desktop_;
    kvopt::Desktop* former_;
};

}  // namespace

std::unique_ptr<RoadDesktop> RoadDesktop::Make(const CommandLine& command) {
    if (command.frontEnd == CommandLine::FrontEnd::Qt) {
#if defined(KVOPT_HAS_QT)
        return MakeQtRoadDesktop(command);
#else
        throw kvopt::InvalidArgument("kvopt-demo was built without windows: use --front scripted");
#endif
    }
    if (command.script.empty()) {
        throw kvopt::InvalidArgument("--front scripted needs --script FILE");
    }
    return std::make_unique<ScriptedRoadDesktop>(command.script);
}
