#include "imageinsertion.h"

#include "documentimages.h"
#include "pastedtext.h"
#include "rasterimage.h"
#include "table/fieldformat.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QImageReader>
#include <QMimeData>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <QtMath>

#include <algorithm>

namespace lctrlsex {

namespace {

/** Texts of this file, under one name for translators. */
struct ImageInsertionTexts
{
    Q_DECLARE_TR_FUNCTIONS(ImageInsertion)
};

constexpr int LargestPng = 2 * 1024 * 1024; // bytes
constexpr int JpegQuality = 90;
constexpr int MostFiles = 20;
const char *const SizeFormat = "application/x-lctrlsex-picture-size";

InsertedPicture refused(const QString &reason)
{
    return {QString(), QSize(), ImageInsertionTexts::tr("No picture was inserted. %1").arg(reason)};
}

InsertedPicture stored(const QByteArray &data, const QByteArray &format, const QSize &size)
{
    return {QLatin1String("data:image/") + QLatin1String(format) + QLatin1String(";base64,") +
                QString::fromLatin1(data.toBase64()),
            size, QString()};
}

/** The pixels in @p size alone: no texts, resolution or palette. */
QImage bare(const QImage &image, const QSize &size)
{
    const QImage::Format format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
    QImage result = image.convertToFormat(format);
    if (size != result.size()) {
        result = result.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                     .convertToFormat(format);
    }
    return QImage(result.constBits(), result.width(), result.height(), result.bytesPerLine(),
                  format)
        .copy();
}

QByteArray encoded(const QImage &image, const QByteArray &format)
{
    const int quality = format == "jpeg" ? JpegQuality : -1;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format.constData(), quality) ? buffer.data() : QByteArray();
}

InsertedPicture storedImage(const QImage &image, const QSize &limit, bool isJpeg)
{
    const QImage pixels = bare(image, fittedSize(image.size(), limit));
    const char *format = isJpeg ? "jpeg" : "png";
    QByteArray data = encoded(pixels, format);
    if (!isJpeg && data.size() > LargestPng && !pixels.hasAlphaChannel()) {
        format = "jpeg";
        data = encoded(pixels, format);
    }
    return data.isEmpty() ? refused(checkedRaster(QImage()).error) // there was no memory for it
                          : stored(data, format, pixels.size());
}

/** A camera writes beside a JPEG how it was held; null when that was upright. */
QImage turnedUpright(QByteArray jpeg)
{
    QBuffer buffer(&jpeg);
    QImageReader reader(&buffer, "jpeg");
    reader.setAutoTransform(true);
    return reader.transformation() == QImageIOHandler::TransformationNone ? QImage()
                                                                          : reader.read();
}

/** Whether all the text is the names of the files, as file managers add them. */
bool textNamesFiles(const QMimeData &data, const QList<QUrl> &files)
{
    const QStringList lines = data.text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return std::all_of(lines.begin(), lines.end(), [&files](const QString &line) {
        const QString name = line.trimmed();
        return std::any_of(files.begin(), files.end(), [&name](const QUrl &file) {
            return name == file.toLocalFile() || QUrl(name) == file;
        });
    });
}

/** The files that @p data names; none when it has text of its own or addresses of the network. */
QList<QUrl> filesOf(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    const bool areLocal =
        std::all_of(urls.begin(), urls.end(), [](const QUrl &url) { return url.isLocalFile(); });
    const bool hasOwnText =
        data.hasFormat(QStringLiteral("text/plain")) && !textNamesFiles(data, urls);
    return areLocal && !hasOwnText ? urls : QList<QUrl>();
}

QString anyImageFormat(const QMimeData &data)
{
    const QStringList formats = data.formats().filter(QLatin1String("image/"));
    return formats.isEmpty() ? QString() : formats.first();
}

/** The bytes of an image as its owner encoded it, which are looked at before they are decoded. */
QByteArray encodedImage(const QMimeData &data)
{
    for (const char *const format : {"image/png", "image/jpeg", "image/gif", "image/bmp"}) {
        const QByteArray bytes = data.data(QLatin1String(format));
        if (!bytes.isEmpty()) {
            return bytes;
        }
    }
    const QString format = anyImageFormat(data);
    return format.isEmpty() ? QByteArray() : data.data(format);
}

/** A copy of a picture that was resized in the text keeps that size. */
QSize sizeInText(const QMimeData &data)
{
    const QList<QByteArray> sides = data.data(QLatin1String(SizeFormat)).split('x');
    return sides.size() == 2 ? QSize(sides.at(0).toInt(), sides.at(1).toInt()) : QSize();
}

QTextImageFormat formatOf(const InsertedPicture &picture, const QTextCharFormat &text)
{
    QTextImageFormat format;
    format.merge(text); // what is typed behind it looks like what was there
    format.setObjectType(QTextFormat::ImageObject);
    format.setName(picture.name);
    format.setWidth(picture.size.width());
    format.setHeight(picture.size.height());
    return format;
}

} // namespace

QSize fittedSize(const QSize &size, const QSize &limit)
{
    const bool isTooLarge =
        !limit.isEmpty() && (size.width() > limit.width() || size.height() > limit.height());
    return (isTooLarge ? size.scaled(limit, Qt::KeepAspectRatio) : size).expandedTo(QSize(1, 1));
}

QSize boundedSize(const QSize &size, const QSize &limit)
{
    return (limit.isEmpty() ? size : size.boundedTo(limit)).expandedTo(QSize(1, 1));
}

QSize roomForPictures(const QSize &item, qreal margin)
{
    const int margins = qCeil(2 * margin);
    const QSize room = item - QSize(margins, margins);
    return room.isEmpty() ? item : room;
}

InsertedPicture pictureFromData(const QByteArray &data, const QSize &limit)
{
    const RasterImage raster = decodeRaster(data);
    if (!raster.error.isEmpty()) {
        return refused(raster.error);
    }
    const bool isJpeg = rasterFormatOf(data) == "jpeg";
    const QImage turned = isJpeg ? turnedUpright(data) : QImage();
    const QSize size = raster.image.size();
    if (isJpeg && turned.isNull() && fittedSize(size, limit) == size) {
        return stored(data, "jpeg", size);
    }
    return storedImage(turned.isNull() ? raster.image : turned, limit, isJpeg);
}

InsertedPicture pictureFromImage(const QImage &image, const QSize &limit)
{
    const RasterImage raster = checkedRaster(image);
    return raster.error.isEmpty() ? storedImage(raster.image, limit, false) : refused(raster.error);
}

InsertedPicture pictureFromFile(const QString &path, const QSize &limit)
{
    const RasterData read = readRasterData(path);
    return read.error.isEmpty() ? pictureFromData(read.data, limit) : refused(read.error);
}

bool offersPictures(const QMimeData &data)
{
    const bool hasText = data.hasText() && !data.text().isEmpty();
    return !filesOf(data).isEmpty() ||
           (!hasText && (data.hasImage() || !anyImageFormat(data).isEmpty()));
}

QVector<InsertedPicture> picturesOf(const QMimeData &data, const QSize &limit)
{
    QVector<InsertedPicture> pictures;
    const QList<QUrl> files = filesOf(data);
    if (files.size() > MostFiles) {
        return {refused(ImageInsertionTexts::tr("At most %1 files can be inserted at once; "
                                                "insert them in parts.")
                            .arg(MostFiles))};
    }
    for (const QUrl &file : files) {
        pictures.append(pictureFromFile(file.toLocalFile(), limit));
        if (!pictures.last().problem.isEmpty()) {
            return pictures;
        }
    }
    if (pictures.isEmpty()) {
        const QByteArray bytes = encodedImage(data);
        pictures.append(bytes.isEmpty() ? pictureFromImage(data.imageData().value<QImage>(), limit)
                                        : pictureFromData(bytes, limit));
        const QSize size = sizeInText(data);
        pictures.last().size = size.isEmpty() ? pictures.last().size : boundedSize(size, limit);
    }
    return pictures;
}

std::unique_ptr<QMimeData> pictureData(const QTextCursor &cursor)
{
    const int position = cursor.hasSelection() ? pictureAt(cursor) : -1;
    if (position < 0) {
        return nullptr;
    }
    const QString name = formatOfCharacter(*cursor.document(), position).toImageFormat().name();
    const QByteArray bytes =
        QByteArray::fromBase64(name.midRef(name.indexOf(QLatin1Char(',')) + 1).toLatin1());
    const QByteArray format = rasterFormatOf(bytes);
    if (format.isEmpty()) {
        return nullptr; // a built-in one, or none that can be read
    }
    const QSize size = pictureRect(*cursor.document(), position).size().toSize();
    auto data = std::make_unique<QMimeData>();
    data->setData(QLatin1String("image/") + QLatin1String(format), bytes);
    data->setData(QLatin1String(SizeFormat),
                  QByteArray::number(size.width()) + 'x' + QByteArray::number(size.height()));
    return data;
}

QString insertPictures(QTextCursor *cursor, const QVector<InsertedPicture> &pictures)
{
    for (const InsertedPicture &picture : pictures) {
        if (!picture.problem.isEmpty()) {
            return picture.problem;
        }
    }
    const auto insert = [&pictures](QTextCursor *at) {
        const QTextCharFormat text = formatBehind(at->charFormat());
        at->beginEditBlock(); // a merge can join no other step
        at->removeSelectedText();
        for (const InsertedPicture &picture : pictures) {
            at->insertImage(formatOf(picture, text));
        }
        at->endEditBlock();
    };
    const QString problem = reopeningProblemAfter(*cursor, insert);
    if (problem.isEmpty()) {
        insert(cursor);
        cursor->setCharFormat(formatBehind(cursor->charFormat())); // for what is typed next
        return {};
    }
    return ImageInsertionTexts::tr("No picture was inserted, because the document could not be "
                                   "opened again: %1")
        .arg(problem);
}

QString insertImageText()
{
    return ImageInsertionTexts::tr("Insert Image...");
}

QString imageFileFilter()
{
    return ImageInsertionTexts::tr("Pictures (*.png *.jpg *.jpeg *.gif *.bmp)");
}

} // namespace lctrlsex
