#include "window/study_view.h"

#include <kvopt/host.h>

#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

#include "study_text.h"

namespace {

QTableWidget* NewTable(const QString& name, const QString& label, const QStringList& columns,
                       QSplitter& splitter) {
    auto* table = new QTableWidget(0, static_cast<int>(columns.size()));
    table->setObjectName(name);
    table->setHorizontalHeaderLabels(columns);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    // Tab leads on to the next control, the arrows through the table.
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);

    auto* title = new QLabel(label);
    title->setBuddy(table);
    table->setAccessibleName(QString(label).remove('&'));
    auto* part = new QWidget(&splitter);
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(title);
    column->addWidget(table, 1);
    splitter.addWidget(part);
    return table;
}

void FillRow(QTableWidget& table, int row, const std::vector<std::string>& texts) {
    int column = 0;
    for (const std::string& text : texts) {
        auto* item = new QTableWidgetItem(QString::fromStdString(text));
        item->setToolTip(item->text());
        table.setItem(row, column++, item);
    }
}

}  // namespace

StudyView::StudyView(QWidget* parent)
    : QWidget(parent), heading_(new QLabel(this)), source_(new QLabel(this)) {
    QFont large = heading_->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.25);
    heading_->setFont(large);
    heading_->setObjectName("heading");
    for (QLabel* label : {heading_, source_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    auto* tables = new QSplitter(Qt::Vertical, this);
    tables->setChildrenCollapsible(false);
    factors_ =
        NewTable("factors", "&Factors", {"Name", "Abbreviation", "Unit", "Kind", "Range"}, *tables);
    responses_ = NewTable("responses", "&Responses",
                          {"Name", "Unit", QString::fromUtf8("R\u00b2"), "Fitted terms"}, *tables);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(heading_);
    column->addWidget(source_);
    column->addWidget(tables, 1);
}

void StudyView::Show(const kvopt::ReferenceStudy& study) {
    ShowNone(QString::fromStdString(study.Data().name));
    source_->setText(QString::fromStdString(study.Data().source + "\n" + DescribeSize(study)));
    const std::vector<FactorText> factors = DescribeFactors(study);
    factors_->setRowCount(static_cast<int>(factors.size()));
    int row = 0;
    for (const FactorText& factor : factors) {
        FillRow(*factors_, row++,
                {factor.name, factor.abbreviation, factor.unit, factor.kind, factor.range});
    }
    const std::vector<ResponseText> responses = DescribeResponses(study);
    responses_->setRowCount(static_cast<int>(responses.size()));
    row = 0;
    for (const ResponseText& response : responses) {
        FillRow(*responses_, row++,
                {response.name, response.unit, response.rSquared, response.model});
    }
}

void StudyView::ShowNone(const QString& heading) {
    heading_->setText(heading);
    source_->clear();
    factors_->setRowCount(0);
    responses_->setRowCount(0);
}
