#pragma once

#include <QAbstractItemModel>
#include <memory>
#include <vector>

namespace kvopt {

class CXTPPropertyGrid;
class CXTPPropertyGridItem;

/// The rows of a property grid as a tree of Qt with a column of captions and one of values. Rows
/// that are hidden are left out; those below a closed row are in it. Holds no value of its own.
class PropertyGridModel : public QAbstractItemModel {
public:
    static constexpr int kCaptionColumn = 0;
    static constexpr int kValueColumn = 1;

    PropertyGridModel(const CXTPPropertyGrid& grid, QObject* parent);
    ~PropertyGridModel() override;

    /// Rows may have come, gone, been hidden or shown. True when the tree is another one now.
    bool RefreshRows();
    /// What stands in the rows may read differently.
    void RefreshCells();

    /// False when the grid has died.
    bool IsAlive() const { return !alive_.expired(); }
    /// Null for an index of nothing, and when the grid has died.
    CXTPPropertyGridItem* ItemAt(const QModelIndex& index) const;
    /// Invalid for a row that is hidden.
    QModelIndex IndexOf(const CXTPPropertyGridItem* item, int column = kCaptionColumn) const;
    /// Every row of the tree from the top, by its caption.
    std::vector<QModelIndex> All() const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Node {
        CXTPPropertyGridItem* item = nullptr;
        Node* parent = nullptr;
        int row = 0;
        std::vector<std::unique_ptr<Node>> children;
    };
    using Items = std::vector<std::unique_ptr<CXTPPropertyGridItem>>;

    static void Fill(Node& node, const Items& items);
    static bool IsSame(const Node& one, const Node& other);
    const Node* Find(const Node& from, const CXTPPropertyGridItem* item) const;
    const Node& NodeOf(const QModelIndex& index) const;
    QModelIndex IndexOf(const Node& node, int column) const;
    void Collect(const Node& node, std::vector<QModelIndex>& indexes) const;

    const CXTPPropertyGrid& grid_;
    std::weak_ptr<const void> alive_;
    std::unique_ptr<Node> root_;
};

}  // namespace kvopt
