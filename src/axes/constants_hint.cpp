#include "axes/constants_hint.h"

#include "axes_texts.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/platform/static.h"

namespace kvopt {

namespace {

constexpr int kHint = 6139;
constexpr int kHeading = 6140;

}  // namespace

void ConstantsHint::Hide(const CDialog& page) {
    for (const int number : {kHeading, kHint}) {
        page.GetDlgItem(number)->ShowWindow(false);
    }
}

unsigned long ConstantsHint::Write(const CDialog& page, bool hasConstants,
                                   const PlainText& following) {
    if (CStatic* hint = page.Item<CStatic>(kHint)) {
        hint->SetText((hasConstants ? following : texts::kAxesNoConstants).Wide());
    }
    return hasConstants ? kWizardBack | kWizardNext | kWizardFinish : kWizardBack | kWizardFinish;
}

}  // namespace kvopt
