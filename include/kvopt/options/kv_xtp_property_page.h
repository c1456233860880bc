#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"
#include "kvopt/platform/property_page.h"

namespace kvopt {

/// What the other kind of page stands on. Its controls move with its size in the front end, as
/// those of every page do.
using CXTPPropertyPage = CPropertyPage;

/// A page with the contract of KvPropertyPage, without its reference count and without a helper
/// that can be exchanged. The helper is not owned and may be null.
class KVOPT_EXPORT KvXtpPropertyPage : public CXTPPropertyPage {
public:
    /// `captionNumber` is kept for hosts with caption tables; 0 takes the template's caption.
    KvXtpPropertyPage(unsigned templateNumber, unsigned captionNumber,
                      BasePropertyPageHelper* helper, unsigned helpTopic);
    ~KvXtpPropertyPage() override;

    /// Help on the topic; nothing without one.
    virtual void OnHelp();
    /// Marks the page dirty; on the first call since the last clean state the helper is told.
    virtual void Changed();
    /// Marks the page clean; the helper is told when it was dirty.
    virtual void Unchanged();
    virtual bool IsChanged() const;

    /// As that of KvPropertyPage.
    bool OnApply() override;

    unsigned CaptionNumber() const { return captionNumber_; }
    unsigned HelpTopicID() const { return helpTopic_; }
    bool HasHelp() const { return helpTopic_ != kNoHelp; }

protected:
    void GetMessageMap(MessageMap& map) override;

private:
    BasePropertyPageHelper* helper_;
    unsigned captionNumber_;
    unsigned helpTopic_;
    bool changed_ = false;
};

}  // namespace kvopt
