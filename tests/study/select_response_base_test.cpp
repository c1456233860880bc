#include "kvopt/study/select_response_base.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kvopt/stores.h"

namespace kvopt {
namespace {

using Strings = std::vector<std::string>;

class Several : public SelectResponseBase {
public:
    using SelectResponseBase::SelectResponseBase;
    bool UseMultipleResponses() const override { return true; }
};

TEST(SelectResponseBase, NumbersItsTypes) {
    EXPECT_EQ(SelectResponseBase::Ordinary, 1);
    EXPECT_EQ(SelectResponseBase::Extended, 2);
    EXPECT_EQ(SelectResponseBase::Special, 3);
    SelectResponseBase base;
    EXPECT_EQ(base.GetResponseType(), SelectResponseBase::Ordinary);
    EXPECT_FALSE(base.UseExtendedResponse());
    base.SetResponseType(SelectResponseBase::Extended);
    EXPECT_TRUE(base.UseExtendedResponse());
    EXPECT_FALSE(SelectResponseBase(SelectResponseBase::Special).UseExtendedResponse());
}

TEST(SelectResponseBase, KeepsOneResponseUnlessItTakesSeveral) {
    SelectResponseBase one;
    EXPECT_FALSE(one.UseMultipleResponses());
    one.SetSelResponses({"Yield", "Purity"});
    EXPECT_EQ(one.GetSelResponses(), (Strings{"Yield"}));
    Several several;
    several.SetSelResponses({"Yield", "Purity"});
    EXPECT_EQ(several.GetSelResponses(), (Strings{"Yield", "Purity"}));
    EXPECT_EQ(several.GetResponse(), "Yield");
    Strings names{"old"};
    several.GetSelResponses(names);
    EXPECT_EQ(names, (Strings{"Yield", "Purity"}));
}

TEST(SelectResponseBase, TakesOneResponseAsTheWholeSelection) {
    Several base;
    EXPECT_EQ(base.GetResponse(), "");
    base.SetSelResponses({"Yield", "Purity"});
    base.SetResponse("Profit");
    EXPECT_EQ(base.GetSelResponses(), (Strings{"Profit"}));
    EXPECT_EQ(base.GetResponse(), "Profit");
    base.SetResponse("");
    EXPECT_EQ(base.GetSelResponses(), Strings());
}

TEST(SelectResponseBase, AnswersForAnOwnerWithoutFurtherItems) {
    SelectResponseBase base;
    EXPECT_FALSE(base.NextResponse());
    EXPECT_FALSE(base.IsAllowEmptyResponses());
    Strings items{"old"};
    std::string type = "responses";
    EXPECT_FALSE(base.GetSpecialAvailable(items, type));
    EXPECT_EQ(items, (Strings{"old"}));
    EXPECT_EQ(type, "responses");
}

/// What comes back of a selection through a file.
struct Read {
    Strings responses{"old"};
    bool allSelected = false;
    SelectResponseBase::ResponseType type = SelectResponseBase::Ordinary;
    bool found = false;
};

Read Reread(const ConfigurationStore& store) {
    const auto reread = ConfigurationStore::Parse(store.Text(), "plot.json");
    Read read;
    read.found = SelectResponseBase::ReadSection(reread.Root().get(), read.responses,
                                                 read.allSelected, read.type);
    return read;
}

TEST(SelectResponseBase, ReadsBackTheNamesInTheirOrder) {
    const Strings names{"Yield", "", " a;b=c ", "line\nbreak", "\xC3\x85", "Yield"};
    ConfigurationStore store;
    SelectResponseBase::WriteSection(store.Root().get(), names, false, SelectResponseBase::Special);
    const Read read = Reread(store);
    EXPECT_TRUE(read.found);
    EXPECT_EQ(read.responses, names);
    EXPECT_FALSE(read.allSelected);
    EXPECT_EQ(read.type, SelectResponseBase::Special);
}

TEST(SelectResponseBase, GivesNoNamesBackWhenAllWereSelected) {
    ConfigurationStore store;
    SelectResponseBase::WriteSection(store.Root().get(), {"Yield", "Purity"}, true,
                                     SelectResponseBase::Extended);
    const Read read = Reread(store);
    EXPECT_TRUE(read.found);
    EXPECT_EQ(read.responses, Strings());
    EXPECT_TRUE(read.allSelected);
    EXPECT_EQ(read.type, SelectResponseBase::Extended);
}

TEST(SelectResponseBase, ReplacesTheFormerSelectionAndNothingElse) {
    ConfigurationStore store;
    store.Root()->WriteKey("Other", 1);
    SelectResponseBase::WriteSection(store.Root().get(), {"A", "B", "C"}, false,
                                     SelectResponseBase::Ordinary);
    SelectResponseBase::WriteSection(store.Root().get(), {"D"}, false,
                                     SelectResponseBase::Ordinary);
    EXPECT_EQ(Reread(store).responses, (Strings{"D"}));
    int other = 0;
    EXPECT_TRUE(store.Root()->ReadKey("Other", other));
}

TEST(SelectResponseBase, KeepsTheTypeForANumberThatIsNone) {
    for (const int number : {0, 4, -1}) {
        ConfigurationStore store;
        SelectResponseBase::WriteSection(store.Root().get(), {"Yield"}, false,
                                         static_cast<SelectResponseBase::ResponseType>(number));
        Read read;
        read.type = SelectResponseBase::Extended;
        EXPECT_TRUE(SelectResponseBase::ReadSection(store.Root().get(), read.responses,
                                                    read.allSelected, read.type));
        EXPECT_EQ(read.type, SelectResponseBase::Extended) << number;
        EXPECT_EQ(read.responses, (Strings{"Yield"}));
    }
}

TEST(SelectResponseBase, ReadsEachTypeOverAnyOther) {
    for (int number = 1; number <= 3; ++number) {
        ConfigurationStore store;
        SelectResponseBase::WriteSection(store.Root().get(), {"Yield"}, false,
                                         static_cast<SelectResponseBase::ResponseType>(number));
        Read read;
        read.type = static_cast<SelectResponseBase::ResponseType>(number % 3 + 1);
        EXPECT_TRUE(SelectResponseBase::ReadSection(store.Root().get(), read.responses,
                                                    read.allSelected, read.type));
        EXPECT_EQ(read.type, number);
    }
}

TEST(SelectResponseBase, PassesOverEntriesWithoutANameOrWithoutTheirNumber) {
    ConfigurationStore store;
    const auto section = store.Root()->GetSection("SelectedResponses");
    section->GetIndexedSection("Response", 1)->WriteKey("Name", "Yield");
    section->GetIndexedSection("Response", 2)->WriteKey("Other", "Purity");
    section->GetIndexedSection("Response", 4)->WriteKey("Name", "Taste");
    const Read read = Reread(store);
    EXPECT_TRUE(read.found);
    EXPECT_EQ(read.responses, (Strings{"Yield"})) << "three are counted, so the fourth is not read";
    EXPECT_FALSE(read.allSelected);
    EXPECT_EQ(read.type, SelectResponseBase::Ordinary);
}

TEST(SelectResponseBase, ChangesNothingWithoutASection) {
    const ConfigurationStore store;
    Read read = Reread(store);
    EXPECT_FALSE(read.found);
    EXPECT_EQ(read.responses, (Strings{"old"}));
    read.allSelected = true;
    read.type = SelectResponseBase::Extended;
    EXPECT_FALSE(
        SelectResponseBase::ReadSection(nullptr, read.responses, read.allSelected, read.type));
    EXPECT_EQ(read.responses, (Strings{"old"}));
    EXPECT_TRUE(read.allSelected);
    EXPECT_EQ(read.type, SelectResponseBase::Extended);
}

}  // namespace
}  // namespace kvopt
