#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "kvopt/scripted/user_script.h"
#include "kvopt/scripted/user_step.h"

namespace kvopt::monkey {

struct Scene;
class Coverage;
class StepSource;

/// What one scene came to.
struct Episode {
    std::vector<UserStep> played;
    int steps = 0;
    std::string finding;  ///< empty when all invariants held
    std::vector<std::string> transcript;
    std::vector<std::string> faults;  ///< steps that a control refused
};

/// Lets a user play a scene on fresh stores of a study.
Episode PlayScene(const std::string& studyFile, const Scene& scene, StepSource& user);
/// A random user, who goes away after `steps` steps. What is reached is counted.
Episode PlayAtRandom(const std::string& studyFile, const Scene& scene, std::uint64_t seed,
                     int steps, Coverage& coverage);
/// A plain ScriptedDesktop, which checks no invariant but those at the end of a run.
Episode PlayPlainly(const std::string& studyFile, const Scene& scene, const UserScript& script);

/// Drops steps while the same invariant still breaks. Gives the shortest episode found, which is
/// `found` itself when nothing can go.
Episode Shorten(const std::string& studyFile, const Scene& scene, Episode found);

/// The steps of an episode, through the script's text and back.
UserScript ScriptOf(const Episode& episode);
/// Where a plain desktop went another way than the episode; empty when it did not.
std::string DifferenceOfReplay(const Episode& episode, const Episode& plain);

}  // namespace kvopt::monkey
