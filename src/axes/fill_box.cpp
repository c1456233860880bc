#include "kvopt/axes/fill_box.h"

#include "kvopt/axes/use_factor.h"
#include "kvopt/platform/controls.h"
#include "kvopt/study/factor_class.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/response_model_utilities.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

namespace {

bool Fill(CComboBox& box, const std::vector<std::string>& names, const wchar_t* selected) {
    box.SetRedraw(false);
    box.ResetContent();
    for (const std::string& name : names) {
        box.AddString(KvStdString::ToWide(name));
    }
    if (selected == nullptr || box.SelectString(-1, selected) == -1) {
        box.SetCurSel(0);
    }
    box.SetRedraw(true);
    return box.GetCount() > 0;
}

}  // namespace

FillBox::FillBox(const Investigation* investigation, ResponseType responseType)
    : investigation_(investigation), responseType_(responseType) {}

bool FillBox::FillFactorCLB(CComboBox* box, const UseFactor* filter, const wchar_t* selected,
                            bool dropBlock) const {
    const UseFactor anyAvailable(investigation_);
    const UseFactor& passes = filter != nullptr ? *filter : anyAvailable;
    std::vector<std::string> names;
    for (const FactorClass* factor : investigation_->GetVariables()->GetAllFactors()) {
        if (passes(factor, true) && !(dropBlock && factor->GetName() == kBlockFactorName)) {
            names.push_back(factor->GetName());
        }
    }
    return Fill(*box, names, selected);
}

bool FillBox::FillFactorCLB(CComboBox* box, const wchar_t* selected) const {
    return FillFactorCLB(box, nullptr, selected, false);
}

bool FillBox::FillResponseCLB(CComboBox* box, const wchar_t* selected) const {
    return Fill(*box, AvailableResponses(responseType_ != Ordinary), selected);
}

bool FillBox::FillResponse(std::vector<std::string>& names) const {
    names = AvailableResponses(responseType_ == Extended);
    return !names.empty();
}

std::vector<std::string> FillBox::AvailableResponses(bool extended) const {
    const ResponseModelUtilities models(investigation_);
    std::vector<std::string> names;
    const auto keep = [&](const std::string& name) {
        if (models.IsResponseAvailable(name, false)) {
            names.push_back(name);
        }
    };
    if (extended) {
        for (const ResponseEx* response : *investigation_->GetResponseManager()) {
            keep(response->GetName());
        }
    } else {
        for (const ResponseClass* response : investigation_->GetVariables()->GetAllResponses()) {
            keep(response->GetName());
        }
    }
    return names;
}

}  // namespace kvopt
