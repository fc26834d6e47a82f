#include "settingstatustips.h"

#include <QApplication>
#include <QEvent>
#include <QToolTip>

namespace lctrlsex {

static constexpr QSize tipSize(300, 80);
static constexpr int least = 32; ///< Height.
static constexpr int padding = 20;
static constexpr int aboveEdge = 30;
static constexpr int smallestFont = 6; ///< In points.
static constexpr int duration = 3000;  ///< In milliseconds.

SettingStatusTips::SettingStatusTips(QWidget *dialog)
    : QLabel(dialog, Qt::ToolTip | Qt::WindowStaysOnTopHint)
{
    setObjectName(QStringLiteral("SettingStatusTips"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(padding);
    setFrameShape(QFrame::Box);
    setFixedSize(tipSize);
    setMinimumHeight(least);
    m_timer.setSingleShot(true);
    m_timer.setInterval(duration);
    connect(&m_timer, &QTimer::timeout, this, &SettingStatusTips::vanish);
    dialog->installEventFilter(this);
}

void SettingStatusTips::showTip(const QString &text)
{
    const QWidget *active = QApplication::activeModalWidget();
    setPalette(QToolTip::palette());
    setText(text);
    shrinkToFit();
    placeOver(active != nullptr ? active : parentWidget()->window());
    show();
    raise();
    m_timer.start();
}

void SettingStatusTips::placeOver(const QWidget *window)
{
    const QRect below = window->geometry();
    move(below.center().x() - width() / 2, below.bottom() + 1 - aboveEdge - height());
}

/** The size is fixed and translations differ in length. */
void SettingStatusTips::shrinkToFit()
{
    const QRect room = contentsRect().adjusted(padding, padding, -padding, -padding);
    QFont shown = QToolTip::font();
    const auto fits = [&] {
        const QRect needed =
            QFontMetrics(shown).boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text());
        return needed.height() <= room.height();
    };
    while (!fits() && shown.pointSizeF() > smallestFont) {
        shown.setPointSizeF(shown.pointSizeF() - 0.5);
    }
    setFont(shown);
}

void SettingStatusTips::vanish()
{
    hide();
    lower();
}

bool SettingStatusTips::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide) {
        vanish();
    }
    return QLabel::eventFilter(watched, event);
}

} // namespace lctrlsex
