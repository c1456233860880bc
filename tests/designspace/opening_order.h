#pragma once

#include <vector>

#include "kvopt/platform.h"

namespace kvopt::test {

/// A page that notes which controls it writes while it opens: their numbers, once for writes that
/// follow each other.
template <class Page>
class OpeningOrder : public Page, private WindowListener {
public:
    using Page::Page;
    std::vector<int> written;
    bool answer = false;  ///< of OnInitDialog

    bool OnInitDialog() override {
        for (const auto& control : this->Controls()) {
            control->AddListener(this);
        }
        answer = Page::OnInitDialog();
        for (const auto& control : this->Controls()) {
            control->RemoveListener(this);
        }
        return answer;
    }

private:
    void OnWindowChanged(CWnd& window, WindowChange /*change*/) override {
        const int number = static_cast<CControl&>(window).Number();
        if (written.empty() || written.back() != number) {
            written.push_back(number);
        }
    }
    void OnWindowGone(CWnd& /*window*/) override {}
};

}  // namespace kvopt::test
