#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/dialog.h"

namespace kvopt {

class CButton;
class CListBox;

/// The dialog in which plain names move between "Available" and "Selected". It fills its lists from
/// two vectors, which it does not own, and writes them back on OK. No order is restored: what moves
/// goes to the end of the other list.
///
/// OK with nothing selected refuses and stays, and leaves the vectors half-written on purpose: all
/// names stand in the available one and none in the selected one, also when the dialog is then
/// cancelled.
class KVOPT_EXPORT SelectItemDialog : public CDialog {
public:
    /// `noun` is the plural of the items, UTF-8 as they are. No more than `limit` names can be
    /// selected; -1, converted to unsigned, is no limit.
    SelectItemDialog(std::vector<std::string>& available, std::vector<std::string>& selected,
                     const std::string& noun, unsigned limit, CWnd* parent);
    ~SelectItemDialog() override;

    bool OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange& exchange) override;

    // Handlers of the controls.
    void OnAdd();
    void OnRemove();

protected:
    void GetMessageMap(MessageMap& map) override;
    void OnDestroyWindow() override;

private:
    int Room() const;
    void EnableArrows();

    CListBox* mAvailableList = nullptr;
    CListBox* mSelectedList = nullptr;
    CButton* mAddButton = nullptr;
    CButton* mRemoveButton = nullptr;
    std::vector<std::string>* mAvailable;
    std::vector<std::string>* mSelected;
    std::string mNoun;
    int mLimit;
};

}  // namespace kvopt
