#pragma once

/// \file
/// A desktop whose user is a function: it acts on a sheet or dialog while it runs, boxes are
/// recorded and answered from a queue. The transcript keeps the order.

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "kvopt/platform.h"
#include "kvopt/text.h"

namespace kvopt::test {

class SheetDesktop : public Desktop {
public:
    SheetDesktop() : previous_(Install(this)) { SetTranscript(&log); }
    ~SheetDesktop() override { Install(previous_); }

    struct Box {
        std::string text;
        std::string caption;
        unsigned style;
        bool operator==(const Box&) const = default;
    };

    std::function<void(CPropertySheet&)> user;  ///< what happens while a sheet runs
    std::function<void(CDialog&)> dialogUser;   ///< what happens while a dialog runs
    std::deque<BoxAnswer> answers;              ///< then No to questions and OK to the rest
    std::vector<Box> boxes;
    std::function<void()> onBox;  ///< looks at the world while a box is up
    Transcript log;

protected:
    void DoRunSheet(CPropertySheet& sheet) override {
        if (user) {
            user(sheet);
        }
    }
    void DoRunDialog(CDialog& dialog) override {
        if (dialogUser) {
            dialogUser(dialog);
        }
    }
    BoxAnswer DoShowBox(const MessageBoxRequest& request) override {
        boxes.push_back({KvStdString::ToUtf8(request.text), KvStdString::ToUtf8(request.caption),
                         static_cast<unsigned>(request.style)});
        if (onBox) {
            onBox();
        }
        if (answers.empty()) {
            return Desktop::DoShowBox(request);
        }
        const BoxAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }

private:
    Desktop* previous_;
};

}  // namespace kvopt::test
