#pragma once

#include <kvopt/qt.h>
#include <kvopt/stores.h>

#include <QMainWindow>
#include <memory>

#include "window/study_places.h"

class MessageBanner;
class PlotView;
class QListWidget;
class QPushButton;
class StudyView;
struct Road;

namespace kvopt {
class ContourPlotData;
class ReferenceStudy;
}  // namespace kvopt

/// The window of the demo: studies to choose from, the chosen one at a glance, and its plots.
///
/// Owns the study that is open, which is the active investigation meanwhile. Pages are shown on the
/// desktop that is installed. Trouble of stores is shown in the window for as long as it lives.
/// Never changes a study file, and never writes over a saved plot.
class StudyWindow : public QMainWindow {
public:
    /// `dataFolder` is where the folders of saved plots are.
    explicit StudyWindow(QString dataFolder);
    ~StudyWindow() override;

    /// Lists the studies of a folder and opens the first.
    void OpenFolder(const QString& folder);
    /// Lists the studies beside a file and opens that one, whatever its name ends with.
    void OpenStudy(const QString& file);

private:
    void Build();
    QWidget* BuildStudies();
    QWidget* BuildStudy();
    QWidget* BuildRoads();
    void ListStudies(const QStringList& files, const QString& current);
    void ChooseStudyFile();
    void ShowStudy(const QString& file);
    void CloseStudy();
    void ShowSavedPlot(const QString& file);
    /// Lets the user go a road and shows what it leaves; a plot is saved.
    void Go(const Road& road);
    /// The saved plot whose arguments are shown; empty for none.
    void SetShownPlot(const QString& file);
    /// Empty when the plot could not be saved and the user gave it up.
    QString Save(const kvopt::ContourPlotData& plot);
    void ShowPlaces();

    QString dataFolder_;
    StudyPlaces places_;
    std::unique_ptr<kvopt::ReferenceStudy> study_;
    kvopt::QtWindow asParent_;
    kvopt::StoreTroubleHandler formerHandler_;
    QListWidget* studies_ = nullptr;
    MessageBanner* message_ = nullptr;
    StudyView* studyView_ = nullptr;
    PlotView* plotView_ = nullptr;
    QWidget* roads_ = nullptr;
    QPushButton* change_ = nullptr;
    QString shownPlot_;
};
