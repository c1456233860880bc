#include "qt/tab_pane.h"

#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>
#include <QTabBar>
#include <QVBoxLayout>

namespace kvopt {

namespace {

/// Tabs of the colour of the frame below them.
class FramedTabs : public QTabBar {
public:
    using QTabBar::QTabBar;

protected:
    void initStyleOption(QStyleOptionTab* option, int index) const override {
        QTabBar::initStyleOption(option, index);
        option->features |= QStyleOptionTab::HasFrame;
    }
};

}  // namespace

TabPane::TabPane(QWidget* content, QWidget* parent) : QWidget(parent), tabs_(new FramedTabs(this)) {
    tabs_->setExpanding(false);
    // The frame has a line there.
    tabs_->setDrawBase(false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_);
    auto* inside = new QVBoxLayout;
    inside->setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin),
                               style()->pixelMetric(QStyle::PM_LayoutTopMargin),
                               style()->pixelMetric(QStyle::PM_LayoutRightMargin),
                               style()->pixelMetric(QStyle::PM_LayoutBottomMargin));
    inside->addWidget(content);
    column->addLayout(inside, 1);
    connect(tabs_, &QTabBar::currentChanged, this, qOverload<>(&QWidget::update));
}

void TabPane::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionTabWidgetFrame option;
    option.initFrom(this);
    option.shape = tabs_->shape();
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    option.tabBarSize = tabs_->size();
    option.tabBarRect = tabs_->geometry();
    option.selectedTabRect = tabs_->tabRect(tabs_->currentIndex()).translated(tabs_->pos());
    // The tab in front lies over the frame's upper line.
    const int overlap = style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, nullptr, tabs_);
    option.rect.setTop(tabs_->geometry().bottom() + 1 - overlap);
    QStylePainter(this).drawPrimitive(QStyle::PE_FrameTabWidget, option);
}

}  // namespace kvopt
