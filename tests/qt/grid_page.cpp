#include "tests/qt/grid_page.h"

#include <memory>

#include "kvopt/text.h"

namespace kvopt::test {

namespace {

using namespace layout;

unsigned AddTemplate() {
    static const bool added = [] {
        TemplateCatalog::Instance().Add(
            {kGridPage, "Options",
             Column({Markup(kHeader, "Header"),
                     PropertyGrid(kOptions, "").Named("Options").Stretch(1),
                     Push(kBeside, "&Beside")})});
        return true;
    }();
    static_cast<void>(added);
    return kGridPage;
}

}  // namespace

GridPage::GridPage() : KvPropertyPage(AddTemplate(), 0, nullptr, kNoHelp) {}

bool GridPage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    CXTPMarkupStatic* header = nullptr;
    KvMarkup::CreateDialogHeader(*this, header, kHeader, 0, L"Options for a < b");
    Grid().SetViewDivider(0.4);
    Grid().SetNotifyHandler([this](int /*code*/, CXTPPropertyGridItem* item) {
        heard.push_back(KvStdString::ToUtf8(item->GetCaption() + L"=" + item->GetValue()));
        Desktop::Instance().Note("changed " + heard.back());
        Changed();
        if (also) {
            also(*item);
        }
    });
    Fill();
    Unchanged();
    return true;
}

void GridPage::Fill() {
    Grid().ResetContent();
    FillColours();
    FillNumbers();
}

void GridPage::FillColours() {
    CXTPPropertyGridItem& colours = Grid().AddCategory(L"Colours\nWhat it is painted with.");
    colours.AddChildItem(
        std::make_unique<CXTPPropertyGridItemBool>(L"Red\nIs it <b>red</b>?", L"Yes", L"No"));
    auto& blue =
        colours.AddChildItem(std::make_unique<CXTPPropertyGridItemEnum>(L"Blue\nHow much?", 2));
    blue.AddConstraint(L"None", 1);
    blue.AddConstraint(L"Some", 2);
    blue.AddConstraint(L"Much", 5);
    blue.EnableConstraint(5, false);
    blue.AddChildItem(std::make_unique<CXTPPropertyGridItemNumber>(L"Shade\nHow dark.", 7));
    auto& fixed = colours.AddChildItem(std::make_unique<CXTPPropertyGridItemNumber>(L"Fixed", 11));
    fixed.SetReadOnly(true);
    colours.AddChildItem(std::make_unique<CXTPPropertyGridItem>(L"Secret")).SetHidden(true);
    colours.Expand();
}

void GridPage::FillNumbers() {
    CXTPPropertyGridItem& numbers = Grid().AddCategory(L"Numbers");
    numbers.AddChildItem(std::make_unique<CXTPPropertyGridItemNumber>(L"Count", 0, &count));
    numbers.AddChildItem(
        std::make_unique<KvPropertyGridItemDouble>(L"Weight", 1.5, nullptr, nullptr, L"1.5"));
    numbers.AddChildItem(std::make_unique<CXTPPropertyGridItem>(L"Name"));
    numbers.Expand();
}

}  // namespace kvopt::test
