#pragma once

#include <functional>
#include <string>
#include <vector>

#include "kvopt/platform.h"

namespace kvopt::test {

inline constexpr int kEveryKind = 39501;
inline constexpr int kPlainPage = 39502;
inline constexpr int kQuestion = 39503;

/// Controls of the page with one of every kind, in tab order.
enum EveryKind {
    kNameLabel = 201,
    kName,
    kAxis,
    kScale,
    kMany,
    kOne,
    kPush,
    kCheck,
    kFirst,
    kSecond,
    kThird,
    kDigits,
    kArrows,
    kCells,
    kNever,
    kAlike,
    kAlikeToo,
};

/// A worksheet of four rows: a number with a slider, a list, a locked cell and one more number.
/// It notes what the mouse does.
class MouseGrid : public BaseWorksheetInterface, private VWSRenderer {
public:
    MouseGrid();

    const VWSRenderer* GetCellRenderer(int column, int row) const override;
    bool UserChangedData(int column, int row, const char* text) override;
    bool LButtonDown(const CPoint& point, const CPoint& cell) override;
    bool LButtonUp(const CPoint& point, const CPoint& cell) override;
    bool MouseMove(const CPoint& point, const CPoint& cell, const CRect& rect) override;
    bool RButtonDown(CPoint& point) override;
    bool GetToolTipText(int column, int row, std::wstring& text) override;

    /// What was called, in order.
    std::vector<std::string> calls;
    /// Run by each mouse move.
    std::function<void()> onMove;

private:
    void DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet, int column, int row,
                  const CRect& rect) const override;
    std::optional<CellSlider> Slider(const BaseWorksheetInterface& worksheet, int column,
                                     int row) const override;
};

/// One control of every kind; its handlers note what they hear.
class EveryKindPage : public KvPropertyPage {
public:
    explicit EveryKindPage(int number = kEveryKind, unsigned helpTopic = kNoHelp);

    bool OnInitDialog() override;
    bool OnKillActive() override;
    bool OnApply() override;
    int OnWizardNext() override;
    int OnWizardBack() override;
    bool PreTranslateMessage(const KeyStroke& key) override;

    template <class T>
    T& The(int number) const {
        return *Item<T>(number);
    }

    MouseGrid grid;
    std::vector<std::string> heard;
    /// What each key stroke was that the page was asked about; true from `takesKeys` takes it.
    std::vector<KeyStroke> keys;
    bool takesKeys = false;
    /// Run by a click on the push button.
    std::function<void()> onPush;
    std::function<bool()> onKill;
    std::function<bool()> onApply;
    int next = 0;
    int back = 0;

protected:
    void GetMessageMap(MessageMap& map) override;

private:
    bool hears_ = false;
};

}  // namespace kvopt::test
