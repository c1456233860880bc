#include "window/study_window.h"

#include <gmock/gmock.h>
#include <kvopt/qt.h>
#include <kvopt/scripted.h>
#include <kvopt/stores.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTreeWidget>

#include "road.h"
#include "tests/support/qt_application.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kReaction = "chemical-reaction-ccd-2-blocks";

void WriteFile(const QString& name, const QByteArray& content) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray ReadFile(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

/// A folder with one good study, and a window on it.
class StudyWindowTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        ASSERT_TRUE(QDir().mkdir(Studies()));
        ASSERT_TRUE(QDir().mkpath(Plots()));
        ASSERT_TRUE(QFile::copy(
            QString(KVOPT_SOURCE_DIR "/examples/studies/") + kReaction + ".json", StudyFile()));
        former_ = kvopt::Desktop::Install(&desktop_);
        formerProfile_ = kvopt::UserProfile::Install(
            std::make_shared<kvopt::UserProfile>(std::unique_ptr<kvopt::IniFileSection>()));
    }
    void TearDown() override {
        kvopt::UserProfile::Install(formerProfile_);
        kvopt::Desktop::Install(former_);
    }

    QString Studies() const { return folder_.filePath("studies"); }
    QString Data() const { return folder_.filePath("data"); }
    QString StudyFile() const { return Studies() + "/" + kReaction + ".json"; }
    QString Plots() const { return Data() + "/" + kReaction + "-plots"; }

    template <class Widget>
    static Widget& Find(const StudyWindow& window, const char* name) {
        return *window.findChild<Widget*>(name);
    }
    static std::vector<std::string> Entries(const StudyWindow& window, const char* list) {
        std::vector<std::string> texts;
        const auto& widget = Find<QListWidget>(window, list);
        for (int row = 0; row < widget.count(); ++row) {
            texts.push_back(widget.item(row)->text().toStdString());
        }
        return texts;
    }
    /// What the window tells, empty when it tells nothing.
    static std::string Message(const StudyWindow& window) {
        const auto& banner = Find<QFrame>(window, "message");
        return banner.isHidden() ? "" : Find<QLabel>(window, "messageText").text().toStdString();
    }
    /// Presses the button of the road and lets a recorded user go through it.
    void Press(const StudyWindow& window, const char* road, const std::string& steps) {
        kvopt::QtPlayer player(desktop_, kvopt::UserScript::FromText(steps, "steps"));
        Find<QPushButton>(window, road).click();
        EXPECT_THAT(player.Verify(), IsEmpty());
    }
    void MakePlot(const StudyWindow& window, const std::string& steps) {
        Press(window, "contour", steps);
    }
    /// Chooses the page from its menu and lets a recorded user fill it.
    void ShowPage(const StudyWindow& window, const char* road, const std::string& steps) {
        kvopt::QtPlayer player(desktop_, kvopt::UserScript::FromText(steps, "steps"));
        Find<QAction>(window, road).trigger();
        EXPECT_THAT(player.Verify(), IsEmpty());
    }
    /// The lines of the tree of arguments, "Axis 1: Time".
    static std::vector<std::string> Arguments(const StudyWindow& window) {
        std::vector<std::string> lines;
        const auto& tree = Find<QTreeWidget>(window, "arguments");
        for (int group = 0; group < tree.topLevelItemCount(); ++group) {
            for (int line = 0; line < tree.topLevelItem(group)->childCount(); ++line) {
                const QTreeWidgetItem* item = tree.topLevelItem(group)->child(line);
                lines.push_back((item->text(0) + ": " + item->text(1)).toStdString());
            }
        }
        return lines;
    }

    QTemporaryDir folder_;
    kvopt::QtDesktop desktop_;
    kvopt::Desktop* former_ = nullptr;
    std::shared_ptr<kvopt::UserProfile> formerProfile_;
};

TEST_F(StudyWindowTest, ShowsTheFirstStudyOfAFolderAtAGlance) {
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    EXPECT_THAT(Entries(window, "studies"), ElementsAre(kReaction));
    const auto& factors = Find<QTableWidget>(window, "factors");
    ASSERT_EQ(factors.rowCount(), 3);
    EXPECT_EQ(factors.item(0, 0)->text(), "Time");
    EXPECT_EQ(factors.item(0, 4)->text(), "80 to 90");
    const auto& responses = Find<QTableWidget>(window, "responses");
    ASSERT_EQ(responses.rowCount(), 1);
    EXPECT_EQ(responses.item(0, 0)->text(), "Yield");
    EXPECT_TRUE(Find<QPushButton>(window, "contour").isEnabled());
    EXPECT_EQ(Message(window), "");
}

TEST_F(StudyWindowTest, SavesThePlotOfAFinishedWizardAndShowsItsArguments) {
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    EXPECT_THAT(Entries(window, "plots"), IsEmpty());
    MakePlot(window, "next\nfinish\n");
    MakePlot(window, "next\nfinish\n");
    EXPECT_THAT(Entries(window, "plots"), ElementsAre("Contour plot 1", "Contour plot 2"));
    EXPECT_EQ(Find<QListWidget>(window, "plots").currentRow(), 1);
    const auto& arguments = Find<QTreeWidget>(window, "arguments");
    ASSERT_GE(arguments.topLevelItemCount(), 3);
    EXPECT_EQ(arguments.topLevelItem(1)->text(0), "Responses");
    EXPECT_EQ(arguments.topLevelItem(1)->child(0)->text(0), "Yield");
    EXPECT_EQ(Message(window), "");

    StudyWindow later(Data());
    later.OpenStudy(StudyFile());
    EXPECT_THAT(Entries(later, "plots"), ElementsAre("Contour plot 1", "Contour plot 2"));
    EXPECT_GE(Find<QTreeWidget>(later, "arguments").topLevelItemCount(), 3);
}

TEST_F(StudyWindowTest, SavesNothingWhenTheWizardIsCancelled) {
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    MakePlot(window, "cancel\n");
    EXPECT_THAT(Entries(window, "plots"), IsEmpty());
    EXPECT_EQ(Message(window), "");
}

TEST_F(StudyWindowTest, OffersAButtonForEachPlotAndAMenuEntryForEachPage) {
    StudyWindow window(Data());
    EXPECT_FALSE(Find<QPushButton>(window, "contour").isEnabled()) << "there is no study yet";
    window.OpenFolder(Studies());
    for (const Road& road : AllRoads()) {
        if (road.kind == Road::Kind::Page) {
            EXPECT_EQ(Find<QAction>(window, road.name).text(), road.label);
            EXPECT_TRUE(Find<QPushButton>(window, "pages")
                            .menu()
                            ->actions()
                            .contains(&Find<QAction>(window, road.name)));
        } else {
            EXPECT_EQ(Find<QPushButton>(window, road.name).text(), road.label);
            EXPECT_EQ(Find<QPushButton>(window, road.name).isEnabled(),
                      road.kind == Road::Kind::Plot)
                << "there is no saved plot to change";
        }
    }
}

TEST_F(StudyWindowTest, SavesAChangedPlotAsAnother) {
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    MakePlot(window, "next\nfinish\n");
    const auto& change = Find<QPushButton>(window, "contour-sheet");
    EXPECT_TRUE(change.isEnabled());
    const QByteArray before = ReadFile(Plots() + "/Contour plot 1.json");
    Press(window, "contour-sheet", "cancel\n");
    EXPECT_THAT(Entries(window, "plots"), ElementsAre("Contour plot 1"));
    EXPECT_THAT(Arguments(window), Contains("Axis 1: Time, 80 to 90"));
    Press(window, "contour-sheet", "tab \"Axes and constants\"\ntype \"1st axis low\" 82\nok\n");
    EXPECT_THAT(Entries(window, "plots"), ElementsAre("Contour plot 1", "Contour plot 2"));
    EXPECT_EQ(Find<QListWidget>(window, "plots").currentRow(), 1);
    EXPECT_THAT(Arguments(window), Contains("Axis 1: Time, 82 to 90"));
    EXPECT_EQ(ReadFile(Plots() + "/Contour plot 1.json"), before);
    ShowPage(window, "page-select-variable", "ok\n");
    EXPECT_FALSE(change.isEnabled()) << "no plot is shown";
    Find<QListWidget>(window, "plots").setCurrentRow(0);
    EXPECT_TRUE(change.isEnabled());
}

TEST_F(StudyWindowTest, OffersNoChangeOfAPlotThatCannotBeRead) {
    WriteFile(Plots() + "/Contour plot 1.json", "no plot");
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    EXPECT_FALSE(Find<QPushButton>(window, "contour-sheet").isEnabled());
}

TEST_F(StudyWindowTest, NamesASavedDesignSpaceForWhatItIs) {
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    Press(window, "design-space", "next\nfinish\n");
    EXPECT_THAT(Entries(window, "plots"), ElementsAre("Design space plot 1"));
    EXPECT_THAT(Arguments(window), Contains("Kind: Design Space Plot"));
}

TEST_F(StudyWindowTest, ShowsWhatWasEnteredOnAPageAndSavesNothing) {
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    MakePlot(window, "next\nfinish\n");
    ShowPage(window, "page-select-variable", "pick \"Variable\" \"Temperature\"\nok\n");
    EXPECT_THAT(Arguments(window), ElementsAre("Variable: Temperature"));
    EXPECT_THAT(Entries(window, "plots"), ElementsAre("Contour plot 1"));
    EXPECT_EQ(Find<QListWidget>(window, "plots").currentRow(), -1) << "it shows no plot now";
    ShowPage(window, "page-select-response", "cancel\n");
    EXPECT_THAT(Arguments(window), ElementsAre("Variable: Temperature"));
}

TEST_F(StudyWindowTest, TellsTheErrorOfAMalformedStudyAndOpensTheOthers) {
    const QString broken = Studies() + "/broken.json";
    WriteFile(broken, "{\"format\": 3}");
    StudyWindow window(Data());
    window.OpenStudy(broken);
    EXPECT_THAT(Message(window), HasSubstr("broken.json"));
    EXPECT_FALSE(Find<QPushButton>(window, "contour").isEnabled());
    EXPECT_EQ(Find<QTableWidget>(window, "factors").rowCount(), 0);
    EXPECT_THAT(Entries(window, "studies"), ElementsAre("broken", kReaction));

    Find<QListWidget>(window, "studies").setCurrentRow(1);
    EXPECT_EQ(Message(window), "");
    EXPECT_EQ(Find<QTableWidget>(window, "factors").rowCount(), 3);
    EXPECT_TRUE(Find<QPushButton>(window, "contour").isEnabled());
    Find<QListWidget>(window, "studies").setCurrentRow(0);
    EXPECT_FALSE(Find<QPushButton>(window, "contour").isEnabled()) << "that study is closed";
}

TEST_F(StudyWindowTest, TellsTheErrorOfAMalformedPlotAndKeepsItsFile) {
    const QString plot = Plots() + "/Contour plot 1.json";
    WriteFile(plot, "no plot");
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    EXPECT_THAT(Message(window), HasSubstr("Contour plot 1.json"));
    EXPECT_EQ(Find<QTreeWidget>(window, "arguments").topLevelItemCount(), 0);

    MakePlot(window, "next\nfinish\n");
    EXPECT_THAT(Entries(window, "plots"), ElementsAre("Contour plot 1", "Contour plot 2"));
    EXPECT_EQ(Message(window), "");
    EXPECT_EQ(ReadFile(plot), "no plot");
}

TEST_F(StudyWindowTest, TellsOfAStudyFileThatIsNotThere) {
    StudyWindow window(Data());
    window.OpenStudy(Studies() + "/missing.json");
    EXPECT_THAT(Message(window), HasSubstr("missing.json"));
}

TEST_F(StudyWindowTest, ShowsTroubleOfStoresUntilItIsDismissed) {
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    kvopt::TellStoreTrouble(
        {kvopt::StoreTrouble::Kind::SetAside, "study.ini", "study.ini.bad", "line 1"});
    const std::string told =
        "study.ini is no settings file and was set aside as study.ini.bad: "
        "line 1";
    EXPECT_EQ(Message(window), told);
    MakePlot(window, "next\nfinish\n");
    EXPECT_EQ(Message(window), told);
    Find<QPushButton>(window, "dismiss").click();
    EXPECT_EQ(Message(window), "");
}

TEST_F(StudyWindowTest, SaysWhereItsFilesStand) {
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    const std::string places = Find<QStatusBar>(window, "places").currentMessage().toStdString();
    EXPECT_THAT(places, HasSubstr(std::string("studies/") + kReaction + ".ini"));
    EXPECT_THAT(places, HasSubstr(std::string("data/") + kReaction + "-plots"));
}

TEST_F(StudyWindowTest, ShortensTheHomeFolderOfItsFiles) {
    const QByteArray formerHome = qgetenv("HOME");
    qputenv("HOME", folder_.path().toUtf8());
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    qputenv("HOME", formerHome);
    EXPECT_EQ(Find<QStatusBar>(window, "places").currentMessage().toStdString(),
              std::string("Settings: ~/studies/") + kReaction + ".ini    Plots: ~/data/" +
                  kReaction + "-plots");
}

TEST_F(StudyWindowTest, NamesEveryControlThatTheKeyboardReaches) {
    StudyWindow window(Data());
    window.OpenFolder(Studies());
    for (const char* name : {"studies", "factors", "responses", "plots", "arguments"}) {
        const auto& widget = Find<QWidget>(window, name);
        EXPECT_NE(widget.accessibleName(), "") << name;
        EXPECT_NE(widget.focusPolicy() & Qt::TabFocus, 0) << name;
    }
}

}  // namespace
