#include "run_task.h"

#include <kvopt/host.h>
#include <kvopt/plotargs.h>
#include <kvopt/scripted.h>
#include <kvopt/stores.h>
#include <kvopt/study.h>
#include <kvopt/text.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "contour_road.h"
#include "plot_text.h"
#include "road_desktop.h"

namespace {

std::shared_ptr<kvopt::UserProfile> ProfileIn(const std::string& fileName) {
    return std::make_shared<kvopt::UserProfile>(
        kvopt::IniFileFactory::Instance()->GetIniFile(fileName, ""));
}

std::shared_ptr<kvopt::Registry> RegistryIn(const std::string& fileName) {
    return std::make_shared<kvopt::Registry>(
        kvopt::IniFileFactory::Instance()->GetIniFile(fileName, ""));
}

void WriteText(const std::string& fileName, const std::string& text) {
    std::ofstream file(fileName, std::ios::binary);
    file << text;
    if (!file.flush()) {
        throw kvopt::FileError(fileName, "cannot be written");
    }
}

std::string Counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

void PrintSummary(const kvopt::ReferenceStudy& study, const kvopt::ContourPlotData* plot) {
    const kvopt::StudyData& data = study.Data();
    std::cout << "Study   " << data.name << "\n        " << Counted(data.factors.size(), "factor")
              << ", " << Counted(data.responses.size(), "response") << ", "
              << Counted(data.runs.rows.size(), "run") << "\n";
    std::cout << "Wizard  " << (plot != nullptr ? "finished" : "not finished") << "\n";
    if (plot == nullptr) {
        return;
    }
    for (const PlotGroup& group : DescribePlot(*plot)) {
        if (group.lines.empty()) {
            continue;
        }
        std::cout << group.name << "\n";
        for (const PlotLine& line : group.lines) {
            std::cout << "        " << line.name;
            if (!line.value.empty()) {
                std::cout << ": " << line.value;
            }
            std::cout << "\n";
        }
    }
}

void PrintFiles(const std::string& folder) {
    std::cout << "Files\n";
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().string());
    }
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        std::cout << "        " << name << "\n";
    }
}

}  // namespace

int RunTask(const CommandLine& command) {
    std::filesystem::create_directories(command.out);
    const StoreFiles files = StoreFiles::InFolder(command.out);
    const auto study = kvopt::LoadStudy(command.study);
    study->SetIniFileName(files.ini);
    const auto formerProfile = kvopt::UserProfile::Install(ProfileIn(files.profile));
    const auto formerRegistry = kvopt::Registry::Install(RegistryIn(files.registry));
    kvopt::Investigation::SetActiveInvestigation(study.get());

    const auto desktop = RoadDesktop::Make(command);
    const auto plot = MakeContourPlot(*study, nullptr);
    const std::vector<std::string> faults = desktop->Finish();
    if (plot != nullptr) {
        SavePlot(*plot, files.savedPlot);
    }
    WriteText(command.out + "/transcript.txt", desktop->TranscriptText());

    kvopt::Investigation::SetActiveInvestigation(nullptr);
    kvopt::Registry::Install(formerRegistry);
    kvopt::UserProfile::Install(formerProfile);
    PrintSummary(*study, plot.get());
    PrintFiles(command.out);
    for (const std::string& fault : faults) {
        std::cerr << fault << "\n";
    }
    const bool asWritten = faults.empty() && (plot != nullptr || !command.script.empty());
    return asWritten ? 0 : 1;
}
