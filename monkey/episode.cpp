#include "monkey/episode.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <utility>

#include "kvopt/scripted.h"
#include "kvopt/text.h"
#include "monkey/dice.h"
#include "monkey/finding_file.h"
#include "monkey/invariants.h"
#include "monkey/last_words.h"
#include "monkey/monkey_desktop.h"
#include "monkey/random_user.h"
#include "monkey/recorded_user.h"
#include "monkey/scenes.h"
#include "monkey/stage.h"

namespace kvopt::monkey {

namespace {

/// Names and numbers differ from run to run of one and the same fault.
std::string KindOf(const std::string& finding) {
    return finding.substr(0, std::min<std::size_t>(finding.find_first_of("\n0123456789"), 30));
}

/// The steps without those from `first` on; the boxes behind a step go with it.
std::vector<UserStep> Without(const std::vector<UserStep>& steps, std::size_t first,
                              std::size_t count) {
    std::vector<UserStep> left;
    std::size_t at = 0;
    bool isDropped = false;
    for (const UserStep& step : steps) {
        if (step.verb != StepVerb::ExpectBox) {
            isDropped = at >= first && at < first + count;
            ++at;
        }
        if (!isDropped) {
            left.push_back(step);
        }
    }
    return left;
}

/// Runs the scene on a desktop; gives what it finds.
std::string RunOn(Desktop& desktop, Stage& stage, const Scene& scene, Invariants& invariants) {
    Desktop* former = Desktop::Install(&desktop);
    std::string finding;
    try {
        scene.open(stage, invariants);
    } catch (const CancelException&) {
        // The one exception that a page may end its run with.
    } catch (const std::exception& fault) {
        finding = fault.what();
    }
    Desktop::Install(former);
    return finding;
}

Episode PlayOn(Stage& stage, const Scene& scene, StepSource& user, Coverage* coverage,
               const std::string& heading) {
    Invariants invariants(stage);
    MonkeyDesktop desktop(user, invariants, coverage);
    const LastWords lastWords(heading, desktop.Played());
    Episode episode;
    episode.finding = RunOn(desktop, stage, scene, invariants);
    episode.played = desktop.Played();
    episode.steps = desktop.Steps();
    episode.transcript = desktop.Log().Lines();
    episode.faults = desktop.Player().Faults();
    return episode;
}

/// Without the source and the line before it.
std::string ReasonOf(const std::string& fault) {
    return fault.substr(std::min(fault.size(), fault.find(": ") + 2));
}

}  // namespace

Episode PlayScene(const std::string& studyFile, const Scene& scene, StepSource& user) {
    Stage stage(studyFile);
    return PlayOn(stage, scene, user, nullptr, HeadingOf(studyFile, scene.name));
}

Episode PlayAtRandom(const std::string& studyFile, const Scene& scene, std::uint64_t seed,
                     int steps, Coverage& coverage) {
    Stage stage(studyFile);
    // Where the study lies makes no difference.
    Dice dice(seed, std::filesystem::path(studyFile).filename().string() + scene.name);
    RandomUser user(dice, stage.Names(), steps);
    return PlayOn(stage, scene, user, &coverage, HeadingOf(studyFile, scene.name, seed));
}

Episode PlayPlainly(const std::string& studyFile, const Scene& scene, const UserScript& script) {
    Stage stage(studyFile);
    Invariants invariants(stage);
    ScriptedDesktop desktop(script);
    Episode episode;
    episode.finding = RunOn(desktop, stage, scene, invariants);
    episode.transcript = desktop.Log().Lines();
    episode.faults = desktop.Verify();
    return episode;
}

Episode Shorten(const std::string& studyFile, const Scene& scene, Episode found) {
    const std::string kind = KindOf(found.finding);
    for (std::size_t chunk = static_cast<std::size_t>(found.steps); chunk > 0;) {
        bool isShorter = false;
        for (std::size_t first = 0; first < static_cast<std::size_t>(found.steps);) {
            RecordedUser user(Without(found.played, first, chunk));
            Episode tried = PlayScene(studyFile, scene, user);
            if (KindOf(tried.finding) == kind && tried.steps < found.steps) {
                found = std::move(tried);
                isShorter = true;
            } else {
                first += chunk;
            }
        }
        chunk = isShorter ? chunk : chunk / 2;
    }
    return found;
}

UserScript ScriptOf(const Episode& episode) {
    UserScript script;
    for (const UserStep& step : episode.played) {
        script.Add(step);
    }
    return UserScript::FromText(script.Text());
}

std::string DifferenceOfReplay(const Episode& episode, const Episode& plain) {
    // What was found ends the episode; the plain desktop goes on.
    std::vector<std::string> lines = episode.transcript;
    while (!episode.finding.empty() && !lines.empty() && lines.back() == "end by exception") {
        lines.pop_back();
    }
    if (episode.finding.empty() && lines.size() != plain.transcript.size()) {
        return "the transcripts have " + std::to_string(lines.size()) + " and " +
               std::to_string(plain.transcript.size()) + " lines";
    }
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (at >= plain.transcript.size() || lines[at] != plain.transcript[at]) {
            return "line " + std::to_string(at + 1) + " of the transcript is\n" + lines[at] +
                   "\nand not\n" +
                   (at < plain.transcript.size() ? plain.transcript[at] : std::string("there"));
        }
    }
    for (std::size_t at = 0; at < std::max(episode.faults.size(), plain.faults.size()); ++at) {
        if (at >= episode.faults.size()) {
            return episode.finding.empty() ? "a fault more: " + plain.faults[at] : "";
        }
        if (at >= plain.faults.size() ||
            ReasonOf(episode.faults[at]) != ReasonOf(plain.faults[at])) {
            return "a fault is missing: " + episode.faults[at];
        }
    }
    return "";
}

}  // namespace kvopt::monkey
