#pragma once

#include <QWidget>

class QLabel;
class QTableWidget;

namespace kvopt {
class ReferenceStudy;
}

/// A study at a glance: its name and source, its factors, its responses and their models. Keeps
/// nothing of the study that it shows.
class StudyView : public QWidget {
public:
    explicit StudyView(QWidget* parent);

    void Show(const kvopt::ReferenceStudy& study);
    /// No study: a heading alone.
    void ShowNone(const QString& heading);

private:
    QLabel* heading_;
    QLabel* source_;
    QTableWidget* factors_;
    QTableWidget* responses_;
};
