#pragma once

#include <QFrame>

class QLabel;

/// What went wrong, in a bar over the study: the error of the last action, and trouble of stores
/// until it is dismissed. Hidden when there is nothing to tell.
class MessageBanner : public QFrame {
public:
    explicit MessageBanner(QWidget* parent);

    /// In place of the former error; empty for none.
    void SetError(const QString& error);
    /// Beside what stands there already; the same trouble stands there once.
    void AddTrouble(const QString& trouble);
    void Clear();

private:
    void ShowTexts();

    QLabel* text_;
    QString error_;
    QStringList troubles_;
};
