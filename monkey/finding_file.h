#pragma once

#include <cstdint>
#include <string>

#include "kvopt/scripted/user_script.h"

namespace kvopt::monkey {

struct Episode;

/// A finding as a script: what is broken, the study and the scene stand in comments before it.
std::string FindingText(const std::string& heading, const Episode& found);
/// The comments that say where an episode played. Its seed is 0 when it has none.
std::string HeadingOf(const std::string& studyFile, const std::string& scene,
                      std::uint64_t seed = 0);

/// What a file with a finding holds.
struct FindingFile {
    std::string study;
    std::string scene;
    UserScript script;
};
/// Throws std::invalid_argument without study or scene, and as UserScript does.
FindingFile ReadFindingFile(const std::string& path);

}  // namespace kvopt::monkey
