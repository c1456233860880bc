#pragma once

#include <functional>
#include <string>

#include "kvopt/export.h"

namespace kvopt {

/// Something that a store could not do and that the host ought to tell the analyst. No exception:
/// the work goes on.
struct StoreTrouble {
    enum class Kind {
        /// the file could not be parsed and was set aside; the store went on with what could be
        /// read of it
        SetAside,
        NotRead,     ///< the file is there but could not be read
        NotWritten,  ///< changes could not be written; they are kept for the next time
    };

    Kind kind = Kind::NotRead;
    std::string file;
    /// Where a file that was set aside went; empty when that was not possible. It is then left as
    /// it is, and nothing is written over it.
    std::string movedTo;
    std::string reason;
};

using StoreTroubleHandler = std::function<void(const StoreTrouble&)>;

/// Installs the function that is told of trouble and gives back the former one. It must not throw.
/// The default, which an empty function brings back, prints one line to the standard error stream.
KVOPT_EXPORT StoreTroubleHandler SetStoreTroubleHandler(StoreTroubleHandler handler);

/// Tells the installed handler.
KVOPT_EXPORT void TellStoreTrouble(const StoreTrouble& trouble);

}  // namespace kvopt
