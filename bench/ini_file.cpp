// The ini file of this library.

#include "bench/ini_content.h"
#include "kvopt/stores.h"

namespace kvopt::bench {
namespace {

struct OwnIniFile {
    static void Write(const std::string& path, const IniContent& content) {
        IniFileFactory factory;
        const auto ini = factory.GetIniFile(path, "");
        for (const IniSection& section : content) {
            ini->SetSection(section.name.c_str());
            ini->WriteKey("Low", section.low);
            ini->WriteKey("High", section.high);
            ini->WriteKey("Setting", section.setting);
            ini->WriteKey("Unit", section.unit);
        }
        ini->Flush();
    }

    static double Read(const std::string& path, const IniContent& content) {
        IniFileFactory factory;
        const auto ini = factory.GetIniFile(path, "");
        double sum = 0;
        for (const IniSection& section : content) {
            ini->SetSection(section.name.c_str());
            sum += SumOf(ini->ReadKeyOr("Low", 0.0), ini->ReadKeyOr("High", 0.0),
                         ini->ReadKeyOr("Setting", 0), ini->ReadKeyOr("Unit", std::string()));
        }
        return sum;
    }
};

[[maybe_unused]] const bool isAdded = AddIniStore<OwnIniFile>("kvopt");

}  // namespace
}  // namespace kvopt::bench
