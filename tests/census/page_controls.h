#pragma once

#include <string>
#include <vector>

#include "kvopt/platform/dialog_template.h"

namespace kvopt::test {

/// Of every template in the catalog, sorted.
std::vector<int> AllTemplateNumbers();

struct NamedControl {
    int number;
    ControlKind kind;
};

/// What the code of a page names in one of the templates that it can have. The lists of base
/// classes are included.
struct PageOfTemplate {
    const char* pageClass;
    int number;  ///< of the template
    std::vector<NamedControl> controls;
    std::vector<int> absent{};  ///< what the code asks for and this template leaves out on purpose
};

const std::vector<PageOfTemplate>& PagesOfTemplates();

/// The source files of a page class, its bases' included, below the folder src.
struct PageSources {
    const char* pageClass;
    std::vector<const char*> files;
};

const std::vector<PageSources>& SourcesOfPages();

/// A template's number that pages name and the catalog lacks, or a number that is no control's.
struct OtherNumber {
    int number;
    const char* why;
};

const std::vector<OtherNumber>& OtherNumbers();

}  // namespace kvopt::test
