#include "run_task.h"

#include <kvopt/host.h>
#include <kvopt/plotargs.h>
#include <kvopt/stores.h>
#include <kvopt/study.h>
#include <kvopt/text.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ostream>

#include "contour_road.h"
#include "plot_text.h"
#include "road.h"
#include "road_desktop.h"

namespace {

/// Puts profile and registry of a run in place of the user's own, for as long as this lives.
class UserStores {
public:
    explicit UserStores(const StoreFiles& files)
        : profile_(kvopt::UserProfile::Install(
              std::make_shared<kvopt::UserProfile>(IniFile(files.profile)))),
          registry_(kvopt::Registry::Install(
              std::make_shared<kvopt::Registry>(IniFile(files.registry)))) {}
    ~UserStores() {
        kvopt::Registry::Install(registry_);
        kvopt::UserProfile::Install(profile_);
    }
    UserStores(const UserStores&) = delete;
    UserStores& operator=(const UserStores&) = delete;

private:
    static std::unique_ptr<kvopt::IniFileSection> IniFile(const std::string& fileName) {
        return kvopt::IniFileFactory::Instance()->GetIniFile(fileName, "");
    }

    std::shared_ptr<kvopt::UserProfile> profile_;
    std::shared_ptr<kvopt::Registry> registry_;
};

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

void PrintGroups(const std::vector<PlotGroup>& groups, std::ostream& out) {
    for (const PlotGroup& group : groups) {
        if (group.lines.empty()) {
            continue;
        }
        out << group.name << "\n";
        for (const PlotLine& line : group.lines) {
            out << "        " << line.name;
            if (!line.value.empty()) {
                out << ": " << line.value;
            }
            out << "\n";
        }
    }
}

const char* KindText(Road::Kind kind) {
    switch (kind) {
        case Road::Kind::Plot:
            return "Wizard  ";
        case Road::Kind::Change:
            return "Sheet   ";
        case Road::Kind::Page:
            break;
    }
    return "Page    ";
}

void PrintSummary(const kvopt::ReferenceStudy& study, const Road& road, const RoadResult& result,
                  std::ostream& out) {
    const kvopt::StudyData& data = study.Data();
    out << "Study   " << data.name << "\n        " << Counted(data.factors.size(), "factor") << ", "
        << Counted(data.responses.size(), "response") << ", "
        << Counted(data.runs.rows.size(), "run") << "\n";
    out << KindText(road.kind) << (result.finished ? "finished" : "not finished") << "\n";
    PrintGroups(result.plot != nullptr ? DescribePlot(*result.plot) : result.entered, out);
}

void PrintFiles(const std::string& folder, std::ostream& out) {
    out << "Files\n";
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().string());
    }
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        out << "        " << name << "\n";
    }
}

}  // namespace

int RunTask(const CommandLine& command, std::ostream& out, std::ostream& faults) {
    const Road& road = *FindRoad(command.road);
    std::filesystem::create_directories(command.out);
    const StoreFiles files = StoreFiles::InFolder(command.out);
    const auto study = kvopt::LoadStudy(command.study);
    study->SetIniFileName(files.ini);
    const UserStores stores(files);
    kvopt::Investigation::SetActiveInvestigation(study.get());  // until it dies

    const auto desktop = RoadDesktop::Make(command);
    const RoadResult result = road.go({*study, nullptr, command.plot});
    const std::vector<std::string> unlike = desktop->Finish();
    if (result.plot != nullptr) {
        SavePlot(*result.plot, files.savedPlot);
    }
    WriteText(command.out + "/transcript.txt", desktop->TranscriptText());

    PrintSummary(*study, road, result, out);
    PrintFiles(command.out, out);
    for (const std::string& fault : unlike) {
        faults << fault << "\n";
    }
    const bool asWritten = unlike.empty() && (result.finished || !command.script.empty());
    return asWritten ? 0 : 1;
}
