#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

class CButton;
class CListBox;
class Investigation;
class SelectResponses;

/// The page on which responses (or other named items) move between "Available" and "Selected". It
/// edits a SelectResponses, which it does not own, and keeps the available ones in their natural
/// order however often they go back and forth.
class KVOPT_EXPORT MultipleResponsePage : public KvPropertyPage {
public:
    /// `maxSelections` bounds the selection: negative means no bound, 1 that adding replaces.
    MultipleResponsePage(const Investigation* investigation, SelectResponses& responses,
                         unsigned templateNumber, int maxSelections, BasePropertyPageHelper* helper,
                         unsigned helpTopic);
    ~MultipleResponsePage() override;

    /// What "Reset" restores; to be called before the page is shown.
    void SetDefauts(const std::vector<std::string>& names);
    /// No move and no Reset; to be called before the page is shown.
    void SetResponseReadOnly(bool readOnly) { mReadOnly = readOnly; }
    /// Also while the page is open: entries beyond the new bound go back, the last first.
    void SetMaxSelections(int maxSelections);
    int MaxSelections() const { return mMaxSelections; }

    bool OnInitDialog() override;
    bool OnApply() override;
    int OnWizardNext() override;
    void DoDataExchange(CDataExchange& exchange) override;

    // Handlers of the controls.
    void OnBAddResponse();
    void OnBRemoveResponse();
    void OnResetButton();

protected:
    void GetMessageMap(MessageMap& map) override;
    void OnDestroyWindow() override;

    void TransferToPage();
    void TransferFromPage();
    /// False after the message when nothing is selected; else the selection is stored.
    bool ApplyPage();
    /// Moves entries of the selected list (zero-based, ascending) to their natural places.
    void MoveResponse(const int* indices, int count);
    /// Where the entry `index` of the selected list belongs in the available one; zero-based.
    int AddSelectedIndex(int index);
    /// The natural index of a name, one-based; -1 for an unknown one.
    int GetResponseIndex(const char* name) const;
    void EnableAddButton();
    void EnableRemoveButton();

    SelectResponses& Responses() const { return mResponses; }
    const Investigation* GetInvestigation() const { return mInvestigation; }

private:
    void SetLabel(int number, const std::wstring& text);
    int BoundFor(int maxSelections) const;
    void AddMarked(int room);
    void ReplaceSelection();
    void FillAvailableOrder();
    void MoveAllBack();
    void ShowMoved();

    CButton* mRemoveButton = nullptr;
    CButton* mAddButton = nullptr;
    CListBox* mSelectedList = nullptr;
    CListBox* mAvailableList = nullptr;
    SelectResponses& mResponses;
    const Investigation* mInvestigation;
    /// Natural indices of what mAvailableList holds, ascending, from position 1; position 0 stays
    /// empty.
    std::vector<int> mAvailableOrder;
    int mMaxSelections = 0;
    bool mReadOnly = false;
    std::vector<std::string> mDefaults;
};

}  // namespace kvopt
