#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform_test.h"

namespace kvopt {

constexpr int kGridPage = 90011;
constexpr int kGrid = 30;
constexpr int kBesideGrid = 31;

/// A dialog with a property grid and a button, and some rows of each kind: Colours (Red, Blue with
/// the child Shade) and Numbers (Count, Weight, Name).
class PropertyGridTest : public PlatformTest {
protected:
    PropertyGridTest() {
        using namespace layout;
        ProvideTemplate({kGridPage, "Grid",
                         Column({PropertyGrid(kGrid, "[grid]").Named("Options").Stretch(1),
                                 Push(kBesideGrid, "&Beside")})});
        dialog = std::make_unique<CDialog>(kGridPage, nullptr);
        dialog->Create();
        grid = dialog->Item<CXTPPropertyGrid>(kGrid);
        Fill();
        grid->SetNotifyHandler([this](int code, CXTPPropertyGridItem* item) {
            heard.push_back(std::to_string(code) + " " + KvStdString::ToUtf8(item->GetCaption()) +
                            "=" + KvStdString::ToUtf8(item->GetValue()));
            if (also) {
                also(*item);
            }
        });
    }
    ~PropertyGridTest() override { dialog.reset(); }

    void Fill() {
        colours = &grid->AddCategory(L"Colours\nWhat it is painted with.");
        red = &colours->AddChildItem(
            std::make_unique<CXTPPropertyGridItemBool>(L"Red\nIs it red?", L"Yes", L"No"));
        blue = &colours->AddChildItem(std::make_unique<CXTPPropertyGridItemEnum>(L"Blue", 2));
        blue->AddConstraint(L"None", 1);
        blue->AddConstraint(L"Some", 2);
        blue->AddConstraint(L"Much", 5);
        shade = &blue->AddChildItem(
            std::make_unique<CXTPPropertyGridItemNumber>(L"Shade\nHow dark.", 7));
        colours->Expand();
        numbers = &grid->AddCategory(L"Numbers");
        count = &numbers->AddChildItem(
            std::make_unique<CXTPPropertyGridItemNumber>(L"Count", 0, &boundCount));
        weight =
            &numbers->AddChildItem(std::make_unique<CXTPPropertyGridItemDouble>(L"Weight", 1.5));
        name = &numbers->AddChildItem(std::make_unique<CXTPPropertyGridItem>(L"Name"));
        numbers->Expand();
    }

    std::vector<std::string> Heard() { return std::exchange(heard, {}); }

    /// The rows that are shown, by caption.
    std::vector<std::wstring> Shown() const {
        std::vector<std::wstring> captions;
        for (const CXTPPropertyGridItem* row : grid->ShownRows()) {
            captions.push_back(row->GetCaption());
        }
        return captions;
    }

    bool Type(CXTPPropertyGridItem* item, const std::wstring& text) {
        return grid->UserBeginEdit(item) && grid->UserEdit(text) && grid->UserCommit();
    }

    std::unique_ptr<CDialog> dialog;
    CXTPPropertyGrid* grid = nullptr;
    CXTPPropertyGridItem* colours = nullptr;
    CXTPPropertyGridItemBool* red = nullptr;
    CXTPPropertyGridItemEnum* blue = nullptr;
    CXTPPropertyGridItemNumber* shade = nullptr;
    CXTPPropertyGridItem* numbers = nullptr;
    CXTPPropertyGridItemNumber* count = nullptr;
    CXTPPropertyGridItemDouble* weight = nullptr;
    CXTPPropertyGridItem* name = nullptr;
    int boundCount = 3;
    std::vector<std::string> heard;
    std::function<void(CXTPPropertyGridItem&)> also;
};

}  // namespace kvopt
