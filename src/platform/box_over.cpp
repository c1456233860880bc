#include "platform/box_over.h"

#include <string>

#include "kvopt/platform/control.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/platform/property_sheet.h"

namespace kvopt {

MessageBoxRequest BoxOver(CWnd* owner, std::wstring_view text, BoxStyle style) {
    if (const auto* control = dynamic_cast<const CControl*>(owner)) {
        owner = &control->Dialog();
    }
    MessageBoxRequest request{std::wstring(text), {}, style, owner};
    if (const auto* page = dynamic_cast<const CPropertyPage*>(owner)) {
        if (page->Sheet() != nullptr) {
            request.owner = page->Sheet();
            request.caption = page->Sheet()->GetText();
        }
    } else if (owner != nullptr) {
        request.caption = owner->GetText();
    }
    return request;
}

}  // namespace kvopt
