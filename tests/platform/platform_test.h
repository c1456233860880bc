#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/platform.h"

namespace kvopt {

/// A desktop whose user is a list of functions, and which leaves a transcript.
class StepDesktop : public Desktop {
public:
    StepDesktop() { SetTranscript(&log); }

    Transcript log;
    std::deque<std::function<void()>> steps;
    std::deque<BoxAnswer> answers;  ///< Ok, or No to questions, when there is none
    std::map<TimerId, std::function<void()>> timers;
    int menuChoice = 0;
    int posts = 0;

protected:
    void DoRunSheet(CPropertySheet& sheet) override {
        PlayUntil([&] { return sheet.HasEnded(); });
    }
    void DoRunDialog(CDialog& dialog) override {
        PlayUntil([&] { return dialog.HasEnded(); });
    }
    BoxAnswer DoShowBox(const MessageBoxRequest& request) override {
        if (answers.empty()) {
            return Desktop::DoShowBox(request);
        }
        const BoxAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void DoStartTimer(TimerId id, unsigned /*milliseconds*/,
                      std::function<void()> callback) override {
        timers[id] = std::move(callback);
    }
    void DoStopTimer(TimerId id) override { timers.erase(id); }
    int DoShowPopupMenu(CWnd& /*owner*/, CPoint /*point*/,
                        const std::vector<PopupMenuItem>& /*items*/) override {
        return menuChoice;
    }
    void OnPosted() override { ++posts; }

private:
    template <class Ended>
    void PlayUntil(const Ended& ended) {
        while (!ended() && !steps.empty()) {
            const std::function<void()> step = steps.front();
            steps.pop_front();
            step();
        }
    }
};

/// Counts what a view is told.
class CountingView : public WindowListener {
public:
    void OnWindowChanged(CWnd& /*window*/, WindowChange change) override {
        changes.push_back(change);
    }
    void OnWindowGone(CWnd& /*window*/) override { ++gone; }

    std::vector<WindowChange> Take() { return std::exchange(changes, {}); }

    std::vector<WindowChange> changes;
    int gone = 0;
};

/// Makes sure that the catalog has the template.
inline void ProvideTemplate(const DialogTemplate& dialog) {
    if (TemplateCatalog::Instance().Find(dialog.number) == nullptr) {
        TemplateCatalog::Instance().Add(dialog);
    }
}

/// Numbers of the test pages and of the controls that stand on each.
constexpr int kPageA = 90001;
constexpr int kPageB = 90002;
constexpr int kPageC = 90003;
constexpr int kEdit = 10;
constexpr int kDigits = 11;
constexpr int kCheck = 12;
constexpr int kPush = 13;
constexpr int kFirstRadio = 14;
constexpr int kSecondRadio = 15;
constexpr int kOtherRadio = 16;
constexpr int kLastRadio = 17;
constexpr int kComboList = 18;
constexpr int kComboEdit = 19;
constexpr int kListSingle = 20;
constexpr int kListMulti = 21;
constexpr int kSpin = 22;
constexpr int kSpinEdit = 23;
constexpr int kWorksheet = 24;
constexpr int kLabel = 25;
constexpr int kHiddenEdit = 26;
constexpr int kDisabledEdit = 27;
constexpr int kMarkup = 28;
constexpr int kRangeEdit = 29;

/// A template with one control of each kind.
inline DialogTemplate EveryControl(int number, const char* caption) {
    using namespace layout;
    return {number, caption,
            Column({Row({Label(kLabel, "&Low:").Buddy(kEdit), Edit(kEdit)}),
                    Edit(kDigits).Named("Digits").DigitsOnly(),
                    Row({Check(kCheck, "&Use it"), Push(kPush, "&Fish && chips")}),
                    Group("Radios",
                          {Radio(kFirstRadio, "One").StartsGroup(), Radio(kSecondRadio, "Two"),
                           Radio(kOtherRadio, "Three").StartsGroup(), Radio(kLastRadio, "Four")}),
                    Grid(2, {ComboList(kComboList), ComboEdit(kComboEdit), ListSingle(kListSingle),
                             ListMulti(kListMulti)}),
                    Row({Edit(kSpinEdit), Spin(kSpin, kSpinEdit)}), Worksheet(kWorksheet),
                    Edit(kHiddenEdit).Hidden(), Edit(kDisabledEdit).Disabled(),
                    RangeEdit(kRangeEdit), Markup(kMarkup, "Header"), Text("anonymous"), Space()})};
}

/// A page that notes each of its steps as "<name>.<step>" in the transcript and answers as told.
class RecordingPage : public KvPropertyPage {
public:
    RecordingPage(std::string name, int number, BasePropertyPageHelper* helper = nullptr,
                  unsigned helpTopic = kNoHelp)
        : KvPropertyPage(static_cast<unsigned>(number), 0, helper, helpTopic),
          name_(std::move(name)) {}

    bool killAnswer = true;
    bool applyAnswer = true;
    bool activeAnswer = true;
    bool finishAnswer = true;
    int nextAnswer = 0;
    int backAnswer = 0;
    /// What else the page does in a step.
    std::map<std::string, std::function<void()>> also;

    bool OnInitDialog() override {
        KvPropertyPage::OnInitDialog();
        return Step("OnInitDialog");
    }
    bool OnSetActive() override {
        KvPropertyPage::OnSetActive();
        Step("OnSetActive");
        return activeAnswer;
    }
    bool OnKillActive() override {
        Step("OnKillActive");
        return killAnswer && KvPropertyPage::OnKillActive();
    }
    bool OnApply() override {
        Step("OnApply");
        return applyAnswer && KvPropertyPage::OnApply();
    }
    void OnOK() override { Step("OnOK"); }
    void OnCancel() override {
        Step("OnCancel");
        KvPropertyPage::OnCancel();
    }
    int OnWizardNext() override {
        Step("OnWizardNext");
        return nextAnswer;
    }
    int OnWizardBack() override {
        Step("OnWizardBack");
        return backAnswer;
    }
    bool OnWizardFinish() override {
        Step("OnWizardFinish");
        return finishAnswer && KvPropertyPage::OnWizardFinish();
    }
    void OnDestroyWindow() override {
        Step("OnDestroyWindow");
        KvPropertyPage::OnDestroyWindow();
    }
    void Changed() override {
        Step("Changed");
        KvPropertyPage::Changed();
    }

protected:
    void GetMessageMap(MessageMap& map) override {
        KvPropertyPage::GetMessageMap(map);
        map.OnChanged(kEdit, [this] { Changed(); });
        map.OnClicked(kPush, [this] { Step("OnPush"); });
    }

private:
    bool Step(const std::string& step) {
        Desktop::Instance().Note(name_ + "." + step);
        if (const auto found = also.find(step); found != also.end()) {
            const std::function<void()> hook = found->second;  // which may take itself away
            hook();
        }
        return true;
    }

    std::string name_;
};

/// Installs the desktop and provides the templates.
class PlatformTest : public testing::Test {
protected:
    PlatformTest() {
        Desktop::Install(&desktop);
        ProvideTemplate(EveryControl(kPageA, "Page A"));
        ProvideTemplate(EveryControl(kPageB, "Page B"));
        ProvideTemplate(EveryControl(kPageC, "Page C"));
    }
    ~PlatformTest() override { Desktop::Install(nullptr); }

    /// The transcript since the last call, without what the tests of order do not look at.
    std::vector<std::string> Log() {
        std::vector<std::string> lines;
        for (const std::string& line : desktop.log.Lines()) {
            if (!line.starts_with("cursor ")) {
                lines.push_back(line);
            }
        }
        desktop.log.Clear();
        return lines;
    }

    StepDesktop desktop;
};

/// A dialog with a control of each kind that counts the notifications it routes.
class ControlsDialog : public CDialog {
public:
    ControlsDialog() : CDialog(kPageA, nullptr) { Create(); }

    /// What was notified since the last call, as "clicked 12".
    std::vector<std::string> Take() { return std::exchange(heard, {}); }

    std::vector<std::string> heard;
    std::map<std::string, std::function<void()>> also;

protected:
    void GetMessageMap(MessageMap& map) override {
        CDialog::GetMessageMap(map);
        const std::pair<Notification, const char*> kinds[] = {
            {Notification::Clicked, "clicked"},
            {Notification::DoubleClicked, "double-clicked"},
            {Notification::Changed, "changed"},
            {Notification::SelectionChanged, "selection"}};
        for (int number = kEdit; number <= kRangeEdit; ++number) {
            for (const auto& kind : kinds) {
                const std::string what = std::string(kind.second) + " " + std::to_string(number);
                map.On(kind.first, number, [this, what] {
                    heard.push_back(what);
                    if (const auto found = also.find(what); found != also.end()) {
                        found->second();
                    }
                });
            }
        }
    }
};

/// Tests of one dialog with controls.
class ControlsTest : public PlatformTest {
protected:
    template <class T>
    T& Get(int number) {
        T* control = dialog.Item<T>(number);
        EXPECT_NE(control, nullptr) << number;
        return *control;
    }

    ControlsDialog dialog;
};

}  // namespace kvopt
