#pragma once

namespace kvopt {

class CDialog;
class PlainText;

/// What an axis page says of the constants that follow it in a wizard.
class ConstantsHint {
public:
    ConstantsHint() = delete;

    static void Hide(const CDialog& page);
    /// Shows `following` when there are factors to be held constant, or that there are none. Gives
    /// the wizard's buttons that fit.
    static unsigned long Write(const CDialog& page, bool hasConstants, const PlainText& following);
};

}  // namespace kvopt
