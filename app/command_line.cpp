#include "command_line.h"

#include <kvopt/text.h>

#include "road.h"

namespace {

constexpr double kLeastScale = 0.5;
constexpr double kLargestScale = 4.0;

[[noreturn]] void Refuse(const std::string& what) {
    throw kvopt::InvalidArgument(what + "\n" + CommandLine::Usage());
}

std::string RoadNames() {
    std::string names;
    for (const Road& road : AllRoads()) {
        names += (names.empty() ? "" : ", ") + std::string(road.name);
    }
    return names;
}

}  // namespace

std::string CommandLine::Usage() {
    return "usage: kvopt-demo [STUDY] [--scale FACTOR] [--dark]\n"
           "       kvopt-demo run ROAD STUDY [--plot FILE] [--script FILE] [--out DIR]\n"
           "                  [--front scripted|qt] [--window] [--scale FACTOR] [--dark]\n"
           "roads: " +
           RoadNames() + "\n";
}

CommandLine CommandLine::Parse(const std::vector<std::string>& words) {
    CommandLine result;
    std::vector<std::string> names;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string& word = words[at];
        const auto value = [&]() -> const std::string& {
            if (at + 1 == words.size()) {
                Refuse(word + " needs a value");
            }
            return words[++at];
        };
        if (word == "--help" || word == "-h") {
            result.task = Task::Help;
            return result;
        }
        if (word == "--script") {
            result.script = value();
        } else if (word == "--out") {
            result.out = value();
        } else if (word == "--plot") {
            result.plot = value();
        } else if (word == "--window") {
            result.onDisplay = true;
        } else if (word == "--dark") {
            result.dark = true;
        } else if (word == "--scale") {
            const std::string& factor = value();
            if (!kvopt::KvString::ToDouble(factor, result.scale) || result.scale < kLeastScale ||
                result.scale > kLargestScale) {
                Refuse("--scale takes a number from 0.5 to 4, not " + factor);
            }
        } else if (word == "--front") {
            const std::string& front = value();
            if (front != "scripted" && front != "qt") {
                Refuse("--front takes scripted or qt, not " + front);
            }
            result.frontEnd = front == "qt" ? FrontEnd::Qt : FrontEnd::Scripted;
            result.frontEndNamed = true;
        } else if (word.rfind("--", 0) == 0) {
            Refuse("unknown option " + word);
        } else {
            names.push_back(word);
        }
    }
    if (!names.empty() && names.front() == "run") {
        if (names.size() != 3) {
            Refuse("run takes a road and a study");
        }
        const Road* const road = FindRoad(names[1]);
        if (road == nullptr) {
            Refuse("unknown road " + names[1] + ", expected one of " + RoadNames());
        }
        if ((road->kind == Road::Kind::Change) == result.plot.empty()) {
            Refuse(names[1] + (result.plot.empty() ? " needs --plot FILE" : " takes no --plot"));
        }
        result.task = Task::Run;
        result.road = names[1];
        result.study = names[2];
        if (!result.frontEndNamed && (result.onDisplay || result.script.empty())) {
            result.frontEnd = FrontEnd::Qt;
        }
        return result;
    }
    if (names.size() > 1) {
        Refuse("one study at a time, not also " + names[1]);
    }
    result.study = names.empty() ? std::string() : names.front();
    return result;
}
