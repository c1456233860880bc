#include "kvopt/stores/registry_areas.h"

#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

namespace {

constexpr const char* kApplicationKey = "Software\\kvopt";

}  // namespace

std::wstring GetDontShowAgainRegistrySection() {
    return L"DontShowAgain";
}

std::wstring GetRegistryBaseKeyNameW(const wchar_t* area) {
    if (area == nullptr) {
        throw InvalidArgument("GetRegistryBaseKeyNameW: the name is null");
    }
    return KvStdString::ToWide(GetRegistryBaseKeyName(KvStdString::ToUtf8(area).c_str()));
}

std::string GetRegistryBaseKeyName(const char* area) {
    if (area == nullptr) {
        throw InvalidArgument("GetRegistryBaseKeyName: the name is null");
    }
    const std::string key = kApplicationKey;
    return *area == '\0' ? key : key + '\\' + area;
}

}  // namespace kvopt
