#include "qxmousegripband.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace cutex {

QxMouseGripBand::QxMouseGripBand(QWidget *parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setMinimumSize(m_gripSize);
    setCursor(Qt::ArrowCursor); // not that of the text below
}

void QxMouseGripBand::setGripSize(const QSize &size)
{
    m_gripSize = size;
    setMinimumSize(size);
    update();
}

void QxMouseGripBand::setGripColor(const QColor &color)
{
    m_gripColor = color;
    update();
}

QMap<int, QRect> QxMouseGripBand::zones() const
{
    return lctrlsex::gripZones(size(), m_gripSize);
}

void QxMouseGripBand::updateGripBand()
{
    const QRect place = m_place ? m_place() : QRect();
    if (place.isEmpty()) {
        hide();
    } else if (!m_isDragging) {
        setGeometry(place);
        show();
    }
}

void QxMouseGripBand::cancelDrag()
{
    if (m_isDragging) {
        endDrag();
        setGeometry(m_drag.start);
        emit resizeObject(m_drag.start);
    }
}

void QxMouseGripBand::endDrag()
{
    m_isDragging = false;
    m_press = QPoint();
    QCoreApplication::instance()->removeEventFilter(this);
}

void QxMouseGripBand::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setPen(QPen(m_gripColor, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const auto grips = zones();
    for (const QRect &grip : grips) {
        painter.fillRect(grip, m_gripColor);
    }
}

void QxMouseGripBand::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore(); // the menu of what lies below
        return;
    }
    m_drag = {lctrlsex::gripZoneAt(zones(), event->pos()), geometry(), minimumSize(),
              maximumSize()};
    m_press = event->globalPos();
    m_keepsRatio = false;
    m_isDragging = true;
    QCoreApplication::instance()->installEventFilter(this); // the focus is elsewhere
}

void QxMouseGripBand::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_isDragging) {
        setCursor(lctrlsex::gripCursor(lctrlsex::gripZoneAt(zones(), event->pos())));
        return;
    }
    const bool keepsRatio = (event->modifiers() & Qt::ShiftModifier) != 0;
    const QRect wanted = m_drag.geometryAt(event->globalPos() - m_press, keepsRatio);
    if (!wanted.isNull()) {
        m_keepsRatio = keepsRatio;
        setGeometry(wanted);
        emit resizeObject(wanted);
    }
}

void QxMouseGripBand::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_isDragging) {
        endDrag();
        emit resizeFinished(geometry());
    }
}

void QxMouseGripBand::hideEvent(QHideEvent *event)
{
    cancelDrag();
    QWidget::hideEvent(event);
}

bool QxMouseGripBand::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyPress) {
        cancelDrag();
    }
    event->accept(); // no dialog closes of it
    return true;
}

} // namespace cutex
