#include "kvopt/text/literal.h"

#include "kvopt/text/kv_std_string.h"

namespace kvopt {

std::wstring PlainText::Wide() const {
    return KvStdString::ToWide(text_);
}

}  // namespace kvopt
