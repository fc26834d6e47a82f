#include "wallview.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace workbench {

namespace {

/** Room around the screen, where the outline of an item at its edge lies. */
constexpr int Margin = 10;

bool isSameScene(const WallScene &a, const WallScene &b)
{
    return a.size == b.size && a.items.size() == b.items.size() &&
           std::equal(a.items.begin(), a.items.end(), b.items.begin(),
                      [](const WallItem &x, const WallItem &y) {
                          return x.rect == y.rect && x.isCurrent == y.isCurrent &&
                                 x.name == y.name && x.page.cacheKey() == y.page.cacheKey();
                      });
}

} // namespace

WallView::WallView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setObjectName(QStringLiteral("WallView"));
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setObjectName(QStringLiteral("WallViewport"));
    horizontalScrollBar()->setSingleStep(20);
    verticalScrollBar()->setSingleStep(20);
    retranslate();
}

void WallView::setScene(const WallScene &scene)
{
    if (isSameScene(scene, m_scene)) {
        return;
    }
    m_scene = scene;
    updateLayout();
    viewport()->update();
}

void WallView::setPage(int index, const QImage &page)
{
    if (index < 0 || index >= m_scene.items.size()) {
        return;
    }
    m_scene.items[index].page = page;
    viewport()->update(rectOf(index).adjusted(-1, -1, 1, 1));
}

void WallView::setZoom(int zoom)
{
    zoomAround(zoom, viewport()->rect().center());
}

void WallView::setShowsLeds(bool shows)
{
    m_showsLeds = shows;
    viewport()->update();
}

void WallView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void WallView::zoomIn()
{
    setZoom(m_scale.divisor > 1 ? 1 : m_scale.factor + 1);
}

void WallView::zoomOut()
{
    setZoom(zoomFor(m_scale.factor - 1));
}

void WallView::zoomToFit()
{
    setZoom(0);
}

int WallView::zoomFor(int factor) const
{
    if (factor >= 1) {
        return factor;
    }
    // What fits a large screen is smaller than factor 1; what fits a small one is larger.
    return fittingScale(m_scene.size, usableSize()).divisor > 1 ? 0 : 1;
}

QSize WallView::usableSize() const
{
    return maximumViewportSize() - QSize(2 * Margin, 2 * Margin);
}

void WallView::zoomAround(int zoom, const QPoint &position)
{
    zoom = qBound(0, zoom, LargestWallFactor);
    if (zoom == m_zoom) {
        return;
    }
    m_zoom = zoom;
    const WallScale before = m_scale;
    const QPointF pixel = QPointF(position - origin()) * before.divisor / before.factor;
    updateLayout();
    const QPointF now = pixel * m_scale.factor / m_scale.divisor + origin();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                    qRound(now.x() - position.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(now.y() - position.y()));
    viewport()->update();
    if (before == m_scale) {
        emit scaleChanged(); // Updating the layout told only of another scale.
    }
}

void WallView::updateLayout()
{
    const QSize room = viewport()->size();
    const WallScale scale =
        m_zoom > 0 ? WallScale{m_zoom, 1} : fittingScale(m_scene.size, usableSize());
    const bool isOther = !(scale == m_scale);
    m_scale = scale;
    const QSize size = m_scale.scaled(m_scene.size) + QSize(2 * Margin, 2 * Margin);
    horizontalScrollBar()->setPageStep(room.width());
    verticalScrollBar()->setPageStep(room.height());
    horizontalScrollBar()->setRange(0, std::max(0, size.width() - room.width()));
    verticalScrollBar()->setRange(0, std::max(0, size.height() - room.height()));
    if (isOther) {
        emit scaleChanged();
    }
}

QPoint WallView::origin() const
{
    const QSize size = m_scale.scaled(m_scene.size);
    const QSize room = viewport()->size();
    const auto place = [](int extent, int available, const QScrollBar *bar) {
        return extent + 2 * Margin <= available ? (available - extent) / 2 : Margin - bar->value();
    };
    return {place(size.width(), room.width(), horizontalScrollBar()),
            place(size.height(), room.height(), verticalScrollBar())};
}

int WallView::itemAt(const QPoint &position) const
{
    const QPoint pixel = m_scale.pixelAt(position - origin());
    return QRect(QPoint(0, 0), m_scene.size).contains(pixel) ? m_scene.itemAt(pixel) : -1;
}

QRect WallView::rectOf(int index) const
{
    if (index < 0 || index >= m_scene.items.size()) {
        return {};
    }
    return m_scale.scaled(m_scene.items.at(index).rect).translated(origin());
}

int WallView::currentItem() const
{
    for (int i = 0; i < m_scene.items.size(); ++i) {
        if (m_scene.items.at(i).isCurrent) {
            return i;
        }
    }
    return -1;
}

QSize WallView::sizeHint() const
{
    return {480, 180};
}

QSize WallView::minimumSizeHint() const
{
    return {120, 80};
}

void WallView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const QColor around = palette().color(QPalette::Window);
    painter.fillRect(event->rect(),
                     around.lightness() > 128 ? around.darker(112) : around.darker(135));
    if (m_scene.size.isEmpty()) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
        painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
                         Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
        return;
    }
    const QPoint corner = origin();
    painter.translate(corner);
    // Part by part: items that play in opposite corners do not have all between them painted.
    for (const QRect &part : event->region()) {
        paintWall(&painter, m_scene, m_scale, m_showsLeds, part.translated(-corner));
    }
    paintWallOutlines(&painter, m_scene, m_scale, palette().color(QPalette::Highlight));
}

void WallView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateLayout();
}

void WallView::scrollContentsBy(int, int)
{
    viewport()->update();
}

void WallView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QAbstractScrollArea::changeEvent(event);
}

void WallView::retranslate()
{
    setAccessibleName(tr("Wall"));
    setAccessibleDescription(
        tr("The screen of the selected item with all its frames. Plus and minus change the size, "
           "Page Up and Page Down turn the page, Return edits the item."));
}

} // namespace workbench
