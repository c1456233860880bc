#pragma once

/// \file
/// The first page of the contour wizard as a user sees it.

#include <memory>
#include <string>

#include "sheets/contour_test.h"

namespace kvopt::test {

class ProbeContourPage : public ContourPage {
public:
    using ContourPage::ContourPage;
    using ContourPage::EnableFactorAxisType;
    using ContourPage::TransferFromPage;
    using ContourPage::TransferToPage;

    CButton& Button(int number) const { return *Item<CButton>(number); }
    CButton& Type(int type) const {
        static constexpr int kTypes[] = {6096, 6097, 6126, 6127};
        return Button(kTypes[type]);
    }
    CButton& Process() const { return Button(6115); }
    CButton& Mixture() const { return Button(6105); }
    CButton& Constraints() const { return Button(6024); }

    /// Checks a plot type by program and runs its handler, whether or not it is enabled.
    void Choose(int type) {
        Type(type).SetCheck(true);
        OnRbContour();
    }
    void RemoveAll() const {
        auto& list = *Item<CListBox>(6078);
        list.SetSel(-1);
        Button(6017).UserClick();
    }
    Names Selected() const {
        Names names;
        for (const std::wstring& text : Item<CListBox>(6078)->Texts()) {
            names.push_back(KvStdString::ToUtf8(text));
        }
        return names;
    }
};

class ContourPageTest : public ContourTest {
protected:
    ProbeContourPage& Make(bool noResponseLimit = false, BasePropertyPageHelper* helper = nullptr) {
        page_ = std::make_unique<ProbeContourPage>(&study, Data(), helper, noResponseLimit);
        return *page_;
    }
    ProbeContourPage& Show(bool noResponseLimit = false, BasePropertyPageHelper* helper = nullptr) {
        Make(noResponseLimit, helper);
        page_->Create();
        page_->OnSetActive();
        return *page_;
    }
    ProbeContourPage& Page() { return *page_; }

private:
    std::unique_ptr<ProbeContourPage> page_;
};

}  // namespace kvopt::test
