#include "kvopt/options/grid_page.h"

#include <utility>

#include "kvopt/platform/button.h"
#include "kvopt/platform/kv_markup.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/stores/user_profile.h"
#include "options_texts.h"

namespace kvopt {

namespace {

constexpr int kGrid = 6334;
constexpr int kDetails = 6335;
constexpr int kReset = 6336;
constexpr int kHeader = 6337;

constexpr const char* kProfileSection = "Settings";
constexpr const char* kDetailsKey = "GeneralOptionsShowDetails";
constexpr double kCaptionShare = 0.4;

}  // namespace

template <class Page>
GridPage<Page>::GridPage(unsigned templateNumber, BasePropertyPageHelper* helper,
                         unsigned helpTopic)
    : Page(templateNumber, 0, helper, helpTopic) {}

template <class Page>
GridPage<Page>::~GridPage() = default;

template <class Page>
void GridPage<Page>::SetTitle(const wchar_t* text, unsigned number) {
    title_ = text != nullptr ? text : L"";
    titleNumber_ = number;
}

template <class Page>
void GridPage<Page>::GetMessageMap(MessageMap& map) {
    Page::GetMessageMap(map);
    map.OnClicked(kDetails, [this] { OnBnShowDetails(); });
}

template <class Page>
void GridPage<Page>::RouteReset(MessageMap& map, MessageMap::Handler handler) {
    map.OnClicked(kReset, std::move(handler));
}

template <class Page>
void GridPage<Page>::EnableReset(bool enable) {
    this->GetDlgItem(kReset)->EnableWindow(enable);
}

template <class Page>
void GridPage<Page>::NameWindow() {
    this->SetText(texts::kOptionsWindowText.Wide());
}

template <class Page>
void GridPage<Page>::CreateHeader() {
    KvMarkup::CreateDialogHeader(*this, header_, kHeader, titleNumber_, title_);
}

template <class Page>
void GridPage<Page>::CreateGrid() {
    grid_ = this->template Item<CXTPPropertyGrid>(kGrid);
    grid_->SetNotifyHandler(
        [this](int code, CXTPPropertyGridItem* item) { OnGridNotify(code, item); });
    grid_->ShowHelp(UserProfile::Instance()->GetProfileInteger(kProfileSection, kDetailsKey, 1) !=
                    0);
    grid_->SetViewDivider(kCaptionShare);
    Init();
    ShowDetailsState();
}

template <class Page>
void GridPage<Page>::Init() {}

template <class Page>
long GridPage<Page>::OnGridNotify(int code, CXTPPropertyGridItem* /*item*/) {
    if (code == kGridValueChanged) {
        this->Changed();
    }
    return 0;
}

template <class Page>
void GridPage<Page>::OnBnShowDetails() {
    if (grid_ != nullptr) {
        grid_->ShowHelp(!grid_->IsHelpVisible());
        UserProfile::Instance()->WriteProfileInteger(kProfileSection, kDetailsKey,
                                                     grid_->IsHelpVisible() ? 1 : 0);
        ShowDetailsState();
    }
}

template <class Page>
void GridPage<Page>::ShowDetailsState() {
    this->template Item<CButton>(kDetails)->SetCheck(grid_->IsHelpVisible());
}

template <class Page>
void GridPage<Page>::OnDestroyWindow() {
    header_ = nullptr;
    grid_ = nullptr;
    Page::OnDestroyWindow();
}

template class GridPage<KvPropertyPage>;
template class GridPage<KvXtpPropertyPage>;

}  // namespace kvopt
