// Values from the constants to the grid and back.

#include "constants_texts.h"
#include "kvopt/constants/vws_constant_interface.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "study/block_effect.h"
#include "study/constants_index.h"

namespace kvopt {

namespace {

std::string CellTextOf(double value) {
    return value == kNotSet ? std::string() : KvString::FormatG(value);
}

}  // namespace

FactorConstants::SettingType VWSConstantInterface::SetFactorConstantValue(
    int column, int row, const std::string& factorName) {
    ConstantsIndex constants(mConstants);
    return ShowConstant(constants, column, row, factorName);
}

FactorConstants::SettingType VWSConstantInterface::ShowConstant(ConstantsIndex& constants,
                                                                int column, int row,
                                                                const std::string& factorName) {
    const Variables& variables = *mInvestigation->GetVariables();
    const FactorClass* factor = variables.GetFactor(factorName);
    const bool qualitative = factor != nullptr && factor->IsQualitative();
    std::string text;
    FactorConstants::SettingType setting = FactorConstants::REF;

    if (FactorConstants::Constant* entry = constants.Find(factorName)) {
        text = qualitative ? entry->QualValue() : CellTextOf(entry->FloatValue());
        entry->SettingPos() = FactorConstants::WhichSetting(variables, factor, text.c_str());
        setting = entry->SettingPos();
    } else {
        FactorConstants::CenterValue(variables, factor, FactorConstants::REF, text);
        if (qualitative) {
            if (factorName == kBlockFactorName && HasRandomBlockEffect(*mInvestigation)) {
                text = texts::kConstantsRandomBlock.Text();
            }
            constants.Add({factorName, text, FactorConstants::REF});
        } else {
            float value = kNotSetF;
            KvString::ToFloat(text, value);
            if (value == kNotSetF) {
                text.clear();
            }
            constants.Add({factorName, static_cast<double>(value), FactorConstants::REF});
        }
    }
    SetCellValue(column, row, text);
    return setting;
}

void VWSConstantInterface::GetFactorConstantValue(int column, int row,
                                                  const std::string& factorName) {
    ConstantsIndex constants(mConstants);
    TakeConstant(constants, column, row, factorName);
}

void VWSConstantInterface::TakeConstant(ConstantsIndex& constants, int column, int row,
                                        const std::string& factorName) const {
    const std::string text = GetCellText(column, row);
    const Variables& variables = *mInvestigation->GetVariables();
    const FactorClass* factor = variables.GetFactor(factorName);
    if (text.empty() || factor == nullptr) {
        return;
    }
    const FactorConstants::SettingType setting =
        FactorConstants::WhichSetting(variables, factor, text.c_str());
    FactorConstants::Constant constant;
    if (factor->IsQualitative()) {
        constant = FactorConstants::Constant(factorName, text, setting);
    } else {
        float value = kNotSetF;
        KvString::ToFloat(text, value);
        constant = FactorConstants::Constant(factorName, static_cast<double>(value), setting);
    }
    if (FactorConstants::Constant* entry = constants.Find(factorName)) {
        *entry = constant;
    } else {
        constants.Add(constant);
    }
}

void VWSConstantInterface::SaveInterfaceValues() {
    SaveInterfaceValues(1, RowCount(), 1, 2);
}

void VWSConstantInterface::SaveInterfaceValues(int firstRow, int lastRow, int keyColumn,
                                               int valueColumn) {
    ConstantsIndex constants(mConstants);
    for (int row = firstRow; row <= lastRow; ++row) {
        const std::string name = GetCellText(keyColumn, row);
        if (!name.empty()) {
            TakeConstant(constants, valueColumn, row, name);
        }
    }
}

void VWSConstantInterface::GetConstantValue(int firstRow, int lastRow, int keyColumn,
                                            int valueColumn, const std::string& key,
                                            std::string& value) const {
    for (int row = firstRow; row <= lastRow; ++row) {
        if (GetCellText(keyColumn, row) == key) {
            value = GetCellText(valueColumn, row);
            return;
        }
    }
}

void VWSConstantInterface::GetConstantValue(const std::string& key, std::string& value) const {
    GetConstantValue(1, RowCount(), 1, 2, key, value);
}

}  // namespace kvopt
