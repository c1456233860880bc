#include "store_text.h"

#include <kvopt/stores.h>

std::string DescribeTrouble(const kvopt::StoreTrouble& trouble) {
    const std::string reason = trouble.reason.empty() ? "" : ": " + trouble.reason;
    switch (trouble.kind) {
        case kvopt::StoreTrouble::Kind::SetAside:
            return trouble.movedTo.empty()
                       ? trouble.file + " is no settings file and was left as it is" + reason
                       : trouble.file + " is no settings file and was set aside as " +
                             trouble.movedTo + reason;
        case kvopt::StoreTrouble::Kind::NotRead:
            return trouble.file + " could not be read" + reason;
        case kvopt::StoreTrouble::Kind::NotWritten:
            return trouble.file + " could not be written, its changes wait for the next time" +
                   reason;
    }
    return trouble.file + reason;
}
