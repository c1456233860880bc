#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

class CWnd;
class CXTPPropertyGrid;

/// One of the values that a row offers.
struct PropertyGridChoice {
    std::wstring text;
    bool enabled = true;
};

/// A row of a property grid, here with a text of its own as value. It owns its child rows, and is
/// owned by its grid or its parent row from when it is added.
///
/// The operations that set a value are the program's: they write the bound variable and tell the
/// views, and nobody else. SetValue is also where the text arrives that a user typed: a derived row
/// judges it there. The page hears of what the user does when the value differs afterwards, so a
/// SetValue that puts the former value back tells nobody.
class KVOPT_EXPORT CXTPPropertyGridItem {
public:
    /// `literal` holds caption and description, split at its first line break; nothing is trimmed.
    explicit CXTPPropertyGridItem(std::wstring_view literal);
    virtual ~CXTPPropertyGridItem();
    CXTPPropertyGridItem(const CXTPPropertyGridItem&) = delete;
    CXTPPropertyGridItem& operator=(const CXTPPropertyGridItem&) = delete;

    const std::wstring& GetCaption() const { return caption_; }
    const std::wstring& GetDescription() const { return description_; }
    void SetDescription(std::wstring_view description);

    /// 0 for a row without one.
    int GetID() const { return id_; }
    void SetID(int id) { id_ = id; }

    /// The row's own flag. A row that is read-only can be selected, expanded and collapsed.
    bool GetReadOnly() const { return readOnly_; }
    void SetReadOnly(bool readOnly);
    /// The row's own flag; its children are not shown with it.
    bool IsHidden() const { return hidden_; }
    void SetHidden(bool hidden);

    /// A row starts collapsed.
    bool IsExpanded() const { return expanded_; }
    void Expand();
    void Collapse();

    /// Adds a child behind the others. Throws InvalidArgument for null.
    template <class Item>
    Item& AddChildItem(std::unique_ptr<Item> item) {
        Item* added = item.get();
        Adopt(std::move(item));
        return *added;
    }
    const std::vector<std::unique_ptr<CXTPPropertyGridItem>>& Children() const { return children_; }
    /// Null for a category, and for a row that was not added yet.
    CXTPPropertyGridItem* Parent() const { return parent_; }
    /// The grid that the row stands in; null before it is added.
    CXTPPropertyGrid* Grid() const;
    /// The dialog of that grid, over which the row shows its message boxes; null without a grid.
    CWnd* Window() const;

    /// True when the row is a heading without a value.
    virtual bool IsCategory() const { return false; }
    /// True when neither the row nor one above it is hidden, and all above it are expanded.
    bool IsShown() const;

    /// The text in the value column.
    virtual std::wstring GetValue() const { return text_; }
    virtual void SetValue(std::wstring_view text);

    /// Whether the user may type a value (when the row is not read-only).
    virtual bool TakesText() const { return true; }
    /// What a row offers whose value is picked; empty for any other.
    virtual std::vector<PropertyGridChoice> Choices() const { return {}; }
    /// Zero-based; -1 when the value is none of them.
    virtual int CurrentChoice() const { return -1; }
    /// Takes a choice, zero-based, as its value.
    virtual void Choose(int /*index*/) {}

    /// A value whose text differs from this one is marked in the value column; nothing is marked
    /// without a default.
    void SetDefaultValue(std::wstring_view text);
    const std::wstring& GetDefaultValue() const { return default_; }
    bool IsDefault() const { return default_.empty() || GetValue() == default_; }

protected:
    /// Derived rows say so after their value became another one.
    void ValueChanged();
    /// Likewise after anything else in the row reads differently.
    void CellsChanged();

private:
    friend class CXTPPropertyGrid;
    void Adopt(std::unique_ptr<CXTPPropertyGridItem> item);
    void RowsChanged();

    std::wstring caption_;
    std::wstring description_;
    std::wstring text_;
    std::wstring default_;
    int id_ = 0;
    bool readOnly_ = false;
    bool hidden_ = false;
    bool expanded_ = false;
    unsigned changes_ = 0;  ///< how often the value became another one
    std::vector<std::unique_ptr<CXTPPropertyGridItem>> children_;
    CXTPPropertyGridItem* parent_ = nullptr;
    CXTPPropertyGrid* grid_ = nullptr;  ///< of a category
};

/// A heading above rows.
class KVOPT_EXPORT CXTPPropertyGridItemCategory : public CXTPPropertyGridItem {
public:
    using CXTPPropertyGridItem::CXTPPropertyGridItem;

    bool IsCategory() const override { return true; }
    bool TakesText() const override { return false; }
    /// A heading has no value: nothing happens.
    void SetValue(std::wstring_view text) override;
};

}  // namespace kvopt
