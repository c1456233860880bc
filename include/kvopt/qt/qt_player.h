#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/scripted/step_player.h"
#include "kvopt/scripted/virtual_clock.h"

class QMenu;
class QMessageBox;
class QWidget;

namespace kvopt {

class QtDesktop;
class QtGestures;

/// Plays a script on real windows with the mouse and the keyboard: every step presses what a person
/// would press. Connects itself with the desktop for as long as it lives; neither owns the other.
class KVOPT_EXPORT QtPlayer {
public:
    QtPlayer(QtDesktop& desktop, const UserScript& script);
    ~QtPlayer();
    QtPlayer(const QtPlayer&) = delete;
    QtPlayer& operator=(const QtPlayer&) = delete;

    /// Keeps a picture (PNG) of each page as it looked when it was left, of each message box, and
    /// of what "picture" asks for, numbered in their order. The folder must be there.
    void SetPictureFolder(std::string folder);
    /// The pictures kept so far.
    const std::vector<std::string>& Pictures() const { return pictures_; }

    StepPlayer& Steps() { return *steps_; }
    /// What went wrong, empty when all went as told: see StepPlayer::Verify.
    const std::vector<std::string>& Verify() { return steps_->Verify(); }

    // For the desktop.
    /// A window is about to open: plays steps on it until `hasEnded`.
    void Drive(QWidget& window, const std::function<bool()>& hasEnded);
    /// A box, or a menu, is about to open: answers it with the mouse, or the keyboard.
    void AnswerBox(QMessageBox& box, const MessageBoxRequest& request);
    void ChooseFromMenu(QMenu& menu, const std::vector<PopupMenuItem>& items);
    /// Time passes when the script says so, whatever the machine's speed.
    VirtualClock& Clock() { return clock_; }
    /// The page in front is about to be left: keeps a picture of it.
    void KeepPage();
    void TakePicture(QWidget& window, const std::string& name);

private:
    QtDesktop& desktop_;
    VirtualClock clock_;
    std::unique_ptr<QtGestures> hands_;
    std::unique_ptr<StepPlayer> steps_;
    std::string folder_;
    std::vector<std::string> pictures_;
};

}  // namespace kvopt
