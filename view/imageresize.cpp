#include "imageresize.h"

#include "documentimages.h"
#include "imageinsertion.h"
#include "qxmousegripband.h"

#include <QAbstractTextDocumentLayout>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextEdit>
#include <QToolTip>

namespace lctrlsex {

ImageResize::ImageResize(QTextEdit *view)
    : QObject(view)
    , m_view(view)
    , m_band(new cutex::QxMouseGripBand(view->viewport()))
{
    m_band->setObjectName(QStringLiteral("GripBand"));
    m_band->hide();
    m_band->setPlace([this] { return place(); });
    connect(view, &QTextEdit::cursorPositionChanged, this, &ImageResize::wake);
    connect(view, &QTextEdit::cursorPositionChanged, m_band,
            &cutex::QxMouseGripBand::updateGripBand);
    connect(view, &QTextEdit::selectionChanged, this, &ImageResize::followLater);
    connect(view, &QTextEdit::textChanged, this, &ImageResize::wake);
    connect(view->document()->documentLayout(), &QAbstractTextDocumentLayout::update, this,
            &ImageResize::followLater);
    for (const QScrollBar *bar : {view->horizontalScrollBar(), view->verticalScrollBar()}) {
        connect(bar, &QScrollBar::valueChanged, this, &ImageResize::followLater);
    }
    connect(m_band, &cutex::QxMouseGripBand::resizeObject, this, &ImageResize::showSize);
    connect(m_band, &cutex::QxMouseGripBand::resizeFinished, this, &ImageResize::finish);
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
}

void ImageResize::dismiss()
{
    m_isDismissed = true;
    m_band->hide();
}

void ImageResize::wake()
{
    m_isDismissed = false;
    followLater();
}

/** Once the layout stands, and before the view is painted. */
void ImageResize::followLater()
{
    if (!m_isFollowing) {
        m_isFollowing = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_isFollowing = false;
                m_band->updateGripBand();
            },
            Qt::QueuedConnection);
    }
}

QPoint ImageResize::scrolled() const
{
    return {m_view->horizontalScrollBar()->value(), m_view->verticalScrollBar()->value()};
}

/** Where the picture is in the viewport; empty when the band is to be hidden. */
QRect ImageResize::place()
{
    const QTextDocument &document = *m_view->document();
    if (m_isDismissed || m_view->isReadOnly()) {
        return QRect();
    }
    // What was taken hold of stays it, whatever becomes of the cursor.
    const int position = m_band->isDragging()
                             ? m_picture.position()
                             : pictureAt(m_view->textCursor(), m_picture.position());
    if (!isPictureAt(document, position)) {
        return QRect();
    }
    m_picture = QTextCursor(m_view->document());
    m_picture.setPosition(position);
    return pictureRect(document, position).toRect().translated(-scrolled());
}

/** The view has put its cursor beside the picture already, on the side that is nearer. */
void ImageResize::clicked(const QPoint &point)
{
    const QTextCursor cursor = m_view->textCursor();
    const int position = pictureAt(*m_view->document(), point + scrolled());
    if (position < 0 || cursor.hasSelection()) {
        return;
    }
    m_picture = QTextCursor(m_view->document());
    m_picture.setPosition(position);
    if (cursor.position() != position && cursor.position() != position + 1) {
        m_view->setTextCursor(m_picture);
    }
    wake();
}

void ImageResize::showSize(const QRect &geometry)
{
    const QString size =
        QStringLiteral("%1 \u00d7 %2").arg(geometry.width()).arg(geometry.height());
    QToolTip::showText(QCursor::pos(), m_band->isDragging() ? size : QString(), m_band);
}

void ImageResize::finish(const QRect &geometry)
{
    const QTextDocument &document = *m_view->document();
    const QRect before = m_band->geometryAtPress();
    const int position = m_picture.position();
    QToolTip::hideText();
    if (geometry.size() != before.size() && isPictureAt(document, position) &&
        !m_view->isReadOnly()) {
        // A picture smaller than a grip has a larger band: what was not dragged stays as it was.
        const QSize old = pictureRect(document, position).size().toSize();
        const QSize wanted(geometry.width() == before.width() ? old.width() : geometry.width(),
                           geometry.height() == before.height() ? old.height() : geometry.height());
        const QSize size =
            m_band->keepsRatio() ? fittedSize(wanted, m_limit) : boundedSize(wanted, m_limit);
        if (size != old) {
            resizePicture(m_view->textCursor(), position, size);
        }
    }
    m_band->updateGripBand();
}

bool ImageResize::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonRelease: {
        const auto &mouse = *static_cast<QMouseEvent *>(event);
        if (watched == m_view->viewport() && mouse.button() == Qt::LeftButton) {
            clicked(mouse.pos());
        }
        break;
    }
    case QEvent::Resize:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Show:
    case QEvent::EnabledChange:
    case QEvent::ReadOnlyChange:
        followLater();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace lctrlsex
