#include "kvopt/text/kv_std_string.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(KvStdString, SplitsAndDropsEmptyParts) {
    EXPECT_THAT(KvStdString::Split("Low;High", ";"), ElementsAre("Low", "High"));
    EXPECT_THAT(KvStdString::Split(";Low;;High;", ";"), ElementsAre("Low", "High"));
    EXPECT_THAT(KvStdString::Split("Low", ";"), ElementsAre("Low"));
    EXPECT_THAT(KvStdString::Split("", ";"), IsEmpty());
    EXPECT_THAT(KvStdString::Split(";;", ";"), IsEmpty());
}

TEST(KvStdString, SplitTrimsNothing) {
    EXPECT_THAT(KvStdString::Split(" Low ; ;High", ";"), ElementsAre(" Low ", " ", "High"));
}

TEST(KvStdString, SplitsAtTheWholeSeparator) {
    EXPECT_THAT(KvStdString::Split("a, b,c", ", "), ElementsAre("a", "b,c"));
    EXPECT_THAT(KvStdString::Split("abc", ""), ElementsAre("abc"));
    EXPECT_THAT(KvStdString::Split("°C;µm", ";"), ElementsAre("°C", "µm"));
}

TEST(KvStdString, JoinsWithTheSeparatorBetween) {
    EXPECT_EQ(KvStdString::FormatStringVector({"Low", "High"}, ";"), "Low;High");
    EXPECT_EQ(KvStdString::FormatStringVector({"Low"}, ";"), "Low");
    EXPECT_EQ(KvStdString::FormatStringVector({}, ";"), "");
    EXPECT_EQ(KvStdString::FormatStringVector({"", "a", ""}, ";"), ";a;");
}

TEST(KvStdString, BringsUtf8BackFromWideText) {
    for (const char* text : {"", "abc", "Grad °C", "温度", "\xF0\x9F\x98\x80", "e\xCC\x81",
                             "\xEF\xBB\xBF", "\xF4\x8F\xBF\xBF", "\x7F", "\xC2\x80", "\xE0\xA0\x80",
                             "\xEF\xBF\xBF", "\xF0\x90\x80\x80"}) {
        EXPECT_EQ(KvStdString::ToUtf8(KvStdString::ToWide(text)), text);
    }
    EXPECT_EQ(KvStdString::ToWide("µ"), L"µ");
    EXPECT_EQ(KvStdString::ToWide(std::string("a\0b", 3)), std::wstring(L"a\0b", 3));
}

TEST(KvStdString, ShowsAReplacementForEachByteThatBeginsNoCharacter) {
    EXPECT_EQ(KvStdString::ToWide("a\xFF"
                                  "b"),
              L"a\xFFFD"
              L"b");
    EXPECT_EQ(KvStdString::ToWide("\xC0\x80"), L"\xFFFD\xFFFD");
    EXPECT_EQ(KvStdString::ToWide("\xE2\x82"), L"\xFFFD\xFFFD");
    EXPECT_EQ(KvStdString::ToWide("\xE2\x82"
                                  "a"),
              L"\xFFFD\xFFFD"
              L"a");
    EXPECT_EQ(KvStdString::ToWide("\xED\xA0\x80"), L"\xFFFD\xFFFD\xFFFD");
    EXPECT_EQ(KvStdString::ToWide("\xF4\x90\x80\x80"), L"\xFFFD\xFFFD\xFFFD\xFFFD");
    EXPECT_EQ(KvStdString::ToWide("\xE0\x80\x80"), L"\xFFFD\xFFFD\xFFFD");
    EXPECT_EQ(KvStdString::ToWide("\x80"), L"\xFFFD");
}

TEST(KvStdString, ReplacesWideValuesThatAreNoCharacters) {
    EXPECT_EQ(KvStdString::ToUtf8(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
    EXPECT_EQ(KvStdString::ToUtf8(std::wstring(1, static_cast<wchar_t>(0xDFFF))), "\xEF\xBF\xBD");
    if constexpr (sizeof(wchar_t) == 4) {
        EXPECT_EQ(KvStdString::ToUtf8(std::wstring(1, static_cast<wchar_t>(0x110000))),
                  "\xEF\xBF\xBD");
    }
}

TEST(KvStdString, TrimsBlanksOfEveryKindAtBothEnds) {
    EXPECT_EQ(KvStdString::Trim(" \t\n\v\f\r a b \r\n"), "a b");
    EXPECT_EQ(KvStdString::Trim("   "), "");
    EXPECT_EQ(KvStdString::Trim(""), "");
    EXPECT_EQ(KvStdString::Trim(L" \t° "), L"°");
    EXPECT_EQ(KvStdString::Trim("\xC2\xA0"
                                "a"),
              "\xC2\xA0"
              "a");
}

}  // namespace
}  // namespace kvopt
