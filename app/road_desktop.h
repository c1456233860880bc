#pragma once

#include <memory>
#include <string>
#include <vector>

#include "command_line.h"

/// The desktop on which a road is run, installed for as long as this lives.
class RoadDesktop {
public:
    virtual ~RoadDesktop() = default;
    RoadDesktop(const RoadDesktop&) = delete;
    RoadDesktop& operator=(const RoadDesktop&) = delete;

    /// Throws kvopt::InvalidArgument when the program was built without the front end.
    static std::unique_ptr<RoadDesktop> Make(const CommandLine& command);

    /// After the road: what did not go as the script says, empty when all did.
    virtual std::vector<std::string> Finish() = 0;
    virtual std::string TranscriptText() const = 0;

protected:
    RoadDesktop() = default;
};
