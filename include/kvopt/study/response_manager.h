#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/study/response.h"

namespace kvopt {

/// All responses of the study with their kinds: the extended set. A host has to give the list, and
/// owns what it points to.
class KVOPT_EXPORT ResponseManager {
public:
    using const_iterator = std::vector<ResponseEx*>::const_iterator;

    ResponseManager() = default;
    virtual ~ResponseManager();
    ResponseManager(const ResponseManager&) = delete;
    ResponseManager& operator=(const ResponseManager&) = delete;

    /// In the order of the study; holds no null pointer.
    virtual const std::vector<ResponseEx*>& GetResponses() const = 0;

    const_iterator begin() const { return GetResponses().begin(); }
    const_iterator end() const { return GetResponses().end(); }

    /// By exact name; null for an unknown one.
    virtual ResponseEx* GetResponse(const std::string& name) const;
    /// How many responses are of the kind.
    virtual int GetCount(ResponseEx::EResponseType type) const;
    /// The one-based index among the responses of the kind, 0 for an unknown name.
    virtual int GetIndex(std::string_view name, ResponseEx::EResponseType type) const;
};

}  // namespace kvopt
