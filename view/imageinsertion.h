#pragma once

#include <QSize>
#include <QString>
#include <QVector>

#include <memory>

class QByteArray;
class QImage;
class QMimeData;
class QTextCursor;

namespace lctrlsex {

/** A picture that is to be inserted, or why it is not. */
struct InsertedPicture
{
    QString name;    ///< A "data:" address with the picture in it; never one of a file.
    QSize size;      ///< In the text, in pixels.
    QString problem; ///< Reason and remedy for the user; empty when there is a picture.
};

/** @p size scaled down to @p limit with its ratio, at least 1 pixel; an empty limit is none. */
[[nodiscard]] QSize fittedSize(const QSize &size, const QSize &limit);
/** @p size with each side within 1 and @p limit; an empty limit is none. */
[[nodiscard]] QSize boundedSize(const QSize &size, const QSize &limit);

/** What an item has inside of the margins of its text: a picture in it is not cut on a page. */
[[nodiscard]] QSize roomForPictures(const QSize &item, qreal margin);

/**
 * The picture in @p data, read as decodeRaster() does, scaled down to @p limit and never up. It is
 * stored as PNG; a JPEG stays one, byte for byte when it needs no scaling. An opaque picture whose
 * PNG would have more than 2 MB becomes a JPEG too, so that the text stays one that can be stored.
 * Any thread.
 */
[[nodiscard]] InsertedPicture pictureFromData(const QByteArray &data, const QSize &limit);
/** The same for a picture that is decoded already. */
[[nodiscard]] InsertedPicture pictureFromImage(const QImage &image, const QSize &limit);
/** The same for a file. */
[[nodiscard]] InsertedPicture pictureFromFile(const QString &path, const QSize &limit);

/**
 * Whether @p data is to be taken as pictures: it has no text but the names of its own files, and
 * files or an image. Reads none of them.
 */
[[nodiscard]] bool offersPictures(const QMimeData &data);
/** The pictures of what offersPictures(), at least one; the first problem ends them. */
[[nodiscard]] QVector<InsertedPicture> picturesOf(const QMimeData &data, const QSize &limit);
/** The picture that is all of the selection of @p cursor, for picturesOf(); else null. */
[[nodiscard]] std::unique_ptr<QMimeData> pictureData(const QTextCursor &cursor);

/**
 * Replaces the selection of @p cursor by @p pictures, as one undo step. When one of them has a
 * problem, or the document could not be opened again, nothing changes and the problem is returned.
 */
[[nodiscard]] QString insertPictures(QTextCursor *cursor, const QVector<InsertedPicture> &pictures);

/** The text of a menu entry, and what a file dialog offers. */
[[nodiscard]] QString insertImageText();
[[nodiscard]] QString imageFileFilter();

} // namespace lctrlsex
