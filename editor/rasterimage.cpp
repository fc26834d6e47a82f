#include "rasterimage.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace lctrlsex {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("RasterImage", text);
}

RasterImage failure(const char *text)
{
    return {QImage(), tr(text)};
}

uint byteAt(const QByteArray &data, qint64 pos)
{
    return pos < data.size() ? uchar(data.at(int(pos))) : 0;
}

RasterData dataFailure(const char *text)
{
    return {QByteArray(), tr(text)};
}

/** Bytes of the colour table that the flags of a GIF's screen or frame announce. */
qint64 colorTableSize(uint flags)
{
    return (flags & 0x80U) != 0 ? 3 * (qint64(2) << (flags & 7U)) : 0;
}

/** Whether the first frame of a GIF is there to its end. */
bool hasWholeGifFrame(const QByteArray &data)
{
    qint64 pos = 13 + colorTableSize(byteAt(data, 10));
    while (pos < data.size()) {
        const bool frame = byteAt(data, pos) == 0x2c;
        if (!frame && byteAt(data, pos) != 0x21) {
            return false;
        }
        pos += frame ? 11 + colorTableSize(byteAt(data, pos + 9)) : 2;
        while (pos < data.size() && byteAt(data, pos) != 0) {
            pos += 1 + byteAt(data, pos);
        }
        if (frame) {
            return pos < data.size();
        }
        ++pos;
    }
    return false;
}

/** Whether a BMP has all the bytes that its header promises. */
bool hasWholeBitmap(const QByteArray &data, const QSize &size)
{
    constexpr int smallestFile = 54;
    constexpr quint32 oldHeaderSize = 12;
    if (data.size() < smallestFile) {
        return false;
    }
    const char *const header = data.constData();
    const auto pixels = qFromLittleEndian<quint32>(header + 10);
    const bool old = qFromLittleEndian<quint32>(header + 14) == oldHeaderSize;
    const auto depth = qFromLittleEndian<quint16>(header + (old ? 24 : 28));
    const auto compression = old ? 0 : qFromLittleEndian<quint32>(header + 30);
    const qint64 stride = (qint64(size.width()) * depth + 31) / 32 * 4;
    const bool packed = compression == 1 || compression == 2;
    const qint64 bytes = packed ? qFromLittleEndian<quint32>(header + 34) : stride * size.height();
    return bytes > 0 && pixels + bytes <= data.size();
}

/** The decoders show a cut picture as a whole one: so its end is looked for. */
bool isComplete(const QByteArray &format, const QByteArray &data, const QSize &size)
{
    if (format == "jpeg") {
        // The end mark of a preview picture stands before the scan of the picture itself.
        return data.lastIndexOf("\xff\xd9") > data.lastIndexOf("\xff\xda");
    }
    if (format == "png") {
        return data.contains("IEND\xae\x42\x60\x82");
    }
    return format == "gif" ? hasWholeGifFrame(data) : hasWholeBitmap(data, size);
}

bool isTooLarge(const QSize &size)
{
    return size.width() > longestRasterSide || size.height() > longestRasterSide ||
           qint64(size.width()) * size.height() > mostRasterPixels;
}

RasterImage tooLarge()
{
    return failure(QT_TRANSLATE_NOOP(
        "RasterImage", "The picture is too large; save it with at most 16384 pixels on a side and "
                       "64 million pixels in all."));
}

RasterImage damaged()
{
    return failure(QT_TRANSLATE_NOOP(
        "RasterImage", "The picture is damaged or incomplete; save it again or copy it anew."));
}

} // namespace

QByteArray rasterFormatOf(const QByteArray &data)
{
    if (data.startsWith("\x89PNG\r\n\x1a\n")) {
        return QByteArrayLiteral("png");
    }
    if (data.startsWith("\xff\xd8\xff")) {
        return QByteArrayLiteral("jpeg");
    }
    if (data.startsWith("GIF87a") || data.startsWith("GIF89a")) {
        return QByteArrayLiteral("gif");
    }
    return data.startsWith("BM") ? QByteArrayLiteral("bmp") : QByteArray();
}

RasterImage checkedRaster(const QImage &image)
{
    if (isTooLarge(image.size())) {
        return tooLarge();
    }
    return image.isNull() ? damaged() : RasterImage{image, QString()};
}

RasterImage decodeRaster(const QByteArray &data, qint64 mostBytes)
{
    if (data.size() > mostBytes) {
        const char *const reason = QT_TRANSLATE_NOOP(
            "RasterImage", "The picture file is larger than %1 MB; save it smaller.");
        return {QImage(), tr(reason).arg(mostBytes / 1024 / 1024)};
    }
    const QByteArray format = rasterFormatOf(data);
    if (format.isEmpty()) {
        return failure(QT_TRANSLATE_NOOP(
            "RasterImage",
            "The file is not a PNG, JPEG, GIF or BMP picture; convert it to one of these."));
    }
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setDecideFormatFromContent(false);
    const QSize size = reader.size();
    if (isTooLarge(size)) {
        return tooLarge();
    }
    QImage image;
    if (!size.isValid() || size.isEmpty() || !isComplete(format, data, size) ||
        !reader.read(&image) || image.size() != size) {
        return damaged();
    }
    return {image, QString()};
}

RasterData readRasterData(const QString &path, qint64 mostBytes)
{
    const char *const unreadable = QT_TRANSLATE_NOOP(
        "RasterImage", "The picture cannot be read; check that the file exists and may be read.");
    QFile file(path);
#ifdef Q_OS_UNIX
    // Opened first and looked at then, so that nothing can be put in its place in between; opening
    // does not wait for the other end of a pipe.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    struct stat status = {};
    if (descriptor < 0) {
        return dataFailure(unreadable);
    }
    const bool regular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (!regular || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return dataFailure(regular
                               ? unreadable
                               : QT_TRANSLATE_NOOP("RasterImage",
                                                   "This is not a file with a picture; choose a "
                                                   "picture file."));
    }
#else
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return dataFailure(unreadable);
    }
#endif
    // One byte more than allowed is enough to know.
    return {file.read(mostBytes + 1), QString()};
}

RasterImage readRasterFile(const QString &path, qint64 mostBytes)
{
    const RasterData read = readRasterData(path, mostBytes);
    return read.error.isEmpty() ? decodeRaster(read.data, mostBytes)
                                : RasterImage{QImage(), read.error};
}

} // namespace lctrlsex
