#include "kvopt/stores/ini_file_factory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "stores/store_test_support.h"

namespace kvopt {
namespace {

TEST(IniFileFactory, GivesNullForAFileThatCannotBeHad) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(IniFileFactory::Instance()->GetIniFile("", ""), nullptr);
    EXPECT_EQ(IniFileFactory::Instance()->GetIniFile(folder.File("missing/study.ini"), ""),
              nullptr);
    EXPECT_TRUE(folder.Names().empty());
}

TEST(IniFileFactory, KnowsAFileByEveryNameItHas) {
    const test::TemporaryFolder folder;
    std::filesystem::create_directory(folder.File("sub"));
    std::filesystem::create_symlink(folder.File("study.ini"), folder.File("link.ini"));
    IniFileFactory factory;
    const auto section = factory.GetIniFile(folder.File("study.ini"), "A");
    section->WriteKey("Key", 1);
    EXPECT_EQ(factory.GetIniFile(folder.File("link.ini"), "A")->ReadKeyOr("Key", 0), 1);
    EXPECT_EQ(factory.GetIniFile(folder.File("sub/../study.ini"), "A")->ReadKeyOr("Key", 0), 1);
    EXPECT_EQ(factory.GetIniFile(folder.File("./study.ini"), "A")->ReadKeyOr("Key", 0), 1);
}

TEST(IniFileFactory, TakesARelativeNameFromTheWorkingFolder) {
    const test::TemporaryFolder folder;
    const auto former = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    IniFileFactory::Instance()->GetIniFile("study.ini", "A")->WriteKey("Key", 1);
    std::filesystem::current_path(former);
    EXPECT_EQ(test::Slurp(folder.File("study.ini")), "[A]\nKey=1\n");
}

TEST(IniFileFactory, MayBeReplacedAndComesBack) {
    class MemoryFactory : public IniFileFactory {
    public:
        std::unique_ptr<IniFileSection> GetIniFile(const std::string& fileName,
                                                   const std::string& section) override {
            asked = fileName + "|" + section;
            return std::make_unique<IniFileSection>();
        }
        std::string asked;
    };
    const auto replacement = std::make_shared<MemoryFactory>();
    const auto former = IniFileFactory::Install(replacement);
    EXPECT_EQ(IniFileFactory::Instance(), replacement.get());
    IniFileFactory::Instance()->GetIniFile("study.ini", "Options")->WriteKey("Key", 1);
    EXPECT_EQ(replacement->asked, "study.ini|Options");
    EXPECT_EQ(IniFileFactory::Install(former), replacement);
    EXPECT_EQ(IniFileFactory::Instance(), former.get());
    IniFileFactory::Install(nullptr);
    EXPECT_NE(IniFileFactory::Instance(), nullptr);
    EXPECT_NE(IniFileFactory::Instance(), former.get());
}

}  // namespace
}  // namespace kvopt
