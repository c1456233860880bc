#include "kvopt/scripted/user_script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "kvopt/text/exceptions.h"
#include "support/temporary_folder.h"

namespace kvopt {
namespace {

struct Spelling {
    const char* written;
    const char* printed;
};

class UserScriptSpelling : public testing::TestWithParam<Spelling> {};

TEST_P(UserScriptSpelling, PrintsInTheLanguagesOwnSpellingAndReadsItBack) {
    const UserScript script = UserScript::FromText(GetParam().written);
    ASSERT_EQ(script.Steps().size(), 1U);
    EXPECT_EQ(script.Text(), std::string(GetParam().printed) + '\n');
    const UserScript again = UserScript::FromText(script.Text());
    EXPECT_EQ(again.Text(), script.Text());
}

INSTANTIATE_TEST_SUITE_P(
    EveryVerb, UserScriptSpelling,
    testing::Values(
        Spelling{"click 6014", "click 6014"}, Spelling{"click \"6014\"", "click \"6014\""},
        Spelling{"  click\tReset   # of the page", "click \"Reset\""},
        Spelling{"click \"Plot &options...\"", "click \"Plot &options...\""},
        Spelling{"double-click 6076 Y1", "double-click 6076 \"Y1\""},
        Spelling{"focus \"Low\"", "focus \"Low\""}, Spelling{"type 6055 85", "type 6055 85"},
        Spelling{"type 6055 \"-1.5\"", "type 6055 -1.5"},
        Spelling{"type 6055 \"\"", "type 6055 \"\""},
        Spelling{"type 6055 abc", "type 6055 \"abc\""},
        Spelling{"type cell Width Value 4", "type cell \"Width\" \"Value\" 4"},
        Spelling{"type cell \"2\" 2 4 ", "type cell \"2\" 2 4"},
        Spelling{"edit cell 1 2 in 6139 4.5", "edit cell 1 2 in 6139 4.5"},
        Spelling{"paste 6055 \"1\\t2\\n3\"", "paste 6055 \"1\t2\\n3\""},
        Spelling{"paste cell A Value in Constants \"1\\n2\"",
                 "paste cell \"A\" \"Value\" in \"Constants\" \"1\\n2\""},
        Spelling{"pick 6036 \"in\"", "pick 6036 \"in\""},
        Spelling{"mark 6076 Y1 \"Y 2\"", "mark 6076 \"Y1\" \"Y 2\""},
        Spelling{"mark 6076 none", "mark 6076 none"},
        Spelling{"mark 6076 \"none\"", "mark 6076 \"none\""},
        Spelling{"spin 6401 up", "spin 6401 up"}, Spelling{"spin 6401 up 1", "spin 6401 up"},
        Spelling{"spin 6401 down 3", "spin 6401 down 3"},
        Spelling{"select cell 1 2", "select cell 1 2"},
        Spelling{"select cell 1 2 in 6139 to 3 Setting",
                 "select cell 1 2 in 6139 to 3 \"Setting\""},
        Spelling{"drag cell A 3 to 80%", "drag cell \"A\" 3 to 80%"},
        Spelling{"drag cell A 3 to 12.5", "drag cell \"A\" 3 to 12.5"},
        Spelling{"drag cell A 3 to cell B 3", "drag cell \"A\" 3 to cell \"B\" 3"},
        Spelling{"drag cell A 3 to cell B 3 in 6139 20%",
                 "drag cell \"A\" 3 to cell \"B\" 3 in 6139 20%"},
        Spelling{"hover cell A 3", "hover cell \"A\" 3"},
        Spelling{"hover cell A 3 0.5%", "hover cell \"A\" 3 0.5%"},
        Spelling{"menu cell A 2 Copy", "menu cell \"A\" 2 \"Copy\""},
        Spelling{"expand item Lines", "expand item \"Lines\""},
        Spelling{"collapse item Level in Interval in \"3\" in 6334",
                 "collapse item \"Level\" in \"Interval\" in \"3\" in 6334"},
        Spelling{"click item \"in\" in \"in\"", "click item \"in\" in \"in\""},
        Spelling{"type item 7 in Lines 4.5", "type item \"7\" in \"Lines\" 4.5"},
        Spelling{"edit item Limit x", "edit item \"Limit\" \"x\""},
        Spelling{"pick item Interval in Statistics None",
                 "pick item \"Interval\" in \"Statistics\" \"None\""},
        Spelling{"expect entries item Interval a b",
                 "expect entries item \"Interval\" \"a\" \"b\""},
        Spelling{"expect disabled item Limit", "expect disabled item \"Limit\""},
        Spelling{"expect description \"Fit anew.\"", "expect description \"Fit anew.\""},
        Spelling{"expect description 7", "expect description 7"},
        Spelling{"key Ctrl+V", "key Ctrl+V"}, Spelling{"key Shift+Insert", "key Shift+Insert"},
        Spelling{"key Ctrl+Shift+Alt+A", "key Ctrl+Shift+Alt+A"},
        Spelling{"key Escape", "key Escape"}, Spelling{"key 7", "key 7"},
        Spelling{"tab \"Plot options\"", "tab \"Plot options\""}, Spelling{"ok", "ok"},
        Spelling{"apply", "apply"}, Spelling{"cancel", "cancel"}, Spelling{"close", "close"},
        Spelling{"next", "next"}, Spelling{"back", "back"}, Spelling{"finish", "finish"},
        Spelling{"wait 100", "wait 100"}, Spelling{"picture first", "picture \"first\""},
        Spelling{"expect box error \"Not \\\"a\\\" number\\\\\"",
                 "expect box error \"Not \\\"a\\\" number\\\\\""},
        Spelling{"expect box plain Done answer ok", "expect box plain \"Done\""},
        Spelling{"expect box question containing Keep answer yes",
                 "expect box question containing \"Keep\" answer yes"},
        Spelling{"optional box warning-question Keep answer no",
                 "optional box warning-question \"Keep\" answer no"},
        Spelling{"optional box information Done", "optional box information \"Done\""},
        Spelling{"expect box information Done answer silence",
                 "expect box information \"Done\" answer silence"},
        Spelling{"expect page 6160", "expect page 6160"},
        Spelling{"expect page \"6160\"", "expect page \"6160\""},
        Spelling{"expect text 6036 \"\"", "expect text 6036 \"\""},
        Spelling{"expect text cell A 2 4", "expect text cell \"A\" 2 4"},
        Spelling{"expect entries 6036 none", "expect entries 6036 none"},
        Spelling{"expect entries 6036 a b", "expect entries 6036 \"a\" \"b\""},
        Spelling{"expect marked 6076 a", "expect marked 6076 \"a\""},
        Spelling{"expect checked 6022", "expect checked 6022"},
        Spelling{"expect unchecked 6022", "expect unchecked 6022"},
        Spelling{"expect enabled next", "expect enabled next"},
        Spelling{"expect disabled \"next\"", "expect disabled \"next\""},
        Spelling{"expect visible 1", "expect visible 1"},
        Spelling{"expect hidden apply", "expect hidden apply"},
        Spelling{"expect focus 6036", "expect focus 6036"},
        Spelling{"expect tip cell 1 1 \"\"", "expect tip cell 1 1 \"\""},
        Spelling{"expect cursor size-horizontal", "expect cursor size-horizontal"},
        Spelling{"expect clipboard \"a\\nb\"", "expect clipboard \"a\\nb\""}));

struct BadLine {
    const char* line;
    std::size_t column;
    const char* expected;
    const char* found;
};

class UserScriptFault : public testing::TestWithParam<BadLine> {};

TEST_P(UserScriptFault, NamesFilePlaceWhatWasExpectedAndWhatWasFound) {
    const std::string text = std::string("# first\nok\n") + GetParam().line + "\nok\n";
    try {
        UserScript::FromText(text, "story.script");
        FAIL() << "the line was taken: " << GetParam().line;
    } catch (const FileFormatError& error) {
        EXPECT_EQ(error.File(), "story.script");
        EXPECT_EQ(error.Place(), "line 3, column " + std::to_string(GetParam().column));
        EXPECT_THAT(error.Expected(), testing::HasSubstr(GetParam().expected));
        EXPECT_EQ(error.Found(), GetParam().found);
    }
}

constexpr const char* kEnd = "the end of the line";

INSTANTIATE_TEST_SUITE_P(
    EveryReason, UserScriptFault,
    testing::Values(
        BadLine{"clik 6014", 1, "one of click, double-click", "clik"},
        BadLine{"\"click\" 6014", 1, "one of click", "\"click\""},
        BadLine{"expect", 7, "one of box, page, text", kEnd},
        BadLine{"expect lunch", 8, "one of box", "lunch"},
        BadLine{"optional page 1", 10, "box", "page"}, BadLine{"click", 6, "a control", kEnd},
        BadLine{"click 1 2", 9, kEnd, "2"}, BadLine{"next 2", 6, kEnd, "2"},
        BadLine{"type 6055", 10, "a text", kEnd}, BadLine{"type 6055 8 5", 13, kEnd, "5"},
        BadLine{"type 6055 \"85", 11, "a closing quote", kEnd},
        BadLine{"type 6055 \"8\\5\"", 13, "one of", "\\5"},
        BadLine{"type 6055 \"8\\", 13, "one of", kEnd},
        BadLine{"type 6055\"85\"", 10, "a blank between words", "\"85\""},
        BadLine{"type 6055 \"85\"x", 15, "a blank between words", "x"},
        BadLine{"edit 6055 1", 6, "cell or item", "6055"},
        BadLine{"expand 6055", 8, "item", "6055"}, BadLine{"collapse", 9, "item", kEnd},
        BadLine{"click item", 11, "the caption of a row", kEnd},
        BadLine{"click item A in", 16, "the caption of a row above it", kEnd},
        BadLine{"click item A in 6334 in B", 22, kEnd, "in"},
        BadLine{"expect description", 19, "a text", kEnd}, BadLine{"type cell", 10, "a row", kEnd},
        BadLine{"type cell A", 12, "a column", kEnd}, BadLine{"type cell 0 2 4", 11, "a row", "0"},
        BadLine{"type cell 1 -2 4", 13, "a column", "-2"},
        BadLine{"type cell 1 2 in", 17, "a worksheet", kEnd},
        BadLine{"edit 6139 4", 6, "cell", "6139"}, BadLine{"hover 6139", 7, "cell", "6139"},
        BadLine{"menu 6139 Copy", 6, "cell", "6139"},
        BadLine{"menu cell 1 2", 14, "the label of a menu entry", kEnd},
        BadLine{"expect tip 6139 x", 12, "cell", "6139"},
        BadLine{"hover cell 1 2 x%", 16, "a share of the cell's width", "x%"},
        BadLine{"hover cell 1 2 \"5%\"", 16, kEnd, "\"5%\""},
        BadLine{"pick 6036", 10, "the text of an entry", kEnd},
        BadLine{"mark 6076", 10, "the text of an entry, or none", kEnd},
        BadLine{"mark 6076 none Y1", 16, kEnd, "Y1"}, BadLine{"spin 6401", 10, "up or down", kEnd},
        BadLine{"spin 6401 left", 11, "up or down", "left"},
        BadLine{"spin 6401 up 0", 14, "a number of clicks", "0"},
        BadLine{"drag cell 1 3", 14, "to", kEnd}, BadLine{"drag cell 1 3 80%", 15, "to", "80%"},
        BadLine{"drag cell 1 3 to far", 18, "a value, a share such as 80%, or cell", "far"},
        BadLine{"drag cell 1 3 to nan", 18, "a value", "nan"},
        BadLine{"drag cell 1 3 to 1,5", 18, "a value", "1,5"},
        BadLine{"drag cell 1 3 to inf%", 18, "a share", "inf%"}, BadLine{"key", 4, "a key", kEnd},
        BadLine{"key v", 5, "a key", "v"}, BadLine{"key Shift+Ctrl+V", 5, "a key", "Shift+Ctrl+V"},
        BadLine{"key Ctrl+Enter", 5, "a key", "Ctrl+Enter"},
        BadLine{"tab", 4, "the caption of a page", kEnd},
        BadLine{"wait", 5, "a number of milliseconds", kEnd},
        BadLine{"wait 0", 6, "a number of milliseconds", "0"},
        BadLine{"wait 1.5", 6, "a number of milliseconds", "1.5"},
        BadLine{"wait \"5\"", 6, "a number of milliseconds", "\"5\""},
        BadLine{"wait 99999999999", 6, "a number of milliseconds", "99999999999"},
        BadLine{"picture", 8, "a name for the picture", kEnd},
        BadLine{"expect box", 11, "a style: plain, error", kEnd},
        BadLine{"expect box 16 x", 12, "a style", "16"},
        BadLine{"expect box error", 17, "the text of the box", kEnd},
        BadLine{"expect box error x answer yes", 27, "ok or silence", "yes"},
        BadLine{"expect box error x answer cancel", 27, "ok or silence", "cancel"},
        BadLine{"expect box error x answer \"silence\"", 27, "ok or silence", "\"silence\""},
        BadLine{"expect box error x answer", 26, "ok or silence", kEnd},
        BadLine{"expect box question x", 22, "answer yes or answer no", kEnd},
        BadLine{"expect box question x answer ok", 30, "yes or no", "ok"},
        BadLine{"expect box warning-question x answer cancel", 38, "yes or no", "cancel"},
        BadLine{"expect box question x answer silence", 30, "yes or no", "silence"},
        BadLine{"expect page", 12, "a page", kEnd},
        BadLine{"expect cursor round", 15, "arrow, size-horizontal or wait", "round"},
        BadLine{"type 6055 \"\xFF\"", 1, "UTF-8", "other bytes"}));

TEST(UserScript, CountsLinesFromOneAndPassesOverCommentsAndEmptyLines) {
    const UserScript script = UserScript::FromText("# a\n\n  # b\r\nok\r\n\ncancel # c");
    ASSERT_EQ(script.Steps().size(), 2U);
    EXPECT_EQ(script.Steps()[0].line, 4);
    EXPECT_EQ(script.Steps()[1].line, 6);
    EXPECT_EQ(script.Steps()[1].verb, StepVerb::Cancel);
}

TEST(UserScript, TakesAByteOrderMarkBeforeTheFirstLine) {
    const UserScript script = UserScript::FromText("\xEF\xBB\xBFok\n");
    ASSERT_EQ(script.Steps().size(), 1U);
    EXPECT_EQ(script.Steps()[0].verb, StepVerb::Ok);
}

TEST(UserScript, KeepsAHashWithinQuotes) {
    const UserScript script = UserScript::FromText("type 1 \"a # b\" # c");
    EXPECT_EQ(script.Steps()[0].values, std::vector<std::string>{"a # b"});
}

TEST(UserScript, GivesTheRecordsOfItsSteps) {
    const UserScript script = UserScript::FromText(
        "spin \"Resolution\" down 3\nexpect box question containing \"x\" answer no\n"
        "drag cell \"A\" \"Setting\" in 6139 to cell 2 3 25%\nkey Ctrl+A\n");
    const UserStep& spin = script.Steps()[0];
    EXPECT_EQ(spin.target, StepTarget::Control("Resolution"));
    EXPECT_EQ(spin.count, -3);
    const ExpectedBox box{BoxStyle::YesNoInformation, "x", true, false, BoxAnswer::No};
    EXPECT_EQ(script.Steps()[1].box, box);
    const UserStep& drag = script.Steps()[2];
    StepTarget cell = StepTarget::Cell({0, "A"}, {0, "Setting"});
    cell.number = 6139;
    EXPECT_EQ(drag.target, cell);
    EXPECT_EQ(drag.to, StepTarget::Cell({2, ""}, {3, ""}));
    EXPECT_EQ(drag.share, 25.0);
    EXPECT_EQ(drag.number, std::nullopt);
    EXPECT_EQ(script.Steps()[3].key, (KeyStroke{'A', true, false, false}));
}

TEST(UserScript, AppendsAnotherScript) {
    UserScript script = UserScript::FromText("next");
    script.Append(UserScript::FromText("finish"));
    UserStep step;
    step.verb = StepVerb::Cancel;
    script.Add(step);
    EXPECT_EQ(script.Text(), "next\nfinish\ncancel\n");
}

TEST(UserScript, ReadsAFileAndNamesItInItsFaults) {
    const test::TemporaryFolder folder;
    const std::string path = folder.File("user.script");
    std::ofstream(path) << "ok\nclik\n";
    try {
        UserScript::FromFile(path);
        FAIL();
    } catch (const FileFormatError& error) {
        EXPECT_EQ(error.File(), path);
        EXPECT_EQ(error.Place(), "line 2, column 1");
    }
    std::ofstream(path) << "ok\n";
    EXPECT_EQ(UserScript::FromFile(path).Steps().size(), 1U);
    EXPECT_EQ(UserScript::FromFile(path).Source(), path);
    std::ofstream(path) << "";
    EXPECT_TRUE(UserScript::FromFile(path).Steps().empty());
    std::filesystem::remove(path);
    EXPECT_THROW(UserScript::FromFile(path), FileError);
    EXPECT_THROW(UserScript::FromFile(folder.Path()), FileError);
}

TEST(UserScript, EveryVerbStandsInTheDocument) {
    std::ifstream document(std::string(KVOPT_SOURCE_DIR) + "/docs/scripts.md");
    const std::string text{std::istreambuf_iterator<char>(document),
                           std::istreambuf_iterator<char>()};
    for (int verb = 0; verb <= static_cast<int>(StepVerb::ExpectClipboard); ++verb) {
        const std::string words = VerbText(static_cast<StepVerb>(verb));
        EXPECT_FALSE(words.empty());
        EXPECT_NE(text.find('`' + words), std::string::npos) << words;
    }
}

}  // namespace
}  // namespace kvopt
