#include "kvopt/constants/vws_constant_interface.h"

#include <boost/locale/message.hpp>

#include "constants_texts.h"
#include "kvopt/constants/constants_cell_renderer.h"
#include "kvopt/constants/constants_chooser.h"
#include "kvopt/platform.h"
#include "kvopt/stores.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "study/block_effect.h"
#include "study/constants_index.h"

namespace kvopt {

namespace {

constexpr int kFactorColumn = 1;
constexpr int kValueColumn = 2;
constexpr int kSliderColumn = 3;
constexpr int kColumns = 3;

std::wstring Translated(const PlainText& label) {
    // A process that installed no message catalogue has no such facet.
    const std::locale locale;
    if (!std::has_facet<boost::locale::message_format<char>>(locale)) {
        return label.Wide();
    }
    return KvStdString::ToWide(boost::locale::translate(label.Text()).str(locale));
}

}  // namespace

VWSConstantInterface::VWSConstantInterface(KvPropertyPage* page, const Investigation* investigation,
                                           int rows, ConstantsChooser* chooser,
                                           FactorConstants::Constant* constants,
                                           const std::vector<std::shared_ptr<AxisInfo>>& axes,
                                           bool readOnly)
    : KivexListInterface("Constants"),
      mInvestigation(investigation),
      mReadOnly(readOnly),
      mParentPage(page),
      mConstants(constants),
      mChooser(chooser != nullptr ? chooser : new ConstantsChooser),
      mAxes(&axes) {
    Init(rows);
}

VWSConstantInterface::~VWSConstantInterface() {
    Desktop::Instance().StopTimer(this);
}

void VWSConstantInterface::Init(int rows) {
    SetSize(kColumns, rows);
    SetDefaultRowHeight(ScaleToDpi(22));
    SetColumnType(kFactorColumn, FieldDef::Plain);
    SetColumnWidth(0, 0);
    SetDefaultVerticalLineStyle(9);
    SetCellValue(kFactorColumn, 0, texts::kConstantsFactorHeading.Text());
    SetCellValue(kValueColumn, 0, texts::kConstantsValueHeading.Text());
    SetCellValue(kSliderColumn, 0, texts::kConstantsSettingHeading.Text());
    for (int row = 1; row <= rows; ++row) {
        SetCellValue(0, row, std::to_string(row));
    }
    for (int column = kFactorColumn; column <= kSliderColumn; ++column) {
        SetColumnWidth(column, GetMaxTextColWidth(column, -1) + ScaleToDpi(30));
    }
}

void VWSConstantInterface::SetConstantsChooser(ConstantsChooser* chooser) {
    if (chooser != mChooser.get()) {
        mChooser.reset(chooser);
    }
}

bool VWSConstantInterface::SkipsFactor(const FactorClass& factor) const {
    return mChooser != nullptr && mChooser->SkipFactor(factor.name);
}

const FactorClass* VWSConstantInterface::FactorOfRow(int row) const {
    const std::string name = GetCellText(kFactorColumn, row);
    return name.empty() ? nullptr : mInvestigation->GetVariables()->GetFactor(name);
}

void VWSConstantInterface::UpdateInterface() {
    ResetOff();
    SetColumnFont(kFactorColumn, ListOptions::Instance().boldFactorNames ? 2 : 0);

    std::vector<const FactorClass*> listed;
    mFormulationOnAxis = false;
    for (const FactorClass* factor : mInvestigation->GetVariables()->GetAllFactors()) {
        if (SkipsFactor(*factor)) {
            mFormulationOnAxis = mFormulationOnAxis || factor->IsMixture();
        } else if (factor->factorValue.type != CEType::Filler) {
            listed.push_back(factor);
        }
    }

    ConstantsIndex constants(mConstants);
    int row = 1;
    for (const FactorClass* factor : listed) {
        if (row > RowCount()) {
            AddRow(row, 1);
        }
        SetCellValue(kFactorColumn, row, factor->name);
        SetFieldColor(kFactorColumn, row, ListOptions::Instance().factorNameColour);
        if (GetFieldType(kValueColumn, row) == FieldDef::Combo) {
            ClearFieldComboSetting(kValueColumn, row);
        }
        ShowConstant(constants, kValueColumn, row, factor->name);
        SetUpRow(*factor, row);
        ++row;
    }
    ResetOn();
}

void VWSConstantInterface::SetUpRow(const FactorClass& factor, int row) {
    const ListOptions& options = ListOptions::Instance();
    const bool available =
        ResponseModelUtilities(mInvestigation).IsFactorAvailable(&factor, true, false);

    if (factor.IsConstant()) {
        mRenderers.erase(&factor);
        CloseRow(row, FieldDef::Locked, options.readOnlyColour);
        SetCellValue(kSliderColumn, row, "");
        return;
    }
    if (CEType::IsList(factor.factorValue.type)) {
        mRenderers.erase(&factor);
        if (!mReadOnly && available) {
            SetUpList(factor, row);
        } else {
            *GetFieldDef(kValueColumn, row, true) = FieldDef::Plain;
            SetFieldColor(kValueColumn, row, options.readOnlyColour);
        }
        *GetFieldDef(kSliderColumn, row, true) = FieldDef::Plain;
        SetFieldColor(kSliderColumn, row, options.readOnlyColour);
        ClearFieldComboSetting(kSliderColumn, row);
        SetCellValue(kSliderColumn, row, "");
        return;
    }
    if (IsLockedFormulation(factor)) {
        CloseRow(row, FieldDef::Plain, options.lockedFormulationColour);
    } else if (!mReadOnly && available) {
        *GetFieldDef(kValueColumn, row, true) = FieldDef::Number;
        SetFieldColor(kValueColumn, row, FieldDef::kNoColour);
    } else {
        CloseRow(row, FieldDef::Locked, options.readOnlyColour);
    }
    mRenderers[&factor] = std::make_shared<ConstantsCellRenderer>(*this, factor);
}

bool VWSConstantInterface::IsLockedFormulation(const FactorClass& factor) const {
    return factor.IsMixture() && mParentPage == nullptr &&
           (mFormulationOnAxis || !mInvestigation->GetVariables()->IsAnyFiller());
}

void VWSConstantInterface::CloseRow(int row, FieldDef::FieldType valueType, Colour colour) {
    *GetFieldDef(kValueColumn, row, true) = valueType;
    SetFieldColor(kValueColumn, row, colour);
    *GetFieldDef(kSliderColumn, row, true) = FieldDef::Plain;
    SetFieldColor(kSliderColumn, row, colour);
}

void VWSConstantInterface::SetUpList(const FactorClass& factor, int row) {
    FieldDef& value = *GetFieldDef(kValueColumn, row, true);
    value = FieldDef::Combo;
    SetFieldColor(kValueColumn, row, FieldDef::kNoColour);
    if (factor.name == kBlockFactorName && HasRandomBlockEffect(*mInvestigation)) {
        value.AddComboSetting(texts::kConstantsRandomBlock.Text());
    }
    for (int setting = 1; setting <= factor.settingCount; ++setting) {
        value.AddComboSetting(factor.GetSetting(setting));
    }
}

void VWSConstantInterface::SetFieldConstantSettings(int column, int row, const char* const* names) {
    if (mReadOnly) {
        const Colour colour = ListOptions::Instance().readOnlyColour;
        *GetFieldDef(column, row, true) = FieldDef::Locked;
        ClearFieldComboSetting(column, row);
        SetFieldColor(column, row, colour);
        *GetFieldDef(kSliderColumn, row, true) = FieldDef::Plain;
        SetFieldColor(kSliderColumn, row, colour);
        return;
    }
    FieldDef& field = *GetFieldDef(column, row, true);
    if (field.Type() == FieldDef::Combo) {
        field.ClearComboSettings();
    }
    field = FieldDef::Combo;
    for (const auto setting : {FactorConstants::LOW, FactorConstants::REF, FactorConstants::HIGH,
                               FactorConstants::CUSTOM}) {
        field.AddComboSetting(FactorConstants::SettingName(setting, names));
    }
}

std::string VWSConstantInterface::GetCellText(int column, int row) const {
    const std::string* text = Data().GetData(column, row);
    return text != nullptr ? *text : std::string();
}

void VWSConstantInterface::UpdateValue(int column, int row, const char* text) {
    Data().SetData(column, row, text != nullptr ? text : "");
}

const VWSRenderer* VWSConstantInterface::GetCellRenderer(int column, int row) const {
    if (column == kSliderColumn && row >= 1) {
        const FactorClass* factor = FactorOfRow(row);
        if (factor != nullptr &&
            ResponseModelUtilities(mInvestigation).IsFactorAvailable(factor, true, false) &&
            !CEType::IsList(factor->factorValue.type)) {
            const auto found = mRenderers.find(factor);
            if (found != mRenderers.end()) {
                return found->second.get();
            }
        }
    }
    return BaseWorksheetInterface::GetCellRenderer(column, row);
}

bool VWSConstantInterface::UserChangedData(int column, int row, const char* text) {
    if (mReadOnly || text == nullptr || *text == '\0') {
        return false;
    }
    if (mParentPage != nullptr) {
        mParentPage->Changed();
    }
    UpdateValue(column, row, text);
    if (Worksheet() != nullptr) {
        Worksheet()->Reset();
    }
    return true;
}

bool VWSConstantInterface::GetToolTipText(int column, int row, std::wstring& text) {
    if ((column != kValueColumn && column != kSliderColumn) || row < 1 ||
        FactorOfRow(row) == nullptr || GetFieldType(kValueColumn, row) != FieldDef::Plain) {
        return false;
    }
    // By the field type alone: a locked qualitative row shows it too.
    text = texts::kConstantsLockedTip.Wide();
    return true;
}

bool VWSConstantInterface::RButtonDown(CPoint& point) {
    if (Worksheet() != nullptr) {
        Desktop::Instance().ShowPopupMenu(
            *Worksheet(), point,
            {{kCommandSelectAll, Translated(texts::kConstantsSelectAll), true},
             {},
             {kCommandCopy, Translated(texts::kConstantsCopy), true},
             {kCommandPaste, Translated(texts::kConstantsPaste), OnUpdateEditPaste()}});
    }
    return true;
}

}  // namespace kvopt
