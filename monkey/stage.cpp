#include "monkey/stage.h"

#include <cstdlib>
#include <fstream>
#include <map>
#include <stdexcept>
#include <utility>

#include "kvopt/study.h"
#include "monkey/value_text.h"

namespace kvopt::monkey {

namespace {

/// In memory, where the system has such a file system: nothing of a run is kept, so that nothing
/// needs to be flushed to a disk.
std::filesystem::path MakeFolder() {
    const std::filesystem::path memory("/dev/shm");
    std::error_code ignored;
    const bool hasMemory = std::filesystem::is_directory(memory, ignored);
    const auto root = hasMemory ? memory : std::filesystem::temp_directory_path();
    std::string name = (root / "kvopt-monkey-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no folder can be made for the stores");
    }
    return name;
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
    : folder_(MakeFolder()),
      formerFactory_(IniFileFactory::Install(std::make_shared<IniFileFactory>())),
      formerProfile_(UserProfile::Install(std::make_shared<UserProfile>(
          IniFileFactory::Instance()->GetIniFile(FileOf("profile.ini"), "")))),
      formerRegistry_(Registry::Install(std::make_shared<Registry>(
          IniFileFactory::Instance()->GetIniFile(FileOf("registry.ini"), "")))),
      study_(std::make_unique<ReferenceStudy>(DataOf(studyFile), FileOf("study.ini"))) {
    Investigation::SetActiveInvestigation(study_.get());
}

Stage::~Stage() {
    Investigation::SetActiveInvestigation(nullptr);
    study_.reset();
    Registry::Install(std::move(formerRegistry_));
    UserProfile::Install(std::move(formerProfile_));
    IniFileFactory::Install(std::move(formerFactory_));
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string Stage::Remembered() const {
    std::vector<std::string> responses;
    study_->GetSelectedResponses(responses, SelectResponseBase::Ordinary);
    std::string all = "selected: " + TextOf(responses) + '\n';
    for (const char* name : {"study.ini", "profile.ini", "registry.ini"}) {
        std::ifstream file(folder_ / name, std::ios::binary);
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
