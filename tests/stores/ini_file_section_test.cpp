#include "kvopt/stores/ini_file_section.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cmath>
#include <limits>
#include <string>

#include "kvopt/text.h"
#include "stores/store_test_support.h"
#include "text/german_process.h"

namespace kvopt {
namespace {

using testing::ElementsAre;

// What the file holds after `write` had it open, and what a fresh look at it reads.
class IniFileSectionTest : public testing::Test {
protected:
    std::unique_ptr<IniFileSection> Open(const std::string& section = "") const {
        return IniFileFactory::Instance()->GetIniFile(file_, section);
    }

    const test::TemporaryFolder folder_;
    const std::string file_ = folder_.File("study.ini");
    test::TroubleRecorder recorder_;
};

TEST_F(IniFileSectionTest, WritesEachTypeAsReadableText) {
    const test::GermanProcess german;
    {
        const auto section = Open("Options");
        section->WriteKey("Bool", true);
        section->WriteKey("Int", 1234567);
        section->WriteKey("Double", 1234.5);
        section->WriteKey("Small", 5e-324);
        section->WriteKey("Text", "Öl; 5 µm");
    }
    EXPECT_EQ(test::Slurp(file_),
              "[Options]\nBool=true\nInt=1234567\nDouble=1234.5\nSmall=5e-324\nText=Öl; 5 µm\n");
    const auto section = Open("Options");
    EXPECT_TRUE(section->ReadKeyOr("Bool", false));
    EXPECT_EQ(section->ReadKeyOr("Bool", -1), 1);
    EXPECT_EQ(section->ReadKeyOr("Int", 0), 1234567);
    EXPECT_EQ(section->ReadKeyOr("Double", 0.0), 1234.5);
    EXPECT_EQ(section->ReadKeyOr("Small", 0.0), 5e-324);
    EXPECT_EQ(section->ReadKeyOr("Text", std::string()), "Öl; 5 µm");
}

TEST_F(IniFileSectionTest, BringsSpecialDoublesBack) {
    const std::vector<double> values = {-0.0,
                                        std::numeric_limits<double>::infinity(),
                                        -std::numeric_limits<double>::infinity(),
                                        std::numeric_limits<double>::denorm_min(),
                                        std::numeric_limits<double>::max(),
                                        0.1 + 0.2};
    for (const double value : values) {
        Open("A")->WriteKey("Value", value);
        const double back = Open("A")->ReadKeyOr("Value", kNotSet);
        EXPECT_EQ(back, value);
        EXPECT_EQ(std::signbit(back), std::signbit(value));
    }
    Open("A")->WriteKey("Value", std::nan(""));
    EXPECT_TRUE(std::isnan(Open("A")->ReadKeyOr("Value", kNotSet)));
}

TEST_F(IniFileSectionTest, ASectionNameSelectsThatSection) {
    Open("A")->WriteKey("Key", 1);
    Open("")->WriteKey("Key", 2);
    EXPECT_EQ(test::Slurp(file_), "Key=2\n[A]\nKey=1\n");
    const auto section = Open("A");
    EXPECT_EQ(section->ReadKeyOr("Key", 0), 1);
    section->SetSection("");
    EXPECT_EQ(section->ReadKeyOr("Key", 0), 2);
}

TEST_F(IniFileSectionTest, ReadingNeverWrites) {
    {
        const auto section = Open("A");
        EXPECT_EQ(section->ReadKeyOr("Key", 7), 7);
        section->SetSection("B");
        EXPECT_FALSE(section->HasSection("C", true));
        section->Flush();
    }
    EXPECT_THAT(folder_.Names(), ElementsAre());
    test::Spill(file_, "\xEF\xBB\xBF[A]\r\nKey = 1 ");
    EXPECT_EQ(Open("A")->ReadKeyOr("Key", 7), 1);
    EXPECT_EQ(test::Slurp(file_), "\xEF\xBB\xBF[A]\r\nKey = 1 ");
    EXPECT_THAT(folder_.Names(), ElementsAre("study.ini"));
}

TEST_F(IniFileSectionTest, WritesThroughOnFlush) {
    const auto section = Open("A");
    section->WriteKey("Key", 1);
    EXPECT_EQ(test::Slurp(file_), "");
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "[A]\nKey=1\n");
}

TEST_F(IniFileSectionTest, WritesThroughWhenReleasedAlsoWhileOthersLive) {
    const auto other = Open("B");
    Open("A")->WriteKey("Key", 1);
    EXPECT_EQ(test::Slurp(file_), "[A]\nKey=1\n");
}

TEST_F(IniFileSectionTest, SectionsOfOneFileShareOneStoreBeforeAnythingIsWritten) {
    const auto one = Open("A");
    const auto other = Open("A");
    one->WriteKey("Key", 1);
    EXPECT_EQ(other->ReadKeyOr("Key", 0), 1);
    EXPECT_EQ(Open("A")->ReadKeyOr("Key", 0), 1);
    EXPECT_EQ(test::Slurp(file_), "[A]\nKey=1\n") << "the third section was released";
}

TEST_F(IniFileSectionTest, KeepsCommentsOrderSpellingAndWhatItDoesNotKnow) {
    const std::string before =
        "; study of the 3rd run\n"
        "\n"
        "Top = 1\n"
        "[Zeta]\r\n"
        "# a remark\n"
        "Later=2\n"
        "  Unknown  =  kept as it is  \n"
        "\n"
        "; about Alpha\n"
        "[Alpha]\n"
        "Value=50 % of it\n"
        "; the end";
    test::Spill(file_, before);
    {
        const auto section = Open("Zeta");
        EXPECT_EQ(section->ReadKeyOr("Unknown", std::string()), "kept as it is");
        section->WriteKey("Later", 3);
        section->WriteKey("New", true);
        section->SetSection("Alpha");
        EXPECT_EQ(section->ReadKeyOr("Value", std::string()), "50 % of it");
        section->SetSection("Beta");
        section->WriteKey("Key", "new");
    }
    EXPECT_EQ(test::Slurp(file_),
              "; study of the 3rd run\n"
              "\n"
              "Top = 1\n"
              "[Zeta]\r\n"
              "# a remark\n"
              "Later=3\n"
              "  Unknown  =  kept as it is  \n"
              "New=true\n"
              "\n"
              "; about Alpha\n"
              "[Alpha]\n"
              "Value=50 % of it\n"
              "\n"
              "[Beta]\n"
              "Key=new\n"
              "; the end\n");
}

TEST_F(IniFileSectionTest, ReadsWhatWasEditedByHand) {
    test::Spill(file_,
                "[ A ]\n"
                "Percent=10 %\n"
                "Escape=a%3db%zz%4\n"
                "Equals=a=b\n"
                "Sign=+1.5\n"
                "Yes=true\n"
                "=nameless\n"
                "[A] [Child] \n"
                "Key=1\n"
                "[A;2]\n"
                "Key=2\n"
                "[]\n"
                "Key=3\n");
    const auto section = Open("A");
    EXPECT_EQ(section->ReadKeyOr("Percent", std::string()), "10 %");
    EXPECT_EQ(section->ReadKeyOr("Escape", std::string()), "a=b%zz%4");
    EXPECT_EQ(section->ReadKeyOr("Equals", std::string()), "a=b");
    EXPECT_EQ(section->ReadKeyOr("Sign", kNotSet), 1.5);
    EXPECT_TRUE(section->ReadKeyOr("Yes", false));
    EXPECT_EQ(section->ReadKeyOr("", std::string()), "nameless");
    EXPECT_EQ(section->GetSection("Child")->ReadKeyOr("Key", 0), 1);
    section->SetSection("");
    EXPECT_EQ(section->GetIndexedSection("A", 2)->ReadKeyOr("Key", 0), 2);
    EXPECT_EQ(section->GetSection("")->ReadKeyOr("Key", 0), 3);
    EXPECT_TRUE(recorder_.troubles.empty());
}

TEST_F(IniFileSectionTest, OfADoubledKeyOrSectionTheLaterCountsAndNoLineIsLost) {
    test::Spill(file_,
                "[A]\n"
                "; first\n"
                "Key=1\n"
                "Other=5\n"
                "Key=2\n"
                "[B]\n"
                "Key=3\n"
                "; A again\n"
                "[A]\n"
                "Key=4\n");
    EXPECT_EQ(Open("A")->ReadKeyOr("Key", 0), 4);
    Open("A")->WriteKey("Other", 6);
    const std::string after = test::Slurp(file_);
    EXPECT_EQ(after,
              "[A]\n"
              "; A again\n"
              "; first\n"
              "Key=1\n"
              "Key=2\n"
              "Key=4\n"
              "Other=6\n"
              "[B]\n"
              "Key=3\n");
    EXPECT_EQ(Open("A")->ReadKeyOr("Key", 0), 4);
}

TEST_F(IniFileSectionTest, AByteOrderMarkThatComesToTheTopOfTheFileStaysInItsName) {
    test::Spill(file_, "no key\n\xEF\xBB\xBFKey=1\n");
    Open("")->WriteKey("Other", 2);
    EXPECT_EQ(test::Slurp(file_), "\xEF\xBB\xBF\xEF\xBB\xBFKey=1\nOther=2\n");
    EXPECT_EQ(Open("")->ReadKeyOr("\xEF\xBB\xBFKey", 0), 1);
}

TEST_F(IniFileSectionTest, PassesOverTheByteOrderMarkOfTheFileAndWritesNone) {
    for (const std::string above : {"", "; remark\n"}) {
        test::Spill(file_, "\xEF\xBB\xBF" + above + "Key=1\n");
        Open("")->WriteKey("Other", 2);
        EXPECT_EQ(test::Slurp(file_), above + "Key=1\nOther=2\n");
    }
    EXPECT_TRUE(recorder_.troubles.empty());
}

TEST_F(IniFileSectionTest, ADoubledKeyStaysWhereItIsThroughLaterWrites) {
    test::Spill(file_, "[A]\nFirst=1\nKey=1\nKey=2\nLast=1\n");
    for (const int value : {2, 3}) {
        Open("A")->WriteKey("Last", value);
        EXPECT_EQ(test::Slurp(file_),
                  "[A]\nFirst=1\nKey=1\nKey=2\nLast=" + std::to_string(value) + "\n");
    }
}

TEST_F(IniFileSectionTest, EachLineOfADoubledKeyStaysBelowItsOwnComment) {
    test::Spill(file_, "[A]\n; one\nKey=1\n; two\nKey=2\n; three\nKey=3\n");
    Open("A")->WriteKey("New", 1);
    EXPECT_EQ(test::Slurp(file_), "[A]\n; one\nKey=1\n; two\nKey=2\n; three\nKey=3\nNew=1\n");
}

TEST_F(IniFileSectionTest, ClearTakesADoubledKeyWithAllItsLinesAndKeepsTheComments) {
    test::Spill(file_, "[A]\n; first\nKey=1\n\n  # second\n \t\r\nKey=2\n; third\nKey=3\n");
    Open("A")->Clear();
    EXPECT_EQ(test::Slurp(file_), "[A]\n; first\n\n  # second\n \t\r\n; third\n");
    EXPECT_EQ(Open("A")->ReadKeyOr("Key", 0), 0);
}

TEST_F(IniFileSectionTest, ClearTakesTheKeysOfOneSectionAndKeepsItsComments) {
    test::Spill(file_,
                "Top=0\n"
                "[A]\n"
                "; about the key\n"
                "Key=1\n"
                "[A][Inside]\n"
                "Key=2\n"
                "[B]\n"
                "Key=3\n");
    {
        const auto section = Open("A");
        section->Clear();
        section->WriteKey("New", 4);
    }
    EXPECT_EQ(test::Slurp(file_),
              "Top=0\n"
              "[A]\n"
              "; about the key\n"
              "New=4\n"
              "[B]\n"
              "Key=3\n");
    Open("")->Clear();
    EXPECT_EQ(test::Slurp(file_),
              "[A]\n"
              "; about the key\n"
              "New=4\n"
              "[B]\n"
              "Key=3\n");
}

TEST_F(IniFileSectionTest, ManyNewSectionsStandInTheOrderInWhichTheyWereMade) {
    std::string expected;
    {
        const auto section = Open("");
        for (int i = 40; i > 0; --i) {
            const std::string name = "S" + std::to_string(i);
            section->GetSection(name.c_str())->WriteKey("Key", i);
            expected +=
                (expected.empty() ? "[" : "\n[") + name + "]\nKey=" + std::to_string(i) + "\n";
        }
    }
    EXPECT_EQ(test::Slurp(file_), expected);
}

TEST_F(IniFileSectionTest, ANewSectionStandsBelowAllThatLiesInsideTheOneBesideIt) {
    test::Spill(file_, "[A]\n[A][B]\nKey=1\n[A][B][C]\nKey=1\n[Z]\nKey=1\n");
    Open("A")->GetSection("New")->WriteKey("Key", 2);
    EXPECT_EQ(test::Slurp(file_),
              "[A]\n[A][B]\nKey=1\n[A][B][C]\nKey=1\n\n[A][New]\nKey=2\n[Z]\nKey=1\n");
}

TEST_F(IniFileSectionTest, AnEmptySectionStaysInTheFileThroughLaterWrites) {
    const auto section = Open("");
    section->GetSection("Empty");
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "[Empty]\n");
    section->WriteKey("Key", 1);
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "Key=1\n\n[Empty]\n");
    EXPECT_TRUE(Open("")->HasSection("Empty", true));
}

TEST_F(IniFileSectionTest, ASectionInsideAnotherNeedsNoHeaderOfTheOuterOne) {
    Open("")->GetSection("A")->GetSection("B")->WriteKey("Key", 1);
    EXPECT_EQ(test::Slurp(file_), "[A]\n\n[A][B]\nKey=1\n");
    test::Spill(file_, "[C][D]\nKey=1\n");
    Open("Z")->WriteKey("Key", 2);
    EXPECT_EQ(test::Slurp(file_), "[C][D]\nKey=1\n\n[Z]\nKey=2\n");
}

TEST_F(IniFileSectionTest, EscapesOnlyWhatItMust) {
    {
        const auto section = Open("50% [a;b] #1 = \"c\\d\" ");
        section->WriteKey(" µ\t", " 5;#[]=\"\\ 6\n7 % ");
        section->WriteKey("", "");
    }
    EXPECT_EQ(test::Slurp(file_),
              "[50%25 %5Ba%3Bb%5D %231 %3D %22c%5Cd%22%20]\n"
              "%20µ%09=%205;#[]=\"\\ 6%0A7 %25%20\n"
              "%=\n");
}

TEST_F(IniFileSectionTest, WritesNothingWhenTheFileHoldsItAlready) {
    Open("A")->WriteKey("Key", 1);
    const auto before = std::filesystem::last_write_time(file_);
    struct stat first {};
    ASSERT_EQ(::stat(file_.c_str(), &first), 0);
    Open("A")->WriteKey("Key", 1);
    struct stat second {};
    ASSERT_EQ(::stat(file_.c_str(), &second), 0);
    EXPECT_EQ(first.st_ino, second.st_ino);
    EXPECT_EQ(std::filesystem::last_write_time(file_), before);
}

TEST_F(IniFileSectionTest, AValueThatReturnsToWhatWasReadIsWrittenToo) {
    test::Spill(file_, "[A]\nKey=1\n");
    const auto section = Open("A");
    section->WriteKey("Key", 2);
    section->Flush();
    section->WriteKey("Key", 1);
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "[A]\nKey=1\n");
}

TEST_F(IniFileSectionTest, SeesWhatAnotherProgramWroteWhenItIsOpenedAgain) {
    const auto section = Open("A");
    section->WriteKey("Mine", 1);
    test::Spill(file_, "[A]\nTheirs=2\nMine=7\n");
    EXPECT_EQ(section->ReadKeyOr("Theirs", 0), 0);
    EXPECT_EQ(Open("A")->ReadKeyOr("Theirs", 0), 2);
    EXPECT_EQ(section->ReadKeyOr("Theirs", 0), 2) << "all sections of the file share one store";
    EXPECT_EQ(section->ReadKeyOr("Mine", 0), 1);
    EXPECT_EQ(test::Slurp(file_), "[A]\nTheirs=2\nMine=1\n");
}

TEST_F(IniFileSectionTest, MergesItsChangesWithWhatTheFileHoldsByThen) {
    test::Spill(file_, "[A]\nBoth=1\nMine=1\n[Cleared]\nOld=1\n[Cleared][Inside]\nOld=1\n");
    const auto section = Open("A");
    section->WriteKey("Mine", 2);
    section->SetSection("Cleared");
    section->Clear();
    section->WriteKey("Mine", 3);
    test::Spill(file_,
                "; theirs\n[A]\nBoth=5\nMine=1\nTheirs=6\n[Cleared]\nOld=1\nTheirs=7\n"
                "[Cleared][Inside]\nOld=1\n[Added]\nKey=8\n");
    section->Flush();
    EXPECT_EQ(test::Slurp(file_),
              "; theirs\n[A]\nBoth=5\nMine=2\nTheirs=6\n[Cleared]\nMine=3\n[Added]\nKey=8\n");
    section->SetSection("A");
    EXPECT_EQ(section->ReadKeyOr("Both", 0), 5);
}

TEST_F(IniFileSectionTest, ReplaysRemovedAndNewSectionsOnWhatTheFileHoldsByThen) {
    test::Spill(file_, "[Gone]\nKey=1\n[Gone;2]\nKey=1\n");
    const auto section = Open("");
    section->RemoveSections("Gone");
    section->GetSection("Empty");
    test::Spill(file_, "[Gone]\nKey=1\nMore=1\n[Gone;3]\nKey=1\n[Kept]\nKey=1\n");
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "[Kept]\nKey=1\n\n[Empty]\n");
}

TEST_F(IniFileSectionTest, WhatItRemovedOnceMayBeWrittenAgainByAnother) {
    test::Spill(file_, "[Gone]\nKey=1\n");
    const auto section = Open("");
    section->RemoveSections("Gone");
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "");
    test::Spill(file_, "[Gone]\nKey=2\n");
    section->WriteKey("Mine", 1);
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "Mine=1\n[Gone]\nKey=2\n");
}

TEST_F(IniFileSectionTest, LeavesAloneWhatItDidNotTouchSinceTheLastFlush) {
    test::Spill(file_, "[A]\nKey=0\n[B]\nKey=0\n");
    const auto section = Open("A");
    section->WriteKey("Key", 1);
    section->Flush();
    test::Spill(file_, "[A]\nKey=5\n");
    section->WriteKey("Other", 2);
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "[A]\nKey=5\nOther=2\n");
    section->SetSection("");
    EXPECT_FALSE(section->HasSection("B", true)) << "another hand removed it";
}

TEST_F(IniFileSectionTest, BringsBackOnlyItsOwnChangesWhenTheFileWasDeleted) {
    Open("A")->WriteKey("Old", 1);
    const auto section = Open("A");
    section->WriteKey("New", 2);
    std::filesystem::remove(file_);
    section->Flush();
    EXPECT_EQ(test::Slurp(file_), "[A]\nNew=2\n");
}

TEST_F(IniFileSectionTest, WithoutAFileItKeepsEverythingInMemory) {
    IniFileSection section;
    section.SetSection("A");
    section.WriteKey("Key", 1);
    section.Flush();
    EXPECT_EQ(section.ReadKeyOr("Key", 0), 1);
    EXPECT_TRUE(recorder_.troubles.empty());
}

}  // namespace
}  // namespace kvopt
