#pragma once

#include <functional>
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
    /// `startPage`: zero-based index of the page to start with; beyond the last it is the last.
    CPropertySheet(const std::wstring& caption, CWnd* parent, unsigned startPage = 0);
    ~CPropertySheet() override;

    void SetWizardMode() { wizard_ = true; }
    bool IsWizard() const { return wizard_; }
    /// A sheet has an Apply button exactly when its builder says so.
    void SetHasApply(bool hasApply) { hasApply_ = hasApply; }
    bool HasApply() const { return hasApply_; }

    /// Throws InvalidArgument for null, for a page that stands in a sheet already, and during a
    /// run.
    void AddPage(CPropertyPage* page);
    int GetPageCount() const { return static_cast<int>(pages_.size()); }
    /// Zero-based.
    CPropertyPage* GetPage(int index) const;
    /// Zero-based; -1 for a page that is not in the sheet.
    int GetPageIndex(const CPropertyPage* page) const;
    /// When the sheet is not running, the page to start with; null without pages.
    CPropertyPage* GetActivePage() const;
    /// Zero-based; -1 without pages.
    int GetActiveIndex() const;

    /// Before the run: the page to start with. During it: a whole change of page, at once
    /// (OnKillActive of the old one, which may keep it, then OnSetActive of the new one). Nothing
    /// happens for the page that is active already. True when the page is active afterwards; always
    /// false for a page that is not in the sheet.
    bool SetActivePage(CPropertyPage* page);

    /// Posted: takes effect after the present step. Bits of WizardButton; the last call wins. A
    /// sheet that is no wizard has no such buttons: nothing happens.
    virtual void SetWizardButtons(unsigned long buttons);
    unsigned long WizardButtons() const { return buttons_; }

    /// Runs the sheet through the desktop: the finish code, OK, Cancel, or what EndDialog was
    /// given. Throws InvalidArgument without pages and while the sheet is running.
    int DoModal();
    void EndDialog(int result);
    bool HasEnded() const { return ended_; }
    bool IsRunning() const { return running_; }
    int Result() const { return result_; }

    virtual bool OnInitDialog();  ///< before the first page is up, which it may choose
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
    void RemovePage(CPropertyPage* page);
    bool ChangePage(int index);
    void BringUp(int index, int direction);
    bool Leave();
    void FollowWizardStep(int asked, int answer, int neighbour);
    int IndexOfTemplate(int number) const;
    void ApplyButtons(unsigned long buttons);
    void ApplyDefaultButtons();
    bool IsReachable() const;
    bool Press(bool offered, const std::function<void()>& step);

    std::vector<CPropertyPage*> pages_;
    int active_ = -1;
    int start_ = 0;
    bool wizard_ = false;
    bool hasApply_ = false;
    bool running_ = false;
    bool ended_ = false;
    int result_ = 2;
    unsigned long buttons_ = 0;
    bool buttonsSet_ = false;
};

}  // namespace kvopt
