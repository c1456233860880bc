// The same content through QSettings.

#include <QSettings>

#include "bench/ini_content.h"

namespace kvopt::bench {
namespace {

struct QSettingsFile {
    static void Write(const std::string& path, const IniContent& content) {
        QSettings settings(QString::fromStdString(path), QSettings::IniFormat);
        for (const IniSection& section : content) {
            settings.beginGroup(QString::fromStdString(section.name));
            settings.setValue("Low", section.low);
            settings.setValue("High", section.high);
            settings.setValue("Setting", section.setting);
            settings.setValue("Unit", QString::fromStdString(section.unit));
            settings.endGroup();
        }
        settings.sync();
    }

    static double Read(const std::string& path, const IniContent& content) {
        QSettings settings(QString::fromStdString(path), QSettings::IniFormat);
        double sum = 0;
        for (const IniSection& section : content) {
            settings.beginGroup(QString::fromStdString(section.name));
            sum += SumOf(settings.value("Low").toDouble(), settings.value("High").toDouble(),
                         settings.value("Setting").toInt(),
                         settings.value("Unit").toString().toStdString());
            settings.endGroup();
        }
        return sum;
    }
};

[[maybe_unused]] const bool isAdded = AddIniStore<QSettingsFile>("QSettings");

}  // namespace
}  // namespace kvopt::bench
