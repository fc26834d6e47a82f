#include "wallview.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

namespace workbench {

namespace {

/** What a wheel tells for one of its notches. */
constexpr int WheelStep = 120;

} // namespace

void WallView::mousePressEvent(QMouseEvent *event)
{
    const int index = event->button() == Qt::LeftButton ? itemAt(event->pos()) : -1;
    if (index >= 0) {
        emit itemClicked(index);
    } else {
        event->ignore();
    }
}

void WallView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int index = event->button() == Qt::LeftButton ? itemAt(event->pos()) : -1;
    if (index >= 0) {
        emit itemActivated(index);
    } else {
        event->ignore();
    }
}

void WallView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    // Fine wheels and touch pads send parts of a step.
    m_wheelRest += event->angleDelta().y();
    const int steps = m_wheelRest / WheelStep;
    m_wheelRest -= steps * WheelStep;
    if (steps != 0) {
        const int now = m_scale.divisor > 1 ? 0 : m_scale.factor;
        zoomAround(zoomFor(now + steps), event->position().toPoint());
    }
    event->accept();
}

void WallView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_0:
        zoomToFit();
        break;
    case Qt::Key_PageUp:
        emit pageWanted(-1);
        break;
    case Qt::Key_PageDown:
        emit pageWanted(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (currentItem() >= 0) {
            emit itemActivated(currentItem());
        }
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

bool WallView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const int index = itemAt(help->pos());
        if (index >= 0) {
            const WallItem &item = m_scene.items.at(index);
            QToolTip::showText(help->globalPos(),
                               tr("%1: %2 × %3 at %4, %5")
                                   .arg(item.name.toHtmlEscaped())
                                   .arg(item.rect.width())
                                   .arg(item.rect.height())
                                   .arg(item.rect.x())
                                   .arg(item.rect.y()),
                               viewport());
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

} // namespace workbench
