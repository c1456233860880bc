#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "kvopt/scripted/user_script.h"
#include "monkey/dice.h"
#include "monkey/episode.h"
#include "monkey/scenes.h"

namespace {

using namespace kvopt::monkey;

constexpr int kStepsOfAnEpisode = 120;

struct Options {
    std::uint64_t seed = 1;
    long steps = 10000;
    std::vector<std::string> studies;
    std::string scene;  ///< the empty one stands for all
};

std::vector<std::string> ExampleStudies() {
    std::vector<std::string> studies;
    for (const auto& entry : std::filesystem::directory_iterator(
             std::filesystem::path(KVOPT_SOURCE_DIR) / "examples" / "studies")) {
        if (entry.path().extension() == ".json") {
            studies.push_back(entry.path().string());
        }
    }
    std::sort(studies.begin(), studies.end());
    return studies;
}

/// Throws std::invalid_argument for what it does not know.
Options ReadOptions(const std::vector<std::string>& words) {
    Options options;
    for (std::size_t at = 0; at + 1 < words.size(); at += 2) {
        const std::string& value = words[at + 1];
        if (words[at] == "--seed") {
            options.seed = std::stoull(value);
        } else if (words[at] == "--steps") {
            options.steps = std::stol(value);
        } else if (words[at] == "--study") {
            options.studies.push_back(value);
        } else if (words[at] == "--scene") {
            options.scene = value;
        } else {
            throw std::invalid_argument("unknown option " + words[at]);
        }
    }
    if (words.size() % 2 != 0) {
        throw std::invalid_argument("an option lacks its value: " + words.back());
    }
    if (options.studies.empty()) {
        options.studies = ExampleStudies();
    }
    return options;
}

void Report(const Options& options, const std::string& study, const Scene& scene,
            std::uint64_t seed, const Episode& found) {
    kvopt::UserScript script;
    for (const kvopt::UserStep& step : found.played) {
        script.Add(step);
    }
    std::cout << "BROKEN: " << found.finding << "\nstudy " << study << ", scene \"" << scene.name
              << "\", seed " << seed << " (run with --seed " << options.seed << "), " << found.steps
              << " steps:\n"
              << script.Text() << std::endl;
}

/// Plays all scenes on all studies in turn until the steps are used up. Gives the findings.
int Run(const Options& options) {
    std::vector<Scene> scenes = AllScenes();
    if (!options.scene.empty()) {
        std::erase_if(scenes, [&](const Scene& scene) { return scene.name != options.scene; });
        if (scenes.empty()) {
            throw std::invalid_argument("there is no scene " + options.scene);
        }
    }
    const auto start = std::chrono::steady_clock::now();
    long steps = 0;
    int findings = 0;
    // Each episode has a seed of its own, so that it can be played again alone.
    for (std::uint64_t seed = options.seed; steps < options.steps; ++seed) {
        const long before = steps;
        for (const std::string& study : options.studies) {
            for (const Scene& scene : scenes) {
                Dice dice(seed);
                const Episode episode = PlayAtRandom(study, scene, dice, kStepsOfAnEpisode);
                steps += episode.steps;
                if (!episode.finding.empty()) {
                    ++findings;
                    Report(options, study, scene, seed, Shorten(study, scene, episode));
                }
            }
        }
        if (steps == before) {
            throw std::invalid_argument("no scene opens anything on these studies");
        }
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::cout << steps << " steps on " << options.studies.size() << " studies and " << scenes.size()
              << " scenes, " << findings << " findings, " << took.count() << " seconds"
              << std::endl;
    return findings;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(ReadOptions({argv + 1, argv + argc})) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& fault) {
        std::cerr << "kvopt-monkey: " << fault.what() << '\n';
        return 2;
    }
}
