#include "scripted/grid_rows.h"

#include <algorithm>

#include "kvopt/platform/property_grid.h"
#include "kvopt/platform/property_grid_values.h"
#include "kvopt/text/kv_std_string.h"
#include "scripted/script_lexer.h"

namespace kvopt {

namespace {

using Rows = std::vector<CXTPPropertyGridItem*>;

std::string CaptionOf(const CXTPPropertyGridItem& row) {
    return KvStdString::ToUtf8(row.GetCaption());
}

bool IsMeant(const CXTPPropertyGridItem& row, const std::vector<std::string>& path) {
    if (CaptionOf(row) != path.front()) {
        return false;
    }
    auto wanted = path.begin() + 1;
    for (const auto* above = row.Parent(); above != nullptr && wanted != path.end();
         above = above->Parent()) {
        if (CaptionOf(*above) == *wanted) {
            ++wanted;
        }
    }
    return wanted == path.end();
}

std::string NoRow(const Rows& rows, const std::vector<std::string>& path) {
    std::vector<std::string> captions;
    for (const CXTPPropertyGridItem* row : rows) {
        captions.push_back(CaptionOf(*row));
    }
    return "there is no " + StepTarget::Item(path).Text() + "; there are " +
           QuoteForScript(captions);
}

/// Why the verb cannot be had of the row; empty when it can.
std::string WhyNot(const CXTPPropertyGridItem& row, StepVerb verb) {
    const bool isSwitch = dynamic_cast<const CXTPPropertyGridItemBool*>(&row) != nullptr;
    const std::string which = "row " + PathOf(row);
    switch (verb) {
        case StepVerb::Click:
            if (!isSwitch) {
                return which + " is no switch";
            }
            break;
        case StepVerb::Type:
        case StepVerb::Edit:
            if (!row.TakesText()) {
                return which + " takes no typing";
            }
            break;
        case StepVerb::Pick:
            if (row.Choices().empty()) {
                return which + " offers no list";
            }
            break;
        case StepVerb::Expand:
        case StepVerb::Collapse:
            return row.Children().empty() ? "nothing stands below " + which
                   : row.IsExpanded() == (verb == StepVerb::Expand) ? which + " is so already"
                                                                    : "";
        default:
            return "";
    }
    return row.GetReadOnly() ? which + " is read-only" : "";
}

}  // namespace

CXTPPropertyGridItem* FindRow(const CXTPPropertyGrid& grid, const std::vector<std::string>& path,
                              StepVerb verb, std::string& problem) {
    const Rows rows = grid.Rows();
    Rows meant = rows;
    std::erase_if(meant, [&](const CXTPPropertyGridItem* row) { return !IsMeant(*row, path); });
    const auto isShown = [](const CXTPPropertyGridItem* row) { return row->IsShown(); };
    if (std::any_of(meant.begin(), meant.end(), isShown)) {
        std::erase_if(meant, [&](const CXTPPropertyGridItem* row) { return !isShown(row); });
    }
    if (meant.empty()) {
        problem = NoRow(rows, path);
    } else if (meant.size() > 1) {
        problem = "several rows are meant: " + PathOf(*meant[0]) + ", " + PathOf(*meant[1]);
    } else if (!IsExpectation(verb) && !meant.front()->IsShown()) {
        problem = "row " + PathOf(*meant.front()) + " is not shown";
    } else {
        problem = WhyNot(*meant.front(), verb);
    }
    return problem.empty() ? meant.front() : nullptr;
}

std::vector<std::string> ChoiceTexts(const CXTPPropertyGridItem& row) {
    std::vector<std::string> texts;
    for (const PropertyGridChoice& choice : row.Choices()) {
        texts.push_back(KvStdString::ToUtf8(choice.text));
    }
    return texts;
}

std::string PathOf(const CXTPPropertyGridItem& row) {
    std::string text = QuoteForScript(CaptionOf(row));
    for (const auto* above = row.Parent(); above != nullptr; above = above->Parent()) {
        text += " in " + QuoteForScript(CaptionOf(*above));
    }
    return text;
}

}  // namespace kvopt
