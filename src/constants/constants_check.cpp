// What is legal in the grid: each value for its factor, and the sum of the formulation factors.

#include "constants/tolerant_compare.h"
#include "constants_texts.h"
#include "kvopt/constants/vws_constant_interface.h"
#include "kvopt/platform.h"
#include "kvopt/study.h"
#include "kvopt/text.h"

namespace kvopt {

namespace {

constexpr int kFactorColumn = 1;
constexpr int kValueColumn = 2;
constexpr double kSumTolerance = 0.0001;

/// A cell of the grid, or the text that stands in for it.
std::string CellOr(const VWSConstantInterface& grid, int row, int column, int standInColumn,
                   const char* standIn) {
    return standIn != nullptr && standInColumn == column ? standIn : grid.GetCellText(column, row);
}

}  // namespace

CWnd* VWSConstantInterface::BoxOwner() const {
    return mParentPage != nullptr ? static_cast<CWnd*>(mParentPage) : Worksheet();
}

bool VWSConstantInterface::CheckInterfaceValues(int row, int column, const char* text) {
    if (!IsValid(true)) {
        return false;
    }
    std::string report;
    const int first = row == -1 ? 1 : row;
    const int last = row == -1 ? RowCount() : row;
    for (int checked = first; checked <= last; ++checked) {
        report += ReportOnRow(checked, column, text);
    }
    bool result = true;
    if (!report.empty()) {
        const std::string question =
            texts::kConstantsReportHead.Text() + report + texts::kConstantsReportQuestion.Text();
        result = ShowMessage(BoxOwner(), KvStdString::ToWide(question),
                             BoxStyle::YesNoInformation) == BoxAnswer::Yes;
    }
    // Also after a No.
    return CheckSum(row, column, text) && result;
}

std::string VWSConstantInterface::ReportOnRow(int row, int column, const char* text) const {
    const std::string name = CellOr(*this, row, kFactorColumn, column, text);
    const FactorClass* factor =
        name.empty() ? nullptr : mInvestigation->GetVariables()->GetFactor(name);
    if (factor == nullptr) {
        return {};
    }
    const std::string value = CellOr(*this, row, kValueColumn, column, text);
    if (factor->IsQualitative() || factor->LegalSetting(value)) {
        return {};
    }
    const std::string trimmed = KvStdString::Trim(value);
    return trimmed.empty() ? Format(texts::kConstantsMissing, name)
                           : Format(texts::kConstantsDoubtful, name, trimmed);
}

bool VWSConstantInterface::CheckSum(int askedRow, int column, const char* text) const {
    const Variables& variables = *mInvestigation->GetVariables();
    const int formulationFactors = variables.GetCount(CEVar::MixtureFactors);
    if (formulationFactors < 1 || RowCount() == 0) {
        return true;
    }
    float sum = kNotSetF;
    int count = 0;
    for (int row = 1; row <= RowCount(); ++row) {
        const char* standIn = row == askedRow ? text : nullptr;
        const std::string name = CellOr(*this, row, kFactorColumn, column, standIn);
        float value = kNotSetF;
        if (name.empty() || variables.GetType(name) != CEType::Formulation ||
            !KvString::ToFloat(CellOr(*this, row, kValueColumn, column, standIn), value)) {
            continue;
        }
        sum = sum == kNotSetF ? value : sum + value;
        ++count;
    }
    if (sum == kNotSetF) {
        return true;
    }
    const int comparison = CompareTolerantly(static_cast<double>(sum), 1.0, kSumTolerance);
    if (comparison > 0) {
        ShowMessage(BoxOwner(), texts::kConstantsSumTooHigh.Wide(), BoxStyle::Information);
        return false;
    }
    // Only when every formulation factor has a row with a number: otherwise the filler or the
    // factors on the axes make up the rest.
    if (comparison < 0 && count == formulationFactors) {
        ShowMessage(BoxOwner(), texts::kConstantsSumTooLow.Wide(), BoxStyle::Information);
        return false;
    }
    return true;
}

}  // namespace kvopt
