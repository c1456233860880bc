#include "kvopt/platform/kv_dont_show_again_message_box.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "kvopt/stores.h"
#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_std_string.h"
#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kShown =
    "box 64 \"Host\" \"Mind the factors.\" check \"&Don't show this message again\" -> ";

/// A user who has silenced nothing, with a registry in memory.
class DontShowAgainBox : public PlatformTest {
protected:
    DontShowAgainBox()
        : former_(
              Registry::Install(std::make_shared<Registry>(std::unique_ptr<IniFileSection>()))) {
        owner_.SetText(L"Host");
    }
    ~DontShowAgainBox() override { Registry::Install(former_); }

    void Show(const char* key) { KvDontShowAgainMessageBox(&owner_, key, L"Mind the factors."); }
    static std::unique_ptr<ConfigurationSection> Answers() {
        return Registry::Instance()->GetKey("Software\\kvopt\\DontShowAgain");
    }

    CWnd owner_;

private:
    std::shared_ptr<Registry> former_;
};

TEST_F(DontShowAgainBox, IsAnInformationThatOffersToKeepSilent) {
    Show("ChangedDistribution");
    EXPECT_THAT(Log(), ElementsAre(std::string(kShown) + "ok"));
}

TEST_F(DontShowAgainBox, ComesAgainWhenTheCheckWasLeftAlone) {
    desktop.answers = {BoxAnswer::Ok, BoxAnswer::Cancel, BoxAnswer::Ok};
    Show("ChangedDistribution");
    Show("ChangedDistribution");
    Show("ChangedDistribution");
    EXPECT_EQ(Log().size(), 3U);
    EXPECT_THAT(Registry::Instance()->SubKeys("Software\\kvopt"), IsEmpty())
        << "nothing is remembered";
}

TEST_F(DontShowAgainBox, IsSilentOnceTheCheckWasMarked) {
    desktop.answers = {BoxAnswer::Silence};
    Show("ChangedDistribution");
    EXPECT_THAT(Log(), ElementsAre(std::string(kShown) + "silence"));
    Show("ChangedDistribution");
    KvDontShowAgainMessageBox(&owner_, "ChangedDistribution", L"Another text.");
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_TRUE(Answers()->ReadKeyOr("ChangedDistribution", false));
}

TEST_F(DontShowAgainBox, IsSilentForItsOwnKeyAlone) {
    desktop.answers = {BoxAnswer::Silence};
    Show("ChangedDistribution");
    Log();
    Show("changeddistribution");
    Show("");
    EXPECT_EQ(Log().size(), 2U);
}

TEST_F(DontShowAgainBox, ComesAgainAfterItsAnswersWereDeleted) {
    desktop.answers = {BoxAnswer::Silence};
    Show("ChangedDistribution");
    Log();
    const std::wstring area = GetDontShowAgainRegistrySection();
    Registry::Instance()->DeleteKey(KvStdString::ToUtf8(GetRegistryBaseKeyNameW(area.c_str())));
    Show("ChangedDistribution");
    EXPECT_EQ(Log().size(), 1U);
}

TEST_F(DontShowAgainBox, ComesWhenTheRegistryHoldsNo) {
    Answers()->WriteKey("ChangedDistribution", false);
    Show("ChangedDistribution");
    EXPECT_EQ(Log().size(), 1U);
}

TEST_F(DontShowAgainBox, RefusesANullKey) {
    EXPECT_THROW(Show(nullptr), InvalidArgument);
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(DontShowAgainBox, WritesTheAnswerThroughAtOnce) {
    const std::filesystem::path file = std::filesystem::temp_directory_path() /
                                       ("kvopt-answers-" + std::to_string(::getpid()) + ".ini");
    Registry::Install(
        std::make_shared<Registry>(IniFileFactory::Instance()->GetIniFile(file.string(), "")));
    desktop.answers = {BoxAnswer::Silence};
    Show("ChangedDistribution");
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream),
                              std::istreambuf_iterator<char>()};
    EXPECT_EQ(content, "[Software][kvopt][DontShowAgain]\nChangedDistribution=true\n");
    std::filesystem::remove(file);
}

}  // namespace
}  // namespace kvopt
