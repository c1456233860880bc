#include "window/plot_view.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "plot_text.h"

namespace {

void AddPart(QSplitter& splitter, const QString& label, QWidget& content) {
    auto* title = new QLabel(label);
    title->setBuddy(&content);
    content.setAccessibleName(QString(label).remove('&'));
    auto* part = new QWidget(&splitter);
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(title);
    column->addWidget(&content, 1);
    splitter.addWidget(part);
}

}  // namespace

PlotView::PlotView(QWidget* parent)
    : QWidget(parent), files_(new QListWidget), arguments_(new QTreeWidget) {
    files_->setObjectName("plots");
    arguments_->setObjectName("arguments");
    arguments_->setHeaderLabels({"Argument", "Value"});
    arguments_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    arguments_->setAlternatingRowColors(true);

    auto* parts = new QSplitter(Qt::Horizontal, this);
    parts->setChildrenCollapsible(false);
    AddPart(*parts, "Saved &plots", *files_);
    AddPart(*parts, "&Arguments of the plot", *arguments_);
    parts->setStretchFactor(0, 1);
    parts->setStretchFactor(1, 2);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(parts);

    connect(files_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item != nullptr && chosen_) {
            chosen_(item->data(Qt::UserRole).toString());
        }
    });
}

void PlotView::SetFiles(const QStringList& files, const QString& current) {
    ClearArguments();
    QListWidgetItem* chosen = nullptr;
    {
        const QSignalBlocker blocker(files_);
        files_->clear();
        for (const QString& name : files) {
            const QFileInfo file(name);
            auto* item = new QListWidgetItem(file.completeBaseName(), files_);
            item->setData(Qt::UserRole, name);
            item->setToolTip(QLocale().toString(file.lastModified(), QLocale::ShortFormat) + "\n" +
                             name);
            if (name == current) {
                chosen = item;
            }
        }
    }
    if (chosen != nullptr) {
        files_->setCurrentItem(chosen);
    }
}

void PlotView::ShowArguments(const std::vector<PlotGroup>& groups) {
    ClearArguments();
    for (const PlotGroup& group : groups) {
        if (group.lines.empty()) {
            continue;
        }
        auto* top = new QTreeWidgetItem(arguments_, {QString::fromStdString(group.name)});
        QFont bold = arguments_->font();
        bold.setBold(true);
        top->setFont(0, bold);
        for (const PlotLine& line : group.lines) {
            new QTreeWidgetItem(
                top, {QString::fromStdString(line.name), QString::fromStdString(line.value)});
        }
    }
    arguments_->expandAll();
}

void PlotView::ClearArguments() {
    arguments_->clear();
}
