#pragma once

#include <QImage>
#include <QRect>
#include <QVector>

class QPainter;

namespace workbench {

/** One item as it lies on the screen. */
struct WallItem
{
    QRect rect; ///< Place on the screen, in screen pixels.
    QImage page;
    QString name;
    bool isCurrent = false; ///< It is outlined.
};

/** What a screen shows now, in painting order. */
struct WallScene
{
    QSize size; ///< Of the screen in its own pixels; empty when there is none.
    QVector<WallItem> items;

    /** The topmost item at a screen pixel, -1 for none. */
    [[nodiscard]] int itemAt(const QPoint &pixel) const;
};

/** How large a screen pixel is drawn: factor / divisor, one of which is 1. */
struct WallScale
{
    int factor = 1;
    int divisor = 1;

    [[nodiscard]] QSize scaled(const QSize &size) const;
    [[nodiscard]] QRect scaled(const QRect &rect) const;
    /** The screen pixel below a painted one. */
    [[nodiscard]] QPoint pixelAt(const QPoint &painted) const;
    [[nodiscard]] bool operator==(const WallScale &other) const
    {
        return factor == other.factor && divisor == other.divisor;
    }
};

constexpr int LargestWallFactor = 16;
/** From this factor on a screen pixel is large enough to be drawn as a round dot. */
constexpr int SmallestLedFactor = 4;

/** The largest scale, 1/16 to 16, at which @p screen fits into @p room; 1 for an empty one. */
[[nodiscard]] WallScale fittingScale(const QSize &screen, const QSize &room);

/**
 * Paints the part of the screen that lies in @p exposed. The screen's corner is at the painter's
 * origin; @p exposed is in painted pixels. Pixels are squares of the scale's size, without
 * smoothing, except where several are drawn as one. With @p asLeds and a factor that allows it
 * each is a round dot on black.
 */
void paintWall(QPainter *painter, const WallScene &scene, WallScale scale, bool asLeds,
               const QRect &exposed);

/** Outlines the current items; apart from paintWall() so that no item's picture covers it. */
void paintWallOutlines(QPainter *painter, const WallScene &scene, WallScale scale,
                       const QColor &color);

} // namespace workbench
