#include "run_task.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <kvopt/stores.h>
#include <kvopt/study.h>
#include <kvopt/text.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sstream>

#include "tests/support/qt_application.h"

namespace {

using testing::HasSubstr;
using testing::Not;

/// Runs roads on one study without windows, each into a folder of its own.
class RunTaskTest : public testing::Test {
protected:
    /// Plays the steps on the road; the exit code.
    int Run(const std::string& road, const QByteArray& steps) {
        QFile script(folder_.filePath("steps.script"));
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
        script.write(steps);
        script.close();
        return Play(road, script.fileName().toStdString());
    }
    /// The same with the script of this name that comes along.
    int RunExample(const std::string& road) {
        return Play(road, std::string(KVOPT_SOURCE_DIR "/examples/scripts/") + road + ".script");
    }
    int Play(const std::string& road, const std::string& script) {
        CommandLine command;
        command.task = CommandLine::Task::Run;
        command.road = road;
        command.study = KVOPT_SOURCE_DIR "/examples/studies/" + study + ".json";
        command.plot = plot;
        command.script = script;
        command.out = Out().toStdString();
        std::ostringstream out;
        std::ostringstream faults;
        const int code = RunTask(command, out, faults);
        summary = out.str();
        told = faults.str();
        return code;
    }
    QString Out() const { return folder_.filePath("out"); }
    std::string Left(const QString& name) const { return Bytes(Out() + "/" + name); }

    /// Puts what the last run saved aside, as the plot of the next; gives its content.
    std::string KeepPlot() {
        const QString kept = folder_.filePath("kept.json");
        EXPECT_TRUE(QFile::rename(Out() + "/saved-plot.json", kept));
        plot = kept.toStdString();
        return Bytes(kept);
    }
    static std::string Bytes(const QString& name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
    }

    std::string study = "chemical-reaction-ccd-2-blocks";
    std::string plot;
    std::string summary;
    std::string told;

private:
    QTemporaryDir folder_;
};

TEST_F(RunTaskTest, LeavesTranscriptAndSavedPlotOfTheExampleScript) {
    EXPECT_EQ(RunExample("contour"), 0) << told;
    EXPECT_THAT(summary, HasSubstr("Wizard  finished\n"));
    EXPECT_THAT(summary, HasSubstr("Axis 1: Time, 82 to 88\n"));
    EXPECT_THAT(Left("transcript.txt"), HasSubstr("end 12325"));
    EXPECT_THAT(Left("saved-plot.json"), HasSubstr("Time"));
    EXPECT_THAT(Left("profile.ini"), HasSubstr("ContourResolution=64"));
    EXPECT_EQ(Left("registry.ini"), "none");
}

TEST_F(RunTaskTest, SavesNoPlotOfACancelledWizard) {
    EXPECT_EQ(Run("contour", "cancel\n"), 0) << told;
    EXPECT_THAT(summary, HasSubstr("Wizard  not finished\n"));
    EXPECT_EQ(Left("saved-plot.json"), "none");
}

TEST_F(RunTaskTest, FailsWhenTheScriptWasNotPlayedAsWritten) {
    EXPECT_EQ(Run("contour", "click 1\ncancel\n"), 1);
    EXPECT_THAT(told, HasSubstr("steps.script:1: click 1"));
}

TEST_F(RunTaskTest, MakesA4DContourPlot) {
    study = "paper-helicopter-ccd-blocked";
    EXPECT_EQ(RunExample("contour-4d"), 0) << told;
    EXPECT_THAT(summary, HasSubstr("Wizard  finished\n"));
    EXPECT_THAT(summary, HasSubstr("Kind: Response Contour Plot\n"));
    EXPECT_THAT(summary, HasSubstr("Axis 3: Body length, 1.8 to 2.4\n"));
    EXPECT_THAT(summary, HasSubstr("Axis 4: $BlockV: 1;2\n"));
    EXPECT_THAT(summary, Not(HasSubstr("Simulation")));
    EXPECT_THAT(Left("saved-plot.json"), HasSubstr("Body length"));
}

TEST_F(RunTaskTest, MakesADesignSpacePlot) {
    study = "tire-tread-ccd-4-responses";
    EXPECT_EQ(RunExample("design-space"), 0) << told;
    EXPECT_THAT(summary, HasSubstr("Wizard  finished\n"));
    EXPECT_THAT(summary, HasSubstr("Kind: Design Space Plot\n"));
    EXPECT_THAT(summary, HasSubstr("Responses\n        Abrasion index\n"
                                   "        Elongation at break\n        Hardness\n"));
    EXPECT_THAT(summary, HasSubstr("Simulations per point: 20000\n"));
}

TEST_F(RunTaskTest, ChangesASavedPlotIntoAnother) {
    ASSERT_EQ(RunExample("contour"), 0) << told;
    const std::string before = KeepPlot();
    const std::string remembered = Left("study.ini");
    EXPECT_EQ(RunExample("contour-sheet"), 0) << told;
    EXPECT_THAT(summary, HasSubstr("Sheet   finished\n"));
    EXPECT_THAT(summary, HasSubstr("Axis 1: Time, 82 to 90\n"));
    EXPECT_THAT(Left("saved-plot.json"), HasSubstr("Time"));
    EXPECT_NE(Left("saved-plot.json"), before);
    EXPECT_EQ(Bytes(QString::fromStdString(plot)), before) << "its file stays as it was";
    EXPECT_NE(Left("study.ini"), remembered) << "the next wizard proposes what was changed";
}

TEST_F(RunTaskTest, SavesNoPlotOfACancelledSheet) {
    ASSERT_EQ(RunExample("contour"), 0) << told;
    KeepPlot();
    EXPECT_EQ(Run("contour-sheet", "cancel\n"), 0) << told;
    EXPECT_THAT(summary, HasSubstr("Sheet   not finished\n"));
    EXPECT_EQ(Left("saved-plot.json"), "none");
}

TEST_F(RunTaskTest, TellsOfASavedPlotThatCannotBeRead) {
    plot = "missing.json";
    EXPECT_THROW(Run("contour-sheet", "cancel\n"), kvopt::FileError);
    EXPECT_EQ(kvopt::Investigation::GetActiveInvestigation(), nullptr);
}

TEST_F(RunTaskTest, ShowsAPageOfOneResponse) {
    EXPECT_EQ(Run("page-select-response",
                  "expect page 6184\n"
                  "expect entries \"Response\" \"<no response selected>\" \"Yield\"\n"
                  "expect text \"Response\" \"Yield\"\nok\n"),
              0)
        << told;
    EXPECT_THAT(summary, HasSubstr("Page    finished\nSelection\n        Response: Yield\n"));
    EXPECT_EQ(Left("saved-plot.json"), "none");
    EXPECT_EQ(Run("page-select-response", "pick \"Response\" \"<no response selected>\"\nok\n"), 0);
    EXPECT_THAT(summary, HasSubstr("Response: none\n"));
    EXPECT_EQ(Run("page-select-response", "cancel\n"), 0);
    EXPECT_THAT(summary, HasSubstr("Page    not finished\n"));
    EXPECT_THAT(summary, Not(HasSubstr("Response:")));
}

TEST_F(RunTaskTest, ShowsAPageOfOneFactor) {
    EXPECT_EQ(
        Run("page-select-variable", "expect page 6185\npick \"Variable\" \"Temperature\"\nok\n"), 0)
        << told;
    EXPECT_THAT(summary, HasSubstr("Page    finished\nSelection\n        Variable: Temperature\n"));
    EXPECT_THAT(Left("transcript.txt"), HasSubstr("sheet \"Select variable\""));
}

TEST_F(RunTaskTest, ShowsThePageOfSetpointProperties) {
    EXPECT_EQ(Run("page-design-space",
                  "expect page 6209\n"
                  "type \"Acceptable range simulations\" 50\nok\n"
                  "expect box error containing \"should range from 100 to 100 000\"\n"
                  "type \"Acceptable range simulations\" 500\n"
                  "click \"Automatic update\"\nok\n"),
              0)
        << told;
    EXPECT_THAT(summary, HasSubstr("Setpoint\n        Acceptable range simulations: 500\n"));
    EXPECT_THAT(summary, HasSubstr("Automatic update: no\n"));
    EXPECT_THAT(Left("study.ini"), HasSubstr("500"));
}

TEST_F(RunTaskTest, ShowsAPageOfConfidenceLevels) {
    EXPECT_EQ(Run("page-confidence-level",
                  "expect page 6155\n"
                  "expect text \"Interval type\" \"Confidence\"\n"
                  "expect text \"Confidence level\" \"95%\"\n"
                  "pick \"Interval type\" \"Tolerance\"\n"
                  "pick \"Confidence level\" \"99%\"\n"
                  "pick \"Tolerance proportion\" \"90%\"\nok\n"),
              0)
        << told;
    EXPECT_THAT(summary, HasSubstr("Interval\n        Interval type: Tolerance interval\n"
                                   "        Confidence level: 99%\n"
                                   "        Tolerance proportion: 90%\n"));
    EXPECT_EQ(
        Run("page-confidence-level", "pick \"Confidence level\" \"No confidence level\"\nok\n"), 0)
        << told;
    EXPECT_THAT(summary, HasSubstr("Confidence level: None\n"));
}

TEST_F(RunTaskTest, ShowsAPageOfPredictionLevels) {
    EXPECT_EQ(Run("page-prediction-level",
                  "expect page 6230\n"
                  "pick \"Interval type\" \"Prediction\"\n"
                  "pick \"Confidence level\" \"90%\"\nok\n"),
              0)
        << told;
    EXPECT_THAT(summary,
                HasSubstr("Interval type: Prediction interval\n        Confidence level: 90%\n"));
    EXPECT_EQ(Run("page-prediction-level", "pick \"Interval type\" \"None\"\nok\n"), 0) << told;
    EXPECT_THAT(summary, HasSubstr("Interval type: None\n        Confidence level: None\n"));
}

TEST_F(RunTaskTest, PutsTheUsersOwnStoresBack) {
    const kvopt::UserProfile* profile = kvopt::UserProfile::Instance();
    const kvopt::Registry* registry = kvopt::Registry::Instance();
    Run("page-select-variable", "ok\n");
    EXPECT_EQ(kvopt::UserProfile::Instance(), profile);
    EXPECT_EQ(kvopt::Registry::Instance(), registry);
    EXPECT_EQ(kvopt::Investigation::GetActiveInvestigation(), nullptr);
}

}  // namespace
