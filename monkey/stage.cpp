#include "monkey/stage.h"

#include <filesystem>
#include <fstream>
#include <map>

#include "kvopt/study.h"
#include "monkey/value_text.h"

namespace kvopt::monkey {

namespace {

/// In memory, where the system has such a file system: nothing of a run is kept, so that nothing
/// needs to be flushed to a disk.
std::filesystem::path ParentOfFolder() {
    const std::filesystem::path memory("/dev/shm");
    std::error_code ignored;
    const bool hasMemory = std::filesystem::is_directory(memory, ignored);
    return hasMemory ? memory : std::filesystem::temp_directory_path();
}

/// Each file is read once.
const StudyData& DataOf(const std::string& studyFile) {
    static std::map<std::string, StudyData> known;
    const auto found = known.find(studyFile);
    return found != known.end() ? found->second
                                : known.emplace(studyFile, ReadStudyFile(studyFile)).first->second;
}

}  // namespace

Stage::Stage(const std::string& studyFile)
    : stores_(ParentOfFolder()),
      study_(std::make_unique<ReferenceStudy>(DataOf(studyFile), FileOf("study.ini"))) {
    Investigation::SetActiveInvestigation(study_.get());
}

Stage::~Stage() {
    Investigation::SetActiveInvestigation(nullptr);
}

std::string Stage::Remembered() const {
    std::vector<std::string> responses;
    study_->GetSelectedResponses(responses, SelectResponseBase::Ordinary);
    std::string all = "selected: " + TextOf(responses) + '\n';
    for (const char* name : {"study.ini", "profile.ini", "registry.ini"}) {
        std::ifstream file(FileOf(name), std::ios::binary);
        std::string section;
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with('[')) {
                section = line;
            } else if (!line.empty() && line.find("esolution") == std::string::npos) {
                all += section + ' ' + line + '\n';
            }
        }
    }
    return all;
}

std::vector<std::string> Stage::Names() const {
    std::vector<std::string> names;
    for (const FactorClass* factor : study_->GetVariables()->GetAllFactors()) {
        names.push_back(factor->GetName());
    }
    for (const ResponseClass* response : study_->GetVariables()->GetAllResponses()) {
        names.push_back(response->GetName());
    }
    return names;
}

}  // namespace kvopt::monkey
