#pragma once

#include <string>
#include <vector>

#include "kvopt/scripted/user_step.h"

namespace kvopt::monkey {

struct Scene;
class Dice;
class StepSource;

/// What one scene came to.
struct Episode {
    std::vector<UserStep> played;
    int steps = 0;
    std::string finding;  ///< empty when all invariants held
};

/// Lets a user play a scene on fresh stores of a study.
Episode PlayScene(const std::string& studyFile, const Scene& scene, StepSource& user);
/// A random user, who goes away after `steps` steps.
Episode PlayAtRandom(const std::string& studyFile, const Scene& scene, Dice& dice, int steps);

/// Drops steps while the same invariant still breaks. Gives the shortest episode found, which is
/// `found` itself when nothing can go.
Episode Shorten(const std::string& studyFile, const Scene& scene, Episode found);

}  // namespace kvopt::monkey
