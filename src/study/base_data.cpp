#include "kvopt/study/base_data.h"

#include <algorithm>

#include "kvopt/study/investigation.h"
#include "kvopt/study/label_types.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/variables.h"

namespace kvopt {

BaseData::~BaseData() = default;

bool BaseData::HasColumn(const std::string& name) const {
    for (int column = 1; column <= GetNumColumns(); ++column) {
        if (GetColumn(column) == name) {
            return true;
        }
    }
    return false;
}

bool BaseData::IsLimit(int /*index*/) const {
    return false;
}

std::shared_ptr<BaseLabelTitles> BaseData::GetLabelTitles() const {
    return std::make_shared<StandardLabelTitles>();
}

WorksheetData::WorksheetData(const Investigation* investigation) : investigation_(investigation) {}

std::vector<std::string> WorksheetData::Columns() const {
    std::vector<std::string> names;
    if (investigation_ == nullptr) {
        return names;
    }
    for (const FactorClass* factor : investigation_->GetVariables()->GetAllFactors()) {
        names.push_back(factor->name);
    }
    for (const ResponseEx* response : *investigation_->GetResponseManager()) {
        names.push_back(response->GetName());
    }
    return names;
}

int WorksheetData::GetNumColumns() const {
    return static_cast<int>(Columns().size());
}

std::string WorksheetData::GetColumn(int index) const {
    const std::vector<std::string> names = Columns();
    return index >= 1 && index <= static_cast<int>(names.size())
               ? names[static_cast<std::size_t>(index) - 1]
               : std::string();
}

std::shared_ptr<BaseLabelTitles> WorksheetData::GetLabelTitles() const {
    return investigation_ != nullptr ? investigation_->GetLabelTitles()
                                     : BaseData::GetLabelTitles();
}

}  // namespace kvopt
