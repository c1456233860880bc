#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kvopt {

class CControl;
class CDialog;

/// UTF-8 of a label without its mnemonic.
std::string PlainLabel(std::wstring_view label);

/// The controls that a script means by a name: those whose accessible name or label it is, and
/// those to which a label of that text leads (a colon at the label's end may be left out).
std::vector<CControl*> ControlsNamed(const CDialog& dialog, const std::string& name);
/// All names that a script could use, in tab order.
std::vector<std::string> ControlNames(const CDialog& dialog);

/// A page's title or a dialog's caption, UTF-8.
std::string TitleOf(const CDialog& dialog);
/// For messages: number and name.
std::string DescribeControl(const CControl& control);

}  // namespace kvopt
