#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "kvopt/platform.h"

namespace kvopt::test {

inline constexpr int kFirstPage = 39001;
inline constexpr int kSecondPage = 39002;
inline constexpr int kAskDialog = 39003;

/// Controls of the first page.
enum SampleControl {
    kLowLabel = 101,
    kLow,
    kHigh,
    kFactor,
    kResolution,
    kAvailable,
    kKind,
    kOptions,
    kColour,
    kContour,
    kSurface,
    kCount,
    kCountArrows,
    kGrid,
    kHidden,
    kOff,
    kSameHidden,
    kSameShown,
    kTwin,
    kOtherTwin,
};

/// A worksheet with a number cell, a list cell, a locked cell and a slider, which notes what the
/// mouse does in it.
class SampleGrid : public BaseWorksheetInterface, private VWSRenderer {
public:
    SampleGrid();

    const VWSRenderer* GetCellRenderer(int column, int row) const override;
    bool UserChangedData(int column, int row, const char* text) override;
    bool LButtonDown(const CPoint& point, const CPoint& cell) override;
    bool LButtonUp(const CPoint& point, const CPoint& cell) override;
    bool MouseMove(const CPoint& point, const CPoint& cell, const CRect& rect) override;
    bool RButtonDown(CPoint& point) override;
    bool GetToolTipText(int column, int row, std::wstring& text) override;

    std::vector<PopupMenuItem> menu{
        {kCommandCopy, L"&Copy", true}, {0, L"", true}, {kCommandPaste, L"Paste", false}};
    bool isClosed = false;

private:
    void DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet, int column, int row,
                  const CRect& rect) const override;
    std::optional<CellSlider> Slider(const BaseWorksheetInterface& worksheet, int column,
                                     int row) const override;
    void NoteMouse(const char* what, const CPoint& point, const CPoint& cell) const;
};

/// One control of every kind; once it is shown its handlers note what they hear, or do what a test
/// tells them.
class SamplePage : public CPropertyPage {
public:
    explicit SamplePage(int number = kFirstPage);

    bool OnInitDialog() override;
    bool OnSetActive() override;
    bool OnApply() override;

    SampleGrid grid;
    /// Run by a click on "Plot options...".
    std::function<void()> onOptions;
    /// Run when the page is applied; false refuses.
    std::function<bool()> onApply;

protected:
    void GetMessageMap(MessageMap& map) override;
    bool PreTranslateMessage(const KeyStroke& key) override;

private:
    bool isShown_ = false;
};

/// A dialog with one button.
class AskDialog : public CDialog {
public:
    explicit AskDialog(CWnd* parent) : CDialog(kAskDialog, parent) {}
    std::function<void()> onAgain;

protected:
    void GetMessageMap(MessageMap& map) override;
};

}  // namespace kvopt::test
