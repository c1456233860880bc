#include "kvopt/stores/configuration_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "kvopt/text.h"
#include "stores/store_test_support.h"
#include "text/german_process.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(ConfigurationStore, WritesOneLineForEachKeyInOrder) {
    ConfigurationStore store;
    const auto root = store.Root();
    root->WriteKey("PlotType", 4);
    root->WriteKey("IsUsed", false);
    const auto child = root->GetSection("ContourPlotData");
    child->WriteKey("Min", -0.0);
    child->GetSection("Empty");
    root->GetIndexedSection("Constant", 2)->WriteKey("Name", "a \"b\"\\\n\t\x01");
    root->GetIndexedSection("Constant", 1)->WriteKey("Name", "\xFF");
    const std::string text = store.Text();
    EXPECT_EQ(text, R"({
 "kvopt": "sections",
 "version": 1,
 "keys": [
  ["PlotType", "int", "4"],
  ["IsUsed", "bool", "false"]],
 "sections": [
  {"name": "ContourPlotData",
   "keys": [
    ["Min", "double", "-0"]],
   "sections": [
    {"name": "Empty"}]},
  {"name": "Constant", "number": 2,
   "keys": [
    ["Name", "text", "a \"b\"\\\n\t\u0001"]]},
  {"name": "Constant",
   "keys": [
    ["Name", "text", {"bytes": "ff"}]]}]
}
)");
    EXPECT_EQ(ConfigurationStore::Parse(text, "x").Text(), text);
    EXPECT_EQ(ConfigurationStore().Text(), "{\n \"kvopt\": \"sections\",\n \"version\": 1\n}\n");
}

TEST(ConfigurationStore, BringsEveryDoubleBackExactlyThroughAFile) {
    const test::GermanProcess german;
    const test::TemporaryFolder folder;
    std::vector<double> values = {0.0,
                                  -0.0,
                                  std::numeric_limits<double>::denorm_min(),
                                  -std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity(),
                                  1.5,
                                  1234.5};
    std::mt19937_64 random(7);
    while (values.size() < 5000) {
        const auto value = std::bit_cast<double>(static_cast<std::uint64_t>(random()));
        if (!std::isnan(value)) {
            values.push_back(value);
        }
    }
    ConfigurationStore store;
    const auto root = store.Root();
    for (std::size_t i = 0; i < values.size(); ++i) {
        root->WriteKey(std::to_string(i).c_str(), values[i]);
    }
    root->WriteKey("nan", std::nan(""));
    store.Save(folder.File("plot.json"));
    const auto back = ConfigurationStore::Load(folder.File("plot.json")).Root();
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double value = back->ReadKeyOr(std::to_string(i).c_str(), kNotSet);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(values[i]));
    }
    EXPECT_TRUE(std::isnan(back->ReadKeyOr("nan", kNotSet)));
}

TEST(ConfigurationStore, KeepsTypesThroughAFile) {
    const test::TemporaryFolder folder;
    ConfigurationStore store;
    const auto root = store.Root();
    root->WriteKey("Real", 1.0);
    root->WriteKey("Text", "1");
    root->WriteKey("Int", 1);
    root->WriteKey("Bool", true);
    store.Save(folder.File("plot.json"));
    const auto back = ConfigurationStore::Load(folder.File("plot.json")).Root();
    EXPECT_EQ(back->ReadKeyOr("Real", -1), -1);
    EXPECT_EQ(back->ReadKeyOr("Real", kNotSet), 1.0);
    EXPECT_EQ(back->ReadKeyOr("Text", -1), -1);
    EXPECT_EQ(back->ReadKeyOr("Text", std::string()), "1");
    EXPECT_EQ(back->ReadKeyOr("Int", std::string("none")), "none");
    EXPECT_EQ(back->ReadKeyOr("Int", kNotSet), 1.0);
    EXPECT_EQ(back->ReadKeyOr("Bool", -1), 1);
    EXPECT_EQ(back->ReadKeyOr("Bool", std::string("none")), "none");
}

TEST(ConfigurationStore, ReadsMembersInAnyOrderAndKeysItDoesNotKnow) {
    const ConfigurationStore store = ConfigurationStore::Parse(
        R"({"sections":[{"keys":[["FromAnotherVersion","int","7"]],"number":3,"name":"A"}],
            "version":1,"kvopt":"sections","keys":[]})",
        "x");
    const auto root = store.Root();
    EXPECT_EQ(root->GetIndexedSection("A", 3)->ReadKeyOr("FromAnotherVersion", 0), 7);
    EXPECT_THAT(store.Text(), HasSubstr("FromAnotherVersion"));
}

struct BadText {
    const char* label;
    const char* text;
    const char* place;
    const char* expected;
    const char* found;
};

class BadSavedPlot : public testing::TestWithParam<BadText> {};

#define KVOPT_TEST_DOCUMENT(content) R"({"kvopt":"sections","version":1,)" content "}"

INSTANTIATE_TEST_SUITE_P(
    Stores, BadSavedPlot,
    testing::Values(
        BadText{"Empty", "", "line 1, column 1", "a literal", "the end of the file"},
        BadText{"Cut", "{\n \"kvopt\": \"sec", "line 2, column 15", "JSON", "the end of the file"},
        BadText{"NotJson", "{\n \"kvopt\": sections}", "line 2, column 11", "JSON",
                "\"sections}\""},
        BadText{"Array", "[]", "the document", "an object", "an array"},
        BadText{"Text", "\"a\"", "the document", "an object", "\"a\""},
        BadText{"Null", "null", "the document", "an object", "null"},
        BadText{"Number", "-1", "the document", "an object", "-1"},
        BadText{"NoFormat", "{}", "the document", "\"kvopt\", \"version\"", "none of them"},
        BadText{"NoVersion", R"({"kvopt":"sections"})", "the document", "\"version\"",
                "none of them"},
        BadText{"OtherFormat", R"({"kvopt":"study"})", "/kvopt", "\"sections\"", "\"study\""},
        BadText{"NewVersion", R"({"kvopt":"sections","version":2})", "/version", "version 1", "2"},
        BadText{"RealVersion", R"({"kvopt":"sections","version":1.5})", "/version", "version 1",
                "1.5"},
        BadText{"UnknownMember", KVOPT_TEST_DOCUMENT(R"("a":1)"), "the document",
                "\"kvopt\", \"version\"", "\"a\""},
        BadText{"KeysNoArray", KVOPT_TEST_DOCUMENT(R"("keys":{})"), "/keys", "an array",
                "an object"},
        BadText{"KeyNoArray", KVOPT_TEST_DOCUMENT(R"("keys":[["a","int","1"],7])"), "/keys/1",
                "an array of name, type and value", "7"},
        BadText{"KeyTooShort", KVOPT_TEST_DOCUMENT(R"("keys":[["a","int"]])"), "/keys/0/2",
                "three texts", "2 of them"},
        BadText{"KeyTooLong", KVOPT_TEST_DOCUMENT(R"("keys":[["a","int","1","2"]])"), "/keys/0/3",
                "three texts", "\"2\""},
        BadText{"KeyNumber", KVOPT_TEST_DOCUMENT(R"("keys":[["a","int",1]])"), "/keys/0/2",
                "three texts", "1"},
        BadText{"KeyBool", KVOPT_TEST_DOCUMENT(R"("keys":[["a","bool",true]])"), "/keys/0/2",
                "three texts", "true"},
        BadText{"UnknownType", KVOPT_TEST_DOCUMENT(R"("keys":[["a","float","1"]])"), "/keys/0/1",
                "\"bool\", \"int\", \"double\" or \"text\"", "\"float\""},
        BadText{"BadInt", KVOPT_TEST_DOCUMENT(R"("keys":[["a","int","1.5"]])"), "/keys/0/2",
                "a value of the type \"int\"", "\"1.5\""},
        BadText{"BadBool", KVOPT_TEST_DOCUMENT(R"("keys":[["a","bool","1"]])"), "/keys/0/2",
                "a value of the type \"bool\"", "\"1\""},
        BadText{"BadDouble", KVOPT_TEST_DOCUMENT(R"("keys":[["a","double","1,5"]])"), "/keys/0/2",
                "a value of the type \"double\"", "\"1,5\""},
        BadText{"KeyTwice", KVOPT_TEST_DOCUMENT(R"("keys":[["a","int","1"],["a","int","2"]])"),
                "/keys/1/0", "a key that the section does not hold yet", "\"a\""},
        BadText{"SectionNoObject", KVOPT_TEST_DOCUMENT(R"("sections":["a"])"), "/sections/0",
                "an object", "\"a\""},
        BadText{"SectionNoName", KVOPT_TEST_DOCUMENT(R"("sections":[{"name":"a"},{}])"),
                "/sections/1", "a section with a \"name\"", "one without"},
        BadText{"SectionTwice", KVOPT_TEST_DOCUMENT(R"("sections":[{"name":"a"},{"name":"a"}])"),
                "/sections/1", "a name and number that no section beside it has", "\"a\", 1"},
        BadText{"SectionMember", KVOPT_TEST_DOCUMENT(R"("sections":[{"version":1}])"),
                "/sections/0", "\"name\", \"number\"", "\"version\""},
        BadText{"NameNumber", KVOPT_TEST_DOCUMENT(R"("sections":[{"name":1}])"), "/sections/0/name",
                "a text", "1"},
        BadText{"NumberZero", KVOPT_TEST_DOCUMENT(R"("sections":[{"number":0}])"),
                "/sections/0/number", "a number from 1 up", "0"},
        BadText{"NumberHuge", KVOPT_TEST_DOCUMENT(R"("sections":[{"number":2147483648}])"),
                "/sections/0/number", "a number from 1 up", "2147483648"},
        BadText{"NumberText", KVOPT_TEST_DOCUMENT(R"("sections":[{"number":"1"}])"),
                "/sections/0/number", "a number from 1 up", "\"1\""},
        BadText{"BytesOdd", KVOPT_TEST_DOCUMENT(R"("sections":[{"name":{"bytes":"fff"}}])"),
                "/sections/0/name/bytes", "pairs of the digits", "\"fff\""},
        BadText{"BytesNoHex", KVOPT_TEST_DOCUMENT(R"("sections":[{"name":{"bytes":"xx"}}])"),
                "/sections/0/name/bytes", "pairs of the digits", "\"xx\""},
        BadText{"BytesNone", KVOPT_TEST_DOCUMENT(R"("sections":[{"name":{}}])"), "/sections/0/name",
                "\"bytes\"", "none"},
        BadText{"Deep", KVOPT_TEST_DOCUMENT(R"("keys":[[[]]])"), "/keys/0/0", "three texts",
                "an array"},
        BadText{"Rest", "{\"kvopt\":\"sections\",\"version\":1}\nx", "line 2, column 1",
                "end of input", "\"x\""}),
    [](const testing::TestParamInfo<BadText>& row) { return std::string(row.param.label); });

TEST_P(BadSavedPlot, SaysFilePlaceExpectedAndFound) {
    try {
        ConfigurationStore::Parse(GetParam().text, "plots/one.json");
        FAIL() << "no error";
    } catch (const FileFormatError& error) {
        EXPECT_EQ(error.File(), "plots/one.json");
        EXPECT_EQ(error.Place(), GetParam().place);
        EXPECT_THAT(error.Expected(), HasSubstr(GetParam().expected));
        EXPECT_THAT(error.Found(), HasSubstr(GetParam().found));
        EXPECT_THAT(error.what(), HasSubstr("plots/one.json: "));
    }
}

TEST(ConfigurationStore, RefusesSectionsBeyondAHundredLevels) {
    const auto nested = [](int levels) {
        std::string text = "{\"kvopt\":\"sections\",\"version\":1";
        for (int i = 0; i < levels; ++i) {
            text += ",\"sections\":[{\"name\":\"a\"";
        }
        for (int i = 0; i < levels; ++i) {
            text += "}]";
        }
        return text + "}";
    };
    EXPECT_NO_THROW(ConfigurationStore::Parse(nested(100), "x"));
    EXPECT_THROW(ConfigurationStore::Parse(nested(101), "x"), FileFormatError);
    EXPECT_THROW(ConfigurationStore::Parse(nested(100000), "x"), FileFormatError);
}

TEST(ConfigurationStore, LoadSaysWhatCannotBeRead) {
    const test::TemporaryFolder folder;
    EXPECT_THROW(ConfigurationStore::Load(folder.File("missing.json")), FileError);
    EXPECT_THROW(ConfigurationStore::Load(folder.Path()), FileError);
    ASSERT_EQ(::mkfifo(folder.File("pipe.json").c_str(), 0600), 0);
    EXPECT_THROW(ConfigurationStore::Load(folder.File("pipe.json")), FileError)
        << "without waiting for somebody to write into it";
    test::Spill(folder.File("bad.json"), "{");
    EXPECT_THROW(ConfigurationStore::Load(folder.File("bad.json")), FileFormatError);
    EXPECT_EQ(test::Slurp(folder.File("bad.json")), "{");
}

TEST(ConfigurationStore, SaveSaysWhatCannotBeWrittenAndLeavesTheOldFile) {
    const test::TemporaryFolder folder;
    ConfigurationStore store;
    EXPECT_THROW(store.Save(folder.File("missing/plot.json")), FileError);
    std::filesystem::create_directory(folder.File("folder"));
    EXPECT_THROW(store.Save(folder.File("folder")), FileError);
    EXPECT_THAT(folder.Names(), ElementsAre("folder"));
}

TEST(ConfigurationStore, FlushOfASectionWritesTheFileItWasLoadedFromOrSavedTo) {
    const test::TemporaryFolder folder;
    const std::string file = folder.File("plot.json");
    ConfigurationStore store;
    const auto root = store.Root();
    root->WriteKey("Key", 1);
    root->Flush();
    EXPECT_TRUE(folder.Names().empty()) << "no file was named yet";
    store.Save(file);
    root->WriteKey("Key", 2);
    root->GetSection("Child")->Flush();
    ConfigurationStore loaded = ConfigurationStore::Load(file);
    EXPECT_EQ(loaded.Root()->ReadKeyOr("Key", 0), 2);
    loaded.Root()->WriteKey("Key", 3);
    loaded.Root()->Flush();
    EXPECT_EQ(ConfigurationStore::Load(file).Root()->ReadKeyOr("Key", 0), 3);
    loaded.Root()->WriteKey("Key", 4);
    EXPECT_EQ(ConfigurationStore::Load(file).Root()->ReadKeyOr("Key", 0), 3) << "only on Flush";
}

TEST(ConfigurationStore, FlushTellsTheHostWhatCannotBeWritten) {
    test::TroubleRecorder recorder;
    ConfigurationStore store;
    {
        const test::TemporaryFolder folder;
        store.Save(folder.File("plot.json"));
    }
    store.Root()->WriteKey("Key", 1);
    EXPECT_NO_THROW(store.Root()->Flush());
    ASSERT_EQ(recorder.troubles.size(), 1U);
    EXPECT_EQ(recorder.troubles.front().kind, StoreTrouble::Kind::NotWritten);
    EXPECT_THAT(recorder.troubles.front().file, HasSubstr("plot.json"));
}

TEST(ConfigurationStore, AFlushWithoutChangesWritesNothing) {
    const test::TemporaryFolder folder;
    const std::string file = folder.File("plot.json");
    ConfigurationStore store;
    store.Save(file);
    std::filesystem::remove(file);
    store.Root()->Flush();
    EXPECT_TRUE(folder.Names().empty());
}

TEST(ConfigurationStore, SavesAgainWhereItsFileIsGoneOrEmptyByThen) {
    const test::TemporaryFolder folder;
    const test::TroubleRecorder recorder;
    const std::string file = folder.File("plot.json");
    ConfigurationStore store;
    store.Save(file);
    std::filesystem::remove(file);
    for (const int value : {1, 2}) {
        store.Root()->WriteKey("Key", value);
        store.Root()->Flush();
        EXPECT_EQ(test::Slurp(file), store.Text());
        test::Spill(file, "");
    }
    EXPECT_TRUE(recorder.troubles.empty());
    EXPECT_THAT(folder.Names(), ElementsAre("plot.json")) << "nothing was set aside";
}

TEST(ConfigurationStore, CopiesShareOneTree) {
    ConfigurationStore store;
    ConfigurationStore copy = store;
    store.Root()->WriteKey("Key", 1);
    EXPECT_EQ(copy.Root()->ReadKeyOr("Key", 0), 1);
}

TEST(ConfigurationStore, FollowsASymbolicLinkWhenItSaves) {
    const test::TemporaryFolder folder;
    test::Spill(folder.File("plot.json"), ConfigurationStore().Text());
    std::filesystem::create_symlink("plot.json", folder.File("link.json"));
    ConfigurationStore store;
    store.Save(folder.File("link.json"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("link.json")));
    EXPECT_EQ(test::Slurp(folder.File("plot.json")), store.Text());
}

}  // namespace
}  // namespace kvopt
