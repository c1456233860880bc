#include "window/study_places.h"

#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

namespace {

QStringList JsonFilesIn(const QString& folder) {
    QStringList files;
    for (const QFileInfo& file : QDir(folder).entryInfoList({"*.json"}, QDir::Files)) {
        files.append(file.absoluteFilePath());
    }
    // Plot 10 comes after plot 9.
    QCollator order;
    order.setNumericMode(true);
    std::sort(files.begin(), files.end(), order);
    return files;
}

}  // namespace

StudyPlaces::StudyPlaces(const QString& studyFile, const QString& dataFolder) {
    const QFileInfo study(studyFile);
    const QString name = study.completeBaseName();
    plotFolder_ = dataFolder + "/" + name + "-plots";
    if (QFileInfo(study.absolutePath()).isWritable()) {
        iniFile_ = study.absolutePath() + "/" + name + ".ini";
    } else {
        QDir().mkpath(plotFolder_);
        iniFile_ = plotFolder_ + "/" + name + ".ini";
    }
}

QStringList StudyPlaces::SavedPlots() const {
    return plotFolder_.isEmpty() ? QStringList() : JsonFilesIn(plotFolder_);
}

QString StudyPlaces::NewPlotFile(const QString& kind) const {
    QDir().mkpath(plotFolder_);
    for (int number = 1;; ++number) {
        const QString file = plotFolder_ + "/" + kind + " " + QString::number(number) + ".json";
        if (!QFileInfo::exists(file)) {
            return file;
        }
    }
}

QStringList StudyPlaces::StudiesIn(const QString& folder) {
    return JsonFilesIn(folder);
}

QString StudyPlaces::ExampleFolder() {
    const QString installed =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" + KVOPT_STUDIES_FROM_PROGRAM);
    return QFileInfo(installed).isDir() ? installed : QString(KVOPT_STUDIES_OF_SOURCES);
}

QString StudyPlaces::DataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}
