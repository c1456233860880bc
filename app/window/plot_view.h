#pragma once

#include <QWidget>
#include <functional>
#include <vector>

class QListWidget;
class QTreeWidget;

struct PlotGroup;

/// The saved plots of a study, and the arguments of the chosen one as a tree.
class PlotView : public QWidget {
public:
    explicit PlotView(QWidget* parent);

    /// Called with the file of the plot that the user, or SetFiles(), chose.
    void OnChosen(std::function<void(const QString&)> chosen) { chosen_ = std::move(chosen); }

    /// The plots to choose from; chooses `current`, or none when it is not among them.
    void SetFiles(const QStringList& files, const QString& current);
    /// In place of the arguments that are shown.
    void ShowArguments(const std::vector<PlotGroup>& groups);
    void ClearArguments();

private:
    QListWidget* files_;
    QTreeWidget* arguments_;
    std::function<void(const QString&)> chosen_;
};
