#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace lctrlsex {

/** A picture that was read, or why it was not. */
struct RasterImage
{
    /** Null when there is an error. */
    QImage image;
    /** Reason and remedy in one sentence for the user; empty when there is an image. */
    QString error;
};

/** The bytes of a picture, or why there are none. */
struct RasterData
{
    QByteArray data;
    QString error; ///< As in RasterImage.
};

/** Most bytes that a picture in a document may have. */
constexpr qint64 largestRasterData = qint64(16) * 1024 * 1024;
/** Most pixels in all and on a side. */
constexpr qint64 mostRasterPixels = qint64(64) * 1024 * 1024;
constexpr int longestRasterSide = 16384;

/**
 * Decodes a PNG, JPEG, GIF (its first frame) or BMP picture, told apart by their first bytes alone.
 * The size is read before anything is decoded, so that a refusal is quick and small. A picture
 * that is cut off, lies about its size or has more than @p mostBytes is an error, never a part of a
 * picture. Any thread.
 */
[[nodiscard]] RasterImage decodeRaster(const QByteArray &data,
                                       qint64 mostBytes = largestRasterData);

/** The format that the first bytes announce: "png", "jpeg", "gif", "bmp" or none. Any thread. */
[[nodiscard]] QByteArray rasterFormatOf(const QByteArray &data);

/** @p image itself, or an error when it is null or larger than a picture may be. Any thread. */
[[nodiscard]] RasterImage checkedRaster(const QImage &image);

/**
 * Reads the bytes of a file, at most one more than @p mostBytes, and decodes nothing. What is not a
 * regular file (a pipe, a device, a folder) is an error and is not waited for. Any thread.
 */
[[nodiscard]] RasterData readRasterData(const QString &path, qint64 mostBytes = largestRasterData);

/**
 * Reads a picture from a file as decodeRaster(). What is not a regular file (a pipe, a device, a
 * folder) is an error and is not waited for. Any thread.
 */
[[nodiscard]] RasterImage readRasterFile(const QString &path, qint64 mostBytes = largestRasterData);

} // namespace lctrlsex
