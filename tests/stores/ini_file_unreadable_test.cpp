#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "stores/store_test_support.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct BadFile {
    const char* label;
    std::string content;
    const char* place;
    const char* expected;
    const char* found;
    const char* readable = "";
};

class BadIniFile : public testing::TestWithParam<BadFile> {};

INSTANTIATE_TEST_SUITE_P(
    Stores, BadIniFile,
    testing::Values(
        BadFile{"NoEquals", "[A]\nKey=1\nno key\n", "line 3",
                "a section, a key with \"=\" or a comment", "\"no key\"", "[A]\nKey=1\n"},
        BadFile{"OpenHeader", "[A\n", "line 1", "\"[\", a name and \"]\"", "\"[A\""},
        BadFile{"TextAfterHeader", "\n[A] ; x\n", "line 2", "\"[\", a name and \"]\"", "\"; x\""},
        BadFile{"BadNumber", "[A;two]\n", "line 1", "a number from 1 up", "\"two\""},
        BadFile{"ZeroNumber", "[A;0]\n", "line 1", "a number from 1 up", "\"0\""},
        BadFile{"Nul", std::string("Key=1\nKey=\0\n", 12), "line 2", "text", "a NUL character",
                "Key=1\n"},
        BadFile{"ControlInError", "\x01\x02\n", "line 1", "a section", "\"%01%02\""},
        BadFile{"Long", std::string(100, 'x'), "line 1", "a section",
                "\"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...\""}),
    [](const testing::TestParamInfo<BadFile>& row) { return std::string(row.param.label); });

TEST_P(BadIniFile, IsSetAsideAndTheHostIsTold) {
    const test::TemporaryFolder folder;
    const std::string file = folder.File("study.ini");
    test::TroubleRecorder recorder;
    test::Spill(file, GetParam().content);
    {
        const auto section = IniFileFactory::Instance()->GetIniFile(file, "A");
        ASSERT_NE(section, nullptr);
        ASSERT_EQ(recorder.troubles.size(), 1U);
        const StoreTrouble& trouble = recorder.troubles.front();
        EXPECT_EQ(trouble.kind, StoreTrouble::Kind::SetAside);
        EXPECT_EQ(trouble.file, std::filesystem::canonical(folder.Path()) / "study.ini");
        EXPECT_EQ(trouble.movedTo, trouble.file + ".unreadable-1");
        EXPECT_THAT(trouble.reason, HasSubstr(trouble.file + ": " + GetParam().place + ":"));
        EXPECT_THAT(trouble.reason, HasSubstr(std::string("expected ") + GetParam().expected));
        EXPECT_THAT(trouble.reason, HasSubstr(std::string(", found ") + GetParam().found));
        EXPECT_EQ(test::Slurp(file), GetParam().readable) << "what could be read is used";
        section->WriteKey("Key", 2);
    }
    EXPECT_EQ(recorder.troubles.size(), 1U);
    EXPECT_THAT(test::Slurp(file), HasSubstr("[A]\nKey=2\n"));
    EXPECT_EQ(test::Slurp(file + ".unreadable-1"), GetParam().content);
    EXPECT_THAT(folder.Names(), ElementsAre("study.ini", "study.ini.unreadable-1"));
}

class UnreadableIniFile : public testing::Test {
protected:
    std::unique_ptr<IniFileSection> Open(const std::string& section) const {
        return IniFileFactory::Instance()->GetIniFile(file_, section);
    }

    const test::TemporaryFolder folder_;
    const std::string file_ = folder_.File("study.ini");
    test::TroubleRecorder recorder_;
};

TEST_F(UnreadableIniFile, SetsEachBadFileAsideUnderANameOfItsOwn) {
    for (const char* content : {"first\n", "second\n"}) {
        test::Spill(file_, content);
        Open("A");
    }
    EXPECT_EQ(test::Slurp(file_ + ".unreadable-1"), "first\n");
    EXPECT_EQ(test::Slurp(file_ + ".unreadable-2"), "second\n");
}

TEST_F(UnreadableIniFile, SetsAsideAFileThatWentBadWhileItWasOpenAndWritesItsChanges) {
    const auto section = Open("A");
    section->WriteKey("Key", 1);
    test::Spill(file_, "gone bad\n");
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "[A]\nKey=1\n");
    EXPECT_EQ(test::Slurp(file_ + ".unreadable-1"), "gone bad\n");
    ASSERT_EQ(recorder_.troubles.size(), 1U);
    EXPECT_EQ(recorder_.troubles.front().kind, StoreTrouble::Kind::SetAside);
}

TEST_F(UnreadableIniFile, RefusesNamesBeyondAHundredLevels) {
    std::string deep;
    for (int i = 0; i < 101; ++i) {
        deep += "[a]";
    }
    test::Spill(file_, deep + "\n");
    Open("A");
    ASSERT_EQ(recorder_.troubles.size(), 1U);
    EXPECT_THAT(recorder_.troubles.front().reason, HasSubstr("at most 100 names"));
}

}  // namespace
}  // namespace kvopt
