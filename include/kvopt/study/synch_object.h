#pragma once

#include <string>

#include "kvopt/export.h"

namespace kvopt {

/// Tells the rest of the host that a setting of the study has changed.
class KVOPT_EXPORT SynchObject {
public:
    virtual ~SynchObject();

    virtual void Attach(int signal, int updateType) = 0;
};

/// A factor or response that got another name.
struct UpdateStringObject {
    std::string oldName;
    std::string newName;
};

}  // namespace kvopt
