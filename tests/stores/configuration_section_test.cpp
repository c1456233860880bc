#include "kvopt/stores/configuration_section.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "kvopt/text.h"
#include "stores/store_test_support.h"

namespace kvopt {
namespace {

using testing::ElementsAre;

// What every kind of section promises, in memory: the tree of a saved plot and an ini file.
struct Kind {
    const char* name;
    std::function<std::unique_ptr<ConfigurationSection>()> make;
};

class ConfigurationSectionTest : public testing::TestWithParam<Kind> {
protected:
    std::unique_ptr<ConfigurationSection> root_ = GetParam().make();
    const ConfigurationSection& constRoot_ = *root_;
};

INSTANTIATE_TEST_SUITE_P(Stores, ConfigurationSectionTest,
                         testing::Values(Kind{"Tree", [] { return ConfigurationStore().Root(); }},
                                         Kind{"Ini",
                                              [] { return std::make_unique<IniFileSection>(); }}),
                         [](const testing::TestParamInfo<Kind>& row) { return row.param.name; });

TEST_P(ConfigurationSectionTest, AnAbsentKeyLeavesTheTargetAlone) {
    bool flag = true;
    int number = -99;
    double real = kNotSet;
    std::string text = "kept";
    EXPECT_FALSE(root_->ReadKey("Key", flag));
    EXPECT_FALSE(root_->ReadKey("Key", number));
    EXPECT_FALSE(root_->ReadKey("Key", real));
    EXPECT_FALSE(root_->ReadKey("Key", text));
    EXPECT_TRUE(flag);
    EXPECT_EQ(number, -99);
    EXPECT_EQ(real, kNotSet);
    EXPECT_EQ(text, "kept");
    EXPECT_EQ(root_->ReadKeyOr("Key", 16), 16);
}

TEST_P(ConfigurationSectionTest, EachTypeComesBack) {
    root_->WriteKey("Bool", true);
    root_->WriteKey("Int", std::numeric_limits<int>::min());
    root_->WriteKey("Double", 0.1);
    root_->WriteKey("Float", 0.1F);
    root_->WriteKey("Text", "text");
    root_->WriteKey("String", std::string("string"));
    EXPECT_TRUE(root_->ReadKeyOr("Bool", false));
    EXPECT_EQ(root_->ReadKeyOr("Int", 0), std::numeric_limits<int>::min());
    EXPECT_EQ(root_->ReadKeyOr("Double", 0.0), 0.1);
    EXPECT_EQ(root_->ReadKeyOr("Float", 0.0), static_cast<double>(0.1F));
    EXPECT_EQ(root_->ReadKeyOr("Text", std::string()), "text");
    EXPECT_EQ(root_->ReadKeyOr("String", std::string()), "string");
}

TEST_P(ConfigurationSectionTest, ABoolAndAnIntReadEachOther) {
    root_->WriteKey("True", true);
    root_->WriteKey("False", false);
    root_->WriteKey("Zero", 0);
    root_->WriteKey("Two", 2);
    EXPECT_EQ(root_->ReadKeyOr("True", -1), 1);
    EXPECT_EQ(root_->ReadKeyOr("False", -1), 0);
    EXPECT_FALSE(root_->ReadKeyOr("Zero", true));
    EXPECT_TRUE(root_->ReadKeyOr("Two", false));
}

TEST_P(ConfigurationSectionTest, AnIntReadsAsADouble) {
    root_->WriteKey("Int", 7);
    EXPECT_EQ(root_->ReadKeyOr("Int", kNotSet), 7.0);
}

TEST_P(ConfigurationSectionTest, ATextReadsAsNoNumber) {
    root_->WriteKey("Text", "yes");
    bool flag = false;
    int number = -99;
    double real = kNotSet;
    EXPECT_FALSE(root_->ReadKey("Text", flag));
    EXPECT_FALSE(root_->ReadKey("Text", number));
    EXPECT_FALSE(root_->ReadKey("Text", real));
    EXPECT_FALSE(flag);
    EXPECT_EQ(number, -99);
    EXPECT_EQ(real, kNotSet);
}

TEST_P(ConfigurationSectionTest, TheLastValueCountsAndBringsItsType) {
    root_->WriteKey("Key", 7);
    root_->WriteKey("Key", "seven");
    EXPECT_EQ(root_->ReadKeyOr("Key", -99), -99);
    EXPECT_EQ(root_->ReadKeyOr("Key", std::string()), "seven");
}

TEST_P(ConfigurationSectionTest, ReadingCreatesNothing) {
    EXPECT_EQ(constRoot_.GetSection("Child"), nullptr);
    EXPECT_EQ(constRoot_.GetIndexedSection("Child", 1), nullptr);
    EXPECT_FALSE(root_->HasSection("Child", true));
    EXPECT_EQ(root_->CountSections("Child"), 0);
    root_->SetSection("Child");
    EXPECT_EQ(root_->ReadKeyOr("Key", 1), 1);
    EXPECT_FALSE(root_->HasSection("Grandchild", true));
    root_->SetSection("");
    EXPECT_FALSE(root_->HasSection("Child", true));
}

TEST_P(ConfigurationSectionTest, ASectionWithoutKeysIsKept) {
    root_->GetSection("Child");
    EXPECT_TRUE(root_->HasSection("Child", true));
    EXPECT_FALSE(root_->HasSection("Child", false));
    EXPECT_NE(constRoot_.GetSection("Child"), nullptr);
    root_->GetSection("Child")->WriteKey("Key", 1);
    EXPECT_TRUE(root_->HasSection("Child", false));
}

TEST_P(ConfigurationSectionTest, NumberedChildrenMayHaveGaps) {
    root_->GetIndexedSection("Constant", 4)->WriteKey("Name", "d");
    root_->GetIndexedSection("Constant", 1)->WriteKey("Name", "a");
    root_->GetIndexedSection("Constant", 2)->WriteKey("Name", "b");
    EXPECT_EQ(root_->CountSections("Constant"), 3);
    EXPECT_EQ(constRoot_.GetIndexedSection("Constant", 4)->ReadKeyOr("Name", std::string()), "d");
    EXPECT_EQ(constRoot_.GetIndexedSection("Constant", 2)->ReadKeyOr("Name", std::string()), "b");
    EXPECT_EQ(constRoot_.GetIndexedSection("Constant", 3), nullptr);
    EXPECT_EQ(constRoot_.GetIndexedSection("Constant", 5), nullptr);
    EXPECT_EQ(constRoot_.GetIndexedSection("Constant", 0), nullptr);
    EXPECT_EQ(root_->CountSections("Constant"), 3);
}

TEST_P(ConfigurationSectionTest, APlainNameIsTheLowestNumber) {
    root_->GetIndexedSection("Constant", 3)->WriteKey("Name", "c");
    EXPECT_EQ(root_->GetSection("Constant")->ReadKeyOr("Name", std::string()), "c");
    root_->GetIndexedSection("Constant", 2)->WriteKey("Name", "b");
    EXPECT_EQ(root_->GetSection("Constant")->ReadKeyOr("Name", std::string()), "b");
    root_->GetSection("Axis_2")->WriteKey("Name", "x");
    EXPECT_EQ(constRoot_.GetIndexedSection("Axis_2", 1)->ReadKeyOr("Name", std::string()), "x");
    EXPECT_EQ(root_->CountSections("Axis"), 0);
}

TEST_P(ConfigurationSectionTest, SetSectionChoosesAmongTheChildren) {
    root_->SetSection("A");
    root_->WriteKey("Key", 1);
    root_->SetSection("B");
    root_->WriteKey("Key", 2);
    root_->SetSection("");
    root_->WriteKey("Key", 3);
    EXPECT_EQ(root_->GetSection("A")->ReadKeyOr("Key", 0), 1);
    EXPECT_EQ(root_->GetSection("B")->ReadKeyOr("Key", 0), 2);
    EXPECT_EQ(root_->ReadKeyOr("Key", 0), 3);
    EXPECT_FALSE(root_->GetSection("A")->HasSection("B", true));
}

TEST_P(ConfigurationSectionTest, SetSectionOfAChildStaysInsideTheChild) {
    const auto child = root_->GetSection("Child");
    child->SetSection("A");
    child->WriteKey("Key", 1);
    EXPECT_FALSE(root_->HasSection("A", true));
    EXPECT_EQ(root_->GetSection("Child")->GetSection("A")->ReadKeyOr("Key", 0), 1);
    child->SetSection("");
    EXPECT_TRUE(child->HasSection("A", true));
}

TEST_P(ConfigurationSectionTest, ClearTakesKeysAndSectionsInsideAndKeepsTheSection) {
    const auto plot = root_->GetSection("Plot");
    plot->WriteKey("Key", 1);
    plot->GetSection("Constants")->GetIndexedSection("Constant", 1)->WriteKey("Name", "a");
    root_->GetSection("Other")->WriteKey("Key", 2);
    plot->Clear();
    EXPECT_TRUE(root_->HasSection("Plot", true));
    EXPECT_EQ(plot->ReadKeyOr("Key", 0), 0);
    EXPECT_FALSE(plot->HasSection("Constants", true));
    EXPECT_EQ(root_->GetSection("Other")->ReadKeyOr("Key", 0), 2);
}

TEST_P(ConfigurationSectionTest, AHandleStaysGoodWhenItsSectionIsClearedOrGone) {
    const auto plot = root_->GetSection("Plot");
    const auto constants = plot->GetSection("Constants");
    constants->WriteKey("Before", 1);
    plot->Clear();
    EXPECT_EQ(constants->ReadKeyOr("Before", 0), 0);
    constants->WriteKey("After", 2);
    EXPECT_EQ(root_->GetSection("Plot")->GetSection("Constants")->ReadKeyOr("After", 0), 2);
    const auto again = plot->GetSection("Constants");
    EXPECT_EQ(again->ReadKeyOr("After", 0), 2);
}

TEST_P(ConfigurationSectionTest, ClearAndOpenAnewIsTheWritersIdiom) {
    for (int round = 0; round < 2; ++round) {
        root_->GetSection("Page")->Clear();
        const auto page = root_->GetSection("Page");
        page->WriteKey(round == 0 ? "Old" : "New", round);
    }
    EXPECT_EQ(root_->GetSection("Page")->ReadKeyOr("Old", -1), -1);
    EXPECT_EQ(root_->GetSection("Page")->ReadKeyOr("New", -1), 1);
    EXPECT_EQ(root_->CountSections("Page"), 1);
}

TEST_P(ConfigurationSectionTest, HandlesOfOneSectionSeeEachOther) {
    const auto one = root_->GetSection("Child");
    const auto other = root_->GetSection("Child");
    one->WriteKey("Key", 1);
    EXPECT_EQ(other->ReadKeyOr("Key", 0), 1);
}

TEST_P(ConfigurationSectionTest, AHandleKeepsTheStoreAlive) {
    const auto child = root_->GetSection("Child");
    root_.reset();
    child->WriteKey("Key", 1);
    child->Flush();
    EXPECT_EQ(child->ReadKeyOr("Key", 0), 1);
}

TEST_P(ConfigurationSectionTest, KeepsOrderAndFindsEachOfMany) {
    const auto* const store = dynamic_cast<StoreSection*>(root_.get());
    ASSERT_NE(store, nullptr);
    std::vector<std::string> expected;
    for (int i = 0; i < 300; ++i) {
        // A step that is prime to the count visits all, out of order.
        const int number = i * 7 % 300;
        const std::string name = "Factor " + std::to_string(number);
        root_->WriteKey(name.c_str(), number);
        root_->GetSection(name.c_str())->WriteKey("Number", number);
        root_->GetIndexedSection("Constant", number + 1)->WriteKey("Number", number);
        expected.push_back(name);
    }
    EXPECT_EQ(store->KeyNames(), expected);
    expected.insert(expected.begin() + 1, "Constant");
    EXPECT_EQ(store->SectionNames(), expected);
    for (int number = 0; number < 300; ++number) {
        const std::string name = "Factor " + std::to_string(number);
        EXPECT_EQ(root_->ReadKeyOr(name.c_str(), -1), number);
        EXPECT_EQ(constRoot_.GetSection(name.c_str())->ReadKeyOr("Number", -1), number);
        EXPECT_EQ(constRoot_.GetIndexedSection("Constant", number + 1)->ReadKeyOr("Number", -1),
                  number);
    }
    root_->Clear();
    EXPECT_EQ(root_->ReadKeyOr("Factor 7", -1), -1);
    for (int number = 299; number >= 0; --number) {
        root_->WriteKey(("Factor " + std::to_string(number)).c_str(), -number);
    }
    for (int number = 0; number < 300; ++number) {
        EXPECT_EQ(root_->ReadKeyOr(("Factor " + std::to_string(number)).c_str(), 1), -number);
    }
}

TEST_P(ConfigurationSectionTest, RemovesAllSectionsOfAName) {
    auto* const store = dynamic_cast<StoreSection*>(root_.get());
    ASSERT_NE(store, nullptr);
    root_->GetIndexedSection("A", 1)->WriteKey("Key", 1);
    root_->GetIndexedSection("A", 2)->WriteKey("Key", 2);
    root_->GetSection("B")->WriteKey("Key", 3);
    store->RemoveSections("A");
    store->RemoveSections("missing");
    EXPECT_EQ(root_->CountSections("A"), 0);
    EXPECT_THAT(store->SectionNames(), ElementsAre("B"));
    root_->GetSection("A")->WriteKey("Key", 4);
    EXPECT_EQ(root_->GetSection("A")->ReadKeyOr("Key", 0), 4);
}

TEST_P(ConfigurationSectionTest, MisuseByCodeThrows) {
    bool flag = false;
    int number = 0;
    double real = 0.0;
    std::string text;
    EXPECT_THROW(root_->SetSection(nullptr), InvalidArgument);
    EXPECT_THROW(root_->GetSection(nullptr), InvalidArgument);
    EXPECT_THROW(root_->GetIndexedSection(nullptr, 1), InvalidArgument);
    EXPECT_THROW(root_->GetIndexedSection("A", 0), InvalidArgument);
    EXPECT_THROW(constRoot_.GetSection(nullptr), InvalidArgument);
    EXPECT_THROW(constRoot_.GetIndexedSection(nullptr, 1), InvalidArgument);
    EXPECT_THROW(root_->HasSection(nullptr, true), InvalidArgument);
    EXPECT_THROW(root_->CountSections(nullptr), InvalidArgument);
    EXPECT_THROW(root_->ReadKey(nullptr, flag), InvalidArgument);
    EXPECT_THROW(root_->ReadKey(nullptr, number), InvalidArgument);
    EXPECT_THROW(root_->ReadKey(nullptr, real), InvalidArgument);
    EXPECT_THROW(root_->ReadKey(nullptr, text), InvalidArgument);
    EXPECT_THROW(root_->WriteKey(nullptr, true), InvalidArgument);
    EXPECT_THROW(root_->WriteKey(nullptr, 1), InvalidArgument);
    EXPECT_THROW(root_->WriteKey(nullptr, 1.0), InvalidArgument);
    EXPECT_THROW(root_->WriteKey(nullptr, "a"), InvalidArgument);
    EXPECT_THROW(root_->WriteKey("a", static_cast<const char*>(nullptr)), InvalidArgument);
    EXPECT_THROW(root_->WriteKey("a", std::string("a\0b", 3)), InvalidArgument);
    EXPECT_FALSE(root_->HasSection("A", true));
    EXPECT_FALSE(root_->ReadKey("a", text));
}

TEST_P(ConfigurationSectionTest, SectionsLieAtMostAHundredDeep) {
    auto section = GetParam().make();
    for (int depth = 0; depth < 100; ++depth) {
        section = section->GetSection("Deeper");
    }
    section->WriteKey("Key", 1);
    EXPECT_THROW(section->GetSection("Deeper"), InvalidArgument);
}

TEST(ConfigurationSection,
     ClearOfTheOutermostSectionEmptiesATreeButNotTheNamedSectionsOfAnIniFile) {
    const auto tree = ConfigurationStore().Root();
    IniFileSection ini;
    for (ConfigurationSection* const root :
         {tree.get(), static_cast<ConfigurationSection*>(&ini)}) {
        root->WriteKey("Key", 1);
        root->GetSection("Child")->WriteKey("Key", 2);
        root->Clear();
        EXPECT_EQ(root->ReadKeyOr("Key", 0), 0);
    }
    EXPECT_FALSE(tree->HasSection("Child", true));
    EXPECT_TRUE(ini.HasSection("Child", true));
}

TEST(ConfigurationSection, OnlyAnIniFileForgetsTypes) {
    const auto tree = ConfigurationStore().Root();
    IniFileSection ini;
    for (ConfigurationSection* const root :
         {tree.get(), static_cast<ConfigurationSection*>(&ini)}) {
        root->WriteKey("Text", "5");
        root->WriteKey("Int", 5);
        root->WriteKey("Real", 5.0);
    }
    EXPECT_EQ(tree->ReadKeyOr("Text", -1), -1);
    EXPECT_EQ(tree->ReadKeyOr("Text", kNotSet), kNotSet);
    EXPECT_EQ(tree->ReadKeyOr("Int", std::string("none")), "none");
    EXPECT_EQ(tree->ReadKeyOr("Real", -1), -1);
    EXPECT_EQ(ini.ReadKeyOr("Text", -1), 5);
    EXPECT_EQ(ini.ReadKeyOr("Text", kNotSet), 5.0);
    EXPECT_EQ(ini.ReadKeyOr("Int", std::string("none")), "5");
    EXPECT_EQ(ini.ReadKeyOr("Real", -1), 5);
}

}  // namespace
}  // namespace kvopt
