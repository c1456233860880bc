#include "window/message_banner.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

MessageBanner::MessageBanner(QWidget* parent) : QFrame(parent), text_(new QLabel(this)) {
    setObjectName("message");
    setFrameShape(QFrame::StyledPanel);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);

    auto* icon = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_LargeIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
    text_->setObjectName("messageText");
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setAccessibleName("Message");
    auto* dismiss = new QPushButton("&Dismiss", this);
    dismiss->setObjectName("dismiss");
    connect(dismiss, &QPushButton::clicked, this, [this] { Clear(); });

    auto* row = new QHBoxLayout(this);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(text_, 1);
    row->addWidget(dismiss, 0, Qt::AlignTop);
    hide();
}

void MessageBanner::SetError(const QString& error) {
    error_ = error;
    ShowTexts();
}

void MessageBanner::AddTrouble(const QString& trouble) {
    if (!troubles_.contains(trouble)) {
        troubles_.append(trouble);
        ShowTexts();
    }
}

void MessageBanner::Clear() {
    troubles_.clear();
    SetError({});
}

void MessageBanner::ShowTexts() {
    QStringList texts = troubles_;
    if (!error_.isEmpty()) {
        texts.prepend(error_);
    }
    text_->setText(texts.join('\n'));
    setVisible(!texts.isEmpty());
}
