#include "kvopt/text/exceptions.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace kvopt {
namespace {

TEST(Exceptions, CarryTheTextTheyWereBuiltFrom) {
    const std::string_view text = std::string_view("ContourPlotData::GetSelectedAxisInfo!", 36);
    EXPECT_STREQ(InvalidArgument(text).what(), "ContourPlotData::GetSelectedAxisInfo");
    EXPECT_STREQ(Exception("a").what(), "a");
}

TEST(Exceptions, HaveOneBase) {
    EXPECT_THROW(throw InvalidArgument("a"), Exception);
    EXPECT_THROW(throw CancelException(), Exception);
    EXPECT_THROW(throw FileError("f", "r"), Exception);
    EXPECT_THROW(throw FileFormatError("f", "p", "e", "x"), FileError);
    EXPECT_THROW(throw Exception("a"), std::runtime_error);
}

TEST(Exceptions, AnAbandonedPlotIsNoMisuse) {
    bool isCancel = false;
    try {
        throw CancelException();
    } catch (const InvalidArgument&) {
        isCancel = false;
    } catch (const CancelException&) {
        isCancel = true;
    }
    EXPECT_TRUE(isCancel);
}

TEST(Exceptions, AFormatErrorSaysFilePlaceExpectedAndFound) {
    const FileFormatError error("study.ini", "line 3", "a key", "\"x\"");
    EXPECT_STREQ(error.what(), "study.ini: line 3: expected a key, found \"x\"");
    EXPECT_EQ(error.File(), "study.ini");
    EXPECT_EQ(error.Place(), "line 3");
    EXPECT_EQ(error.Expected(), "a key");
    EXPECT_EQ(error.Found(), "\"x\"");
    EXPECT_EQ(error.Reason(), "line 3: expected a key, found \"x\"");
}

}  // namespace
}  // namespace kvopt
