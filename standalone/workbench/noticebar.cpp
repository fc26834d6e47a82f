#include "noticebar.h"

#include "drawnicons.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>

namespace workbench {

namespace {

constexpr int SignSide = 20;

QColor toneOf(Notice::Kind kind)
{
    switch (kind) {
    case Notice::Warning:
        return QColor(0xd08000);
    case Notice::Error:
        return QColor(0xd0453b);
    case Notice::Information:
        break;
    }
    return QColor(0x2b7de9);
}

Drawing drawingOf(Notice::Kind kind)
{
    switch (kind) {
    case Notice::Warning:
        return Drawing::Warning;
    case Notice::Error:
        return Drawing::Error;
    case Notice::Information:
        break;
    }
    return Drawing::Information;
}

QColor mixed(const QColor &a, const QColor &b, int percentOfB)
{
    const auto part = [percentOfB](int x, int y) {
        return (x * (100 - percentOfB) + y * percentOfB) / 100;
    };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

} // namespace

NoticeBar::NoticeBar(const Notice &notice, QWidget *parent)
    : QFrame(parent)
    , m_notice(notice)
    , m_sign(new QLabel(this))
    , m_text(new QLabel(this))
    , m_close(new QToolButton(this))
{
    setObjectName(QStringLiteral("NoticeBar.") + notice.id);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 7, 8, 7);
    row->setSpacing(10);
    row->addWidget(m_sign, 0, Qt::AlignVCenter);
    m_text->setObjectName(QStringLiteral("NoticeText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    row->addWidget(m_text, 1);
    buildButtons(row);
    m_close->setObjectName(QStringLiteral("NoticeClose"));
    m_close->setAutoRaise(true);
    connect(m_close, &QToolButton::clicked, this, [this] {
        if (m_notice.closed) {
            m_notice.closed();
        }
        emit finished();
    });
    row->addWidget(m_close, 0, Qt::AlignVCenter);
    updateSign();
    retranslate();
}

void NoticeBar::buildButtons(QHBoxLayout *row)
{
    for (const Notice::Button &button : qAsConst(m_notice.buttons)) {
        auto *widget = new QPushButton(this);
        widget->setObjectName(button.name);
        const std::function<void()> action = button.action;
        const bool closes = button.closes;
        connect(widget, &QPushButton::clicked, this, [this, action, closes] {
            // The action may replace the notice, which deletes this bar later on.
            const QPointer<NoticeBar> self(this);
            if (action) {
                action();
            }
            if (self && closes) {
                emit finished();
            }
        });
        row->addWidget(widget, 0, Qt::AlignVCenter);
        m_buttons.append(widget);
    }
}

QString NoticeBar::text() const
{
    return m_text->text();
}

void NoticeBar::retranslate()
{
    m_text->setText(m_notice.text ? m_notice.text() : QString());
    for (int i = 0; i < m_buttons.size(); ++i) {
        m_buttons.at(i)->setText(m_notice.buttons.at(i).label());
    }
    m_close->setToolTip(tr("Close this notice"));
    m_close->setAccessibleName(m_close->toolTip());
    switch (m_notice.kind) {
    case Notice::Error:
        setAccessibleName(tr("Error"));
        break;
    case Notice::Warning:
        setAccessibleName(tr("Warning"));
        break;
    case Notice::Information:
        setAccessibleName(tr("Notice"));
    }
    setAccessibleDescription(m_text->text());
}

void NoticeBar::updateSign()
{
    m_sign->setPixmap(drawnIcon(drawingOf(m_notice.kind), palette())
                          .pixmap(window()->windowHandle(), QSize(SignSide, SignSide)));
    m_close->setIcon(drawnIcon(Drawing::Close, palette()));
}

void NoticeBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::PaletteChange) {
        updateSign();
    }
    QFrame::changeEvent(event);
}

void NoticeBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor tone = toneOf(m_notice.kind);
    painter.fillRect(rect(), mixed(palette().color(QPalette::Window), tone, 14));
    painter.fillRect(QRect(0, 0, 4, height()), tone);
    painter.fillRect(QRect(0, height() - 1, width(), 1),
                     mixed(palette().color(QPalette::Window), tone, 45));
}

NoticeArea::NoticeArea(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("NoticeArea"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

NoticeBar *NoticeArea::find(const QString &id) const
{
    for (NoticeBar *bar : m_bars) {
        if (bar->id() == id) {
            return bar;
        }
    }
    return nullptr;
}

void NoticeArea::post(const Notice &notice)
{
    dismiss(notice.id);
    auto *bar = new NoticeBar(notice, this);
    connect(bar, &NoticeBar::finished, this, [this, bar] {
        // Another notice of the same id may be shown by now: only this bar goes.
        if (m_bars.removeOne(bar)) {
            bar->hide();
            bar->deleteLater();
        }
    });
    m_bars.append(bar);
    m_layout->addWidget(bar);
}

void NoticeArea::dismiss(const QString &id)
{
    if (NoticeBar *bar = find(id)) {
        m_bars.removeOne(bar);
        bar->hide();
        bar->deleteLater();
    }
}

QString NoticeArea::textOf(const QString &id) const
{
    const NoticeBar *bar = find(id);
    return bar != nullptr ? bar->text() : QString();
}

} // namespace workbench
