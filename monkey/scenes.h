#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kvopt::monkey {

class Invariants;
class Stage;

/// One thing that a host can open on a study.
struct Scene {
    std::string name;
    std::function<void(Stage&, Invariants&)> open;
};

/// Every wizard, sheet and page there is. A scene that a study cannot have (the mixture axes of one
/// without a mixture) opens nothing.
std::vector<Scene> AllScenes();

std::vector<Scene> PlotScenes();
std::vector<Scene> PageScenes();
/// Wizards that a host puts together of the library's pages.
std::vector<Scene> HostWizardScenes();

}  // namespace kvopt::monkey
