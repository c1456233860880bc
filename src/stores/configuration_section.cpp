#include "kvopt/stores/configuration_section.h"

#include "kvopt/text/exceptions.h"

namespace kvopt {

ConfigurationSection::~ConfigurationSection() = default;

void ConfigurationSection::WriteKey(const char* key, const std::string& value) {
    if (value.find('\0') != std::string::npos) {
        throw InvalidArgument("ConfigurationSection::WriteKey: a text with a NUL character");
    }
    WriteKey(key, value.c_str());
}

}  // namespace kvopt
