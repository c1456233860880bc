#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/property_page.h"

namespace kvopt {

class BasePropertyPageHelper;
class KvPropertySheet;

/// A help topic that means "no help".
inline constexpr unsigned kNoHelp = 0xFFFFFFFFU;

/// The page that every editor of the library derives from: a CPropertyPage that knows whether it is
/// dirty and tells its helper so. The helper is not owned and may be null.
class KVOPT_EXPORT KvPropertyPage : public CPropertyPage {
public:
    /// `captionNumber` is kept for hosts with caption tables; 0 takes the template's caption.
    KvPropertyPage(unsigned templateNumber, unsigned captionNumber, BasePropertyPageHelper* helper,
                   unsigned helpTopic);
    ~KvPropertyPage() override;

    /// Marks the page dirty; on the first call since the last clean state the helper is told.
    virtual void Changed();
    /// Marks the page clean; the helper is told when it was dirty.
    virtual void Unchanged();
    virtual bool IsChanged() const;
    /// Help on the topic; nothing without one.
    virtual void OnHelp();
    /// A dirty page takes its update along: from the helper before to this one.
    virtual void SetPropertyPageHelper(BasePropertyPageHelper* helper);
    virtual BasePropertyPageHelper* GetPropertyPageHelper() const;
    virtual void AddRef();
    virtual void ReleaseRef();
    virtual int CountRefs() const;
    /// The help key: runs OnHelp; true.
    virtual bool OnHelpInfo();

    bool OnInitDialog() override;
    /// A clean page, or one without a helper, reaches OnOK. A dirty one whose helper is connected
    /// runs its Update, whose refusal leaves the page dirty; a helper that is not connected is
    /// passed over. Then Unchanged.
    bool OnApply() override;
    void OnCancel() override;
    bool OnWizardFinish() override;

    /// Null for a page that stands in no sheet, or in one that is not a KvPropertySheet.
    KvPropertySheet* GetSheet() const;
    void SetPageTitle(const wchar_t* title);
    unsigned CaptionNumber() const { return captionNumber_; }
    void SetHelpTopicID(unsigned topic) { helpTopic_ = topic; }
    unsigned HelpTopicID() const { return helpTopic_; }
    bool HasHelp() const { return helpTopic_ != kNoHelp; }

protected:
    void GetMessageMap(MessageMap& map) override;

private:
    BasePropertyPageHelper* helper_;
    unsigned captionNumber_;
    unsigned helpTopic_;
    bool changed_ = false;
    int references_ = 0;
};

}  // namespace kvopt
