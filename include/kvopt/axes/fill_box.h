#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

class CComboBox;
class Investigation;
class UseFactor;

/// Fills lists with the names of factors or responses, in the order of the study. Owns nothing; the
/// investigation must be there.
class KVOPT_EXPORT FillBox {
public:
    /// Where responses are taken from.
    enum ResponseType : int {
        Ordinary = 0,  ///< the variables
        Extended = 1,  ///< the response manager
    };

    FillBox(const Investigation* investigation, ResponseType responseType);

    /// Fills the list with the factors that `filter` passes; a null filter stands for the base test
    /// of UseFactor. `dropBlock` leaves out the block entry. Then selects the first entry that
    /// begins with `selected`, without regard to case, or entry 0 when there is none or `selected`
    /// is null. True when the list holds anything.
    bool FillFactorCLB(CComboBox* box, const UseFactor* filter, const wchar_t* selected,
                       bool dropBlock) const;
    bool FillFactorCLB(CComboBox* box, const wchar_t* selected) const;

    /// Fills the list with the available responses: those of the variables for Ordinary, those of
    /// the response manager for any other type. Selects as FillFactorCLB does.
    bool FillResponseCLB(CComboBox* box, const wchar_t* selected) const;

    /// The available responses into `names`, which is emptied first: those of the response manager
    /// for Extended, those of the variables for any other type. True when there are any.
    bool FillResponse(std::vector<std::string>& names) const;

private:
    std::vector<std::string> AvailableResponses(bool extended) const;

    const Investigation* investigation_;
    ResponseType responseType_;
};

}  // namespace kvopt
