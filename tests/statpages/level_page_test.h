#pragma once

/// \file
/// What the tests of the level pages share: the values that a page edits, and its lists.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/platform.h"
#include "kvopt/statpages.h"
#include "kvopt/stores.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "support/recording_section.h"

namespace kvopt::test {

using Names = std::vector<std::string>;

inline Names EntriesOf(const CComboBox& list) {
    Names entries;
    for (int i = 0; i < list.GetCount(); ++i) {
        entries.push_back(KvStdString::ToUtf8(list.GetItemText(i)));
    }
    return entries;
}

/// The values that a page edits, and the page while it is shown.
class LevelPageTest : public testing::Test {
protected:
    /// Gives the page a window, which ends that of the page before.
    template <class Page>
    void Show(std::unique_ptr<Page> shown) {
        page = std::move(shown);
        page->Create();
        page->OnSetActive();
    }
    CComboBox& Level() { return *page->Item<CComboBox>(6299); }
    CComboBox& Tolerance() { return *page->Item<CComboBox>(6341); }

    CConfLev::ConfLev level = CConfLev::Level95;
    CConfLev::ConfLev tolerance = CConfLev::Level95;
    CIntervalType::IntervalType type = CIntervalType::Prediction;
    bool useLevel = true;
    SheetDesktop desktop;
    std::unique_ptr<KvPropertyPage> page;
};

struct LevelRow {
    int value;
    int entry;
};

/// Each level with its entry; the first one for what is no level.
inline const std::vector<LevelRow> kLevelRows{{1, 0}, {2, 1}, {3, 2}, {0, 0}, {-1, 0}, {4, 0}};

}  // namespace kvopt::test
