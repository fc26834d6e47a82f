#include "itemimagehandler.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextDocument>
#include <QUrl>

namespace lctrlsex {

namespace {

constexpr int LongestImageSide = 16384;

} // namespace

QImage ItemImageHandler::imageOf(const QTextDocument *document, const QTextImageFormat &format)
{
    const QVariant value = document->resource(QTextDocument::ImageResource, QUrl(format.name()));
    return value.value<QImage>();
}

QSizeF ItemImageHandler::intrinsicSize(QTextDocument *document, int position,
                                       const QTextFormat &format)
{
    Q_UNUSED(position)
    // A thin image with a width alone would be higher than Qt can lay out.
    QSizeF size = wantedSize(document, format.toImageFormat());
    if (format.toImageFormat().verticalAlignment() == QTextCharFormat::AlignBaseline) {
        // The layout adds room for what the font has below the line.
        size.rheight() -= QFontMetrics(format.toImageFormat().font()).descent();
    }
    return {qBound(0.0, size.width(), qreal(LongestImageSide)),
            qBound(0.0, size.height(), qreal(LongestImageSide))};
}

QSizeF ItemImageHandler::wantedSize(const QTextDocument *document, const QTextImageFormat &image)
{
    const bool hasWidth = image.hasProperty(QTextFormat::ImageWidth);
    const bool hasHeight = image.hasProperty(QTextFormat::ImageHeight);
    if (hasWidth && hasHeight) {
        return {image.width(), image.height()};
    }
    const QSizeF own = imageOf(document, image).size();
    if (own.isEmpty()) {
        return {hasWidth ? image.width() : 0, hasHeight ? image.height() : 0};
    }
    if (hasWidth) {
        return {image.width(), image.width() * own.height() / own.width()};
    }
    if (hasHeight) {
        return {image.height() * own.width() / own.height(), image.height()};
    }
    return own;
}

void ItemImageHandler::drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document,
                                  int position, const QTextFormat &format)
{
    Q_UNUSED(position)
    const QImage image = imageOf(document, format.toImageFormat());
    if (image.isNull()) {
        return;
    }
    QRectF place = rect;
    if (format.toImageFormat().verticalAlignment() == QTextCharFormat::AlignBaseline) {
        place.setHeight(wantedSize(document, format.toImageFormat()).height());
    }
    // Only what is scaled: one that lies between two pixels is not to be blurred.
    const bool isSmooth = painter->testRenderHint(QPainter::SmoothPixmapTransform);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, place.size() != image.size());
    painter->drawImage(place, image, image.rect());
    painter->setRenderHint(QPainter::SmoothPixmapTransform, isSmooth);
}

} // namespace lctrlsex
