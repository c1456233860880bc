#pragma once

#include <QWidget>

class QTabBar;

namespace kvopt {

/// A row of tabs over what they bring up, with the style's frame around both. Which tab is in front
/// is for others to say.
class TabPane : public QWidget {
public:
    TabPane(QWidget* content, QWidget* parent);

    QTabBar& Tabs() const { return *tabs_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTabBar* tabs_;
};

}  // namespace kvopt
