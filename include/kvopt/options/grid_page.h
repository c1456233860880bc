#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/options/kv_xtp_property_page.h"
#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

class CXTPMarkupStatic;
class CXTPPropertyGrid;
class CXTPPropertyGridItem;

/// What both kinds of grid page are: a header, a property grid, "Show details" and "Reset" on
/// `Page`, which is KvPropertyPage or KvXtpPropertyPage.
///
/// A derived page fills the grid in Init, which runs as the page opens and again when the page is
/// reset. What "Reset" does is its own affair: RouteReset.
template <class Page>
class GridPage : public Page {
public:
    ~GridPage() override;

    /// Text and number of the header; read once, by OnInitDialog. Null counts as empty.
    void SetTitle(const wchar_t* text, unsigned number);

    /// What the user did in the grid. Another value (code kGridValueChanged) marks the page. Always
    /// 0. A derived page handles it first, then calls this one.
    virtual long OnGridNotify(int code, CXTPPropertyGridItem* item);
    /// Shows or hides the descriptions, and remembers that at once for all grid pages of the user;
    /// does nothing without a window.
    void OnBnShowDetails();

    /// Null without a window.
    CXTPMarkupStatic* Header() const { return header_; }
    CXTPPropertyGrid* Grid() const { return grid_; }

protected:
    GridPage(unsigned templateNumber, BasePropertyPageHelper* helper, unsigned helpTopic);

    /// Fills the grid, whatever it holds.
    virtual void Init();
    /// Names what runs when the user presses "Reset"; for GetMessageMap of a derived page.
    static void RouteReset(MessageMap& map, MessageMap::Handler handler);
    void EnableReset(bool enable);
    void GetMessageMap(MessageMap& map) override;
    void OnDestroyWindow() override;

    // The steps of opening, which each kind runs in its own order.
    void NameWindow();
    void CreateHeader();
    /// Makes the grid look like those of the other pages, fills it, and lets the button say whether
    /// descriptions are shown.
    void CreateGrid();

private:
    void ShowDetailsState();

    CXTPMarkupStatic* header_ = nullptr;
    CXTPPropertyGrid* grid_ = nullptr;
    std::wstring title_;
    unsigned titleNumber_ = 0;
};

extern template class KVOPT_EXPORT GridPage<KvPropertyPage>;
extern template class KVOPT_EXPORT GridPage<KvXtpPropertyPage>;

}  // namespace kvopt
