#include "kvopt/platform/desktop.h"

#include <algorithm>
#include <utility>

#include "kvopt/platform/dialog.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/platform/transcript.h"
#include "kvopt/text/exceptions.h"
#include "platform/box_over.h"

namespace kvopt {

namespace {

Desktop* installed = nullptr;

const char* NameOf(BoxAnswer answer) {
    switch (answer) {
        case BoxAnswer::Ok:
            return "ok";
        case BoxAnswer::Cancel:
            return "cancel";
        case BoxAnswer::Yes:
            return "yes";
        case BoxAnswer::Silence:
            return "silence";
        case BoxAnswer::No:
            break;
    }
    return "no";
}

const char* NameOf(Cursor cursor) {
    switch (cursor) {
        case Cursor::Arrow:
            return "arrow";
        case Cursor::SizeHorizontal:
            return "size-horizontal";
        case Cursor::Wait:
            break;
    }
    return "wait";
}

}  // namespace

/// Marks that a user action is under way.
class Desktop::Busy {
public:
    explicit Busy(Desktop& desktop) : desktop_(desktop) { ++desktop_.busy_; }
    ~Busy() { --desktop_.busy_; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    Desktop& desktop_;
};

/// One modal run. Within it user actions begin anew, whatever action opened it; when an exception
/// ends it, the steps that were posted within it are dropped.
class Desktop::ModalRun {
public:
    explicit ModalRun(Desktop& desktop)
        : desktop_(desktop),
          busyOutside_(std::exchange(desktop.busy_, 0)),
          firstStep_(desktop.nextStep_) {}
    ~ModalRun() {
        desktop_.busy_ = busyOutside_;
        if (!completed_) {
            std::erase_if(desktop_.posted_,
                          [this](const PostedStep& step) { return step.number >= firstStep_; });
        }
    }
    ModalRun(const ModalRun&) = delete;
    ModalRun& operator=(const ModalRun&) = delete;

    void Complete() { completed_ = true; }

private:
    Desktop& desktop_;
    int busyOutside_;
    unsigned long firstStep_;
    bool completed_ = false;
};

Desktop::Desktop() = default;

Desktop::~Desktop() {
    if (installed == this) {
        installed = nullptr;
    }
}

Desktop& Desktop::Instance() {
    static Desktop withoutWindows;
    return installed != nullptr ? *installed : withoutWindows;
}

Desktop* Desktop::Install(Desktop* desktop) {
    return std::exchange(installed, desktop);
}

int Desktop::RunSheet(CPropertySheet& sheet) {
    if (sheet.GetPageCount() == 0 || sheet.IsRunning()) {
        throw InvalidArgument(sheet.IsRunning()
                                  ? "CPropertySheet::DoModal: the sheet is running already"
                                  : "CPropertySheet::DoModal: the sheet has no page");
    }
    Note((sheet.IsWizard() ? "wizard " : "sheet ") + Transcript::Quote(sheet.GetText()));
    RunModal([&] { sheet.BeginRun(); },
             [&] {
                 if (!sheet.HasEnded()) {
                     DoRunSheet(sheet);
                 }
                 if (!sheet.HasEnded()) {
                     sheet.EndDialog(kResultCancel);
                 }
             },
             [&] { sheet.EndRun(); });
    Note("end " + std::to_string(sheet.Result()));
    return sheet.Result();
}

int Desktop::RunDialog(CDialog& dialog) {
    Note("dialog " + Transcript::Quote(dialog.Caption()));
    RunModal(
        [&] {
            dialog.ended_ = false;
            dialog.result_ = kResultCancel;
            dialog.Create();
        },
        [&] {
            if (!dialog.HasEnded()) {
                DoRunDialog(dialog);
            }
            if (!dialog.HasEnded()) {
                dialog.EndDialog(kResultCancel);
            }
        },
        [&] { dialog.DestroyWindow(); });
    Note("end " + std::to_string(dialog.Result()));
    return dialog.Result();
}

void Desktop::RunModal(const std::function<void()>& begin, const std::function<void()>& run,
                       const std::function<void()>& end) {
    ModalRun modal(*this);
    try {
        {
            const Busy opening(*this);
            begin();
        }
        RunPostedSteps();
        run();
        RunPostedSteps();
    } catch (...) {
        end();
        Note("end by exception");
        throw;
    }
    modal.Complete();
    end();
}

BoxAnswer Desktop::ShowBox(const MessageBoxRequest& request) {
    const BoxAnswer answer = DoShowBox(request);
    Note("box " + std::to_string(static_cast<unsigned>(request.style)) + " " +
         Transcript::Quote(request.caption) + " " + Transcript::Quote(request.text) +
         (request.OffersSilence() ? " check " + Transcript::Quote(request.silenceLabel) : "") +
         " -> " + NameOf(answer));
    return answer;
}

void Desktop::StartTimer(TimerId id, unsigned milliseconds, std::function<void()> callback) {
    timers_.insert(id);
    Note("timer " + std::to_string(milliseconds));
    DoStartTimer(id, milliseconds, [this, callback = std::move(callback)] {
        // The callback may stop its timer, and the front end then forgets this very function.
        const std::function<void()> running = callback;
        RunUserAction([&running] {
            running();
            return true;
        });
    });
}

void Desktop::StopTimer(TimerId id) {
    if (timers_.erase(id) > 0) {
        Note("timer stopped");
        DoStopTimer(id);
    }
}

void Desktop::Post(const CWnd& owner, std::string_view name, std::function<void()> step) {
    posted_.push_back({nextStep_++, owner.LifeToken(), std::string(name), std::move(step)});
    OnPosted();
}

void Desktop::RunPostedSteps() {
    if (busy_ > 0) {
        return;
    }
    const Busy busy(*this);
    while (!posted_.empty()) {
        const PostedStep step = std::move(posted_.front());
        posted_.pop_front();
        if (step.alive.expired()) {
            continue;
        }
        if (!step.name.empty()) {
            Note("posted " + step.name);
        }
        step.step();
    }
}

bool Desktop::RunUserAction(const std::function<bool()>& action) {
    const bool done = [&] {
        const Busy busy(*this);
        return action();
    }();
    RunPostedSteps();
    return done;
}

void Desktop::SetCursor(Cursor cursor) {
    if (cursor != cursor_) {
        cursor_ = cursor;
        Note(std::string("cursor ") + NameOf(cursor));
        DoSetCursor(cursor);
    }
}

void Desktop::ShowPopupMenu(CWnd& owner, CPoint point, const std::vector<PopupMenuItem>& items) {
    const int command = DoShowPopupMenu(owner, point, items);
    std::string line = "menu";
    for (const PopupMenuItem& item : items) {
        line += ' ';
        line += item.command == 0 ? "-" : Transcript::Quote(item.label);
    }
    Note(line + " -> " + std::to_string(command));
    if (command != 0) {
        owner.OnCommand(command);
    }
}

std::wstring Desktop::ClipboardText() const {
    return clipboard_;
}

void Desktop::SetClipboardText(std::wstring_view text) {
    clipboard_ = text;
}

void Desktop::ShowHelp(unsigned topic) {
    Note("help " + std::to_string(topic));
    DoShowHelp(topic);
}

int Desktop::DotsPerInch() const {
    return 96;
}

void Desktop::Note(std::string_view line) {
    if (transcript_ != nullptr) {
        transcript_->Add(line);
    }
}

void Desktop::DoRunSheet(CPropertySheet& sheet) {
    sheet.UserCancel();
}

void Desktop::DoRunDialog(CDialog& dialog) {
    dialog.UserCancel();
}

BoxAnswer Desktop::DoShowBox(const MessageBoxRequest& request) {
    return request.IsQuestion() ? BoxAnswer::No : BoxAnswer::Ok;
}

// Front ends keep the callback, so they get it by value.
void Desktop::DoStartTimer(TimerId /*id*/, unsigned /*milliseconds*/,
                           // NOLINTNEXTLINE(performance-unnecessary-value-param)
                           std::function<void()> /*callback*/) {}

void Desktop::DoStopTimer(TimerId /*id*/) {}

void Desktop::DoSetCursor(Cursor /*cursor*/) {}

int Desktop::DoShowPopupMenu(CWnd& /*owner*/, CPoint /*point*/,
                             const std::vector<PopupMenuItem>& /*items*/) {
    return 0;
}

void Desktop::DoShowHelp(unsigned /*topic*/) {}

void Desktop::OnPosted() {}

BoxAnswer ShowMessage(CWnd* owner, std::wstring_view text, BoxStyle style) {
    return Desktop::Instance().ShowBox(BoxOver(owner, text, style));
}

}  // namespace kvopt
