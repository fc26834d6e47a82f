#include "wallpainter.h"

#include <QPainter>
#include <QPainterPath>

namespace workbench {

namespace {

constexpr int LargestDivisor = 16;
const QColor UnlitScreen(Qt::black);

/** One cell of black with a round hole, which leaves the dot of the picture below. */
QPixmap dotMask(int side)
{
    QImage mask(side, side, QImage::Format_ARGB32_Premultiplied);
    mask.fill(QColor(0x08, 0x08, 0x08));
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    const qreal gap = side * 0.08;
    painter.drawEllipse(QRectF(gap, gap, side - 2 * gap, side - 2 * gap));
    painter.end();
    return QPixmap::fromImage(mask);
}

void paintItem(QPainter *painter, const WallItem &item, WallScale scale, const QRect &exposed)
{
    const QRect target = scale.scaled(item.rect);
    if (!target.intersects(exposed)) {
        return;
    }
    // Of a page that is larger than its place only the part in the place is seen.
    const QRect source = QRect(QPoint(0, 0), item.rect.size()) & item.page.rect();
    if (scale.divisor > 1) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(scale.scaled(QRect(item.rect.topLeft(), source.size())), item.page,
                           source);
        painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
        return;
    }
    // Whole pixels around the exposed ones: scaling a page of millions for a few is slow.
    const QRect visible = exposed & target;
    const QRect pixels(scale.pixelAt(visible.topLeft()), scale.pixelAt(visible.bottomRight()));
    const QRect part = pixels.translated(-item.rect.topLeft()) & source;
    if (!part.isEmpty()) {
        painter->drawImage(scale.scaled(part.translated(item.rect.topLeft())), item.page, part);
    }
}

} // namespace

int WallScene::itemAt(const QPoint &pixel) const
{
    for (int i = items.size() - 1; i >= 0; --i) {
        if (items.at(i).rect.contains(pixel)) {
            return i;
        }
    }
    return -1;
}

QSize WallScale::scaled(const QSize &size) const
{
    return {(size.width() * factor + divisor - 1) / divisor,
            (size.height() * factor + divisor - 1) / divisor};
}

QRect WallScale::scaled(const QRect &rect) const
{
    const int left = rect.left() * factor / divisor;
    const int top = rect.top() * factor / divisor;
    const int right = ((rect.left() + rect.width()) * factor + divisor - 1) / divisor;
    const int bottom = ((rect.top() + rect.height()) * factor + divisor - 1) / divisor;
    return {left, top, right - left, bottom - top};
}

QPoint WallScale::pixelAt(const QPoint &painted) const
{
    // Division that rounds down left of the screen, too.
    const auto pixel = [this](int value) {
        const int wide = value * divisor;
        return wide >= 0 ? wide / factor : -((-wide + factor - 1) / factor);
    };
    return {pixel(painted.x()), pixel(painted.y())};
}

WallScale fittingScale(const QSize &screen, const QSize &room)
{
    if (screen.isEmpty() || room.isEmpty()) {
        return {};
    }
    const int factor = std::min(room.width() / screen.width(), room.height() / screen.height());
    if (factor >= 1) {
        return {std::min(factor, LargestWallFactor), 1};
    }
    for (int divisor = 2; divisor < LargestDivisor; ++divisor) {
        const QSize size = WallScale{1, divisor}.scaled(screen);
        if (size.width() <= room.width() && size.height() <= room.height()) {
            return {1, divisor};
        }
    }
    return {1, LargestDivisor};
}

void paintWall(QPainter *painter, const WallScene &scene, WallScale scale, bool asLeds,
               const QRect &exposed)
{
    const QRect screen(QPoint(0, 0), scale.scaled(scene.size));
    const QRect visible = screen & exposed;
    if (visible.isEmpty()) {
        return;
    }
    painter->save();
    painter->setClipRect(visible, Qt::IntersectClip);
    painter->fillRect(visible, UnlitScreen);
    for (const WallItem &item : scene.items) {
        if (!item.page.isNull()) {
            paintItem(painter, item, scale, visible);
        }
    }
    if (asLeds && scale.factor >= SmallestLedFactor) {
        const QPoint offset(visible.left() % scale.factor, visible.top() % scale.factor);
        painter->drawTiledPixmap(visible, dotMask(scale.factor), offset);
    }
    painter->restore();
}

void paintWallOutlines(QPainter *painter, const WallScene &scene, WallScale scale,
                       const QColor &color)
{
    painter->save();
    painter->setBrush(Qt::NoBrush);
    for (const WallItem &item : scene.items) {
        if (!item.isCurrent) {
            continue;
        }
        // Around the item, not on it: its outermost pixels are part of the picture.
        const QRect around = scale.scaled(item.rect).adjusted(-2, -2, 1, 1);
        painter->setPen(QPen(QColor(0, 0, 0, 160), 1));
        painter->drawRect(around.adjusted(-1, -1, 1, 1));
        painter->setPen(QPen(color, 1));
        painter->drawRect(around);
        painter->drawRect(around.adjusted(1, 1, -1, -1));
    }
    painter->restore();
}

} // namespace workbench
