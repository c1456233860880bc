#include "kvopt/platform/mnemonic.h"

#include <cstddef>

namespace kvopt {

std::wstring WithoutMnemonic(std::wstring_view label) {
    std::wstring text;
    for (std::size_t i = 0; i < label.size(); ++i) {
        if (label[i] == L'&' && i + 1 < label.size()) {
            ++i;
        }
        text += label[i];
    }
    return text;
}

wchar_t MnemonicOf(std::wstring_view label) {
    for (std::size_t i = 0; i + 1 < label.size(); ++i) {
        if (label[i] != L'&') {
            continue;
        }
        ++i;
        if (label[i] != L'&') {
            return label[i];
        }
    }
    return L'\0';
}

}  // namespace kvopt
