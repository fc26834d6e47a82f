#pragma once

#include <QImage>
#include <QSet>
#include <QString>

namespace player {

/** Gives every page a file name that file systems take and no two items share. */
class PageNames
{
public:
    /** The stem for an item called @p name: the name, with -2, -3 ... behind it when taken. */
    QString stemFor(const QString &name);

private:
    QSet<QString> m_taken;
};

/**
 * Writes @p image as a PNG file that appears under @p fileName only when it is complete. The
 * reason when it cannot be written, else empty.
 */
[[nodiscard]] QString writePageFile(const QImage &image, const QString &fileName);

} // namespace player
