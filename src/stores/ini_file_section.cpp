#include "kvopt/stores/ini_file_section.h"

#include "stores/ini_file.h"

namespace kvopt {

IniFileSection::IniFileSection() : StoreSection(std::make_shared<IniFile>(), {}) {}

IniFileSection::IniFileSection(const std::shared_ptr<IniFile>& file, const std::string& section)
    : StoreSection(file, {}) {
    StoreSection::SetSection(section.c_str());
}

IniFileSection::~IniFileSection() {
    try {
        StoreSection::Flush();
    } catch (...) {  // NOLINT(bugprone-empty-catch): a release must not throw; memory ran out
    }
}

}  // namespace kvopt
