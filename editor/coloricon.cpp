#include "coloricon.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>

namespace lctrlsex {

namespace {

constexpr int Side = 16;

} // namespace

QIcon barIcon(const QString &path, const QColor &color)
{
    // Loading a picture costs more than all else that a cursor movement does.
    static QHash<QString, QPixmap> pictures;
    QPixmap &known = pictures[path];
    if (known.isNull()) {
        known = QIcon(path).pixmap(Side, Side);
    }
    QPixmap picture = known;
    if (!picture.isNull()) {
        QPainter(&picture).fillRect(0, 13, 14, 2, color);
    }
    return QIcon(picture);
}

QIcon squareIcon(const QColor &color)
{
    QPixmap picture(Side, Side);
    picture.fill(color);
    return QIcon(picture);
}

} // namespace lctrlsex
