#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/window.h"

namespace kvopt {

class CPropertyPage;

/// Bits of SetWizardButtons.
enum WizardButton : unsigned long { kWizardBack = 1, kWizardNext = 2, kWizardFinish = 4 };

/// The machine behind a property sheet or a wizard: which page is up, which step of which page
/// runs when. It never deletes a page; pages must outlive its run. Front ends draw it and call the
/// operations that begin with "User".
class KVOPT_EXPORT CPropertySheet : public CWnd {
public:
    /// `startPage` is the zero-based index of the page to start with.
    CPropertySheet(std::wstring caption, CWnd* parent, unsigned startPage = 0);
    ~CPropertySheet() override;

    void SetWizardMode() { wizard_ = true; }
    bool IsWizard() const { return wizard_; }
    /// A sheet has an Apply button exactly when its builder says so.
    void SetHasApply(bool hasApply) { hasApply_ = hasApply; }
    bool HasApply() const { return hasApply_; }

    void AddPage(CPropertyPage* page);
    int GetPageCount() const { return static_cast<int>(pages_.size()); }
    /// Zero-based.
    CPropertyPage* GetPage(int index) const;
    /// Zero-based; -1 for a page that is not in the sheet.
    int GetPageIndex(const CPropertyPage* page) const;
    CPropertyPage* GetActivePage() const;
    int GetActiveIndex() const { return active_; }

    /// Before the run: the page to start with. During it: a whole change of page, at once
    /// (OnKillActive of the old one, which may keep it, then OnSetActive of the new one). Nothing
    /// happens for the page that is active already. True when the page is active afterwards.
    bool SetActivePage(CPropertyPage* page);

    /// Posted: takes effect after the present step. Bits of WizardButton; the last call wins.
    virtual void SetWizardButtons(unsigned long buttons);
    unsigned long WizardButtons() const { return buttons_; }

    /// Runs the sheet through the desktop: the finish code, OK, Cancel, or what EndDialog was
    /// given.
    int DoModal();
    void EndDialog(int result);
    bool HasEnded() const { return ended_; }
    bool IsRunning() const { return running_; }
    int Result() const { return result_; }

    virtual bool OnInitDialog();
    /// Kill step of the active page, then OnApply of each page with a window in display order.
    virtual bool ApplyAllNow();
    /// ApplyAllNow, then the end with kResultOk.
    virtual void OnOK();
    /// ApplyAllNow, then OnSetActive of the active page.
    virtual void OnApply();
    virtual void OnCancel();

    /// True when Apply is there and some page is modified.
    bool IsApplyEnabled() const;

    // What the user does; false when the button is off or not there.
    bool UserNext();
    bool UserBack();
    bool UserFinish();
    bool UserOk();
    bool UserApply();
    bool UserCancel();
    bool UserSelectPage(int index);

private:
    friend class Desktop;
    friend class CPropertyPage;

    void BeginRun();
    void EndRun();
    bool ChangePage(int index, bool killOld);
    bool Leave();
    void BringUp(int index);
    int IndexOfTemplate(int number) const;
    void ApplyButtons(unsigned long buttons);
    void UserLeavesControls();

    std::vector<CPropertyPage*> pages_;
    int active_ = -1;
    int start_ = 0;
    bool wizard_ = false;
    bool hasApply_ = false;
    bool running_ = false;
    bool ended_ = false;
    int result_ = 2;
    unsigned long buttons_ = 0;
};

}  // namespace kvopt
