#include "kvopt/platform/kv_dont_show_again_message_box.h"

#include <memory>
#include <string>

#include "kvopt/platform/desktop.h"
#include "kvopt/stores/configuration_section.h"
#include "kvopt/stores/registry.h"
#include "kvopt/stores/registry_areas.h"
#include "kvopt/text/kv_std_string.h"
#include "platform/box_over.h"
#include "platform_texts.h"

namespace kvopt {

void KvDontShowAgainMessageBox(CWnd* owner, const char* key, std::wstring_view text) {
    const std::wstring area = GetDontShowAgainRegistrySection();
    const std::string path = KvStdString::ToUtf8(GetRegistryBaseKeyNameW(area.c_str()));
    if (Registry::Instance()->GetKey(path)->ReadKeyOr(key, false)) {
        return;
    }
    MessageBoxRequest request = BoxOver(owner, text, BoxStyle::Information);
    request.silenceLabel = texts::kDontShowAgain.Wide();
    if (Desktop::Instance().ShowBox(request) == BoxAnswer::Silence) {
        // The registry is asked anew: the box may have stayed open for long.
        const std::unique_ptr<ConfigurationSection> answers = Registry::Instance()->GetKey(path);
        answers->WriteKey(key, true);
        answers->Flush();
    }
}

}  // namespace kvopt
