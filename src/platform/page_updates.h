#pragma once

#include "kvopt/platform/property_page_helper.h"
#include "kvopt/platform/wait_cursor.h"

namespace kvopt {

/// What the bases of pages have in common: how a page becomes dirty and clean, and how it applies.
/// `helper` may be null.

template <class Page>
void MarkChanged(Page& page, bool& changed, BasePropertyPageHelper* helper) {
    if (!changed && helper != nullptr) {
        helper->AddUpdate();
    }
    changed = true;
    page.SetModified(true);
}

template <class Page>
void MarkUnchanged(Page& page, bool& changed, BasePropertyPageHelper* helper) {
    if (changed && helper != nullptr) {
        helper->RemoveUpdate();
    }
    changed = false;
    page.SetModified(false);
}

/// A clean page, or one without a helper, reaches OnOK. A dirty one whose helper is connected runs
/// its Update, whose refusal leaves the page dirty; a helper that is not connected is passed over.
template <class Page>
bool ApplyPage(Page& page, BasePropertyPageHelper* helper) {
    const CWaitCursor wait;
    if (!page.IsChanged() || helper == nullptr) {
        page.OnOK();
    } else if (helper->Connected() == 1 && !helper->Update()) {
        return false;
    }
    page.Unchanged();
    return true;
}

}  // namespace kvopt
