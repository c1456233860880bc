// The same content through KConfig. It stands on Qt 5 and so runs in a program of its own.

#include <KConfigCore/KConfig>
#include <KConfigCore/KConfigGroup>

#include "bench/ini_content.h"

namespace kvopt::bench {
namespace {

struct KConfigFile {
    static void Write(const std::string& path, const IniContent& content) {
        KConfig config(QString::fromStdString(path), KConfig::SimpleConfig);
        for (const IniSection& section : content) {
            KConfigGroup group(&config, QString::fromStdString(section.name));
            group.writeEntry("Low", section.low);
            group.writeEntry("High", section.high);
            group.writeEntry("Setting", section.setting);
            group.writeEntry("Unit", QString::fromStdString(section.unit));
        }
        config.sync();
    }

    static double Read(const std::string& path, const IniContent& content) {
        const KConfig config(QString::fromStdString(path), KConfig::SimpleConfig);
        double sum = 0;
        for (const IniSection& section : content) {
            const KConfigGroup group(&config, QString::fromStdString(section.name));
            sum += SumOf(group.readEntry("Low", 0.0), group.readEntry("High", 0.0),
                         group.readEntry("Setting", 0),
                         group.readEntry("Unit", QString()).toStdString());
        }
        return sum;
    }
};

[[maybe_unused]] const bool isAdded = AddIniStore<KConfigFile>("KConfig");

}  // namespace
}  // namespace kvopt::bench
