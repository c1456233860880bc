// What a damaged store still gives, and where the damaged file goes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "stores/file_layer_test_support.h"
#include "stores/store_test_support.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using namespace std::string_literals;

class Recovery : public testing::Test {
protected:
    const test::TemporaryFolder folder_;
    const std::string ini_ = folder_.File("study.ini");
    const std::string plot_ = folder_.File("plot.json");
    test::TroubleRecorder recorder_;
};

struct DamagedIni {
    const char* label;
    std::string damaged;
    std::string readable;
};

class DamagedIniFile : public testing::TestWithParam<DamagedIni> {};

INSTANTIATE_TEST_SUITE_P(
    Stores, DamagedIniFile,
    testing::Values(DamagedIni{"ALineThatIsNoKey",
                               "Top=1\n[A]\nKey=1\nno key\nLast=2\n[B]\nKey=3\n",
                               "Top=1\n[A]\nKey=1\nLast=2\n[B]\nKey=3\n"},
                    DamagedIni{"CommentsStay",
                               "; one\nTop=1\n\n# two\n[A]\n; three\nKey=1\nno key\n; end\n",
                               "; one\nTop=1\n\n# two\n[A]\n; three\nKey=1\n; end\n"},
                    DamagedIni{"ItsOwnCommentGoesWithIt",
                               "Top=1\n; of the bad line\nno key\n; of Last\nLast=2\n",
                               "Top=1\n; of Last\nLast=2\n"},
                    DamagedIni{"KeysBelowABadHeaderAreOfNoSection",
                               "[A]\nKey=1\n[B\nKey=2\n; mine\n[C]\nKey=3\n",
                               "[A]\nKey=1\n; mine\n[C]\nKey=3\n"},
                    DamagedIni{"AHeaderThatIsBadAtItsEndMakesNoSection",
                               "[A][B][C;0]\nKey=1\n[D]\nKey=2\n", "[D]\nKey=2\n"},
                    DamagedIni{"ANulInAHeader", "[A]\nKey=1\n[\0]\nKey=2\n[C]\nKey=3\n"s,
                               "[A]\nKey=1\n[C]\nKey=3\n"},
                    DamagedIni{"ANulInAKey", "[A]\nKey\0=1\nLast=2\n"s, "[A]\nLast=2\n"},
                    DamagedIni{"ZerosAtTheEnd", "[A]\nKey=1\nLast=2\n" + std::string(4096, '\0'),
                               "[A]\nKey=1\nLast=2\n"},
                    DamagedIni{"CutInAHeader", "[A]\nKey=1\n[Spe", "[A]\nKey=1\n"},
                    DamagedIni{"CutInAKey", "[A]\nKey=1\nLas", "[A]\nKey=1\n"},
                    DamagedIni{"NothingAtAll", "%PDF\n\x01\x02\x03\n", ""}),
    [](const testing::TestParamInfo<DamagedIni>& row) { return std::string(row.param.label); });

TEST_P(DamagedIniFile, GoesOnWithWhatCouldBeRead) {
    const test::TemporaryFolder folder;
    const std::string file = folder.File("study.ini");
    const test::TroubleRecorder recorder;
    test::Spill(file, GetParam().damaged);
    IniFileFactory::Instance()->GetIniFile(file, "");
    EXPECT_EQ(test::Slurp(file), GetParam().readable);
    EXPECT_EQ(test::Slurp(file + ".unreadable-1"), GetParam().damaged);
    EXPECT_EQ(recorder.troubles.size(), 1U);
    IniFileFactory::Instance()->GetIniFile(file, "");
    EXPECT_EQ(recorder.troubles.size(), 1U) << "what stands there now is good";
    EXPECT_THAT(folder.Names(), testing::SizeIs(2));
}

TEST_F(Recovery, UsesWhatCanBeReadAlsoWhenTheFileCannotBeSetAside) {
    test::Spill(ini_, "[A]\nKey=1\nno key\n");
    IniFileFactory factory(std::make_shared<test::AskingLayer>(
        [](const std::string& operation, int) { return operation == "Link" ? EACCES : 0; }));
    const auto section = factory.GetIniFile(ini_, "A");
    EXPECT_EQ(section->ReadKeyOr("Key", 7), 1);
    EXPECT_EQ(test::Slurp(ini_), "[A]\nKey=1\nno key\n");
}

TEST_F(Recovery, KeepsItsOwnChangesBesideWhatCouldBeRead) {
    test::Spill(ini_, "[A]\nMine=1\nTheirs=1\n");
    const auto section = IniFileFactory::Instance()->GetIniFile(ini_, "A");
    section->WriteKey("Mine", 2);
    test::Spill(ini_, "[A]\nMine=1\nTheirs=5\ngone bad\n");
    section->Flush();
    EXPECT_EQ(test::Slurp(ini_), "[A]\nMine=2\nTheirs=5\n");
    EXPECT_EQ(test::Slurp(ini_ + ".unreadable-1"), "[A]\nMine=1\nTheirs=5\ngone bad\n");
}

// Every kind of line at every kind of place, around one that is written.
TEST_F(Recovery, LinesThatThisVersionDoesNotKnowStayInPlaceAndOrder) {
    const std::string before =
        "# first\n"
        "Unknown = 1\n"
        "\n"
        "[Zeta]\n"
        "; of Key\n"
        "Key=1\n"
        "Later = x ; no comment\n"
        "[Alpha]\n"
        "[Zeta][Inside]\n"
        "; of Key inside\n"
        "Key=1\n"
        "[Zeta;3]\n"
        "Key=1\n"
        "\n"
        "; of Beta\n"
        "[Beta]\n"
        "Key=1\n"
        "[Zeta;2]\n"
        "Key=1\n"
        "[Alpha][Deep][Down]\n"
        "Key=1\n"
        "; last\n";
    test::Spill(ini_, before);
    {
        const auto section = IniFileFactory::Instance()->GetIniFile(ini_, "Zeta");
        section->WriteKey("Key", 2);
    }
    std::string after = before;
    after.replace(after.find("Key=1"), 5, "Key=2");
    EXPECT_EQ(test::Slurp(ini_), after);
    {
        const auto section = IniFileFactory::Instance()->GetIniFile(ini_, "");
        section->GetSection("Alpha")->GetSection("New")->WriteKey("Key", 3);
        section->GetSection("Zeta")->GetSection("New")->WriteKey("Key", 4);
        section->GetSection("Alpha")->GetSection("Deep")->WriteKey("Key", 5);
        section->GetSection("Last")->GetSection("Inside")->WriteKey("Key", 6);
    }
    const auto insert = [&](const std::string& place, const std::string& lines) {
        after.insert(after.find(place), lines);
    };
    insert("[Zeta;3]", "\n[Zeta][New]\nKey=4\n");
    insert("[Alpha][Deep][Down]", "\n[Alpha][Deep]\nKey=5\n");
    insert("; last", "\n[Alpha][New]\nKey=3\n\n[Last]\n\n[Last][Inside]\nKey=6\n");
    EXPECT_EQ(test::Slurp(ini_), after);
}

ConfigurationStore Plot() {
    ConfigurationStore store;
    const auto root = store.Root();
    root->WriteKey("PlotType", 4);
    root->GetSection("A")->GetSection("Inside")->WriteKey("Key", "text");
    root->GetSection("B")->WriteKey("Key", 1);
    return store;
}

TEST_F(Recovery, ASavedPlotGivesWhatStandsBeforeTheDamage) {
    const std::string whole = Plot().Text();
    const std::string damaged = whole.substr(0, whole.rfind("[\"Key\", \"int\""));
    test::Spill(plot_, damaged);
    EXPECT_THROW(ConfigurationStore::Load(plot_), FileFormatError);
    EXPECT_THAT(folder_.Names(), ElementsAre("plot.json")) << "Load() leaves it alone";
    ConfigurationStore store = ConfigurationStore::Recover(plot_);
    const auto root = store.Root();
    EXPECT_EQ(root->ReadKeyOr("PlotType", 0), 4);
    EXPECT_EQ(root->GetSection("A")->GetSection("Inside")->ReadKeyOr("Key", std::string()), "text");
    EXPECT_TRUE(root->HasSection("B", true));
    EXPECT_EQ(root->GetSection("B")->ReadKeyOr("Key", 0), 0);
    ASSERT_EQ(recorder_.troubles.size(), 1U);
    EXPECT_EQ(recorder_.troubles.front().kind, StoreTrouble::Kind::SetAside);
    EXPECT_THAT(recorder_.troubles.front().reason, HasSubstr("line 14"));
    EXPECT_EQ(test::Slurp(recorder_.troubles.front().movedTo), damaged);
    EXPECT_EQ(ConfigurationStore::Load(plot_).Text(), store.Text());
    root->WriteKey("PlotType", 5);
    root->Flush();
    EXPECT_EQ(ConfigurationStore::Load(plot_).Root()->ReadKeyOr("PlotType", 0), 5);
    EXPECT_THAT(folder_.Names(), ElementsAre("plot.json", "plot.json.unreadable-1"));
}

TEST_F(Recovery, AGoodSavedPlotIsNotTouched) {
    Plot().Save(plot_);
    EXPECT_EQ(ConfigurationStore::Recover(plot_).Text(), Plot().Text());
    EXPECT_THAT(folder_.Names(), ElementsAre("plot.json"));
    EXPECT_TRUE(recorder_.troubles.empty());
    EXPECT_THROW(ConfigurationStore::Recover(folder_.File("missing.json")), FileError);
}

struct DamagedPlot {
    const char* label;
    std::string damaged;
    std::string readable;
};

class DamagedSavedPlot : public testing::TestWithParam<DamagedPlot> {};

const std::string kHead = "{\n \"kvopt\": \"sections\",\n \"version\": 1";

INSTANTIATE_TEST_SUITE_P(
    Stores, DamagedSavedPlot,
    testing::Values(
        DamagedPlot{"Empty", "", kHead + "\n}\n"}, DamagedPlot{"NoPlot", "[1, 2]", kHead + "\n}\n"},
        DamagedPlot{"OtherFormat", "{\"kvopt\":\"study\",\"version\":1}", kHead + "\n}\n"},
        DamagedPlot{"OtherVersion",
                    "{\"kvopt\":\"sections\",\"version\":2,\"keys\":[[\"a\",\"int\",\"1\"]]}",
                    kHead + "\n}\n"},
        DamagedPlot{"OtherVersionBehindTheKeys",
                    "{\"kvopt\":\"sections\",\"keys\":[[\"a\",\"int\",\"1\"]],\"version\":2}",
                    kHead + "\n}\n"},
        DamagedPlot{"CutBeforeTheFormat", "{\"version\":1,\"keys\":[[\"a\",\"int\",\"1\"]],\"kv",
                    kHead + "\n}\n"},
        DamagedPlot{"TextBehind", kHead + "}\nx", kHead + "\n}\n"},
        DamagedPlot{"ABadKey", kHead + ",\"keys\":[[\"a\",\"int\",\"1\"],[\"b\",\"int\",\"x\"]]}",
                    kHead + ",\n \"keys\": [\n  [\"a\", \"int\", \"1\"]]\n}\n"},
        DamagedPlot{"ASectionWithoutAName", kHead + ",\"sections\":[{\"name\":\"a\"},{\"number\":2",
                    kHead + ",\n \"sections\": [\n  {\"name\": \"a\"}]\n}\n"},
        DamagedPlot{"ASectionThatStandsTwice",
                    kHead + ",\"sections\":[{\"name\":\"a\"},{\"name\":\"a\",",
                    kHead + ",\n \"sections\": [\n  {\"name\": \"a\"}]\n}\n"},
        DamagedPlot{"CutDeepInside",
                    kHead + ",\"sections\":[{\"name\":\"a\",\"sections\":[{\"name\":\"b\",\"ke",
                    kHead + ",\n \"sections\": [\n  {\"name\": \"a\",\n   \"sections\": [\n"
                            "    {\"name\": \"b\"}]}]\n}\n"}),
    [](const testing::TestParamInfo<DamagedPlot>& row) { return std::string(row.param.label); });

TEST_P(DamagedSavedPlot, GoesOnWithWhatCouldBeRead) {
    const test::TemporaryFolder folder;
    const std::string file = folder.File("plot.json");
    const test::TroubleRecorder recorder;
    test::Spill(file, GetParam().damaged);
    EXPECT_EQ(ConfigurationStore::Recover(file).Text(), GetParam().readable);
    EXPECT_EQ(test::Slurp(file), GetParam().readable);
    EXPECT_EQ(test::Slurp(file + ".unreadable-1"), GetParam().damaged);
    EXPECT_EQ(recorder.troubles.size(), 1U);
}

TEST_F(Recovery, ADamagedPlotThatCannotBeSetAsideIsNotWrittenOver) {
    const std::string damaged = Plot().Text().substr(0, 100);
    test::Spill(plot_, damaged);
    bool isFaulty = true;
    const auto layer = std::make_shared<test::AskingLayer>([&](const std::string& operation, int) {
        return isFaulty && operation == "Link" ? EACCES : 0;
    });
    ConfigurationStore store = ConfigurationStore::Recover(plot_, layer);
    EXPECT_EQ(store.Root()->ReadKeyOr("PlotType", 0), 4);
    ASSERT_EQ(recorder_.troubles.size(), 1U);
    EXPECT_EQ(recorder_.troubles.front().movedTo, "");
    EXPECT_THAT(recorder_.troubles.front().reason, HasSubstr("cannot be set aside"));
    store.Root()->WriteKey("PlotType", 5);
    store.Root()->Flush();
    ASSERT_EQ(recorder_.troubles.size(), 2U);
    EXPECT_EQ(recorder_.troubles.back().kind, StoreTrouble::Kind::NotWritten);
    EXPECT_EQ(test::Slurp(plot_), damaged);
    isFaulty = false;
    store.Root()->Flush();
    EXPECT_EQ(ConfigurationStore::Load(plot_).Root()->ReadKeyOr("PlotType", 0), 5);
    EXPECT_EQ(test::Slurp(plot_ + ".unreadable-1"), damaged);
}

TEST_F(Recovery, APlotThatIsSavedOverAFileOfAnotherKindSetsItAside) {
    for (const char* content : {"a picture", "{\"kvopt\": \"study\"}"}) {
        test::Spill(plot_, content);
        Plot().Save(plot_);
        EXPECT_EQ(test::Slurp(plot_), Plot().Text());
        ASSERT_FALSE(recorder_.troubles.empty());
        EXPECT_EQ(recorder_.troubles.back().kind, StoreTrouble::Kind::SetAside);
        EXPECT_EQ(test::Slurp(recorder_.troubles.back().movedTo), content);
    }
    EXPECT_EQ(recorder_.troubles.size(), 2U);
    ConfigurationStore().Save(plot_);
    EXPECT_EQ(recorder_.troubles.size(), 2U) << "over another plot there is nothing to tell";
}

TEST_F(Recovery, APlotThatWentBadWhileItWasOpenIsSetAside) {
    ConfigurationStore store = Plot();
    store.Save(plot_);
    test::Spill(plot_, "gone bad");
    store.Root()->WriteKey("PlotType", 5);
    store.Root()->Flush();
    EXPECT_EQ(test::Slurp(plot_), store.Text());
    EXPECT_EQ(test::Slurp(plot_ + ".unreadable-1"), "gone bad");
}

}  // namespace
}  // namespace kvopt
