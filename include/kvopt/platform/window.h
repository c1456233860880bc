#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/window_listener.h"

namespace kvopt {

/// The model of anything with a text, a parent and two flags: controls, pages, sheets, and the
/// host's own windows that stand as parents. It owns neither parent nor listeners, and draws
/// nothing. Program sets (SetText, EnableWindow, ShowWindow) tell the views only when the value
/// differs, and notify nobody else.
class KVOPT_EXPORT CWnd {
public:
    explicit CWnd(CWnd* parent = nullptr);
    virtual ~CWnd();
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    virtual std::wstring GetText() const;
    virtual void SetText(std::wstring_view text);

    bool IsEnabled() const { return enabled_; }
    void EnableWindow(bool enable);
    /// The window's own flag, whatever stands in front of it.
    bool IsVisible() const { return visible_; }
    void ShowWindow(bool show);

    CWnd* GetParent() const { return parent_; }
    void SetParent(CWnd* parent) { parent_ = parent; }
    /// The outermost window of the chain of parents, this one when it has no parent.
    CWnd* GetTopLevelParent();

    /// A command of a menu or an accelerator (numbers of the desktop, such as 57634 for copy).
    /// True when it was handled.
    virtual bool OnCommand(int command);

    void AddListener(WindowListener* listener);
    void RemoveListener(WindowListener* listener);

    /// Posts a step that runs after the present one, before a modal run returns. It is dropped
    /// when this object dies first. The name stands in transcripts; a step without one leaves no
    /// line of its own.
    void PostStep(std::string_view name, std::function<void()> step);

    /// Expires when this object dies.
    std::weak_ptr<const void> LifeToken() const { return life_; }

protected:
    void NotifyViews(WindowChange change);
    void StoreText(std::wstring_view text) { text_ = text; }

private:
    CWnd* parent_;
    std::wstring text_;
    bool enabled_ = true;
    bool visible_ = true;
    std::vector<WindowListener*> listeners_;
    std::shared_ptr<const void> life_;
};

}  // namespace kvopt
