#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/constants/kivex_list_interface.h"
#include "kvopt/export.h"
#include "kvopt/study/factor_constants.h"

namespace kvopt {

class AxisInfo;
class ConstantsCellRenderer;
class ConstantsChooser;
class ConstantsIndex;
class CWnd;
class FactorClass;
class Investigation;
class KvPropertyPage;

/// The grid in which the factors that lie on no axis get their values: a row for each, with the
/// name (column 1), the value (column 2) and a slider (column 3); data rows count from 1.
///
/// It edits an array of constants in place, which it does not own, and owns its chooser. With a
/// parent page every change marks that page and values are saved when the page says so; without
/// one, changes take effect at once and formulation factors are more restricted. It never corrects
/// a value and never throws.
class KVOPT_EXPORT VWSConstantInterface : public KivexListInterface {
public:
    /// `page` may be null (free-standing use). A null `chooser` is replaced by a plain
    /// ConstantsChooser. `axes` is kept for hosts and read by nothing here.
    VWSConstantInterface(KvPropertyPage* page, const Investigation* investigation, int rows,
                         ConstantsChooser* chooser, FactorConstants::Constant* constants,
                         const std::vector<std::shared_ptr<AxisInfo>>& axes, bool readOnly);
    ~VWSConstantInterface() override;

    void SetConstants(FactorConstants::Constant* constants) { mConstants = constants; }
    /// Takes the chooser over and deletes the one before. Null lists every factor.
    void SetConstantsChooser(ConstantsChooser* chooser);
    ConstantsChooser* GetConstantsChooser() const { return mChooser.get(); }
    void SetParent(KvPropertyPage* page) { mParentPage = page; }
    KvPropertyPage* GetParent() const { return mParentPage; }
    const Investigation* GetInvestigation() const { return mInvestigation; }
    bool IsReadOnly() const { return mReadOnly; }

    void SetUpdatePlotWhileSliding(bool update) { mUpdatePlotWhileSliding = update; }
    bool UpdatePlotWhileSliding() const { return mUpdatePlotWhileSliding; }

    /// Makes all rows up anew from the chooser, the factors and the constants.
    void UpdateInterface();

    /// Judges what the grid holds, with the boxes that tell the user. `row` -1 means all rows.
    /// A `text` that is not null stands in for the content of the cell (column, row).
    bool CheckInterfaceValues(int row, int column, const char* text);

    /// Grid to constants, all rows.
    void SaveInterfaceValues();
    void SaveInterfaceValues(int firstRow, int lastRow, int keyColumn, int valueColumn);
    /// One cell to its constant; an empty cell changes nothing.
    void GetFactorConstantValue(int column, int row, const std::string& factorName);
    /// One constant to its cell, added to the constants when it was not among them.
    FactorConstants::SettingType SetFactorConstantValue(int column, int row,
                                                        const std::string& factorName);
    /// The value cell of the first row whose key cell is exactly `key`; left alone without one.
    void GetConstantValue(int firstRow, int lastRow, int keyColumn, int valueColumn,
                          const std::string& key, std::string& value) const;
    void GetConstantValue(const std::string& key, std::string& value) const;
    /// Makes a cell a drop-down of setting positions. Null `names` means the standard names.
    void SetFieldConstantSettings(int column, int row, const char* const* names);

    void UpdateValue(int column, int row, const char* text) override;
    const VWSRenderer* GetCellRenderer(int column, int row) const override;
    std::string GetCellText(int column, int row) const override;
    bool LButtonDown(const CPoint& point, const CPoint& cell) override;
    bool LButtonUp(const CPoint& point, const CPoint& cell) override;
    bool MouseMove(const CPoint& point, const CPoint& cell, const CRect& rect) override;
    bool RButtonDown(CPoint& point) override;
    bool GetToolTipText(int column, int row, std::wstring& text) override;
    bool UserChangedData(int column, int row, const char* text) override;

    /// Pushes what the slider shows: marks the parent page, or changes the plot at once.
    void UpdateFromSlider();

private:
    void Init(int rows);
    FactorConstants::SettingType ShowConstant(ConstantsIndex& constants, int column, int row,
                                              const std::string& factorName);
    void TakeConstant(ConstantsIndex& constants, int column, int row,
                      const std::string& factorName) const;
    void SetUpRow(const FactorClass& factor, int row);
    void SetUpList(const FactorClass& factor, int row);
    void CloseRow(int row, FieldDef::FieldType valueType, Colour colour);
    void AddRenderer(const FactorClass& factor);
    const FactorClass* FactorOfRow(int row) const;
    bool SkipsFactor(const FactorClass& factor) const;
    /// In free-standing use formulation factors that must make up the rest are closed.
    bool IsLockedFormulation(const FactorClass& factor) const;
    bool IsSliderClosed(const FactorClass& factor) const;
    CWnd* BoxOwner() const;
    std::string ReportOnRow(int row, int column, const char* text) const;
    bool CheckSum(int askedRow, int column, const char* text) const;
    void PushSliderCell(int column, int row);

    const Investigation* mInvestigation;
    bool mReadOnly;
    KvPropertyPage* mParentPage;
    FactorConstants::Constant* mConstants;
    std::unique_ptr<ConstantsChooser> mChooser;
    const std::vector<std::shared_ptr<AxisInfo>>* mAxes;
    std::map<const FactorClass*, std::shared_ptr<ConstantsCellRenderer>> mRenderers;
    CPoint mSliderCell;
    std::string mLastSliderValue;
    bool mOverThumb = false;
    bool mDragging = false;
    bool mUpdatePlotWhileSliding = true;
    bool mFormulationOnAxis = false;
};

}  // namespace kvopt
