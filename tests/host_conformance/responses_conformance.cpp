#include <algorithm>
#include <set>

#include "host_conformance/host_conformance.h"

namespace kvopt {
namespace {

TEST_P(HostConformance, NamesEachResponseOnceAndUnlikeAnyFactor) {
    std::set<std::string> names;
    for (const ResponseEx* response : Responses()) {
        ASSERT_NE(response, nullptr);
        ASSERT_NE(response->response, nullptr);
        EXPECT_EQ(response->GetName(), response->response->GetName());
        EXPECT_FALSE(response->GetName().empty());
        EXPECT_TRUE(names.insert(response->GetName()).second) << response->GetName();
        EXPECT_FALSE(variables.IsFactor(response->GetName())) << response->GetName();
        EXPECT_EQ(variables.GetUnits(response->GetName()).empty() ||
                      variables.GetUnits(response->GetName()) == response->response->GetUnits(),
                  true);
    }
}

TEST_P(HostConformance, FindsResponsesByNameAndCountsThemFromOne) {
    const ResponseManager& manager = *study->GetResponseManager();
    int position = 0;
    for (ResponseEx* response : Responses()) {
        EXPECT_EQ(manager.GetResponse(response->GetName()), response);
        EXPECT_EQ(manager.GetIndex(response->GetName(), ResponseEx::Any), ++position);
    }
    EXPECT_EQ(manager.GetResponse(UnknownName()), nullptr);
    EXPECT_EQ(manager.GetResponse(""), nullptr);
    EXPECT_EQ(manager.GetIndex(UnknownName(), ResponseEx::Any), 0);
}

TEST_P(HostConformance, CountsEveryResponseUnderOneKind) {
    const ResponseManager& manager = *study->GetResponseManager();
    int sum = 0;
    for (const auto type :
         {ResponseEx::Regular, ResponseEx::Derived, ResponseEx::Combined, ResponseEx::External}) {
        sum += manager.GetCount(type);
    }
    EXPECT_EQ(sum, static_cast<int>(Responses().size()));
}

TEST_P(HostConformance, HoldsTheOrdinaryResponsesInBothSets) {
    std::vector<std::string> ordinary;
    for (const ResponseEx* response : Responses()) {
        if (response->GetType() == ResponseEx::Regular) {
            ordinary.push_back(response->GetName());
        }
    }
    std::vector<std::string> ofVariables;
    for (const ResponseClass* response : variables.GetAllResponses()) {
        ofVariables.push_back(response->GetName());
    }
    EXPECT_EQ(ofVariables, ordinary);
}

TEST_P(HostConformance, KeepsTheLimitsOfResponsesInOrder) {
    for (const ResponseEx* response : Responses()) {
        const double low = response->GetLowLimit();
        const double high = response->GetHighLimit();
        const double target = response->GetTarget();
        if (low != kNotSet && high != kNotSet) {
            EXPECT_LE(low, high) << response->GetName();
        }
        if (target != kNotSet) {
            EXPECT_TRUE(low == kNotSet || low <= target) << response->GetName();
            EXPECT_TRUE(high == kNotSet || target <= high) << response->GetName();
        }
    }
}

TEST_P(HostConformance, RemembersASelectionInItsOrder) {
    std::vector<std::string> all;
    study->GetAllAvailableResponses(all, SelectResponseBase::Ordinary, false);
    std::vector<std::string> wanted = all;
    std::reverse(wanted.begin(), wanted.end());
    study->SetSelectedResponses(wanted);
    std::vector<std::string> selected = {"left over"};
    study->GetSelectedResponses(selected, SelectResponseBase::Ordinary);
    EXPECT_EQ(selected, wanted);
    EXPECT_EQ(study->GetFirstSelectedResponse(SelectResponseBase::Ordinary),
              wanted.empty() ? "" : wanted.front());
}

TEST_P(HostConformance, SelectsNoUnknownResponse) {
    study->SetSelectedResponses({UnknownName()});
    std::vector<std::string> selected;
    study->GetSelectedResponses(selected, SelectResponseBase::Extended);
    EXPECT_EQ(std::count(selected.begin(), selected.end(), UnknownName()), 0);
    EXPECT_NE(study->GetFirstSelectedResponse(SelectResponseBase::Extended), UnknownName());
}

TEST_P(HostConformance, RemovesWhatIsNoValidResponseAndKeepsTheOrder) {
    std::vector<std::string> all;
    study->GetAllAvailableResponses(all, SelectResponseBase::Extended, false);
    std::vector<std::string> names = {UnknownName()};
    for (const std::string& name : all) {
        names.push_back(name);
        names.push_back(UnknownName());
    }
    for (const FactorClass* factor : Factors()) {
        names.push_back(factor->GetName());
    }
    study->RemoveNonValidResponses(names);
    EXPECT_EQ(names, all);
}

TEST_P(HostConformance, OffersOnlyAvailableResponses) {
    for (const auto type : {SelectResponseBase::Ordinary, SelectResponseBase::Extended}) {
        for (const bool fittedOnly : {false, true}) {
            std::vector<std::string> offered = {"left over"};
            study->GetAllAvailableResponses(offered, type, fittedOnly);
            std::vector<std::string> expected;
            for (const ResponseEx* response : Responses()) {
                const bool isInSet = type == SelectResponseBase::Extended ||
                                     response->GetType() == ResponseEx::Regular;
                if (isInSet && Models().IsResponseAvailable(response->GetName(), fittedOnly)) {
                    expected.push_back(response->GetName());
                }
            }
            EXPECT_EQ(offered, expected);
        }
    }
}

}  // namespace
}  // namespace kvopt
