#pragma once

/// \file
/// What the tests of the constants grid share: a desktop whose time is virtual, choosers and pages
/// that note what happens to them, and a grid over a study of a few records.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "axes/sheet_desktop.h"
#include "kvopt/constants.h"
#include "kvopt/platform.h"
#include "kvopt/scripted.h"
#include "kvopt/stores.h"
#include "kvopt/study.h"
#include "support/fake_study.h"

namespace kvopt::test {

using Texts = std::vector<std::string>;

class GridDesktop : public SheetDesktop {
public:
    struct Menu {
        const CWnd* owner;
        CPoint point;
        std::vector<std::pair<int, std::string>> items;
        std::vector<bool> enabled;
    };

    VirtualClock clock;
    std::vector<unsigned> startedTimers;  ///< milliseconds, one for each start
    std::vector<Menu> menus;
    std::vector<const CWnd*> boxOwners;
    int menuChoice = 0;
    int dpi = 96;

    int DotsPerInch() const override { return dpi; }

protected:
    void DoStartTimer(TimerId id, unsigned milliseconds, std::function<void()> callback) override {
        startedTimers.push_back(milliseconds);
        clock.Start(id, milliseconds, std::move(callback));
    }
    BoxAnswer DoShowBox(const MessageBoxRequest& request) override {
        boxOwners.push_back(request.owner);
        return SheetDesktop::DoShowBox(request);
    }
    void DoStopTimer(TimerId id) override { clock.Stop(id); }
    int DoShowPopupMenu(CWnd& owner, CPoint point,
                        const std::vector<PopupMenuItem>& items) override {
        Menu menu{&owner, point, {}, {}};
        for (const PopupMenuItem& item : items) {
            menu.items.emplace_back(item.command, KvStdString::ToUtf8(item.label));
            menu.enabled.push_back(item.enabled);
        }
        menus.push_back(std::move(menu));
        return menuChoice;
    }
};

/// Leaves out the factors that it is told to.
class SkipThese : public ConstantsChooser {
public:
    explicit SkipThese(std::set<std::string> names, int* deaths = nullptr)
        : skipped(std::move(names)), deaths_(deaths) {}
    ~SkipThese() override {
        if (deaths_ != nullptr) {
            ++*deaths_;
        }
    }
    bool SkipFactor(const std::string& name) const override { return skipped.count(name) != 0; }

    std::set<std::string> skipped;

private:
    int* deaths_;
};

/// A page without a window that counts how often it is told of a change.
class NotedPage : public KvPropertyPage {
public:
    NotedPage() : KvPropertyPage(6157, 0, nullptr, kNoHelp) {}
    void Changed() override {
        ++changes;
        if (onChanged) {
            onChanged();
        }
        KvPropertyPage::Changed();
    }

    int changes = 0;
    std::function<void()> onChanged;
};

/// How often a worksheet was told to read everything afresh.
class ResetCounter : public WindowListener {
public:
    explicit ResetCounter(CWnd& window) : window_(&window) { window.AddListener(this); }
    ~ResetCounter() override {
        if (window_ != nullptr) {
            window_->RemoveListener(this);
        }
    }
    void OnWindowChanged(CWnd& /*window*/, WindowChange change) override {
        resets += change == WindowChange::Cells ? 1 : 0;
    }
    void OnWindowGone(CWnd& /*window*/) override { window_ = nullptr; }

    int resets = 0;

private:
    CWnd* window_;
};

class GridTest : public testing::Test {
protected:
    /// What a test wants of its grid.
    struct Wish {
        bool inPage = false;
        bool readOnly = false;
        int rows = 3;
        std::set<std::string> skipped;
    };

    /// Makes the grid and fills it.
    VWSConstantInterface& Make(const Wish& wish) {
        auto chooser = std::make_unique<SkipThese>(wish.skipped);
        chooser_ = chooser.get();
        grid_ = std::make_unique<VWSConstantInterface>(wish.inPage ? &page : nullptr, &study,
                                                       wish.rows, chooser.release(),
                                                       constants.data(), axes, wish.readOnly);
        grid_->UpdateInterface();
        return *grid_;
    }
    VWSConstantInterface& Free() { return Make({}); }
    VWSConstantInterface& InPage() {
        Wish wish;
        wish.inPage = true;
        return Make(wish);
    }
    VWSConstantInterface& Grid() { return *grid_; }
    SkipThese& Chooser() { return *chooser_; }

    /// The window in which the grid stands from now on.
    VirtualWorksheet& Window() {
        if (!dialog_) {
            dialog_ = std::make_unique<CDialog>(6157, nullptr);
            dialog_->Create();
            VirtualWorksheet::CreateFromStatic(*dialog_, 6139, *grid_);
        }
        return *grid_->Worksheet();
    }

    /// "name=value" of each row.
    Texts Rows() const {
        Texts rows;
        for (int row = 1; row <= grid_->RowCount(); ++row) {
            rows.push_back(grid_->GetCellText(1, row) + "=" + grid_->GetCellText(2, row));
        }
        return rows;
    }

    /// "name = value (POSITION)" of each constant, in the array's order.
    Texts Stored() const {
        Texts lines;
        for (int i = 0; i < FactorConstants::NumConstants(constants.data()); ++i) {
            const FactorConstants::Constant& constant = constants[static_cast<std::size_t>(i)];
            const bool number = constant.kind == FactorConstants::kQuantitativeKind;
            lines.push_back(
                constant.Name() + " = " +
                (number ? KvString::FromDouble(constant.FloatValue()) : constant.QualValue()) +
                " (" + FactorConstants::SettingName(constant.SettingPos(), nullptr) + ")");
        }
        return lines;
    }
    void Store(const std::string& name, double value,
               FactorConstants::SettingType position = FactorConstants::CUSTOM) {
        FactorConstants::Add(constants.data(), {name, value, position});
    }
    void Store(const std::string& name, const std::string& setting) {
        FactorConstants::Add(constants.data(), {name, setting, FactorConstants::CUSTOM});
    }

    FactorClass& Constant(FactorClass& factor) {
        factor.factorValue.use = CEUse::Constant;
        return factor;
    }
    /// The setting of the study that says whether blocks are fixed effects (1) or random (0).
    void SetFixedEffect(int fixedEffect) {
        study.GetInvestigationSettings("Blocking", false)->WriteKey("FixedEffect", fixedEffect);
    }

    GridDesktop desktop;
    FakeStudy study;
    std::vector<std::shared_ptr<AxisInfo>> axes;
    std::array<FactorConstants::Constant, 32> constants;
    NotedPage page;

private:
    SkipThese* chooser_ = nullptr;
    std::unique_ptr<VWSConstantInterface> grid_;
    std::unique_ptr<CDialog> dialog_;
};

/// Writes down what is drawn, a line a call.
class RecordingCanvas : public CellCanvas {
public:
    void FillRect(const CRect& rect, Colour colour) override {
        calls.push_back("fill " + Text(rect) + " " + Hex(colour));
    }
    void FrameRect(const CRect& rect, Colour colour) override {
        calls.push_back("frame " + Text(rect) + " " + Hex(colour));
    }
    void Line(CPoint from, CPoint to, Colour colour) override {
        calls.push_back("line " + Text(from) + " " + Text(to) + " " + Hex(colour));
    }
    void SetTextColour(Colour colour) override { calls.push_back("text colour " + Hex(colour)); }
    void SetBackgroundColour(Colour colour) override {
        calls.push_back("background " + Hex(colour));
    }
    void PrintText(const CRect& rect, std::string_view utf8, TextAlign align) override {
        calls.push_back("print '" + std::string(utf8) + "' " + Text(rect) +
                        (align == TextAlign::Left ? " left" : " right"));
    }

    Texts calls;

private:
    static std::string Text(CPoint point) {
        return std::to_string(point.x) + "," + std::to_string(point.y);
    }
    static std::string Text(const CRect& rect) {
        return Text(CPoint{rect.left, rect.top}) + ".." + Text(CPoint{rect.right, rect.bottom});
    }
    static std::string Hex(Colour colour) {
        constexpr const char* kDigits = "0123456789ABCDEF";
        std::string text;
        for (int shift = 20; shift >= 0; shift -= 4) {
            text += kDigits[(colour >> shift) & 0xFU];
        }
        return text;
    }
};

}  // namespace kvopt::test
