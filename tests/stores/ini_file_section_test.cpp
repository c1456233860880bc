#include "kvopt/stores/ini_file_section.h"

#include <gtest/gtest.h>

#include "stores/store_test_support.h"

namespace kvopt {
namespace {

TEST(IniFileSection, BringsAllTypesBackFromTheFile) {
    const test::TemporaryFolder folder;
    const std::string file = folder.File("study.ini");
    {
        const auto section = IniFileFactory::Instance()->GetIniFile(file, "Options");
        section->WriteKey("Bool", true);
        section->WriteKey("Int", -7);
        section->WriteKey("Double", 0.1);
        section->WriteKey("Text", "Öl");
    }
    EXPECT_EQ(test::Slurp(file), "[Options]\nBool=true\nInt=-7\nDouble=0.1\nText=Öl\n");
    const auto section = IniFileFactory::Instance()->GetIniFile(file, "Options");
    EXPECT_TRUE(section->ReadKeyOr("Bool", false));
    EXPECT_EQ(section->ReadKeyOr("Int", 0), -7);
    EXPECT_EQ(section->ReadKeyOr("Double", 0.0), 0.1);
    EXPECT_EQ(section->ReadKeyOr("Text", std::string()), "Öl");
}

}  // namespace
}  // namespace kvopt
