#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "kvopt/export.h"
#include "stores/section_node.h"

namespace kvopt::ini {

/// Names in a file: percent escapes for "%", "=", ";", "#", "[", "]", quotes and the backslash, for
/// control characters, blanks at either end, byte order marks and what is no UTF-8. The empty name
/// is a lone "%".
void AppendName(std::string& text, std::string_view name);
/// Values: percent escapes for "%", control characters, blanks at either end and what is no UTF-8.
void AppendValue(std::string& text, std::string_view value);
/// A "%" that no two hexadecimal digits follow stands for itself, so that a value edited by hand
/// ("10 %") is read as it was meant.
std::string Unescape(std::string_view text);

/// What a text held: the tree, and the lines after its last key.
struct Document {
    std::unique_ptr<SectionNode> root;
    std::string_view tail;
};

/// Reads a text; the tree points into it, so it has to outlive the tree. Throws FileFormatError,
/// with the line, for a text that is no ini file.
KVOPT_EXPORT Document Parse(std::string_view text, std::string_view fileName);

/// The same of a damaged text, passing over lines that Parse() fails at, over the comments above
/// them, and over the keys below a header that cannot be read, which may be of any section.
KVOPT_EXPORT Document ParseWhatIsReadable(std::string_view text);

/// The text of a tree: what was read and not written again stands as it stood, comments and order
/// included.
KVOPT_EXPORT std::string Print(const SectionNode& root, std::string_view tail);

}  // namespace kvopt::ini
