#pragma once

#include <cstdint>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/study/design_space_options.h"

namespace kvopt {

class Investigation;

/// How one response takes part in a design space.
struct DSResponseSettings {
    std::uint32_t criterion = 0;  ///< 0 minimum, 1 target, 2 maximum; above that only predicted
    std::int32_t flag = 0;        ///< not 0 for a response that is left out
};

/// The design space simulation of a study: its options and its responses. The simulation itself is
/// the host's.
class KVOPT_EXPORT DesignSpacePredictor {
public:
    explicit DesignSpacePredictor(Investigation* investigation);
    virtual ~DesignSpacePredictor();
    DesignSpacePredictor(const DesignSpacePredictor&) = delete;
    DesignSpacePredictor& operator=(const DesignSpacePredictor&) = delete;

    Investigation* GetInvestigation() const { return investigation_; }
    virtual DesignSpaceOptions& GetOptions();
    virtual std::vector<DSResponseSettings>& GetResponseSettings();

private:
    Investigation* investigation_;
    DesignSpaceOptions options_;
    std::vector<DSResponseSettings> responses_;
};

}  // namespace kvopt
