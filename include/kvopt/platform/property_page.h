#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/platform/controls.h"
#include "kvopt/platform/data_exchange.h"
#include "kvopt/platform/dialog.h"

namespace kvopt {

class CPropertySheet;

/// A page of a sheet or wizard. The frame calls its steps in the order that docs/frame.md tells;
/// they are public so that a host may stand a page in a frame of its own.
class KVOPT_EXPORT CPropertyPage : public CDialog {
public:
    explicit CPropertyPage(int templateNumber);
    ~CPropertyPage() override;

    /// The tab's or wizard page's caption: the template's unless SetPageTitle gave another.
    std::wstring PageTitle() const;

    /// The base runs the data exchange from members to controls, except the first time after
    /// OnInitDialog, which ran it. False passes this page over: the frame tries the next one.
    virtual bool OnSetActive();
    /// False keeps the page. The base runs the data exchange from controls to members.
    virtual bool OnKillActive();
    /// False refuses; the sheet stays open. The base calls OnOK.
    virtual bool OnApply();
    void OnOK() override;
    void OnCancel() override;
    /// -1 stays; 0 goes to the neighbour in the sheet; any other number to the page of that
    /// template.
    virtual int OnWizardNext();
    virtual int OnWizardBack();
    /// False stays.
    virtual bool OnWizardFinish();

    /// Lights or dims the sheet's Apply button for this page.
    void SetModified(bool modified);
    bool IsModified() const { return modified_; }

    /// Null for a page that stands in no sheet.
    CPropertySheet* Sheet() const { return sheet_; }
    bool IsReachable() const override;

protected:
    void StorePageTitle(std::wstring title);
    void OnDestroyWindow() override;

private:
    friend class CPropertySheet;
    CPropertySheet* sheet_ = nullptr;
    std::wstring title_;
    bool modified_ = false;
    bool firstActive_ = true;
};

}  // namespace kvopt
