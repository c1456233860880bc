#include "tests/qt/parity.h"

#include <gmock/gmock.h>

#include "kvopt/platform.h"
#include "kvopt/qt.h"
#include "kvopt/scripted.h"

namespace kvopt::test {

namespace {

std::vector<std::string> PlayIn(Desktop& desktop, const std::function<void()>& road) {
    Transcript transcript;
    desktop.SetTranscript(&transcript);
    Desktop* before = Desktop::Install(&desktop);
    road();
    Desktop::Install(before);
    return transcript.Lines();
}

}  // namespace

std::vector<std::string> PlayInBoth(const std::string& script, const std::function<void()>& road) {
    ScriptedDesktop scripted(UserScript::FromText(script));
    const std::vector<std::string> lines = PlayIn(scripted, road);
    EXPECT_THAT(scripted.Verify(), testing::IsEmpty()) << "without windows";
    QtDesktop desktop;
    QtPlayer player(desktop, UserScript::FromText(script));
    EXPECT_THAT(PlayIn(desktop, road), testing::ElementsAreArray(lines));
    EXPECT_THAT(player.Verify(), testing::IsEmpty()) << "in windows";
    return lines;
}

}  // namespace kvopt::test
