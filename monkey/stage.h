#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/host.h"
#include "tests/support/installed_stores.h"

namespace kvopt::monkey {

/// A study with stores of its own in a new folder, which goes with it.
class Stage {
public:
    explicit Stage(const std::string& studyFile);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    ReferenceStudy& Study() { return *study_; }
    std::string FileOf(const std::string& name) const { return stores_.File(name); }
    /// What a refused page may not change: the study's selection of responses, its ini file, the
    /// user's registry, and the profile without the resolutions, which a page may keep at any time.
    std::string Remembered() const;
    /// Names of factors and responses.
    std::vector<std::string> Names() const;

private:
    test::InstalledStores stores_;
    std::unique_ptr<ReferenceStudy> study_;
};

}  // namespace kvopt::monkey
