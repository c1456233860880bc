#include "monkey/finding_file.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "monkey/episode.h"

namespace kvopt::monkey {

namespace {

constexpr std::string_view kStudy = "# study: ";
constexpr std::string_view kScene = "# scene: ";
constexpr std::string_view kSeed = "# seed: ";

}  // namespace

std::string HeadingOf(const std::string& studyFile, const std::string& scene, std::uint64_t seed) {
    std::ostringstream text;
    text << kStudy << studyFile << '\n' << kScene << scene << '\n';
    if (seed != 0) {
        text << kSeed << seed << '\n';
    }
    return text.str();
}

std::string FindingText(const std::string& heading, const Episode& found) {
    std::istringstream lines(found.finding);
    std::ostringstream text;
    const char* before = "# BROKEN: ";
    for (std::string line; std::getline(lines, line);) {
        text << before << line << '\n';
        before = "#   ";
    }
    text << heading << "# steps: " << found.steps << '\n' << ScriptOf(found).Text();
    return text.str();
}

FindingFile ReadFindingFile(const std::string& path) {
    FindingFile file;
    file.script = UserScript::FromFile(path);
    std::ifstream lines(path);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(kStudy)) {
            file.study = line.substr(kStudy.size());
        } else if (line.starts_with(kScene)) {
            file.scene = line.substr(kScene.size());
        }
    }
    if (file.study.empty() || file.scene.empty()) {
        throw std::invalid_argument(path + " says no study or no scene");
    }
    return file;
}

}  // namespace kvopt::monkey
