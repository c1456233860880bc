#include "command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <kvopt/text.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "road.h"

namespace {

using testing::HasSubstr;

std::string Refusal(const std::vector<std::string>& words) {
    try {
        CommandLine::Parse(words);
    } catch (const kvopt::InvalidArgument& fault) {
        return fault.what();
    }
    return "taken";
}

TEST(CommandLine, TakesEveryRoadByItsName) {
    for (const Road& road : AllRoads()) {
        std::vector<std::string> words{"run", road.name, "study.json"};
        if (road.kind == Road::Kind::Change) {
            words.insert(words.end(), {"--plot", "plot.json"});
        }
        const CommandLine command = CommandLine::Parse(words);
        EXPECT_EQ(command.task, CommandLine::Task::Run);
        EXPECT_EQ(command.road, road.name);
        EXPECT_EQ(command.study, "study.json");
        EXPECT_EQ(FindRoad(road.name), &road) << "one road for each name";
        EXPECT_THAT(CommandLine::Usage(), HasSubstr(road.name));
    }
}

TEST(CommandLine, HasEveryRoadInTheDocument) {
    std::ifstream document(KVOPT_SOURCE_DIR "/docs/demo.md");
    const std::string text{std::istreambuf_iterator<char>(document),
                           std::istreambuf_iterator<char>()};
    for (const Road& road : AllRoads()) {
        EXPECT_THAT(text, HasSubstr("| `" + std::string(road.name) + "` |"));
    }
}

TEST(CommandLine, SaysWhichRoadsThereAreWhenOneIsUnknown) {
    EXPECT_EQ(FindRoad("countour"), nullptr);
    EXPECT_THAT(Refusal({"run", "countour", "study.json"}),
                HasSubstr("unknown road countour, expected one of contour, "));
    EXPECT_THAT(Refusal({"run", "contour"}), HasSubstr("run takes a road and a study"));
}

TEST(CommandLine, TakesASavedPlotForTheRoadThatChangesOne) {
    EXPECT_EQ(CommandLine::Parse({"run", "contour-sheet", "s", "--plot", "plot.json"}).plot,
              "plot.json");
    EXPECT_THAT(Refusal({"run", "contour-sheet", "s"}),
                HasSubstr("contour-sheet needs --plot FILE"));
    EXPECT_THAT(Refusal({"run", "contour", "s", "--plot", "plot.json"}),
                HasSubstr("contour takes no --plot"));
    EXPECT_THAT(Refusal({"run", "contour-sheet", "s", "--plot"}),
                HasSubstr("--plot needs a value"));
}

TEST(CommandLine, PlaysAScriptWithoutWindowsUnlessTheyAreNamed) {
    using FrontEnd = CommandLine::FrontEnd;
    EXPECT_EQ(CommandLine::Parse({"run", "contour", "s"}).frontEnd, FrontEnd::Qt);
    EXPECT_EQ(CommandLine::Parse({"run", "contour", "s", "--script", "a"}).frontEnd,
              FrontEnd::Scripted);
    EXPECT_EQ(CommandLine::Parse({"run", "contour", "s", "--script", "a", "--window"}).frontEnd,
              FrontEnd::Qt);
    EXPECT_EQ(
        CommandLine::Parse({"run", "contour", "s", "--script", "a", "--front", "qt"}).frontEnd,
        FrontEnd::Qt);
}

TEST(CommandLine, TakesAScaleAndADarkLookOfAnyTask) {
    const CommandLine plain = CommandLine::Parse({"study.json"});
    EXPECT_EQ(plain.scale, 1.0);
    EXPECT_FALSE(plain.dark);
    const CommandLine window = CommandLine::Parse({"--dark", "study.json", "--scale", "2"});
    EXPECT_EQ(window.scale, 2.0);
    EXPECT_TRUE(window.dark);
    EXPECT_EQ(window.study, "study.json");
    const CommandLine run =
        CommandLine::Parse({"run", AllRoads().front().name, "study.json", "--scale", "1.5"});
    EXPECT_EQ(run.scale, 1.5);
}

TEST(CommandLine, RefusesAScaleThatNobodyCouldRead) {
    for (const char* factor : {"0.4", "5", "two", "", "-1"}) {
        EXPECT_THAT(Refusal({"study.json", "--scale", factor}),
                    HasSubstr("--scale takes a number from 0.5 to 4, not"))
            << factor;
    }
    EXPECT_EQ(CommandLine::Parse({"--scale", "0.5"}).scale, 0.5);
    EXPECT_EQ(CommandLine::Parse({"--scale", "4"}).scale, 4.0);
}

}  // namespace
