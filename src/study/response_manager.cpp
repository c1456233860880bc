#include "kvopt/study/response_manager.h"

namespace kvopt {

namespace {

bool IsOfKind(const ResponseEx& response, ResponseEx::EResponseType type) {
    return type == ResponseEx::Any || response.GetType() == type;
}

}  // namespace

ResponseManager::~ResponseManager() = default;

ResponseEx* ResponseManager::GetResponse(const std::string& name) const {
    for (ResponseEx* response : *this) {
        if (response->GetName() == name) {
            return response;
        }
    }
    return nullptr;
}

int ResponseManager::GetCount(ResponseEx::EResponseType type) const {
    int count = 0;
    for (const ResponseEx* response : *this) {
        count += IsOfKind(*response, type) ? 1 : 0;
    }
    return count;
}

int ResponseManager::GetIndex(std::string_view name, ResponseEx::EResponseType type) const {
    int index = 0;
    for (const ResponseEx* response : *this) {
        if (!IsOfKind(*response, type)) {
            continue;
        }
        ++index;
        if (response->GetName() == name) {
            return index;
        }
    }
    return 0;
}

}  // namespace kvopt
