#pragma once

#include <memory>
#include <string>

#include "kvopt/stores/store_section.h"

namespace kvopt {

class IniFile;

/// A section of an ini file. The empty section name stands for the keys before the first header.
///
/// All sections of one file share one store in memory (see IniFileFactory). What was written goes
/// to the file on Flush() and when the section is released; what another process wrote meanwhile
/// is kept. Clear() empties the section and what lies inside it, and leaves every other section,
/// also when it is the section without a name.
class KVOPT_EXPORT IniFileSection : public StoreSection {
public:
    /// A section of a store without a file, for a host or a test that keeps its settings in memory.
    IniFileSection();
    IniFileSection(const std::shared_ptr<IniFile>& file, const std::string& section);
    ~IniFileSection() override;
};

}  // namespace kvopt
