#include "kvopt/study/response_manager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/fake_study.h"

namespace kvopt {
namespace {

class StudyResponses : public testing::Test {
protected:
    StudyResponses() {
        study_.Response("Yield");
        study_.ExtraResponse("Profit", ResponseEx::Derived);
        study_.Response("Purity");
        study_.ExtraResponse("Outside", ResponseEx::External);
    }
    const ResponseManager& manager() const { return *study_.GetResponseManager(); }

    test::FakeStudy study_;
};

TEST_F(StudyResponses, AreWalkedInOrder) {
    std::vector<std::string> names;
    for (const ResponseEx* response : manager()) {
        names.push_back(response->GetName());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Yield", "Profit", "Purity", "Outside"}));
}

TEST_F(StudyResponses, AreFoundByExactName) {
    ASSERT_NE(manager().GetResponse("Profit"), nullptr);
    EXPECT_EQ(manager().GetResponse("Profit")->GetType(), ResponseEx::Derived);
    EXPECT_EQ(manager().GetResponse("profit"), nullptr);
    EXPECT_EQ(manager().GetResponse(""), nullptr);
}

TEST_F(StudyResponses, AreCountedByKind) {
    EXPECT_EQ(manager().GetCount(ResponseEx::Regular), 2);
    EXPECT_EQ(manager().GetCount(ResponseEx::Derived), 1);
    EXPECT_EQ(manager().GetCount(ResponseEx::Combined), 0);
    EXPECT_EQ(manager().GetCount(static_cast<ResponseEx::EResponseType>(3)), 1);
    EXPECT_EQ(manager().GetCount(ResponseEx::Any), 4);
}

TEST_F(StudyResponses, AreNumberedFromOneWithinAKind) {
    EXPECT_EQ(manager().GetIndex("Yield", ResponseEx::Regular), 1);
    EXPECT_EQ(manager().GetIndex("Purity", ResponseEx::Regular), 2);
    EXPECT_EQ(manager().GetIndex("Purity", static_cast<ResponseEx::EResponseType>(4)), 3);
    EXPECT_EQ(manager().GetIndex("Outside", ResponseEx::External), 1);
    EXPECT_EQ(manager().GetIndex("Profit", ResponseEx::Regular), 0);
    EXPECT_EQ(manager().GetIndex("xx", ResponseEx::Any), 0);
}

TEST(ResponseEx, HasNoLimitsUntilTheyAreGiven) {
    ResponseClass variable("Yield");
    ResponseEx response(&variable);
    EXPECT_EQ(response.GetType(), ResponseEx::Regular);
    EXPECT_EQ(response.GetType(), 0);
    EXPECT_EQ(response.GetLowLimit(), -99.0);
    EXPECT_EQ(response.GetHighLimit(), -99.0);
    EXPECT_EQ(response.GetTarget(), -99.0);
    EXPECT_EQ(&response.GetName(), &variable.GetName());
    response.type = ResponseEx::Combined;
    response.lowLimit = 1.0;
    response.highLimit = 3.0;
    response.target = 2.0;
    EXPECT_EQ(response.GetType(), ResponseEx::Combined);
    EXPECT_EQ(response.GetLowLimit(), 1.0);
    EXPECT_EQ(response.GetHighLimit(), 3.0);
    EXPECT_EQ(response.GetTarget(), 2.0);
    EXPECT_EQ(ResponseEx(nullptr).GetName(), "");
}

}  // namespace
}  // namespace kvopt
