#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "kvopt/text/exceptions.h"
#include "stores/store_test_support.h"

namespace kvopt {
namespace {

using testing::ElementsAre;

// Sets a variable of the environment while it lives; null unsets it.
class Variable {
public:
    Variable(const char* name, const char* value) : name_(name) {
        const char* const former = std::getenv(name);
        wasSet_ = former != nullptr;
        former_ = wasSet_ ? former : "";
        Set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { Set(wasSet_ ? former_.c_str() : nullptr); }

private:
    void Set(const char* value) const {
        if (value != nullptr) {
            ::setenv(name_, value, 1);
        } else {
            ::unsetenv(name_);
        }
    }
    const char* name_;
    bool wasSet_ = false;
    std::string former_;
};

TEST(UserProfile, GivesTheFallbackForWhatIsAbsentOrNoInteger) {
    auto store = std::make_unique<IniFileSection>();
    store->SetSection("Plot");
    store->WriteKey("Text", "many");
    const UserProfile profile(std::move(store));
    EXPECT_EQ(profile.GetProfileInteger("Plot", "ContourResolution", 32), 32);
    EXPECT_EQ(profile.GetProfileInteger("Plot", "Text", 32), 32);
}

TEST(UserProfile, WritesThroughAtOnceIntoTheUsersConfigurationFolder) {
    const test::TemporaryFolder folder;
    const Variable configuration("XDG_CONFIG_HOME", folder.File("config").c_str());
    UserProfile profile;
    profile.WriteProfileInteger("Plot", "ContourResolution", 64);
    profile.WriteProfileInteger("Settings", "GeneralOptionsShowDetails", 0);
    EXPECT_EQ(test::Slurp(folder.File("config/kvopt/profile.ini")),
              "[Plot]\nContourResolution=64\n\n[Settings]\nGeneralOptionsShowDetails=0\n");
    EXPECT_EQ(UserProfile().GetProfileInteger("Plot", "ContourResolution", 32), 64);
    EXPECT_EQ(UserProfile().GetProfileInteger("Settings", "GeneralOptionsShowDetails", 1), 0);
}

TEST(UserProfile, LiesInTheHomeFolderWithoutAConfigurationFolder) {
    const test::TemporaryFolder folder;
    for (const char* const configured : {static_cast<const char*>(nullptr), "", "relative"}) {
        const Variable configuration("XDG_CONFIG_HOME", configured);
        const Variable home("HOME", folder.Path().c_str());
        UserProfile().WriteProfileInteger("Plot", "Key", 1);
        EXPECT_EQ(test::Slurp(folder.File(".config/kvopt/profile.ini")), "[Plot]\nKey=1\n");
        std::filesystem::remove_all(folder.File(".config"));
    }
}

TEST(UserProfile, LastsAsLongAsTheProcessWhereThereIsNoFolder) {
    const Variable configuration("XDG_CONFIG_HOME", nullptr);
    for (const char* const folder : {static_cast<const char*>(nullptr), ""}) {
        const Variable home("HOME", folder);
        UserProfile profile;
        profile.WriteProfileInteger("Plot", "Key", 1);
        EXPECT_EQ(profile.GetProfileInteger("Plot", "Key", 0), 1);
        EXPECT_EQ(UserProfile().GetProfileInteger("Plot", "Key", 0), 0);
    }
}

TEST(UserProfile, TellsTheHostWhenItsFolderCannotBeMade) {
    const test::TemporaryFolder folder;
    test::Spill(folder.File("config"), "a file in the way");
    const Variable configuration("XDG_CONFIG_HOME", folder.File("config").c_str());
    test::TroubleRecorder recorder;
    UserProfile profile;
    ASSERT_EQ(recorder.troubles.size(), 1U);
    EXPECT_EQ(recorder.troubles.front().kind, StoreTrouble::Kind::NotRead);
    EXPECT_EQ(recorder.troubles.front().file, folder.File("config/kvopt/profile.ini"));
    profile.WriteProfileInteger("Plot", "Key", 1);
    EXPECT_EQ(profile.GetProfileInteger("Plot", "Key", 0), 1);
}

TEST(UserProfile, GoesOnWithWhatCanBeReadOfADamagedFile) {
    const test::TemporaryFolder folder;
    const Variable configuration("XDG_CONFIG_HOME", folder.Path().c_str());
    const std::string file = folder.File("kvopt/profile.ini");
    std::filesystem::create_directory(folder.File("kvopt"));
    test::Spill(file, "[Plot]\nContourResolution=64\nSurfaceRes");
    const test::TroubleRecorder recorder;
    EXPECT_EQ(UserProfile().GetProfileInteger("Plot", "ContourResolution", 32), 64);
    ASSERT_EQ(recorder.troubles.size(), 1U);
    EXPECT_EQ(recorder.troubles.front().kind, StoreTrouble::Kind::SetAside);
    EXPECT_EQ(test::Slurp(file), "[Plot]\nContourResolution=64\n");
    EXPECT_EQ(test::Slurp(file + ".unreadable-1"), "[Plot]\nContourResolution=64\nSurfaceRes");
}

TEST(UserProfile, MayBeReplacedAndComesBack) {
    const test::TemporaryFolder folder;
    const Variable configuration("XDG_CONFIG_HOME", folder.Path().c_str());
    const auto replacement = std::make_shared<UserProfile>(std::make_unique<IniFileSection>());
    const auto former = UserProfile::Install(replacement);
    EXPECT_EQ(UserProfile::Instance(), replacement.get());
    UserProfile::Instance()->WriteProfileInteger("Plot", "Key", 1);
    EXPECT_EQ(former->GetProfileInteger("Plot", "Key", 0), 0);
    EXPECT_EQ(UserProfile::Install(former), replacement);
    EXPECT_EQ(UserProfile::Instance(), former.get());
    UserProfile::Install(nullptr);
    EXPECT_NE(UserProfile::Instance(), nullptr);
    EXPECT_EQ(UserProfile(nullptr).GetProfileInteger("Plot", "Key", 5), 5);
}

TEST(Registry, OnlyABackslashLeadsDown) {
    Registry registry(std::make_unique<IniFileSection>());
    registry.GetKey("App\\DockingPaneLayouts\\My/Layout [1]")->WriteKey("Left", 1);
    registry.GetKey("App\\DockingPaneLayouts\\Default")->WriteKey("Left", 2);
    registry.GetKey("App\\WindowPos")->WriteKey("Left", 3);
    EXPECT_THAT(registry.SubKeys("App\\DockingPaneLayouts"),
                ElementsAre("My/Layout [1]", "Default"));
    EXPECT_THAT(registry.SubKeys("App"), ElementsAre("DockingPaneLayouts", "WindowPos"));
    EXPECT_THAT(registry.SubKeys(""), ElementsAre("App"));
    EXPECT_THAT(registry.SubKeys("App/DockingPaneLayouts"), ElementsAre());
    EXPECT_THAT(registry.SubKeys("Missing\\Key"), ElementsAre());
}

TEST(Registry, FindsTheLowestOfSeveralSectionsOfAName) {
    auto store = std::make_unique<IniFileSection>();
    store->GetIndexedSection("App", 3)->WriteKey("Left", 3);
    store->GetIndexedSection("App", 2)->WriteKey("Left", 2);
    Registry registry(std::move(store));
    EXPECT_EQ(registry.GetKey("App")->ReadKeyOr("Left", 0), 2);
    EXPECT_THAT(registry.SubKeys(""), ElementsAre("App"));
}

TEST(Registry, DeletesAKeyWithAllBelowIt) {
    Registry registry(std::make_unique<IniFileSection>());
    registry.GetKey("App\\A\\B")->WriteKey("Key", 1);
    registry.GetKey("App\\A")->WriteKey("Key", 1);
    registry.GetKey("App\\C")->WriteKey("Key", 1);
    registry.DeleteKey("App\\A");
    registry.DeleteKey("App\\Missing");
    registry.DeleteKey("Missing\\Key");
    registry.DeleteKey("");
    EXPECT_THAT(registry.SubKeys("App"), ElementsAre("C"));
    EXPECT_EQ(registry.GetKey("App\\A")->ReadKeyOr("Key", 0), 0);
    EXPECT_EQ(registry.GetKey("App\\C")->ReadKeyOr("Key", 0), 1);
}

TEST(Registry, LiesInTheUsersConfigurationFolder) {
    const test::TemporaryFolder folder;
    const Variable configuration("XDG_CONFIG_HOME", folder.Path().c_str());
    const std::string file = folder.File("kvopt/registry.ini");
    Registry registry;
    const auto key = registry.GetKey("App\\WindowPos");
    key->WriteKey("Left", 3);
    key->Flush();
    EXPECT_EQ(test::Slurp(file), "[App][WindowPos]\nLeft=3\n");
    registry.DeleteKey("App\\WindowPos");
    EXPECT_EQ(test::Slurp(file), "");
}

TEST(Registry, HasTheAreasOfTheApplicationBelowOneKey) {
    EXPECT_EQ(GetRegistryBaseKeyName("WindowPos"), "Software\\kvopt\\WindowPos");
    EXPECT_EQ(GetRegistryBaseKeyName(""), "Software\\kvopt");
    EXPECT_EQ(GetRegistryBaseKeyNameW(L"Größe"), L"Software\\kvopt\\Größe");
    EXPECT_EQ(GetDontShowAgainRegistrySection(), L"DontShowAgain");
    EXPECT_THROW(GetRegistryBaseKeyName(nullptr), InvalidArgument);
    EXPECT_THROW(GetRegistryBaseKeyNameW(nullptr), InvalidArgument);
}

TEST(Registry, GoesOnWithWhatCanBeReadOfADamagedFile) {
    const test::TemporaryFolder folder;
    const Variable configuration("XDG_CONFIG_HOME", folder.Path().c_str());
    const std::string file = folder.File("kvopt/registry.ini");
    std::filesystem::create_directory(folder.File("kvopt"));
    test::Spill(file, "[App][WindowPos]\nLeft=3\n[App][Dock");
    const test::TroubleRecorder recorder;
    Registry registry;
    EXPECT_THAT(registry.SubKeys("App"), ElementsAre("WindowPos"));
    EXPECT_EQ(registry.GetKey("App\\WindowPos")->ReadKeyOr("Left", 0), 3);
    ASSERT_EQ(recorder.troubles.size(), 1U);
    EXPECT_EQ(test::Slurp(recorder.troubles.front().movedTo),
              "[App][WindowPos]\nLeft=3\n[App][Dock");
}

TEST(Registry, MayBeReplacedAndComesBack) {
    const test::TemporaryFolder folder;
    const Variable configuration("XDG_CONFIG_HOME", folder.Path().c_str());
    const auto replacement = std::make_shared<Registry>(nullptr);
    const auto former = Registry::Install(replacement);
    EXPECT_EQ(Registry::Instance(), replacement.get());
    EXPECT_EQ(Registry::Install(former), replacement);
    EXPECT_EQ(Registry::Instance(), former.get());
    Registry::Install(nullptr);
    EXPECT_NE(Registry::Instance(), nullptr);
}

}  // namespace
}  // namespace kvopt
