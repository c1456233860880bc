#include "kvopt/host/study_file.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "host/json_node.h"
#include "host/json_place.h"
#include "host/study_check.h"
#include "host/study_fault.h"
#include "host/study_reader.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {
namespace {

std::filesystem::path PathOf(const std::string& fileName) {
    return std::filesystem::path(std::u8string(fileName.begin(), fileName.end()));
}

}  // namespace

StudyData ParseStudy(std::string_view text, const std::string& fileName) {
    const nlohmann::json document = ParseJson(text, fileName);
    try {
        StudyData study = ReadStudy(JsonNode(document, ""));
        FillAbbreviations(study);
        CheckStudy(study);
        return study;
    } catch (const StudyFault& fault) {
        throw FileFormatError(fileName, PlaceInJson(text, fault.pointer), fault.expected,
                              fault.found);
    }
}

StudyData ReadStudyFile(const std::string& fileName) {
    std::error_code ignored;
    if (std::filesystem::is_directory(PathOf(fileName), ignored)) {
        throw FileError(fileName, "is a folder, not a study file");
    }
    std::ifstream file(PathOf(fileName), std::ios::binary);
    if (!file) {
        throw FileError(fileName, "cannot be opened");
    }
    const std::string text((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    if (file.bad()) {
        throw FileError(fileName, "cannot be read");
    }
    return ParseStudy(text, fileName);
}

std::unique_ptr<ReferenceStudy> LoadStudy(const std::string& fileName) {
    const std::u8string iniFile = PathOf(fileName).replace_extension(".ini").u8string();
    return std::make_unique<ReferenceStudy>(ReadStudyFile(fileName),
                                            std::string(iniFile.begin(), iniFile.end()));
}

}  // namespace kvopt
