#include "qt/property_grid_model.h"

#include <QFont>
#include <algorithm>

#include "kvopt/platform/property_grid.h"
#include "qt/qt_text.h"

namespace kvopt {

PropertyGridModel::PropertyGridModel(const CXTPPropertyGrid& grid, QObject* parent)
    : QAbstractItemModel(parent),
      grid_(grid),
      alive_(grid.LifeToken()),
      root_(std::make_unique<Node>()) {}

PropertyGridModel::~PropertyGridModel() = default;

void PropertyGridModel::Fill(Node& node, const Items& items) {
    for (const auto& item : items) {
        if (item->IsHidden()) {
            continue;
        }
        auto child = std::make_unique<Node>();
        child->item = item.get();
        child->parent = &node;
        child->row = static_cast<int>(node.children.size());
        Fill(*child, item->Children());
        node.children.push_back(std::move(child));
    }
}

bool PropertyGridModel::IsSame(const Node& one, const Node& other) {
    return one.item == other.item &&
           std::equal(one.children.begin(), one.children.end(), other.children.begin(),
                      other.children.end(),
                      [](const auto& left, const auto& right) { return IsSame(*left, *right); });
}

bool PropertyGridModel::RefreshRows() {
    auto root = std::make_unique<Node>();
    if (!alive_.expired()) {
        Fill(*root, grid_.Categories());
    }
    // A row of the former tree may be dead: only its address is looked at.
    if (IsSame(*root, *root_)) {
        return false;
    }
    beginResetModel();
    root_ = std::move(root);
    endResetModel();
    return true;
}

void PropertyGridModel::RefreshCells() {
    for (const QModelIndex& index : All()) {
        emit dataChanged(index, index.siblingAtColumn(kValueColumn));
    }
}

const PropertyGridModel::Node& PropertyGridModel::NodeOf(const QModelIndex& index) const {
    return index.isValid() ? *static_cast<const Node*>(index.constInternalPointer()) : *root_;
}

const PropertyGridModel::Node* PropertyGridModel::Find(const Node& from,
                                                       const CXTPPropertyGridItem* item) const {
    if (from.item == item) {
        return &from;
    }
    for (const auto& child : from.children) {
        if (const Node* found = Find(*child, item)) {
            return found;
        }
    }
    return nullptr;
}

CXTPPropertyGridItem* PropertyGridModel::ItemAt(const QModelIndex& index) const {
    return alive_.expired() ? nullptr : NodeOf(index).item;
}

QModelIndex PropertyGridModel::IndexOf(const Node& node, int column) const {
    return createIndex(node.row, column, &node);
}

QModelIndex PropertyGridModel::IndexOf(const CXTPPropertyGridItem* item, int column) const {
    const Node* node = item != nullptr ? Find(*root_, item) : nullptr;
    return node != nullptr ? IndexOf(*node, column) : QModelIndex();
}

void PropertyGridModel::Collect(const Node& node, std::vector<QModelIndex>& indexes) const {
    for (const auto& child : node.children) {
        indexes.push_back(IndexOf(*child, kCaptionColumn));
        Collect(*child, indexes);
    }
}

std::vector<QModelIndex> PropertyGridModel::All() const {
    std::vector<QModelIndex> indexes;
    Collect(*root_, indexes);
    return indexes;
}

QModelIndex PropertyGridModel::index(int row, int column, const QModelIndex& parent) const {
    const Node& above = NodeOf(parent);
    const bool exists = row >= 0 && row < static_cast<int>(above.children.size()) && column >= 0 &&
                        column <= kValueColumn;
    return exists ? IndexOf(*above.children[static_cast<std::size_t>(row)], column) : QModelIndex();
}

QModelIndex PropertyGridModel::parent(const QModelIndex& child) const {
    const Node* above = NodeOf(child).parent;
    return above != nullptr && above != root_.get() ? IndexOf(*above, kCaptionColumn)
                                                    : QModelIndex();
}

int PropertyGridModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > kCaptionColumn ? 0 : static_cast<int>(NodeOf(parent).children.size());
}

int PropertyGridModel::columnCount(const QModelIndex& /*parent*/) const {
    return kValueColumn + 1;
}

QVariant PropertyGridModel::data(const QModelIndex& index, int role) const {
    const CXTPPropertyGridItem* item = index.isValid() ? ItemAt(index) : nullptr;
    if (item == nullptr) {
        return {};
    }
    const bool isValue = index.column() == kValueColumn;
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole:
            return ToQt(isValue ? item->GetValue() : item->GetCaption());
        case Qt::AccessibleDescriptionRole:
            return ToQt(item->GetDescription());
        case Qt::ToolTipRole: {
            // As rich text, which is broken into lines.
            const QString text = ToQt(isValue ? item->GetValue() : item->GetCaption());
            return text.isEmpty() ? QString()
                                  : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
        }
        case Qt::FontRole: {
            QFont font;
            font.setBold(item->IsCategory() || (isValue && !item->IsDefault()));
            return font.bold() ? QVariant(font) : QVariant();
        }
        default:
            return {};
    }
}

Qt::ItemFlags PropertyGridModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

}  // namespace kvopt
