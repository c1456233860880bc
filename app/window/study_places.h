#pragma once

#include <QString>
#include <QStringList>

/// Where what belongs to a study file stands: its ini file, and a folder of its saved plots.
class StudyPlaces {
public:
    /// Of no study.
    StudyPlaces() = default;
    /// `dataFolder` is the user's, where the folder of plots is. Makes that folder when it is
    /// needed for the ini file, because the study's own folder cannot be written.
    StudyPlaces(const QString& studyFile, const QString& dataFolder);

    const QString& IniFile() const { return iniFile_; }
    const QString& PlotFolder() const { return plotFolder_; }

    /// The saved plots, in the order in which they were numbered.
    QStringList SavedPlots() const;
    /// A name that no saved plot has, `kind` with a number; makes the folder.
    QString NewPlotFile(const QString& kind) const;

    /// The study files of a folder, by name.
    static QStringList StudiesIn(const QString& folder);
    /// The folder of the examples: as installed, else among the sources of this build.
    static QString ExampleFolder();
    /// Where the user's saved plots of all studies are kept.
    static QString DataFolder();

private:
    QString iniFile_;
    QString plotFolder_;
};
