#include "noticestrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace lctrlsex {

NoticeStrip::NoticeStrip(QWidget *parent)
    : QFrame(parent)
    , m_label(new QLabel(this))
    , m_editAsPlainText(new QPushButton(this))
    , m_close(new QToolButton(this))
{
    setObjectName(QStringLiteral("NoticeStrip"));
    setStyleSheet(QStringLiteral("#NoticeStrip{background-color:#8c2f1b;}"));
    m_label->setObjectName(QStringLiteral("NoticeLabel"));
    m_label->setTextFormat(Qt::PlainText); // it may quote what a document holds
    m_label->setWordWrap(true);
    m_label->setStyleSheet(
        QStringLiteral("color:white;font-size:16px; padding: 0px; a { text-decoration: none; }"));
    m_editAsPlainText->setObjectName(QStringLiteral("EditAsPlainText"));
    m_close->setObjectName(QStringLiteral("CloseNotice"));
    m_close->setAutoRaise(true);
    m_close->setText(QString(QChar(0x2715))); // the desktop's own picture is dark on most
    m_close->setStyleSheet(QStringLiteral("color:white;font-size:16px;"));
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_editAsPlainText);
    layout->addWidget(m_close);
    connect(m_editAsPlainText, &QPushButton::clicked, this, &NoticeStrip::plainTextWanted);
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void NoticeStrip::show(Kind kind, const QString &text)
{
    m_kind = kind;
    m_label->setText(text);
    m_editAsPlainText->setVisible(kind == Kept);
    m_close->setVisible(kind != Kept);
    setVisible(!text.isEmpty());
}

void NoticeStrip::clear(Kind kind)
{
    if (m_kind == kind) {
        hide();
    }
}

void NoticeStrip::translate()
{
    m_editAsPlainText->setText(tr("Edit as Plain Text"));
    m_editAsPlainText->setToolTip(tr("The stored document is replaced by what you see here"));
    m_close->setToolTip(tr("Close this notice"));
    m_close->setAccessibleName(m_close->toolTip());
}

} // namespace lctrlsex
