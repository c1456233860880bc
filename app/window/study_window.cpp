#include "window/study_window.h"

#include <kvopt/host.h>
#include <kvopt/plotargs.h>
#include <kvopt/study.h>
#include <kvopt/text.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include "contour_road.h"
#include "plot_text.h"
#include "road.h"
#include "store_text.h"
#include "window/message_banner.h"
#include "window/plot_view.h"
#include "window/study_view.h"

namespace {

constexpr int kLettersWide = 175;
constexpr int kListLetters = 48;
constexpr int kLinesHigh = 52;

/// As a person reads it, the home folder as "~".
QString ShownPath(const QString& file) {
    const QString home = QDir::homePath() + "/";
    return QDir::toNativeSeparators(file.startsWith(home) ? "~/" + file.mid(home.size()) : file);
}

std::string FileName(const QString& file) {
    return QFile::encodeName(file).toStdString();
}

}  // namespace

StudyWindow::StudyWindow(QString dataFolder)
    : dataFolder_(std::move(dataFolder)), asParent_(*this) {
    Build();
    formerHandler_ = kvopt::SetStoreTroubleHandler([this](const kvopt::StoreTrouble& trouble) {
        message_->AddTrouble(QString::fromStdString(DescribeTrouble(trouble)));
    });
}

StudyWindow::~StudyWindow() {
    kvopt::Investigation::SetActiveInvestigation(nullptr);
    study_.reset();
    kvopt::SetStoreTroubleHandler(formerHandler_);
}

void StudyWindow::Build() {
    setWindowTitle("kvopt demo");
    auto* parts = new QSplitter(Qt::Horizontal, this);
    parts->setChildrenCollapsible(false);
    parts->addWidget(BuildStudies());
    parts->addWidget(BuildStudy());
    parts->setStretchFactor(0, 0);
    parts->setStretchFactor(1, 1);
    parts->setContentsMargins(8, 8, 8, 0);
    setCentralWidget(parts);
    statusBar()->setObjectName("places");
    statusBar()->setAccessibleName("Files of the study");
    // In letters and lines of the user's font, whatever the scale.
    const int letter = fontMetrics().averageCharWidth();
    const QSize wanted(letter * kLettersWide, fontMetrics().lineSpacing() * kLinesHigh);
    resize(wanted.boundedTo(screen()->availableSize()));
    parts->setSizes({letter * kListLetters, letter * (kLettersWide - kListLetters)});

    auto* quit = new QAction("Quit", this);
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, [this] { close(); });
    addAction(quit);
}

QWidget* StudyWindow::BuildStudies() {
    auto* part = new QWidget;
    studies_ = new QListWidget(part);
    studies_->setObjectName("studies");
    studies_->setAccessibleName("Studies");
    studies_->setTextElideMode(Qt::ElideRight);
    auto* title = new QLabel("&Studies", part);
    title->setBuddy(studies_);
    auto* open = new QPushButton("&Open study...", part);
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(title);
    column->addWidget(studies_, 1);
    column->addWidget(open);
    connect(studies_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item != nullptr) {
            ShowStudy(item->data(Qt::UserRole).toString());
        }
    });
    connect(open, &QPushButton::clicked, this, [this] { ChooseStudyFile(); });
    return part;
}

QWidget* StudyWindow::BuildStudy() {
    auto* part = new QWidget;
    message_ = new MessageBanner(part);
    studyView_ = new StudyView(part);
    roads_ = BuildRoads();
    plotView_ = new PlotView(part);
    plotView_->OnChosen([this](const QString& file) { ShowSavedPlot(file); });

    auto* plots = new QWidget;
    auto* plotColumn = new QVBoxLayout(plots);
    plotColumn->setContentsMargins(0, 0, 0, 0);
    plotColumn->addWidget(roads_, 0, Qt::AlignLeft);
    plotColumn->addWidget(plotView_, 1);
    auto* halves = new QSplitter(Qt::Vertical, part);
    halves->setChildrenCollapsible(false);
    halves->addWidget(studyView_);
    halves->addWidget(plots);
    halves->setSizes({kLinesHigh, kLinesHigh});
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(message_);
    column->addWidget(halves, 1);
    return part;
}

/// A button for each plot, and one menu of the pages.
QWidget* StudyWindow::BuildRoads() {
    auto* part = new QWidget;
    auto* row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    auto* pages = new QMenu(part);
    for (const Road& road : AllRoads()) {
        const auto go = [this, &road] { Go(road); };
        if (road.kind == Road::Kind::Page) {
            pages->addAction(road.label, this, go)->setObjectName(road.name);
            continue;
        }
        auto* button = new QPushButton(road.label, part);
        button->setObjectName(road.name);
        if (road.kind == Road::Kind::Change) {
            change_ = button;
            button->setToolTip(
                "Changes the arguments of the plot that is shown, and saves them as another plot");
        } else {
            button->setToolTip("Opens the wizard and saves the arguments that it ends with");
        }
        connect(button, &QPushButton::clicked, this, go);
        row->addWidget(button);
    }
    auto* button = new QPushButton("Pa&ges", part);
    button->setObjectName("pages");
    button->setToolTip("Opens a page that only hosts build, and shows what was entered");
    button->setMenu(pages);
    row->addWidget(button);
    part->setEnabled(false);
    SetShownPlot({});
    return part;
}

void StudyWindow::OpenFolder(const QString& folder) {
    const QStringList files = StudyPlaces::StudiesIn(folder);
    if (files.isEmpty()) {
        CloseStudy();
        studyView_->ShowNone("No studies in " + ShownPath(folder));
    }
    ListStudies(files, files.value(0));
}

void StudyWindow::OpenStudy(const QString& file) {
    const QFileInfo study(file);
    QStringList files = StudyPlaces::StudiesIn(study.absolutePath());
    if (!files.contains(study.absoluteFilePath())) {
        files.prepend(study.absoluteFilePath());
    }
    ListStudies(files, study.absoluteFilePath());
}

void StudyWindow::ListStudies(const QStringList& files, const QString& current) {
    {
        const QSignalBlocker blocker(studies_);
        studies_->clear();
        for (const QString& file : files) {
            auto* item = new QListWidgetItem(QFileInfo(file).completeBaseName(), studies_);
            item->setData(Qt::UserRole, file);
            item->setToolTip(QDir::toNativeSeparators(file));
        }
    }
    studies_->setCurrentRow(static_cast<int>(files.indexOf(current)));
}

void StudyWindow::ChooseStudyFile() {
    const QListWidgetItem* item = studies_->currentItem();
    const QString file = QFileDialog::getOpenFileName(
        this, "Open study", item != nullptr ? item->data(Qt::UserRole).toString() : QString(),
        "Studies (*.json);;All files (*)");
    if (!file.isEmpty()) {
        OpenStudy(file);
    }
}

void StudyWindow::CloseStudy() {
    kvopt::Investigation::SetActiveInvestigation(nullptr);
    study_.reset();
    places_ = StudyPlaces();
    message_->Clear();
    SetShownPlot({});
    plotView_->SetFiles({}, {});
    roads_->setEnabled(false);
    ShowPlaces();
}

void StudyWindow::ShowStudy(const QString& file) {
    CloseStudy();
    try {
        study_ = kvopt::LoadStudy(FileName(file));
        places_ = StudyPlaces(file, dataFolder_);
        study_->SetIniFileName(FileName(places_.IniFile()));
        kvopt::Investigation::SetActiveInvestigation(study_.get());
        studyView_->Show(*study_);
        roads_->setEnabled(true);
        plotView_->SetFiles(places_.SavedPlots(), places_.SavedPlots().value(0));
        ShowPlaces();
    } catch (const std::exception& fault) {
        studyView_->ShowNone(QFileInfo(file).fileName() + " was not opened");
        message_->SetError(QString::fromStdString(fault.what()));
    }
}

void StudyWindow::SetShownPlot(const QString& file) {
    shownPlot_ = file;
    change_->setEnabled(!file.isEmpty());
}

void StudyWindow::ShowSavedPlot(const QString& file) {
    message_->SetError({});
    plotView_->ClearArguments();
    SetShownPlot({});
    try {
        plotView_->ShowArguments(DescribePlot(*LoadPlot(*study_, FileName(file))));
        SetShownPlot(file);
    } catch (const std::exception& fault) {
        message_->SetError(QString::fromStdString(fault.what()));
    }
}

void StudyWindow::Go(const Road& road) {
    message_->SetError({});
    try {
        const RoadResult result = road.go({*study_, &asParent_, FileName(shownPlot_)});
        if (!result.finished) {
            return;
        }
        if (result.plot == nullptr) {
            SetShownPlot({});
            plotView_->SetFiles(places_.SavedPlots(), {});
            plotView_->ShowArguments(result.entered);
            return;
        }
        const QString file = Save(*result.plot);
        if (!file.isEmpty()) {
            plotView_->SetFiles(places_.SavedPlots(), file);
        }
        plotView_->ShowArguments(DescribePlot(*result.plot));
        SetShownPlot(file);
    } catch (const kvopt::CancelException&) {
        // Abandoned by the analyst: nothing to tell.
    } catch (const std::exception& fault) {
        message_->SetError(QString::fromStdString(fault.what()));
    }
}

QString StudyWindow::Save(const kvopt::ContourPlotData& plot) {
    QString file = places_.NewPlotFile(
        plot.GetContourTypeData()->ISDSProbability() ? "Design space plot" : "Contour plot");
    while (!file.isEmpty()) {
        try {
            SavePlot(plot, FileName(file));
            return file;
        } catch (const kvopt::FileError& fault) {
            message_->SetError(QString::fromStdString(fault.what()));
            file = QFileDialog::getSaveFileName(this, "Save the plot elsewhere",
                                                QDir::homePath() + "/" + QFileInfo(file).fileName(),
                                                "Plots (*.json)");
        }
    }
    return {};
}

void StudyWindow::ShowPlaces() {
    const QString places = study_ == nullptr ? QString()
                                             : "Settings: " + ShownPath(places_.IniFile()) +
                                                   "    Plots: " + ShownPath(places_.PlotFolder());
    statusBar()->showMessage(places);
    statusBar()->setToolTip(places);
}
