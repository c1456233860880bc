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

#include "monkey/coverage.h"
#include "monkey/episode.h"
#include "monkey/finding_file.h"
#include "monkey/recorded_user.h"
#include "monkey/scenes.h"

namespace {

using namespace kvopt::monkey;

constexpr int kStepsOfAnEpisode = 120;
/// One episode of so many is played again by a plain desktop, from its script.
constexpr long kEpisodesForAReplay = 8;

struct Options {
    std::uint64_t seed = 1;
    long steps = 10000;
    std::vector<std::string> studies;
    int findings = 10;   ///< that end the run
    std::string scene;   ///< the empty one stands for all
    std::string replay;  ///< a file with a finding, instead of a run
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
        } else if (words[at] == "--findings") {
            options.findings = std::stoi(value);
        } else if (words[at] == "--study") {
            options.studies.push_back(value);
        } else if (words[at] == "--scene") {
            options.scene = value;
        } else if (words[at] == "--replay") {
            options.replay = value;
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

std::vector<Scene> ScenesNamed(const std::string& name) {
    std::vector<Scene> scenes = AllScenes();
    if (!name.empty()) {
        std::erase_if(scenes, [&](const Scene& scene) { return scene.name != name; });
    }
    if (scenes.empty()) {
        throw std::invalid_argument("there is no scene " + name);
    }
    return scenes;
}

/// Plays the script of an episode on a plain desktop. False, and told, when that goes another way.
bool PlaysAgain(const std::string& study, const Scene& scene, const Episode& episode) {
    const std::string difference =
        DifferenceOfReplay(episode, PlayPlainly(study, scene, ScriptOf(episode)));
    if (!difference.empty()) {
        std::cout << "# A plain desktop plays it in another way: " << difference << std::endl;
    }
    return difference.empty();
}

/// Episodes one after the other. What is broken is shortened and reported.
class Run {
public:
    explicit Run(const Options& options) : options_(options), scenes_(ScenesNamed(options.scene)) {}

    /// Plays all scenes on all studies in turn until the steps are used up. Gives the findings.
    int Play() {
        // Each seed plays each episode, so that one can be played again alone.
        for (std::uint64_t seed = options_.seed; steps_ < options_.steps; ++seed) {
            const long before = steps_;
            for (const std::string& study : options_.studies) {
                for (const Scene& scene : scenes_) {
                    PlayOne(study, scene, seed);
                    if (findings_ >= options_.findings) {
                        coverage_.Print(std::cout);
                        return findings_;
                    }
                }
            }
            if (steps_ == before) {
                throw std::invalid_argument("no scene opens anything on these studies");
            }
        }
        coverage_.Print(std::cout);
        return findings_;
    }
    long Steps() const { return steps_; }
    long Replays() const { return replays_; }

private:
    void PlayOne(const std::string& study, const Scene& scene, std::uint64_t seed) {
        coverage_.Begin(study, scene.name);
        const Episode episode = PlayAtRandom(study, scene, seed, kStepsOfAnEpisode, coverage_);
        steps_ += episode.steps;
        const std::string heading = HeadingOf(study, scene.name, seed);
        if (!episode.finding.empty()) {
            ++findings_;
            const Episode shortest = Shorten(study, scene, episode);
            std::cout << FindingText(heading, shortest) << "# found after " << steps_
                      << " steps of the run" << std::endl;
            // A plain desktop would answer boxes without end for ever.
            if (shortest.finding.find("boxes") == std::string::npos) {
                PlaysAgain(study, scene, shortest);
            }
        } else if (episode.steps > 0 && ++episodes_ % kEpisodesForAReplay == 0) {
            ++replays_;
            if (!PlaysAgain(study, scene, episode)) {
                ++findings_;
                std::cout << FindingText(heading, episode) << std::endl;
            }
        }
    }

    const Options& options_;
    std::vector<Scene> scenes_;
    Coverage coverage_;
    long steps_ = 0;
    long episodes_ = 0;
    long replays_ = 0;
    int findings_ = 0;
};

int PlayRun(const Options& options) {
    const auto start = std::chrono::steady_clock::now();
    Run run(options);
    const int findings = run.Play();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::cout << '\n'
              << run.Steps() << " steps on " << options.studies.size() << " studies, "
              << run.Replays() << " episodes played again, " << findings << " findings, "
              << took.count() << " seconds" << std::endl;
    return findings;
}

/// Plays the script of a finding with the invariants checked, then on a plain desktop. Gives 1 when
/// something is broken.
int Replay(const std::string& path) {
    const FindingFile file = ReadFindingFile(path);
    const Scene scene = ScenesNamed(file.scene).front();
    RecordedUser user(file.script.Steps());
    const Episode episode = PlayScene(file.study, scene, user);
    std::cout << FindingText(HeadingOf(file.study, file.scene), episode);
    PlaysAgain(file.study, scene, episode);
    return episode.finding.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const Options options = ReadOptions({argv + 1, argv + argc});
        const int findings = options.replay.empty() ? PlayRun(options) : Replay(options.replay);
        return findings == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& fault) {
        std::cerr << "kvopt-monkey: " << fault.what() << '\n';
        return 2;
    }
}
