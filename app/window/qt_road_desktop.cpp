#include "window/qt_road_desktop.h"

#include <kvopt/qt.h>

#include <QApplication>

namespace {

int wordCount = 1;
char programName[] = "kvopt-demo";
char* words[] = {programName, nullptr};

kvopt::QtLook LookOf(const CommandLine& command) {
    return {command.scale, command.dark};
}

class QtRoadDesktop : public RoadDesktop {
public:
    explicit QtRoadDesktop(const CommandLine& command)
        : application_(wordCount, words), former_(kvopt::Desktop::Install(&desktop_)) {
        LookOf(command).ApplyColours();
        if (!command.script.empty()) {
            player_ = std::make_unique<kvopt::QtPlayer>(
                desktop_, kvopt::UserScript::FromFile(command.script));
            player_->SetPictureFolder(command.out);
        }
    }
    ~QtRoadDesktop() override { kvopt::Desktop::Install(former_); }

    std::vector<std::string> Finish() override {
        return player_ != nullptr ? player_->Verify() : std::vector<std::string>();
    }
    std::string TranscriptText() const override { return desktop_.Log().Text(); }

private:
    QApplication application_;
    mutable kvopt::QtDesktop desktop_;
    kvopt::Desktop* former_;
    std::unique_ptr<kvopt::QtPlayer> player_;
};

}  // namespace

std::unique_ptr<RoadDesktop> MakeQtRoadDesktop(const CommandLine& command) {
    if (!command.onDisplay) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    LookOf(command).ApplyScale();
    return std::make_unique<QtRoadDesktop>(command);
}
