#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "kvopt/text.h"
#include "stores/store_test_support.h"
#include "text/german_process.h"

namespace kvopt {
namespace {

// A store on disk, as something to write to and to read from afresh.
class StoreOnDisk {
public:
    virtual ~StoreOnDisk() = default;
    virtual void Write(const std::function<void(ConfigurationSection&)>& write) const = 0;
    virtual std::unique_ptr<const ConfigurationSection> Read() const = 0;

    const test::TemporaryFolder folder;
    const std::string file = folder.File("store");
};

class SavedPlotOnDisk : public StoreOnDisk {
public:
    void Write(const std::function<void(ConfigurationSection&)>& write) const override {
        ConfigurationStore store;
        write(*store.Root());
        store.Save(file);
    }
    std::unique_ptr<const ConfigurationSection> Read() const override {
        return ConfigurationStore::Load(file).Root();
    }
};

class IniFileOnDisk : public StoreOnDisk {
public:
    void Write(const std::function<void(ConfigurationSection&)>& write) const override {
        write(*IniFileFactory::Instance()->GetIniFile(file, ""));
    }
    std::unique_ptr<const ConfigurationSection> Read() const override {
        return IniFileFactory::Instance()->GetIniFile(file, "");
    }
};

// Texts that some store somewhere has lost, written and read back through a file by every store,
// in two locales.
class NastyTextTest : public testing::TestWithParam<test::NastyText> {
protected:
    static void InEveryStoreAndLocale(const std::function<void(const StoreOnDisk&)>& check) {
        for (const bool isGerman : {false, true}) {
            SCOPED_TRACE(isGerman ? "in a German process" : "in the C locale");
            const auto german = isGerman ? std::make_unique<test::GermanProcess>() : nullptr;
            {
                SCOPED_TRACE("saved plot");
                check(SavedPlotOnDisk());
            }
            {
                SCOPED_TRACE("ini file");
                check(IniFileOnDisk());
            }
        }
    }

    const std::string text_ = GetParam().text;
    const char* const name_ = text_.c_str();
};

INSTANTIATE_TEST_SUITE_P(Stores, NastyTextTest, testing::ValuesIn(test::NastyTexts()),
                         [](const testing::TestParamInfo<test::NastyText>& row) {
                             return std::string(row.param.label);
                         });

TEST_P(NastyTextTest, ComesBackAsSectionKeyAndValue) {
    InEveryStoreAndLocale([&](const StoreOnDisk& store) {
        store.Write([&](ConfigurationSection& root) {
            root.GetSection("before")->WriteKey("Key", 1);
            const auto section = root.GetSection(name_);
            section->WriteKey("before", "1");
            section->WriteKey(name_, name_);
            section->WriteKey("after", 0.5);
            section->GetIndexedSection(name_, 3)->WriteKey(name_, 1.5);
            root.GetSection("after")->WriteKey("Key", 2);
        });
        const auto root = store.Read();
        ASSERT_EQ(root->CountSections(name_), 1);
        const auto section = root->GetSection(name_);
        EXPECT_EQ(section->ReadKeyOr(name_, std::string("lost")), text_);
        EXPECT_EQ(section->ReadKeyOr("before", std::string("lost")), "1");
        EXPECT_EQ(section->ReadKeyOr("after", kNotSet), 0.5);
        const auto child = section->GetIndexedSection(name_, 3);
        ASSERT_NE(child, nullptr);
        EXPECT_EQ(child->ReadKeyOr(name_, kNotSet), 1.5);
        EXPECT_EQ(root->GetSection("before")->ReadKeyOr("Key", 0), 1);
        EXPECT_EQ(root->GetSection("after")->ReadKeyOr("Key", 0), 2);
        const auto* const names = dynamic_cast<const StoreSection*>(section.get());
        ASSERT_NE(names, nullptr);
        EXPECT_EQ(names->KeyNames(), (std::vector<std::string>{"before", text_, "after"}));
    });
}

TEST_P(NastyTextTest, ComesBackAsFirstKeyWithoutASection) {
    InEveryStoreAndLocale([&](const StoreOnDisk& store) {
        store.Write([&](ConfigurationSection& root) { root.WriteKey(name_, name_); });
        EXPECT_EQ(store.Read()->ReadKeyOr(name_, std::string("lost")), text_);
    });
}

TEST_P(NastyTextTest, StandsInAnIniFileAsItStoodWhenAnotherSectionIsWritten) {
    const IniFileOnDisk store;
    store.Write(
        [&](ConfigurationSection& root) { root.GetSection(name_)->WriteKey(name_, name_); });
    const std::string before = test::Slurp(store.file);
    store.Write([](ConfigurationSection& root) { root.GetSection("Zz")->WriteKey("Zz", 1); });
    EXPECT_EQ(test::Slurp(store.file), before + "\n[Zz]\nZz=1\n");
}

}  // namespace
}  // namespace kvopt
