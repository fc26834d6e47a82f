#pragma once

#include <QMap>
#include <QRect>

namespace lctrlsex {

/** Where a band can be taken hold of. The numbers are those that are stored and compared. */
namespace GripZone {
enum Zone {
    Inside = 0, ///< Away from every grip.
    BottomRight = 1,
    TopLeft = 2,
    Top = 3,
    TopRight = 4,
    Left = 5,
    Right = 6,
    BottomLeft = 7,
    Bottom = 8
};
} // namespace GripZone

/** The grips of a band by zone, each of the size @p grip, in the coordinates of the band. */
[[nodiscard]] QMap<int, QRect> gripZones(const QSize &band, const QSize &grip);
/** The zone at @p point; where grips of a small band overlap, the one with the lower number. */
[[nodiscard]] int gripZoneAt(const QMap<int, QRect> &zones, const QPoint &point);
/** The mouse pointer that tells what dragging @p zone does. */
[[nodiscard]] Qt::CursorShape gripCursor(int zone);

/** A band that is being dragged. */
struct GripDrag
{
    int zone = GripZone::Inside;
    QRect start;   ///< The geometry at the press.
    QSize minimum; ///< Of the geometry; no limit when it is not valid.
    QSize maximum; ///< The same.

    /**
     * The geometry after a movement of the mouse by @p moved since the press; with @p keepsRatio of
     * the same ratio of width to height as at the press, the side or corner across the grip staying
     * in place. Null when it would pass a limit: then the movement counts for nothing.
     */
    [[nodiscard]] QRect geometryAt(const QPoint &moved, bool keepsRatio) const;
};

} // namespace lctrlsex
