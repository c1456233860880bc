#include "bench/bare_window.h"

#include <QAbstractTableModel>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QStringList>
#include <QTableView>
#include <QVBoxLayout>
#include <initializer_list>
#include <utility>

namespace kvopt::bench {
namespace {

QStringList ToQt(const std::vector<std::string>& names) {
    QStringList list;
    for (const std::string& name : names) {
        list.append(QString::fromStdString(name));
    }
    return list;
}

/// A wizard's frame: heading, line, page, and a row of buttons.
class BareWizard : public QDialog {
public:
    BareWizard(const char* title, QWidget* page) {
        auto* column = new QVBoxLayout(this);
        auto* heading = new QLabel(title, this);
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
        column->addWidget(heading);
        auto* line = new QFrame(this);
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
        column->addWidget(line);
        auto* pages = new QStackedWidget(this);
        pages->addWidget(page);
        column->addWidget(pages, 1);
        auto* buttons = new QHBoxLayout;
        buttons->addStretch(1);
        for (const char* label : {"< &Back", "&Next >", "&Finish", "Cancel"}) {
            buttons->addWidget(new QPushButton(label, this));
        }
        column->addLayout(buttons);
        column->addStrut(fontMetrics().averageCharWidth() * 70);
    }
};

QGroupBox* RadioGroup(const char* title, std::initializer_list<const char*> labels) {
    auto* group = new QGroupBox(title);
    auto* column = new QVBoxLayout(group);
    for (const char* label : labels) {
        column->addWidget(new QRadioButton(label));
    }
    column->addStretch(1);
    return group;
}

QVBoxLayout* ListColumn(const char* heading, const QStringList& entries) {
    auto* column = new QVBoxLayout;
    column->addWidget(new QLabel(heading));
    auto* list = new QListWidget;
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->addItems(entries);
    column->addWidget(list);
    return column;
}

QHBoxLayout* ResponseLists(const QStringList& responses) {
    auto* row = new QHBoxLayout;
    row->addLayout(ListColumn("Available responses:", responses.mid(1)));
    auto* buttons = new QVBoxLayout;
    for (const char* label : {"»", "«", "Reset"}) {
        buttons->addWidget(new QPushButton(label));
    }
    row->addLayout(buttons);
    row->addLayout(ListColumn("Selected responses:", responses.mid(0, 1)));
    return row;
}

/// Name, value and slider of a factor; the slider is drawn by whoever shows it.
class ConstantsModel : public QAbstractTableModel {
public:
    ConstantsModel(QStringList names, QObject* parent)
        : QAbstractTableModel(parent), names_(std::move(names)) {}

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(names_.size());
    }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : 3; }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || index.column() == 2) {
            return {};
        }
        return index.column() == 0 ? names_[index.row()] : QString("50");
    }

private:
    QStringList names_;
};

void AddAxis(QGridLayout& grid, int row, const QStringList& factors) {
    auto* list = new QComboBox;
    list->addItems(factors);
    list->setCurrentIndex(row - 1);
    grid.addWidget(new QLabel(row == 1 ? "&1st axis" : "&2nd axis"), row, 0);
    grid.addWidget(list, row, 1);
    grid.addWidget(new QLineEdit("0"), row, 2);
    grid.addWidget(new QLineEdit("100"), row, 3);
    grid.addWidget(new QPushButton("Default"), row, 4);
}

}  // namespace

void RunBareFirstPage(const std::vector<std::string>& responses) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* groups = new QHBoxLayout;
    groups->addWidget(
        RadioGroup("Plot type", {"&Contour", "&4D contour", "&Surface", "4&D surface"}));
    groups->addWidget(RadioGroup("Factors", {"&Process", "&Mixture"}));
    column->addLayout(groups);
    column->addWidget(new QLabel("Select the responses you want to display."));
    column->addLayout(ResponseLists(ToQt(responses)));
    auto* row = new QHBoxLayout;
    row->addWidget(new QCheckBox("&Use constraints"));
    row->addStretch(1);
    row->addWidget(new QPushButton("Plot &options..."));
    column->addLayout(row);
    BareWizard("Contour Plot", page).exec();
}

void RunBareAxisPage(const std::vector<std::string>& factors) {
    const QStringList names = ToQt(factors);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* grid = new QGridLayout;
    int place = 1;
    for (const char* heading : {"Factor", "Low", "High"}) {
        grid->addWidget(new QLabel(heading), 0, place++);
    }
    AddAxis(*grid, 1, names);
    AddAxis(*grid, 2, names);
    column->addLayout(grid);
    column->addWidget(new QLabel("Constant factors:"));
    auto* table = new QTableView;
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->setModel(new ConstantsModel(names.mid(2), table));
    column->addWidget(table, 1);
    BareWizard("Axes and constants", page).exec();
}

}  // namespace kvopt::bench
