#pragma once

/// \file
/// What the tests of the contour wizard share: a study of so many factors of each kind, a plot of
/// it, and stores that live as long as the test.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "axes/sheet_desktop.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs.h"
#include "kvopt/sheets.h"
#include "kvopt/stores.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "support/fake_study.h"
#include "support/memory_profile.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"

namespace kvopt::test {

using Names = std::vector<std::string>;

/// How many factors of each kind a study has.
struct FactorNumbers {
    int mixture = 0;
    int qualitative = 0;
    int process = 0;  ///< without the qualitative ones
    bool filler = false;
};

/// Notes in a log what it is told to select.
class ToldStudy : public FakeStudy {
public:
    explicit ToldStudy(SectionLog& log) : log_(log) {}
    void SetSelectedResponses(const std::vector<std::string>& responses) override {
        log_.push_back("study selects " + KvStdString::FormatStringVector(responses, ";"));
        FakeStudy::SetSelectedResponses(responses);
        if (onSelected) {
            onSelected();
        }
    }
    std::function<void()> onSelected;  ///< what the host does then

private:
    SectionLog& log_;
};

/// The lines of a log without those that note that something was read.
inline SectionLog Changes(const SectionLog& log) {
    SectionLog changes;
    for (const std::string& line : log) {
        if (line.find("] read ") == std::string::npos) {
            changes.push_back(line);
        }
    }
    return changes;
}

class ContourTest : public testing::Test {
protected:
    ContourTest() { study.iniFileName = kIniFile; }
    ~ContourTest() override { Investigation::SetActiveInvestigation(nullptr); }

    void AddFactors(const FactorNumbers& numbers) {
        for (int i = 1; i <= numbers.mixture; ++i) {
            study.Part("M" + std::to_string(i));
        }
        for (int i = 1; i <= numbers.qualitative; ++i) {
            study.Names("Q" + std::to_string(i), {"a", "b", "c"});
        }
        for (int i = 1; i <= numbers.process; ++i) {
            study.Number("P" + std::to_string(i), 0, 10);
        }
        if (numbers.filler) {
            study.Filler("Rest");
        }
    }
    void AddResponses(int count) {
        Names names;
        for (int i = 1; i <= count; ++i) {
            names.push_back("Y" + std::to_string(i));
            study.Response(names.back());
        }
        study.SetSelectedResponses(names);
    }

    /// Makes the plot that Data() gives.
    ContourPlotData& MakeData(bool isDSProbability = false, bool hideSurface = false,
                              bool fromDesignSpace = false) {
        data_ = std::make_unique<ContourPlotData>(&study, 0, kIniFile, isDSProbability,
                                                  fromDesignSpace, hideSurface, false);
        return *data_;
    }
    ContourPlotData& Data() { return *data_; }
    ContourPageData& PageData() { return *data_->GetContourTypeData(); }
    ContourPageData::Arguments& Options() { return PageData().GetOptions(); }

    /// Puts factors on the axes of a set, each with a range that is legal for parts and numbers.
    void SetAxes(ContourPlotData::AxisType set, const Names& names) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            Data().GetAxisInfo(set)[i + 1]->SetName(names[i]);
            Data().GetAxisInfo(set)[i + 1]->SetRange(0.125F, 0.875F);
        }
    }
    Names AxesOf(ContourPlotData::AxisType set, std::size_t count) {
        Names names;
        for (std::size_t i = 1; i <= count; ++i) {
            names.push_back(Data().GetAxisInfo(set)[i]->GetName());
        }
        return names;
    }

    /// What the user's profile remembers; 0 for nothing.
    static int Profile(const std::string& key) {
        return UserProfile::Instance()->GetProfileInteger("Plot", key, 0);
    }

    static constexpr const char* kIniFile = "study.ini";

    MemoryIniFiles files;
    SheetDesktop desktop;
    ToldStudy study{files.Log()};

private:
    MemoryProfile profile_;
    std::unique_ptr<ContourPlotData> data_;
};

}  // namespace kvopt::test
