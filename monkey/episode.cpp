#include "monkey/episode.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "kvopt/text.h"
#include "monkey/dice.h"
#include "monkey/invariants.h"
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

Episode PlayOn(Stage& stage, const Scene& scene, StepSource& user) {
    Invariants invariants(stage);
    MonkeyDesktop desktop(user, invariants);
    Desktop* former = Desktop::Install(&desktop);
    Episode episode;
    try {
        scene.open(stage, invariants);
    } catch (const CancelException&) {
        // The one exception that a page may end its run with.
    } catch (const std::exception& fault) {
        episode.finding = fault.what();
    }
    Desktop::Install(former);
    episode.played = desktop.Played();
    episode.steps = desktop.Steps();
    return episode;
}

}  // namespace

Episode PlayScene(const std::string& studyFile, const Scene& scene, StepSource& user) {
    Stage stage(studyFile);
    return PlayOn(stage, scene, user);
}

Episode PlayAtRandom(const std::string& studyFile, const Scene& scene, Dice& dice, int steps) {
    Stage stage(studyFile);
    RandomUser user(dice, stage.Names(), steps);
    return PlayOn(stage, scene, user);
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

}  // namespace kvopt::monkey
