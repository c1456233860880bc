#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/geometry.h"

namespace kvopt {

class CDialog;
class CPropertySheet;
class CWnd;
class Transcript;

/// Styles of message boxes, with the numbers of the desktop.
enum class BoxStyle : unsigned {
    Plain = 0,
    Error = 16,
    Information = 64,
    YesNoWarning = 52,
    YesNoInformation = 68,
};

/// What a message box can answer, with the numbers of the desktop. Silence, which has none there,
/// is OK with the mark that keeps the box from coming again.
enum class BoxAnswer { Ok = 1, Cancel = 2, Yes = 6, No = 7, Silence = 1001 };

struct MessageBoxRequest {
    std::wstring text;
    std::wstring caption;
    BoxStyle style = BoxStyle::Plain;
    CWnd* owner = nullptr;
    /// Label of a check that lets the user answer Silence, with "&" before the mnemonic; empty for
    /// a box without one. No question has it.
    std::wstring silenceLabel = {};

    bool OffersSilence() const { return !silenceLabel.empty(); }
    bool IsQuestion() const {
        return style == BoxStyle::YesNoWarning || style == BoxStyle::YesNoInformation;
    }
};

enum class Cursor { Arrow, SizeHorizontal, Wait };

struct PopupMenuItem {
    int command = 0;     ///< 0 for a separator
    std::wstring label;  ///< with "&" before the mnemonic
    bool enabled = true;
};

/// Everything modal or asynchronous, in one place: sheets, dialogs, message boxes, timers, posted
/// steps, cursor, popup menus, clipboard, help. The public operations note what happens in the
/// transcript, in the order in which it happens, then call the virtual ones of the front end, so
/// that every front end leaves the same transcript.
class KVOPT_EXPORT Desktop {
public:
    using TimerId = const void*;

    Desktop();
    virtual ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// The installed desktop. The default one has no windows: it cancels every modal run, answers
    /// No to questions and OK to the rest.
    static Desktop& Instance();
    /// Installs another desktop and gives the one before (null for the default). Not owned; null
    /// brings the default back.
    static Desktop* Install(Desktop* desktop);

    int RunSheet(CPropertySheet& sheet);
    int RunDialog(CDialog& dialog);
    BoxAnswer ShowBox(const MessageBoxRequest& request);

    /// Starts a timer that repeats until it is stopped; a running one of the same id starts anew.
    void StartTimer(TimerId id, unsigned milliseconds, std::function<void()> callback);
    void StopTimer(TimerId id);

    /// Runs `step` after the present one; dropped when `owner` dies first.
    void Post(const CWnd& owner, std::string_view name, std::function<void()> step);
    /// Runs the posted steps until none is left; does nothing while a user action is under way,
    /// whose end runs them. Modal runs and the operations of the models that begin with "User" call
    /// it themselves; a front end with an event loop calls it there for what was posted outside.
    void RunPostedSteps();
    /// Runs one thing that the user does, then the posted steps unless it stands within another
    /// such action of the same modal run. Gives what `action` gives.
    bool RunUserAction(const std::function<bool()>& action);

    void SetCursor(Cursor cursor);
    Cursor GetCursor() const { return cursor_; }

    /// Shows the menu at `point` of `owner`; the command chosen goes to owner.OnCommand.
    void ShowPopupMenu(CWnd& owner, CPoint point, const std::vector<PopupMenuItem>& items);

    virtual std::wstring ClipboardText() const;
    virtual void SetClipboardText(std::wstring_view text);
    /// Help on a topic.
    void ShowHelp(unsigned topic);
    /// The screen's resolution, for lengths that are told for 96 dots per inch.
    virtual int DotsPerInch() const;

    /// Where what happens is noted; null for nowhere. Not owned.
    void SetTranscript(Transcript* transcript) { transcript_ = transcript; }
    Transcript* GetTranscript() const { return transcript_; }
    void Note(std::string_view line);

protected:
    /// Runs a sheet that is begun already, until it has ended; gives nothing: the sheet knows its
    /// result.
    virtual void DoRunSheet(CPropertySheet& sheet);
    virtual void DoRunDialog(CDialog& dialog);
    virtual BoxAnswer DoShowBox(const MessageBoxRequest& request);
    virtual void DoStartTimer(TimerId id, unsigned milliseconds, std::function<void()> callback);
    virtual void DoStopTimer(TimerId id);
    virtual void DoSetCursor(Cursor cursor);
    /// The command chosen, 0 for none.
    virtual int DoShowPopupMenu(CWnd& owner, CPoint point, const std::vector<PopupMenuItem>& items);
    virtual void DoShowHelp(unsigned topic);
    /// A step was posted; a front end with an event loop arranges for RunPostedSteps.
    virtual void OnPosted();

private:
    class Busy;
    class ModalRun;
    struct PostedStep {
        unsigned long number = 0;
        std::weak_ptr<const void> alive;
        std::string name;
        std::function<void()> step;
    };
    void RunModal(const std::function<void()>& begin, const std::function<void()>& run,
                  const std::function<void()>& end);

    std::deque<PostedStep> posted_;
    unsigned long nextStep_ = 0;
    int busy_ = 0;
    std::set<TimerId> timers_;
    Cursor cursor_ = Cursor::Arrow;
    Transcript* transcript_ = nullptr;
    std::wstring clipboard_;
};

/// Shows a message box over `owner` with its text as caption (the sheet's window text for a page).
KVOPT_EXPORT BoxAnswer ShowMessage(CWnd* owner, std::wstring_view text, BoxStyle style);

}  // namespace kvopt
