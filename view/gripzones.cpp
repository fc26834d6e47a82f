#include "gripzones.h"

#include <algorithm>

namespace lctrlsex {

namespace {

bool movesLeft(int zone)
{
    return zone == GripZone::TopLeft || zone == GripZone::Left || zone == GripZone::BottomLeft;
}

bool movesRight(int zone)
{
    return zone == GripZone::TopRight || zone == GripZone::Right || zone == GripZone::BottomRight;
}

bool movesTop(int zone)
{
    return zone == GripZone::TopLeft || zone == GripZone::Top || zone == GripZone::TopRight;
}

bool movesBottom(int zone)
{
    return zone == GripZone::BottomLeft || zone == GripZone::Bottom ||
           zone == GripZone::BottomRight;
}

QRect freeGeometry(int zone, const QRect &start, const QPoint &moved)
{
    if (zone == GripZone::Inside) {
        return start.translated(moved);
    }
    return start.adjusted(movesLeft(zone) ? moved.x() : 0, movesTop(zone) ? moved.y() : 0,
                          movesRight(zone) ? moved.x() : 0, movesBottom(zone) ? moved.y() : 0);
}

/** @p wanted with the ratio of @p start: a side's own scale counts, of a corner the greater. */
QRect withRatio(int zone, const QRect &start, const QRect &wanted)
{
    const double across = double(wanted.width()) / start.width();
    const double down = double(wanted.height()) / start.height();
    const bool isSide = !movesTop(zone) && !movesBottom(zone);
    const bool isTopOrBottom = !movesLeft(zone) && !movesRight(zone);
    const double scale = isSide ? across : isTopOrBottom ? down : std::max(across, down);
    QRect result(start.topLeft(),
                 QSize(qRound(start.width() * scale), qRound(start.height() * scale)));
    if (movesLeft(zone)) {
        result.moveRight(start.right());
    }
    if (movesTop(zone)) {
        result.moveBottom(start.bottom());
    }
    return result;
}

} // namespace

QMap<int, QRect> gripZones(const QSize &band, const QSize &grip)
{
    const int right = band.width() - grip.width();
    const int bottom = band.height() - grip.height();
    QMap<int, QRect> zones = {{GripZone::TopLeft, QRect(QPoint(0, 0), grip)},
                              {GripZone::TopRight, QRect(QPoint(right, 0), grip)},
                              {GripZone::BottomLeft, QRect(QPoint(0, bottom), grip)},
                              {GripZone::BottomRight, QRect(QPoint(right, bottom), grip)}};
    // Kept on purpose because users know it so: three grips are needed across and only two down.
    if (band.width() >= 3 * grip.width()) {
        const int middle = band.width() / 2 - grip.width() / 2;
        zones.insert(GripZone::Top, QRect(QPoint(middle, 0), grip));
        zones.insert(GripZone::Bottom, QRect(QPoint(middle, bottom), grip));
    }
    if (band.height() >= 2 * grip.height()) {
        const int middle = band.height() / 2 - grip.height() / 2;
        zones.insert(GripZone::Left, QRect(QPoint(0, middle), grip));
        zones.insert(GripZone::Right, QRect(QPoint(right, middle), grip));
    }
    return zones;
}

int gripZoneAt(const QMap<int, QRect> &zones, const QPoint &point)
{
    for (auto it = zones.cbegin(); it != zones.cend(); ++it) {
        if (it->contains(point)) {
            return it.key();
        }
    }
    return GripZone::Inside;
}

Qt::CursorShape gripCursor(int zone)
{
    switch (zone) {
    case GripZone::BottomRight:
    case GripZone::TopLeft:
        return Qt::SizeFDiagCursor;
    case GripZone::Top:
    case GripZone::Bottom:
        return Qt::SizeVerCursor;
    case GripZone::TopRight:
    case GripZone::BottomLeft:
        return Qt::SizeBDiagCursor;
    case GripZone::Left:
    case GripZone::Right:
        return Qt::SizeHorCursor;
    default:
        return Qt::ArrowCursor;
    }
}

QRect GripDrag::geometryAt(const QPoint &moved, bool keepsRatio) const
{
    QRect result = freeGeometry(zone, start, moved);
    if (keepsRatio && zone != GripZone::Inside && !start.isEmpty()) {
        result = withRatio(zone, start, result);
    }
    const bool isTooSmall = minimum.isValid() && (result.width() < minimum.width() ||
                                                  result.height() < minimum.height());
    const bool isTooLarge = maximum.isValid() && (result.width() > maximum.width() ||
                                                  result.height() > maximum.height());
    return isTooSmall || isTooLarge ? QRect() : result;
}

} // namespace lctrlsex
